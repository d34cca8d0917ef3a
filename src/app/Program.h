// The program from its start to its end.
#pragma once

#include "window/Windows.h"

namespace lindrel {

// Opens the main window on this thread and runs its message loop until the window is closed. Returns the exit
// code: 0, or 1 after a fault that no command handled, which was reported and followed by the offer to save
// what was unsaved. `show` is a SW_ value.
int RunProgram(HINSTANCE instance, int show);

}  // namespace lindrel
