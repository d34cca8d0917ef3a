// The main window shows all of itself, whatever has happened to it. Versions of Wine and Windows paint in
// different orders; these tests must pass on all of them.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/window/support/Painted.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

// A shell that has room for the program's icon.
BOOL WINAPI AcceptIcon(DWORD, NOTIFYICONDATAA*) {
    return TRUE;
}

class frmStartPaintingTest : public ::testing::Test {
  protected:
    frmStartPaintingTest() {
        std::vector<Row> rows;
        for (int i = 1; i <= 40; ++i)
            rows.emplace_back(L"oldal " + std::to_wstring(i), L"http://" + std::to_wstring(i) + L".hu/");
        program.Add(1, rows);
        program.ClickRow(2);
        program.Settle();
    }
    void ExpectPainted(const std::string& when) const {
        program.Settle();
        const RECT stale = StalePart(program, program.Main());
        EXPECT_TRUE(IsRectEmpty(&stale)) << when << ": (" << stale.left << ", " << stale.top << ")-("
                                         << stale.right << ", " << stale.bottom << ")";
    }
    void Resize(int width, int height) const {
        program.OnUi([=](frmStart& form) {
            ASSERT_TRUE(SetWindowPos(form.Handle(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER));
        });
        ExpectPainted(std::to_string(width) + " x " + std::to_string(height));
    }

    Program program;
};

TEST_F(frmStartPaintingTest, TheWindowStartsPainted) {
    const Program started;
    started.Settle();
    const RECT stale = StalePart(started, started.Main());
    EXPECT_TRUE(stale == RECT{}) << stale.left << ", " << stale.top << ", " << stale.right << ", "
                                 << stale.bottom;
}

// The window and its controls are painted in an order that depends on what has covered and moved them.
TEST_F(frmStartPaintingTest, EachPartIsPaintedByItselfAlone) {
    program.Settle();
    std::vector<HWND> parts = {program.Main()};
    for (HWND control = GetWindow(program.Main(), GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT))
        parts.push_back(control);
    for (const HWND part : parts) {
        const RECT changed = ChangedPart(program, program.Main(), [part] {
            RedrawWindow(part, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_NOCHILDREN | RDW_UPDATENOW);
        });
        EXPECT_TRUE(changed == RECT{}) << GetDlgCtrlID(part) << ": (" << changed.left << ", " << changed.top
                                       << ")-(" << changed.right << ", " << changed.bottom << ")";
    }
}

TEST_F(frmStartPaintingTest, TheFrameOfTheSearchBoxIsShown) {
    program.Settle();
    const HWND frame = program.Control(ID_frmStart_FrameSearch);
    RECT bounds{};
    GetClientRect(frame, &bounds);
    std::vector<COLORREF> shown;
    program.OnUi([&](frmStart&) {
        shown = Drawn(bounds.right, bounds.bottom, [&](HDC canvas) {
            const HDC source = GetDC(program.Main());
            RECT in_window = bounds;
            MapWindowPoints(frame, program.Main(), reinterpret_cast<POINT*>(&in_window), 2);
            EXPECT_TRUE(BitBlt(canvas, 0, 0, bounds.right, bounds.bottom, source, in_window.left,
                               in_window.top, SRCCOPY));
            ReleaseDC(program.Main(), source);
        });
    });
    const auto is_background = [](COLORREF colour) { return colour == GetSysColor(COLOR_BTNFACE); };
    const auto at = [&](LONG x, LONG y) { return shown.at(static_cast<std::size_t>(y * bounds.right + x)); };
    // In each line through the middle of a side there is something of it, before the controls inside begin.
    const LONG reach = bounds.bottom / 20;
    bool left = false;
    bool right = false;
    bool bottom = false;
    for (LONG i = 0; i < reach; ++i) {
        left |= !is_background(at(i, bounds.bottom / 2));
        right |= !is_background(at(bounds.right - 1 - i, bounds.bottom / 2));
        bottom |= !is_background(at(bounds.right / 2, bounds.bottom - 1 - i));
    }
    EXPECT_TRUE(left && right && bottom) << left << right << bottom;
}

TEST_F(frmStartPaintingTest, AnotherTabIsPainted) {
    program.ClickTab(2);
    ExpectPainted("an empty category");
    program.ClickTab(1);
    ExpectPainted("forty rows");
}

TEST_F(frmStartPaintingTest, ADialogLeavesTheWindowPainted) {
    program.Choose(ID_mnuAbout);
    const DialogOnScreen dialog = program.Dialog(L"Lindrel névjegye");
    // Over all of the window, step by step.
    RECT bounds{};
    ASSERT_TRUE(GetWindowRect(program.Main(), &bounds));
    for (LONG x = bounds.left; x < bounds.right; x += 100) {
        SetWindowPos(dialog.Handle(), nullptr, x, bounds.top + (x - bounds.left) / 2, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER);
        program.Settle();
    }
    dialog.ClickAndWaitForClose(ID_frmAbout_cmdOK);
    ExpectPainted("after the dialog");
}

TEST_F(frmStartPaintingTest, TheWindowComesBackFromTheTrayPainted) {
    const ReplacedImport shell(&Shell_NotifyIconA, &AcceptIcon);
    program.Run(ID_mnuTray);
    ASSERT_FALSE(IsWindowVisible(program.Main()));
    constexpr UINT kTrayMessage = 512;
    const HWND icon = FindWindowExW(program.Main(), nullptr, L"TrayArea", nullptr);
    PostMessageW(icon, kTrayMessage, 1, WM_LBUTTONDOWN);
    program.Settle();
    ASSERT_TRUE(IsWindowVisible(program.Main()));
    ExpectPainted("back");
}

TEST_F(frmStartPaintingTest, AGrowingAndAShrinkingWindowLeaveNoGhosts) {
    const std::pair<int, int> sizes[] = {{800, 600},  {1300, 700}, {1400, 900},
                                         {1300, 700}, {1000, 620}, {520, 360}};
    for (const auto& [width, height] : sizes) Resize(width, height);
}

TEST_F(frmStartPaintingTest, DraggingByAFewPixelsLeavesNoTraces) {
    for (int step = 0; step < 12; ++step) Resize(700 + 7 * step, 500 + 5 * step);
    for (int step = 12; step > 0; --step) Resize(700 + 7 * step, 500 + 5 * step);
}

TEST_F(frmStartPaintingTest, MaximisingAndRestoringShowsEverything) {
    program.OnUi([](frmStart& form) { ShowWindow(form.Handle(), SW_MAXIMIZE); });
    ExpectPainted("maximised");
    program.OnUi([](frmStart& form) { ShowWindow(form.Handle(), SW_RESTORE); });
    ExpectPainted("restored");
}

}  // namespace
}  // namespace lindrel::testing
