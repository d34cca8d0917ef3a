// Accepts a file that the user drags onto a window. Anything but one file with the right extension is refused
// during the drag, as the cursor shows.
#pragma once

#include <string>
#include <utility>

#include "window/Windows.h"

namespace lindrel {

class FileDrop {
  public:
    // Posted to the window after a drop. A message box shown during the drop itself would block the program
    // that the file comes from.
    static constexpr UINT kMessage = WM_APP;

    // `extension` with its dot, such as ".lnd"; case does not matter.
    explicit FileDrop(std::wstring extension) : extension_(std::move(extension)) {}
    ~FileDrop() { Detach(); }
    FileDrop(const FileDrop&) = delete;
    FileDrop& operator=(const FileDrop&) = delete;

    // From now on the window accepts files while it is enabled, and is in the foreground after a drop. Its
    // thread must have called OleInitialize. If Windows refuses, nothing can be dropped.
    void Attach(HWND window);
    // To be called before the window is destroyed.
    void Detach();

    // For kMessage: the path of the dropped file; empty if it was taken already.
    std::wstring TakePath() { return std::exchange(path_, {}); }

  private:
    class Target;

    std::wstring extension_;
    HWND window_ = nullptr;
    std::wstring path_;
};

}  // namespace lindrel
