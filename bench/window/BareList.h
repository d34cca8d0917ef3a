// What the list control itself costs: a list view like another one, but with the same text in every row and
// nobody who looks at its messages. It lies before that until it is gone.
#pragma once

#include <array>
#include <string>

#include "window/Windows.h"

namespace lindrel::bench {

class BareList {
  public:
    // Takes size, styles, font, columns and check boxes of `model`. Throws std::runtime_error.
    BareList(HWND model, std::array<std::wstring, 2> cells);
    ~BareList();
    BareList(const BareList&) = delete;
    BareList& operator=(const BareList&) = delete;

    // Milliseconds until it is painted: emptied and filled with so many rows; scrolled to a row (1-based),
    // which is selected.
    double Fill(int rows) const;
    double Show(int row) const;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR id,
                                      DWORD_PTR data);

    std::array<std::wstring, 2> cells_;
    HWND frame_ = nullptr;
    HWND list_ = nullptr;
};

}  // namespace lindrel::bench
