#include "controls/MsgBox.h"

#include <new>

namespace lindrel {

int MsgBox(HWND owner, const std::wstring& text, UINT style, const std::wstring& title) {
    const int button = MessageBoxW(owner, text.c_str(), title.c_str(), style);
    if (button == 0) throw std::bad_alloc();
    return button;
}

}  // namespace lindrel
