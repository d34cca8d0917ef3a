// What a list says while it has no rows. The text is no row: keys, marks and programs that read the screen
// aloud find an empty list.
#pragma once

#include <optional>
#include <string>

#include "controls/Subclass.h"
#include "controls/Windows.h"

namespace lindrel {

class EmptyListText {
  public:
    // For a list view in report form. Throws std::bad_alloc when the system cannot.
    void Attach(HWND list);
    // May have several lines; an empty one says nothing.
    void Set(const std::wstring& text);

  private:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wparam, LPARAM lparam) const;
    bool IsShown() const { return !text_.empty() && ListView_GetItemCount(list_) == 0; }
    void Paint() const;
    void Draw(HDC canvas) const;
    RECT Place() const;

    HWND list_ = nullptr;
    Subclass subclass_;
    std::wstring text_;
};

}  // namespace lindrel
