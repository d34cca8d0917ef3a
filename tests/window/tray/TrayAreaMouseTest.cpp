// What the tray icon hears of the mouse, from a shell of the test's own and from the real one.

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <stdexcept>

#include "faults/PendingFault.h"
#include "tests/window/support/Polling.h"
#include "tests/window/tray/TraySession.h"

namespace lindrel::testing {
namespace {

class TrayAreaMouseTest : public TraySession {
  protected:
    void Mouse(LPARAM message) const { SendMessageW(window, 512, 4711, message); }
    void HearEverything() {
        control->MouseMove = [this] { heard.emplace_back(L"MouseMove"); };
        control->MouseDown = [this](std::int16_t& button) {
            heard.push_back(L"MouseDown " + std::to_wstring(button));
        };
        control->MouseUp = [this](std::int16_t& button) {
            heard.push_back(L"MouseUp " + std::to_wstring(button));
        };
        control->DblClick = [this] { heard.emplace_back(L"DblClick"); };
    }

    Texts heard;
};

TEST_F(TrayAreaMouseTest, EveryMouseMessageRaisesItsEvent) {
    HearEverything();
    for (LPARAM message = 505; message <= 530; ++message) Mouse(message);
    EXPECT_EQ(heard, (Texts{L"MouseMove", L"MouseDown 1", L"MouseUp 1", L"DblClick", L"MouseDown 2",
                            L"MouseUp 2", L"DblClick"}));
}

TEST_F(TrayAreaMouseTest, ARightClickRaisesDownAndUpOfTheSecondButton) {
    HearEverything();
    for (const LPARAM message : {WM_MOUSEMOVE, WM_RBUTTONDOWN, WM_RBUTTONUP}) Mouse(message);
    EXPECT_EQ(heard, (Texts{L"MouseMove", L"MouseDown 2", L"MouseUp 2"}));
}

TEST_F(TrayAreaMouseTest, ALeftDoubleClickComesAfterTheFirstClick) {
    HearEverything();
    for (const LPARAM message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP})
        Mouse(message);
    EXPECT_EQ(heard, (Texts{L"MouseDown 1", L"MouseUp 1", L"DblClick", L"MouseUp 1"}));
}

TEST_F(TrayAreaMouseTest, TheMiddleButtonRaisesNothing) {
    HearEverything();
    for (const LPARAM message : {WM_MBUTTONDOWN, WM_MBUTTONUP, WM_MBUTTONDBLCLK, WM_MOUSEWHEEL})
        Mouse(message);
    EXPECT_EQ(heard, Texts{});
}

TEST_F(TrayAreaMouseTest, EventsThatNobodyHearsDoNothing) {
    for (LPARAM message = 512; message <= 518; ++message) Mouse(message);
    EXPECT_EQ(Taken(), std::vector<Call>{});
}

TEST_F(TrayAreaMouseTest, AHandlerMayHideTheIconAndItsButtonIsItsOwn) {
    const UINT identifier = Show();
    HearEverything();
    control->MouseDown = [this, hear = control->MouseDown](std::int16_t& button) {
        hear(button);
        button = 7;
        control->SetVisible(false);
    };
    for (const LPARAM message : {WM_LBUTTONDOWN, WM_LBUTTONUP}) Mouse(message);
    EXPECT_EQ(heard, (Texts{L"MouseDown 1", L"MouseUp 1"}));
    EXPECT_EQ(Taken(), std::vector{Expected(NIM_DELETE, identifier, 1, 512, nullptr, no_tip)});
}

TEST_F(TrayAreaMouseTest, AFaultOfAHandlerStopsAtTheWindowProcedure) {
    control->MouseDown = [](std::int16_t&) { throw std::runtime_error("hiba"); };
    Mouse(WM_LBUTTONDOWN);
    EXPECT_THROW(ThrowPendingFault(), std::runtime_error);
}

// Pumps the messages of this thread until the answer is true.
bool PumpEventually(const std::function<bool()>& answer, std::chrono::milliseconds deadline = kDeadline) {
    return Eventually(
        [&] {
            MSG message{};
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
            return answer();
        },
        deadline);
}

// The middle of the icon that the shell shows, in the window in which Wine keeps such icons.
std::optional<POINT> IconOnScreen() {
    const HWND tray = FindWindowW(nullptr, L"Wine System Tray");
    const HWND shown = tray == nullptr ? nullptr : GetWindow(tray, GW_CHILD);
    RECT place{};
    if (shown == nullptr || !IsWindowVisible(shown) || !GetWindowRect(shown, &place)) return std::nullopt;
    return POINT{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

void RealClick(DWORD down, DWORD up) {
    INPUT inputs[2]{};
    inputs[0].type = INPUT_MOUSE;
    inputs[0].mi.dwFlags = down;
    inputs[1].type = INPUT_MOUSE;
    inputs[1].mi.dwFlags = up;
    ASSERT_EQ(SendInput(2, inputs, sizeof(INPUT)), 2u);
}

TEST_F(TrayAreaMouseTest, TheRealIconHearsBothButtonsAndGoes) {
    UseTheRealShell();
    HearEverything();
    bool pointed_at = false;
    control->MouseMove = [&] { pointed_at = true; };
    control->SetIcon(icon);
    control->SetToolTip(L"Lindrel");
    control->SetVisible(true);
    ASSERT_TRUE(PumpEventually([] { return IconOnScreen().has_value(); }));
    // The icon may still be on its way to its place, where a click would miss it.
    int moves = 0;
    ASSERT_TRUE(PumpEventually([&] {
        const std::optional<POINT> place = IconOnScreen();
        if (place) {
            EXPECT_TRUE(SetCursorPos(place->x + ++moves % 2, place->y));
        }
        return pointed_at;
    }));
    RealClick(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
    RealClick(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
    ASSERT_TRUE(PumpEventually([this] { return heard.size() >= 4; }));
    EXPECT_EQ(heard, (Texts{L"MouseDown 1", L"MouseUp 1", L"MouseDown 2", L"MouseUp 2"}));
    control->SetVisible(false);
    EXPECT_TRUE(PumpEventually([] { return !IconOnScreen().has_value(); }));
}

}  // namespace
}  // namespace lindrel::testing
