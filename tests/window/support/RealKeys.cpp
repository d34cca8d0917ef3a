#include "tests/window/support/RealKeys.h"

#include <stdexcept>

#include "tests/window/support/Polling.h"

namespace lindrel::testing {

namespace {

INPUT KeyInput(WORD key, bool up) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    return input;
}

INPUT CharacterInput(wchar_t unit, bool up) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = unit;
    input.ki.dwFlags = KEYEVENTF_UNICODE | (up ? KEYEVENTF_KEYUP : 0);
    return input;
}

}  // namespace

void SendInputs(std::vector<INPUT> inputs) {
    const UINT sent = SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
    if (sent != inputs.size()) throw std::runtime_error("the system took not all of the input");
}

void PressRealKey(const Stroke& stroke) {
    std::vector<INPUT> inputs;
    for (const WORD key : stroke.Held) inputs.push_back(KeyInput(key, false));
    inputs.push_back(KeyInput(stroke.Key, false));
    inputs.push_back(KeyInput(stroke.Key, true));
    for (auto key = stroke.Held.rbegin(); key != stroke.Held.rend(); ++key)
        inputs.push_back(KeyInput(*key, true));
    SendInputs(std::move(inputs));
}

void TypeRealText(std::wstring_view text) {
    std::vector<INPUT> inputs;
    for (const wchar_t unit : text) {
        inputs.push_back(CharacterInput(unit, false));
        inputs.push_back(CharacterInput(unit, true));
    }
    SendInputs(std::move(inputs));
}

void WaitUntilInFront(DWORD thread) {
    WaitUntil("the program in front, with a focus", [thread] {
        return GetWindowThreadProcessId(GetForegroundWindow(), nullptr) == thread &&
               FocusOfThread(thread) != nullptr;
    });
}

HWND FocusOfThread(DWORD thread) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(thread, &info) ? info.hwndFocus : nullptr;
}

}  // namespace lindrel::testing
