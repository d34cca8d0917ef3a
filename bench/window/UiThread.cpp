#include "bench/window/UiThread.h"

#include <chrono>
#include <exception>
#include <stdexcept>
#include <utility>

namespace lindrel::bench {

namespace {

struct Waiting {
    const std::function<void()>& Work;
    std::exception_ptr Thrown;
};
Waiting* next = nullptr;  // a timer's procedure is told nothing else

void CALLBACK OnTimer(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    Waiting* const now = std::exchange(next, nullptr);
    if (now == nullptr) return;
    try {
        now->Work();
    } catch (...) {
        now->Thrown = std::current_exception();
    }
}

}  // namespace

void Demand(bool good, const char* what) {
    if (!good) throw std::runtime_error(what);
}

void RunInside(const std::function<void()>& loop, const std::function<void()>& work) {
    Waiting waiting{work, nullptr};
    next = &waiting;
    Demand(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &OnTimer) != 0, "a timer");
    loop();
    if (waiting.Thrown) std::rethrow_exception(waiting.Thrown);
    Demand(std::exchange(next, nullptr) == nullptr, "the message loop has not come to the work");
}

void Finish(HWND window) {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        Demand(message.message != WM_QUIT, "the program ends by itself");
        DispatchMessageW(&message);
    }
    Demand(RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN) != FALSE, "the painting");
    // With nothing waiting to be drawn the result means nothing.
    static_cast<void>(GdiFlush());
}

double TimeOf(const std::function<void()>& action) {
    const auto begin = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

double TimeUntilPainted(HWND window, const std::function<void()>& action) {
    Finish(window);
    return TimeOf([&] {
        action();
        Finish(window);
    });
}

}  // namespace lindrel::bench
