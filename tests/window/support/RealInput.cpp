#include "tests/window/support/RealInput.h"

#include <chrono>
#include <stdexcept>

namespace lindrel::testing {

namespace {

// How long a user waits for an effect before pressing a key again.
constexpr std::chrono::seconds kPatience{5};

void Send(std::vector<INPUT> inputs) {
    if (SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT)) != inputs.size())
        throw std::runtime_error("the system took not all of the input");
}

INPUT Key(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    return input;
}

INPUT Mouse(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    return input;
}

void MoveTo(HWND window, POINT place) {
    if (!ClientToScreen(window, &place) || !SetCursorPos(place.x, place.y))
        throw std::runtime_error("the mouse pointer");
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

void RealInput::Press(WORD key, const std::vector<WORD>& held) const {
    std::vector<INPUT> inputs;
    for (const WORD each : held) inputs.push_back(Key(each, 0));
    inputs.push_back(Key(key, 0));
    inputs.push_back(Key(key, KEYEVENTF_KEYUP));
    for (auto each = held.rbegin(); each != held.rend(); ++each)
        inputs.push_back(Key(*each, KEYEVENTF_KEYUP));
    Send(std::move(inputs));
    program_.Settle();
}

void RealInput::PressUntil(WORD key, const std::vector<WORD>& held, const std::string& what,
                           const std::function<bool()>& effect) const {
    WaitUntil(what, [&] {
        Press(key, held);
        return Eventually(effect, kPatience);
    });
}

void RealInput::Click(HWND window, POINT place, int times) const {
    MoveTo(window, place);
    std::vector<INPUT> inputs;
    for (int i = 0; i < times; ++i) {
        inputs.push_back(Mouse(MOUSEEVENTF_LEFTDOWN));
        inputs.push_back(Mouse(MOUSEEVENTF_LEFTUP));
    }
    Send(std::move(inputs));
    program_.Settle();
}

void RealInput::RightClick(HWND window, POINT place) const {
    MoveTo(window, place);
    Send({Mouse(MOUSEEVENTF_RIGHTDOWN), Mouse(MOUSEEVENTF_RIGHTUP)});
    program_.Settle();
}

void RealInput::Drag(HWND window, POINT from, POINT to) const {
    Hold(window, from);
    Move(window, to);
    LetGo();
}

void RealInput::Hold(HWND window, POINT place) const {
    MoveTo(window, place);
    Send({Mouse(MOUSEEVENTF_LEFTDOWN)});
    program_.Settle();
}

void RealInput::Move(HWND window, POINT place) const {
    MoveTo(window, place);
    program_.Settle();
}

void RealInput::LetGo() const {
    Send({Mouse(MOUSEEVENTF_LEFTUP)});
    program_.Settle();
}

}  // namespace lindrel::testing
