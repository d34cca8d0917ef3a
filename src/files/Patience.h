// Retrying while another program, such as a virus scanner or a backup, holds what is needed.
#pragma once

#include <algorithm>
#include <chrono>
#include <thread>

namespace lindrel {

// For opening and replacing a file.
inline constexpr std::chrono::milliseconds kFilePatience{2000};

class Patience {
  public:
    // `most` is the time that all pauses take together.
    explicit Patience(std::chrono::milliseconds most) : left_(most) {}

    // Pauses for 10 ms, then twice as long each time. Returns false at once when the time is used up.
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
