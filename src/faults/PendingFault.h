// Exceptions never cross a window procedure: it keeps what it caught here, and the message loop that
// dispatched the message throws it on. Each thread has its own.
#pragma once

#include <utility>

namespace lindrel {

// Keeps the exception being handled, unless one is kept already, and wakes the thread's message loop.
void KeepPendingFault() noexcept;

// Throws the kept exception, if there is one. Called after each message that a loop dispatches.
void ThrowPendingFault();

// Runs a handler inside a window procedure. When it throws, the fault is kept and the result is `otherwise`.
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
