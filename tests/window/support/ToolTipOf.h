// Tool tips as the user would see them.
#pragma once

#include <string>
#include <vector>

#include "tests/window/support/Program.h"

namespace lindrel::testing {

// The windows that show the tips of a window.
std::vector<HWND> TipWindowsOf(HWND window);

// The tip of a control, asked in the thread of its window; empty for none.
std::wstring TipFor(HWND control);

// The tip of a control of the main window or a dialog, once the mouse has come; empty for none.
std::wstring ToolTipOf(const Program& program, HWND control);

}  // namespace lindrel::testing
