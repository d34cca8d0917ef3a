// Tool tips as the user would see them.
#pragma once

#include <string>

#include "tests/window/support/Program.h"

namespace lindrel::testing {

// The tip of a control of the main window or a dialog; empty for none.
std::wstring ToolTipOf(const Program& program, HWND control);

}  // namespace lindrel::testing
