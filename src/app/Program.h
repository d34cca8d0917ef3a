// The program from its start to its end.
#pragma once

#include "window/Windows.h"

namespace lindrel {

// Opens the main window on this thread, as a SW_ value says, and runs its message loop until the window is
// closed. Returns the exit code: 0, or 1 after a fault that no command handled. Such a fault is reported to
// the user, and unsaved changes are offered for saving.
int RunProgram(HINSTANCE instance, int show);

}  // namespace lindrel
