#include "tests/window/support/ToolTipOf.h"

namespace lindrel::testing {

std::wstring ToolTipOf(const Program& program, HWND control) {
    std::wstring text(1024, L'\0');
    // Asked on the program's own thread: the answer is written to where the question points.
    program.OnUi([&](frmStart&) {
        const HWND window = GetParent(control);
        TTTOOLINFOW tool{};
        tool.cbSize = sizeof tool;
        tool.hwnd = window;
        tool.uId = reinterpret_cast<UINT_PTR>(control);
        tool.lpszText = text.data();
        // As the system tells of a mouse that has come.
        SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(control),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        for (HWND tips = FindWindowExW(nullptr, nullptr, TOOLTIPS_CLASSW, nullptr); tips != nullptr;
             tips = FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr))
            if (GetWindow(tips, GW_OWNER) == window && text[0] == L'\0')
                SendMessageW(tips, TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
    });
    return text.c_str();
}

}  // namespace lindrel::testing
