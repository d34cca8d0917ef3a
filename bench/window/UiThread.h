// The benchmark works on the program's own thread, inside its message loop: no other thread is measured with
// it.
#pragma once

#include <functional>

#include "window/Windows.h"

namespace lindrel::bench {

// Throws std::runtime_error.
void Demand(bool good, const char* what);

// Calls `loop`, which runs a message loop until its window is closed, and calls `work` once from inside that
// loop. `work` sees to it that the window is closed. Throws what `work` threw, once `loop` has returned.
void RunInside(const std::function<void()>& loop, const std::function<void()>& work);

// Until no message waits and everything that a window shows is painted.
void Finish(HWND window);

// Milliseconds that an action takes, and until all that it brought about is painted in the window as well.
double TimeOf(const std::function<void()>& action);
double TimeUntilPainted(HWND window, const std::function<void()>& action);

}  // namespace lindrel::bench
