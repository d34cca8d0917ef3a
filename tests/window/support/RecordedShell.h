// The shell with a recorder in the browser's place: what a program asks it to open is written down.
#pragma once

#include <string>
#include <vector>

#include "window/Windows.h"

namespace lindrel::testing {

class RecordedShell {
  public:
    // Makes the recorder the handler of web addresses, as long as this object lives.
    RecordedShell();
    ~RecordedShell();
    RecordedShell(const RecordedShell&) = delete;
    RecordedShell& operator=(const RecordedShell&) = delete;

    // Every address that was opened so far, in their order.
    std::vector<std::wstring> Addresses() const;
    // Waits for one address more than the earlier calls have given, and returns it.
    std::wstring NextAddress() const;

  private:
    std::wstring file_;
    std::vector<std::wstring> former_;  // the handlers before
    mutable std::size_t given_ = 0;
};

}  // namespace lindrel::testing
