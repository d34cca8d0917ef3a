#include "faults/PendingFault.h"

#include <exception>

#include <windows.h>

namespace lindrel {

namespace {
thread_local std::exception_ptr pending;
}

void KeepPendingFault() noexcept {
    if (!pending) pending = std::current_exception();
    // GetMessage does not return for a message that another thread sent. A full queue needs no wake-up.
    static_cast<void>(PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0));
}

void ThrowPendingFault() {
    const DWORD error = GetLastError();  // which access to a thread_local may change
    if (pending) std::rethrow_exception(std::exchange(pending, nullptr));
    SetLastError(error);
}

}  // namespace lindrel
