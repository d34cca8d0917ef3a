#include "controls/CreateControl.h"

#include <new>

namespace lindrel {

HWND CreateControl(HWND parent, const wchar_t* window_class, const wchar_t* text, DWORD style, int id,
                   DWORD extended_style) {
    auto* const module = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(parent, GWLP_HINSTANCE));
    const HWND control =
        CreateWindowExW(extended_style, window_class, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, parent,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), module, nullptr);
    if (control == nullptr) throw std::bad_alloc();
    return control;
}

}  // namespace lindrel
