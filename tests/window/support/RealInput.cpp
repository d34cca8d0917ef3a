#include "tests/window/support/RealInput.h"

#include <stdexcept>

#include "tests/window/support/RealKeys.h"

namespace lindrel::testing {

namespace {

INPUT Mouse(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    return input;
}

}  // namespace

RealInput::RealInput(const Program& program) : program_(program) {
    WaitUntil("the program in front, with a focus", [this] {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        return GetForegroundWindow() == program_.Main() && GetGUIThreadInfo(program_.Thread(), &info) &&
               info.hwndFocus != nullptr;
    });
}

// In two steps, as a hand that comes near. The display tells a window late where the pointer was, and Wine
// then puts it back there. By the second step it has told everything from before the first, and the program
// has heard it; what still comes is one pixel off.
void RealInput::MoveTo(HWND window, POINT place) const {
    if (!ClientToScreen(window, &place) || !SetCursorPos(place.x + 1, place.y))
        throw std::runtime_error("the mouse pointer");
    program_.Settle();
    if (!SetCursorPos(place.x, place.y)) throw std::runtime_error("the mouse pointer");
}

void RealInput::Press(WORD key, const std::vector<WORD>& held) const {
    PressRealKey({key, held});
    program_.Settle();
}

void RealInput::Click(HWND window, POINT place, int times) const {
    MoveTo(window, place);
    std::vector<INPUT> inputs;
    for (int i = 0; i < times; ++i) {
        inputs.push_back(Mouse(MOUSEEVENTF_LEFTDOWN));
        inputs.push_back(Mouse(MOUSEEVENTF_LEFTUP));
    }
    SendInputs(std::move(inputs));
    program_.Settle();
}

void RealInput::RightClick(HWND window, POINT place) const {
    MoveTo(window, place);
    SendInputs({Mouse(MOUSEEVENTF_RIGHTDOWN), Mouse(MOUSEEVENTF_RIGHTUP)});
    program_.Settle();
}

void RealInput::Move(HWND window, POINT place) const {
    MoveTo(window, place);
    program_.Settle();
}

void RealInput::Drag(HWND window, POINT from, POINT to) const {
    MoveTo(window, from);
    SendInputs({Mouse(MOUSEEVENTF_LEFTDOWN)});
    program_.Settle();
    Move(window, to);
    SendInputs({Mouse(MOUSEEVENTF_LEFTUP)});
    program_.Settle();
}

}  // namespace lindrel::testing
