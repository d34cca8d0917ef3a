#include "tests/window/support/Polling.h"

#include "window/Windows.h"

namespace lindrel::testing {

namespace {

// Lets other threads run between two questions: nobody ever sets the event.
void Pause() {
    static const HANDLE never = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    WaitForSingleObject(never, 5);
}

}  // namespace

bool Eventually(const std::function<bool()>& answer, std::chrono::milliseconds deadline) {
    const auto end = std::chrono::steady_clock::now() + deadline;
    while (!answer()) {
        if (std::chrono::steady_clock::now() > end) return false;
        Pause();
    }
    return true;
}

void WaitUntil(const std::string& what, const std::function<bool()>& answer,
               std::chrono::milliseconds deadline) {
    if (!Eventually(answer, deadline)) throw DeadlinePassed("waited in vain for " + what);
}

}  // namespace lindrel::testing
