// Keys and mouse buttons through the system's input. They go to whatever is in front; see WaitUntilInFront().
// All functions throw std::runtime_error if the system does not take the input.
#pragma once

#include <stdexcept>
#include <string_view>
#include <vector>

#include "tests/window/support/Polling.h"

namespace lindrel::testing {

// A key with what is held down with it.
struct Stroke {
    WORD Key;
    std::vector<WORD> Held = {};
};

inline void SendInputs(std::vector<INPUT> inputs) {
    const UINT sent = SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
    if (sent != inputs.size()) throw std::runtime_error("the system took only a part of the input");
}

inline INPUT KeyInput(WORD key, WORD scan_code, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = scan_code;
    input.ki.dwFlags = flags;
    return input;
}

inline void PressRealKey(const Stroke& stroke) {
    std::vector<WORD> keys = stroke.Held;
    keys.push_back(stroke.Key);
    std::vector<INPUT> inputs;
    const auto add = [&inputs](WORD key, DWORD flags) {
        inputs.push_back(KeyInput(key, static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)), flags));
    };
    for (auto key = keys.begin(); key != keys.end(); ++key) add(*key, 0);
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) add(*key, KEYEVENTF_KEYUP);
    SendInputs(inputs);
}

inline void TypeRealText(std::wstring_view text) {
    std::vector<INPUT> inputs;
    for (const wchar_t unit : text) {
        inputs.push_back(KeyInput(0, unit, KEYEVENTF_UNICODE));
        inputs.push_back(KeyInput(0, unit, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP));
    }
    SendInputs(inputs);
}

// MOUSEEVENTF_LEFTDOWN and so on, where the pointer is.
inline void SendMouseButtons(const std::vector<DWORD>& flags) {
    std::vector<INPUT> inputs;
    for (const DWORD flag : flags) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flag;
        inputs.push_back(input);
    }
    SendInputs(inputs);
}

// To a point of a window's client area.
inline void MoveRealMouse(HWND window, POINT point) {
    if (!ClientToScreen(window, &point) || !SetCursorPos(point.x, point.y))
        throw std::runtime_error("the mouse pointer cannot be moved");
}

// The control of a thread that has the focus; nullptr when none has.
inline HWND FocusOfThread(DWORD thread) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(thread, &info) ? info.hwndFocus : nullptr;
}

// Until a window of a thread is in front and one of its controls has the focus: keys that come earlier are
// lost.
inline void WaitUntilInFront(DWORD thread) {
    WaitUntil("the program in front, with a focus", [thread] {
        return GetWindowThreadProcessId(GetForegroundWindow(), nullptr) == thread &&
               FocusOfThread(thread) != nullptr;
    });
}

}  // namespace lindrel::testing
