// Waiting in tests: always for something, always with a deadline, never for a fixed time.
#pragma once

#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>

namespace lindrel::testing {

// What a test waited for did not come. Fails the test that does not catch it.
class DeadlinePassed : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Long enough for a machine that has much else to do.
inline constexpr std::chrono::seconds kDeadline{60};
inline constexpr unsigned long kDeadlineInMilliseconds = 1000 * kDeadline.count();

// Asks until the answer is true. Throws DeadlinePassed, naming what was waited for.
void WaitUntil(const std::string& what, const std::function<bool()>& answer,
               std::chrono::milliseconds deadline = kDeadline);

// Asks until the answer is true; false when the deadline passes first.
bool Eventually(const std::function<bool()>& answer, std::chrono::milliseconds deadline = kDeadline);

}  // namespace lindrel::testing
