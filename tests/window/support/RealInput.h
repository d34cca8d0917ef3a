// Keys and mouse through the system's input, as a user's hands give them, to whatever is in front.
#pragma once

#include <string>
#include <vector>

#include "tests/window/support/Program.h"

namespace lindrel::testing {

class RealInput {
  public:
    // Waits until the program is in front, with a focus.
    explicit RealInput(const Program& program);

    void Press(WORD key, const std::vector<WORD>& held = {}) const;
    // At a place of a window's client area.
    void Click(HWND window, POINT place, int times = 1) const;
    void RightClick(HWND window, POINT place) const;
    void Move(HWND window, POINT place) const;
    // With the left button held.
    void Drag(HWND window, POINT from, POINT to) const;

  private:
    void MoveTo(HWND window, POINT place) const;

    const Program& program_;
};

}  // namespace lindrel::testing
