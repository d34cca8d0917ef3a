// Waiting in tests: always for something, always with a deadline, never for a fixed time.
#pragma once

#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>

#include "window/Windows.h"

namespace lindrel::testing {

// What a test waited for did not come. Fails the test that does not catch it.
class DeadlinePassed : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Long enough for a busy machine.
inline constexpr std::chrono::seconds kDeadline{60};
inline constexpr unsigned long kDeadlineInMilliseconds = 1000 * kDeadline.count();

// Asks until the answer is true; false if the deadline passes first.
inline bool Eventually(const std::function<bool()>& answer, std::chrono::milliseconds deadline = kDeadline) {
    // Nobody ever sets it: waiting for it lets other threads run between two questions.
    static const HANDLE never = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    const auto end = std::chrono::steady_clock::now() + deadline;
    while (!answer()) {
        if (std::chrono::steady_clock::now() > end) return false;
        WaitForSingleObject(never, 5);
    }
    return true;
}

// The same; throws DeadlinePassed, which names what was waited for.
inline void WaitUntil(const std::string& what, const std::function<bool()>& answer,
                      std::chrono::milliseconds deadline = kDeadline) {
    if (!Eventually(answer, deadline)) throw DeadlinePassed("waited in vain for " + what);
}

}  // namespace lindrel::testing
