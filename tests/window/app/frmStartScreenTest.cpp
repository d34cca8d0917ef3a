// The main window on a screen of another resolution than the one that it was made on.

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

// The system, which finds most of the new window on another screen as soon as it has a size.
BOOL(WINAPI* set_window_pos)(HWND, HWND, int, int, int, int, UINT) = nullptr;
bool moved = false;
BOOL WINAPI SetPosOnOtherScreen(HWND window, HWND after, int x, int y, int width, int height, UINT flags) {
    const BOOL done = set_window_pos(window, after, x, y, width, height, flags);
    if (!std::exchange(moved, true))
        SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(96, 96), reinterpret_cast<LPARAM>(&kProposed));
    return done;
}

using PlaceOfControl = std::tuple<int, LONG, LONG, LONG, LONG>;  // id, left, top, right, bottom

std::vector<PlaceOfControl> Places(const Program& program) {
    std::vector<PlaceOfControl> places;
    for (HWND child = GetWindow(program.Main(), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        RECT place{};
        EXPECT_TRUE(GetWindowRect(child, &place));
        places.emplace_back(GetDlgCtrlID(child), place.left, place.top, place.right, place.bottom);
    }
    return places;
}

TEST(frmStartScreenTest, AnotherScreenBeforeThereAreControlsGivesTheWindowItsSize) {
    std::vector<PlaceOfControl> expected;
    {
        const Program program;
        MoveWindow(program.Main(), kProposed.left, kProposed.top, kProposed.right - kProposed.left,
                   kProposed.bottom - kProposed.top, TRUE);
        program.Settle();
        expected = Places(program);
    }
    set_window_pos = &SetWindowPos;
    moved = false;
    std::optional<ReplacedImport> other_screen(std::in_place, &SetWindowPos, &SetPosOnOtherScreen);
    const Program program;
    other_screen.reset();
    EXPECT_TRUE(moved);
    RECT place{};
    EXPECT_TRUE(GetWindowRect(program.Main(), &place));
    EXPECT_TRUE(EqualRect(&place, &kProposed));
    EXPECT_EQ(program.State(), EmptyState());
    EXPECT_EQ(Places(program), expected);
}

}  // namespace
}  // namespace lindrel::testing
