// The main window on the screen where it is created.

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

#include "resources/resource.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/ReplacedImport.h"
#include "tests/window/support/SmallScreen.h"

namespace lindrel::testing {
namespace {

constexpr RECT kProposed{30, 40, 930, 640};

// As if most of the new window were on another screen as soon as it has a size.
BOOL(WINAPI* set_window_pos)(HWND, HWND, int, int, int, int, UINT) = nullptr;
bool moved = false;
BOOL WINAPI SetPosOnOtherScreen(HWND window, HWND after, int x, int y, int width, int height, UINT flags) {
    const BOOL done = set_window_pos(window, after, x, y, width, height, flags);
    if (!std::exchange(moved, true))
        SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(96, 96), reinterpret_cast<LPARAM>(&kProposed));
    return done;
}

using BoundsOfControl = std::tuple<int, LONG, LONG, LONG, LONG>;  // id, left, top, right, bottom

std::vector<BoundsOfControl> AllBounds(const Program& program) {
    std::vector<BoundsOfControl> all;
    for (HWND child = GetWindow(program.Main(), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        RECT bounds{};
        EXPECT_TRUE(GetWindowRect(child, &bounds));
        all.emplace_back(GetDlgCtrlID(child), bounds.left, bounds.top, bounds.right, bounds.bottom);
    }
    return all;
}

TEST(frmStartScreenTest, AnotherScreenBeforeThereAreControlsGivesTheWindowItsSize) {
    std::vector<BoundsOfControl> expected;
    {
        const Program program;
        MoveWindow(program.Main(), kProposed.left, kProposed.top, kProposed.right - kProposed.left,
                   kProposed.bottom - kProposed.top, TRUE);
        program.Settle();
        expected = AllBounds(program);
    }
    set_window_pos = &SetWindowPos;
    moved = false;
    std::optional<ReplacedImport> other_screen(std::in_place, &SetWindowPos, &SetPosOnOtherScreen);
    const Program program;
    other_screen.reset();
    EXPECT_TRUE(moved);
    RECT bounds{};
    EXPECT_TRUE(GetWindowRect(program.Main(), &bounds));
    EXPECT_TRUE(EqualRect(&bounds, &kProposed));
    EXPECT_EQ(program.State(), EmptyState());
    EXPECT_EQ(AllBounds(program), expected);
}

TEST(frmStartScreenTest, TheWindowStartsWithinTheWorkArea) {
    const SIZE designed{PixelsOf(11400, 96), PixelsOf(7500, 96)};
    const struct {
        const char* what;
        RECT work;
        SIZE size;
    } kScreens[] = {
        {"a taskbar at the left and at the top", {300, 200, 1280, 1024}, designed},
        {"just enough room", {240, 120, 240 + designed.cx, 120 + designed.cy}, designed},
        {"too little height", {0, 40, 1280, 40 + 420}, {designed.cx, 420}},
        {"too little of both", {30, 40, 30 + 600, 40 + 400}, {600, 400}},
        // Not even for the least size.
        {"hardly any room", {30, 40, 30 + 500, 40 + 300}, {500, 300}},
    };
    for (const auto& [what, work, size] : kScreens) {
        const SmallScreen screen(work);
        const Program program;
        RECT bounds{};
        EXPECT_TRUE(GetWindowRect(program.Main(), &bounds));
        EXPECT_EQ(bounds.right - bounds.left, size.cx) << what;
        EXPECT_EQ(bounds.bottom - bounds.top, size.cy) << what;
        RECT common{};
        EXPECT_TRUE(IntersectRect(&common, &bounds, &work) && EqualRect(&common, &bounds)) << what;
        EXPECT_EQ(program.State(), EmptyState()) << what;
        MINMAXINFO limits{};
        SendMessageW(program.Main(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
        EXPECT_EQ(limits.ptMinTrackSize.x, std::min<LONG>(PixelsAtLeast(7700, 96), work.right - work.left));
        EXPECT_EQ(limits.ptMinTrackSize.y, std::min<LONG>(PixelsAtLeast(5200, 96), work.bottom - work.top));
    }
}

}  // namespace
}  // namespace lindrel::testing
