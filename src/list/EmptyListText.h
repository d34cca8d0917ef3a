// What a list says while it has no rows. The text is no row: keys, marks and programs that read the screen
// aloud find an empty list.
#pragma once

#include <string>

#include "window/Windows.h"

namespace lindrel {

class EmptyListText {
  public:
    // For a list view in report form.
    void Attach(HWND list) { list_ = list; }
    // May have several lines; an empty one says nothing.
    void Set(const std::wstring& text);

    // What the list has just done: painted itself, also on a canvas that it was given, or taken another size.
    void OnPaint() const;
    void OnPrintClient(HDC canvas) const;
    void OnSize() const;

  private:
    bool IsShown() const { return !text_.empty() && ListView_GetItemCount(list_) == 0; }
    void Draw(HDC canvas) const;
    RECT Place() const;

    HWND list_ = nullptr;
    std::wstring text_;
};

}  // namespace lindrel
