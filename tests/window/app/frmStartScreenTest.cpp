// A main window that comes to another screen while it is created.

#include <gtest/gtest.h>

#include <optional>
#include <tuple>
#include <utility>
#include <vector>

#include "resources/resource.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/ReplacedImport.h"

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

}  // namespace
}  // namespace lindrel::testing
