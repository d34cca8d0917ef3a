// A dialog that comes to a screen of another resolution.
#pragma once

#include <map>
#include <string>

#include "tests/window/support/Program.h"

namespace lindrel::testing {

// The bounds of each control in a dialog.
inline std::map<int, RECT> AllBounds(const DialogOnScreen& dialog) {
    std::map<int, RECT> all;
    for (const HWND control : ChildrenOf(dialog.Handle())) {
        RECT& bounds = all[GetDlgCtrlID(control)];
        GetWindowRect(control, &bounds);
        MapWindowPoints(HWND_DESKTOP, dialog.Handle(), reinterpret_cast<POINT*>(&bounds), 2);
    }
    return all;
}

inline RECT Scaled(RECT bounds, int to, int from) {
    for (LONG* const side : {&bounds.left, &bounds.top, &bounds.right, &bounds.bottom})
        *side = MulDiv(*side, to, from);
    return bounds;
}

// What the system does then, in the order of the letters: (t)ells the dialog, scales the (w)indow, scales the
// (c)ontrols.
inline void ComeToAnotherScreen(const Program& program, const DialogOnScreen& dialog,
                                const std::string& order, int to, int from) {
    program.OnUi([&](frmStart&) {
        RECT window{};
        RECT client{};
        GetWindowRect(dialog.Handle(), &window);
        GetClientRect(dialog.Handle(), &client);
        const LONG frame_x = window.right - window.left - client.right;
        const LONG frame_y = window.bottom - window.top - client.bottom;
        for (const char step : order) {
            if (step == 't')
                SendMessageW(dialog.Handle(), WM_DPICHANGED, MAKEWPARAM(to, to),
                             reinterpret_cast<LPARAM>(&window));
            if (step == 'w')
                SetWindowPos(dialog.Handle(), nullptr, 0, 0, MulDiv(client.right, to, from) + frame_x,
                             MulDiv(client.bottom, to, from) + frame_y, SWP_NOMOVE | SWP_NOZORDER);
            if (step != 'c') continue;
            for (const auto& [id, bounds] : AllBounds(dialog)) {
                const RECT scaled = Scaled(bounds, to, from);
                SetWindowPos(dialog.Control(id), nullptr, scaled.left, scaled.top, scaled.right - scaled.left,
                             scaled.bottom - scaled.top, SWP_NOZORDER);
            }
        }
    });
    program.Settle();
}

}  // namespace lindrel::testing
