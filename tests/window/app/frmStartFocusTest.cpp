// The focus of the main window and what is selected there, when the window comes back after it was minimised
// or hidden.

#include <gtest/gtest.h>

#include <functional>
#include <ostream>

#include "resources/resource.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

// The control that has the focus, and the selection in txtFind.
struct Focus {
    int Id = 0;
    DWORD Start = 0;
    DWORD End = 0;
    bool operator==(const Focus&) const = default;
};
void PrintTo(const Focus& focus, std::ostream* out) {
    *out << focus.Id << " with " << focus.Start << " to " << focus.End;
}

// As Windows does, takes the focus from a window that is minimised or hidden, before the window hears that it
// is inactive.
LRESULT CALLBACK TakeFocus(HWND window, UINT message, WPARAM first, LPARAM second, UINT_PTR id, DWORD_PTR) {
    if (message == WM_NCDESTROY) RemoveWindowSubclass(window, &TakeFocus, id);
    if (message == WM_WINDOWPOSCHANGING) SetFocus(nullptr);
    return DefSubclassProc(window, message, first, second);
}

class frmStartFocusTest : public ::testing::Test {
  protected:
    frmStartFocusTest() {
        program.OnUi([this](frmStart&) {
            SetWindowTextW(TxtFind(), L"szöveg");
            SetFocus(program.Control(ID_frmStart_txtURL));
        });
        program.LeaveAndComeBack();
        program.OnUi([this](frmStart&) {
            SetFocus(TxtFind());
            SendMessageW(TxtFind(), EM_SETSEL, 1, 3);
        });
    }

    HWND TxtFind() const { return program.Control(ID_frmStart_txtFind); }
    // What is there when the window was left in some way and has come back. All in one go, before the
    // display, which is slower, activates another window. `start` may move the focus first.
    Focus AfterLeavingBy(const std::function<void(HWND window)>& leave, bool focus_is_taken = true,
                         const std::function<void()>& start = {}) const {
        Focus focus;
        program.OnUi([&](frmStart& form) {
            const HWND window = form.Handle();
            if (IsIconic(window)) ShowWindow(window, SW_RESTORE);  // the display was late
            SetActiveWindow(window);
            if (start) start();
            if (focus_is_taken) SetWindowSubclass(window, &TakeFocus, 0, 0);
            leave(window);
            RemoveWindowSubclass(window, &TakeFocus, 0);
            EXPECT_EQ(GetFocus() == nullptr, focus_is_taken);
            SendMessageW(window, WM_ACTIVATE, WA_INACTIVE, 0);
            ShowWindow(window, IsIconic(window) ? SW_RESTORE : SW_SHOW);
            SendMessageW(window, WM_ACTIVATE, WA_ACTIVE, 0);
            SetFocus(window);
            focus.Id = GetDlgCtrlID(GetFocus());
            SendMessageW(TxtFind(), EM_GETSEL, reinterpret_cast<WPARAM>(&focus.Start),
                         reinterpret_cast<LPARAM>(&focus.End));
        });
        program.Settle();
        return focus;
    }

    Program program;
    const Focus as_it_was{ID_frmStart_txtFind, 1, 3};
};

TEST_F(frmStartFocusTest, MinimisingKeepsItWhereItWas) {
    // Windows uses the lowest four bits of the command itself.
    for (const int command : {SC_MINIMIZE, SC_MINIMIZE | 2})
        EXPECT_EQ(AfterLeavingBy([=](HWND window) {
                      SendMessageW(window, WM_SYSCOMMAND, static_cast<WPARAM>(command), 0);
                  }),
                  as_it_was);
}

TEST_F(frmStartFocusTest, TheNotificationAreaKeepsItWhereItWas) {
    EXPECT_EQ(AfterLeavingBy([](HWND window) { SendMessageW(window, WM_COMMAND, ID_mnuTray, 0); }),
              as_it_was);
}

TEST_F(frmStartFocusTest, MinimisedByAnotherProgramTheWindowHasItAgain) {
    const auto minimise = [](HWND window) { ShowWindow(window, SW_MINIMIZE); };
    EXPECT_EQ(AfterLeavingBy(minimise, false), as_it_was);
    // Nothing tells where it was; it goes to where it was when the window was left before.
    EXPECT_EQ(AfterLeavingBy(minimise, true, [this] { SetFocus(program.Control(ID_frmStart_ListURLs)); }),
              as_it_was);
}

TEST_F(frmStartFocusTest, WhatTheUserSelectsAnewIsSelectedWhole) {
    const auto minimise = [](HWND window) { SendMessageW(window, WM_SYSCOMMAND, SC_MINIMIZE, 0); };
    EXPECT_EQ(AfterLeavingBy(minimise), as_it_was);
    const auto select_anew = [this] {
        SetFocus(program.Control(ID_frmStart_txtURL));
        SetFocus(TxtFind());
    };
    EXPECT_EQ(AfterLeavingBy(minimise, true, select_anew), (Focus{ID_frmStart_txtFind, 0, 6}));
}

}  // namespace
}  // namespace lindrel::testing
