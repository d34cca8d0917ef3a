// How long something takes, and until it is painted. To be called on the program's thread: no other thread is
// measured with it.
#pragma once

#include <chrono>
#include <functional>
#include <stdexcept>

#include "window/Windows.h"

namespace lindrel::bench {

// Throws std::runtime_error.
inline void Demand(bool good, const char* what) {
    if (!good) throw std::runtime_error(what);
}

// Until no message waits and everything that a window shows is painted.
inline void Finish(HWND window) {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        Demand(message.message != WM_QUIT, "the program ends by itself");
        DispatchMessageW(&message);
    }
    Demand(RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN) != FALSE, "the painting");
    // With nothing waiting to be drawn the result means nothing.
    static_cast<void>(GdiFlush());
}

// Milliseconds that an action takes, and until all that it brought about is painted in the window as well.
inline double TimeOf(const std::function<void()>& action) {
    const auto begin = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}
inline double TimeUntilPainted(HWND window, const std::function<void()>& action) {
    Finish(window);
    return TimeOf([&] {
        action();
        Finish(window);
    });
}

}  // namespace lindrel::bench
