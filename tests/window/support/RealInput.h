// Keys and mouse through the system's input, as a user's hands give them, to whatever is in front. Points are
// those of a window's client area.
#pragma once

#include <string>
#include <vector>

#include "tests/window/support/Program.h"
#include "tests/window/support/RealKeys.h"

namespace lindrel::testing {

class RealInput {
  public:
    // Waits until the program is in front, with a focus.
    explicit RealInput(const Program& program) : program_(program) {
        WaitUntil("the program in front, with a focus", [this] {
            return GetForegroundWindow() == program_.Main() && FocusOfThread(program_.Thread()) != nullptr;
        });
    }

    void Press(WORD key, const std::vector<WORD>& held = {}) const {
        PressRealKey({key, held});
        program_.Settle();
    }
    void Click(HWND window, POINT point, int times = 1) const {
        Move(window, point);
        std::vector<DWORD> buttons;
        for (int i = 0; i < times; ++i)
            buttons.insert(buttons.end(), {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP});
        Send(buttons);
    }
    void RightClick(HWND window, POINT point) const {
        Move(window, point);
        Send({MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP});
    }
    // In two steps, as a hand that comes near. The display tells a window late where the pointer was, and
    // Wine then puts it back there. By the second step it has told everything from before the first, and the
    // program has heard it; what still comes is one pixel off.
    void Move(HWND window, POINT point) const {
        MoveRealMouse(window, {point.x + 1, point.y});
        program_.Settle();
        MoveRealMouse(window, point);
        program_.Settle();
    }
    // With the left button held.
    void Drag(HWND window, POINT from, POINT to) const {
        Move(window, from);
        Send({MOUSEEVENTF_LEFTDOWN});
        Move(window, to);
        Send({MOUSEEVENTF_LEFTUP});
    }

  private:
    void Send(const std::vector<DWORD>& buttons) const {
        SendMouseButtons(buttons);
        program_.Settle();
    }

    const Program& program_;
};

}  // namespace lindrel::testing
