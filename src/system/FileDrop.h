// Takes a file that the user drags onto a window. Anything but one file of the right extension is refused
// while the user still holds it: the cursor shows that.
#pragma once

#include <string>
#include <utility>

#include "window/Windows.h"

namespace lindrel {

class FileDrop {
  public:
    // Posted to the window after a drop, so that a box which it shows then does not block the program that
    // the file comes from.
    static constexpr UINT kMessage = WM_APP;

    // `extension` with its dot, such as ".lnd"; case does not matter.
    explicit FileDrop(std::wstring extension) : extension_(std::move(extension)) {}
    ~FileDrop() { Detach(); }
    FileDrop(const FileDrop&) = delete;
    FileDrop& operator=(const FileDrop&) = delete;

    // From now on the window takes such files, one at a time, while it is enabled. Its thread must have
    // called OleInitialize. Throws SystemFault when the system cannot.
    void Attach(HWND window);
    // Before the window is destroyed.
    void Detach();

    // Path of the file that was dropped last; for kMessage.
    std::wstring TakePath() { return std::exchange(path_, {}); }

  private:
    class Target;

    std::wstring extension_;
    HWND window_ = nullptr;
    std::wstring path_;
};

}  // namespace lindrel
