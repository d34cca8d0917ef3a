// What the shell was asked to open, in the place of a web browser.
#pragma once

#include <string>
#include <vector>

namespace lindrel::testing {

// While one lives, addresses that are handed to the shell are written down and no browser starts.
class OpenedAddresses {
  public:
    OpenedAddresses();
    ~OpenedAddresses();
    OpenedAddresses(const OpenedAddresses&) = delete;
    OpenedAddresses& operator=(const OpenedAddresses&) = delete;

    // Those opened so far, in order, UTF-8. They arrive a little after the call that opens them.
    std::vector<std::string> SoFar() const;
    // Waits for as many as asked for and returns all. Throws DeadlinePassed.
    std::vector<std::string> WaitFor(std::size_t count) const;
};

}  // namespace lindrel::testing
