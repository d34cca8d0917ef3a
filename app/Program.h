// The program from its start to its end.
#pragma once

#include "controls/Windows.h"

namespace lindrel {

// Opens the main window on this thread and runs its message loop until it is closed. Returns the process's
// exit code: 0, or 1 when a fault that no command handles ended the program. Then the run-time error report
// was shown and, with unsaved changes, the offer to save them. `show` is a SW_ value.
int RunProgram(HINSTANCE instance, int show);

}  // namespace lindrel
