// Keys through the system's input, as the keyboard sends them.
#pragma once

#include <string_view>
#include <vector>

#include "window/Windows.h"

namespace lindrel::testing {

// A key with what is held down with it.
struct Stroke {
    WORD Key;
    std::vector<WORD> Held = {};
};

// All of them at once. Throws std::runtime_error when the system does not take them all.
void SendInputs(std::vector<INPUT> inputs);

// They go to whatever is in front; see WaitUntilInFront.
void PressRealKey(const Stroke& stroke);
void TypeRealText(std::wstring_view text);

// Until a thread's window is in front and one of its controls has the focus: keys that come earlier are lost.
void WaitUntilInFront(DWORD thread);

// The control of a thread that has the focus; null when none has.
HWND FocusOfThread(DWORD thread);

}  // namespace lindrel::testing
