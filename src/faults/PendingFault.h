// Exceptions must not cross a window procedure. It keeps what it caught here, and the message loop that
// dispatched the message throws it. Each thread has its own pending fault.
#pragma once

#include <utility>

namespace lindrel {

// Keeps the exception being handled, unless one is pending already, and wakes the thread's message loop.
void KeepPendingFault() noexcept;

// Throws the pending exception, if there is one; leaves GetLastError() as it was. To be called after each
// message that a loop dispatches.
void ThrowPendingFault();

// Runs a handler inside a window procedure. If it throws, the exception is kept and the result is
// `otherwise`.
template <typename Result, typename Handler>
Result Guarded(Result otherwise, Handler&& handler) noexcept {
    try {
        return std::forward<Handler>(handler)();
    } catch (...) {
        KeepPendingFault();
        return otherwise;
    }
}

}  // namespace lindrel
