// Tool tips as the user would see them.
#pragma once

#include <string>
#include <vector>

#include "tests/window/support/Program.h"

namespace lindrel::testing {

// The windows that show the tips of a window.
inline std::vector<HWND> TipWindowsOf(HWND window) {
    std::vector<HWND> found;
    for (HWND tips = nullptr; (tips = FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr)) != nullptr;)
        if (GetWindow(tips, GW_OWNER) == window) found.push_back(tips);
    return found;
}

// The tip of a control, empty for none. To be called in the thread of its window.
inline std::wstring TipFor(HWND control) {
    std::wstring text(1024, L'\0');
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = GetParent(control);
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = text.data();
    for (const HWND tips : TipWindowsOf(tool.hwnd))
        if (text[0] == L'\0') SendMessageW(tips, TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
    return text.c_str();
}

// The tip of a control of the main window or a dialog once the pointer is on it; empty for none.
inline std::wstring ToolTipOf(const Program& program, HWND control) {
    return program.Ask<std::wstring>([control](frmStart&) {
        // What the system sends when the pointer comes.
        SendMessageW(GetParent(control), WM_SETCURSOR, reinterpret_cast<WPARAM>(control),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return TipFor(control);
    });
}

}  // namespace lindrel::testing
