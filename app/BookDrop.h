// Takes a book file that the user drags onto a window. Anything else is refused while it is still in the
// user's hand: the cursor says so.
#pragma once

#include <string>
#include <utility>

#include "controls/Windows.h"

namespace lindrel {

class BookDrop {
  public:
    // The message by which the window hears, in its own time, that a book has been dropped: what it shows
    // then must not keep the program waiting that the book comes from.
    static constexpr UINT kMessage = WM_APP;

    BookDrop() = default;
    ~BookDrop() { Detach(); }
    BookDrop(const BookDrop&) = delete;
    BookDrop& operator=(const BookDrop&) = delete;

    // From now on the window takes one file with the extension lnd at a time, while it is enabled. Its thread
    // must have called OleInitialize. Throws std::bad_alloc when the system cannot.
    void Attach(HWND window);
    // Before the window is destroyed.
    void Detach();

    // Path of the book that was dropped last, with kMessage.
    std::wstring TakePath() { return std::exchange(path_, {}); }

  private:
    class Target;

    HWND window_ = nullptr;
    std::wstring path_;
};

}  // namespace lindrel
