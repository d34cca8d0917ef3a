// Trying again what another program stands in the way of for a moment: a virus scanner, a cloud client, a
// backup that has the file open.
#pragma once

#include <algorithm>
#include <chrono>
#include <thread>

namespace lindrel {

// How long the opening and replacing of a file is tried.
inline constexpr std::chrono::milliseconds kFilePatience{2000};

class Patience {
  public:
    explicit Patience(std::chrono::milliseconds most) : left_(most) {}

    // Waits, each time longer than the last. Returns false at once when the time is over.
    bool Pause() {
        if (left_ <= std::chrono::milliseconds::zero()) return false;
        const std::chrono::milliseconds pause = std::min(next_, left_);
        std::this_thread::sleep_for(pause);
        left_ -= pause;
        next_ *= 2;
        return true;
    }

  private:
    std::chrono::milliseconds next_{10};
    std::chrono::milliseconds left_;
};

}  // namespace lindrel
