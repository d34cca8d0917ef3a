// Whether what a window shows is what it should show.
#pragma once

#include "tests/window/support/Program.h"

namespace lindrel::testing {

// The part of a window of the program whose pixels change when everything in it is drawn anew: what was drawn
// wrongly or not at all. Empty when nothing does. In pixels from the window's corner.
RECT StalePart(const Program& program, HWND window);

}  // namespace lindrel::testing
