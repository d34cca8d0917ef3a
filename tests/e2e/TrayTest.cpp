// Tray mode of the shipped program, with real clicks on the icon in the notification area.

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "tests/e2e/support/ShippedProgram.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

// The window in which Wine shows the notification area on a desktop without one, while it holds an icon.
HWND NotificationArea() {
    const HWND area = FindWindowW(nullptr, L"Wine System Tray");
    return area != nullptr && IsWindowVisible(area) ? area : nullptr;
}

bool TipIsShown(HWND area) {
    const std::vector<HWND> windows = WindowsOf(GetWindowThreadProcessId(area, nullptr));
    return std::any_of(windows.begin(), windows.end(),
                       [](HWND window) { return ClassOf(window) == TOOLTIPS_CLASSW; });
}

// Rests the pointer on the icon until its tip is shown: the notification area may still be moving, and a
// click that came too early would miss it.
void ClickIcon(bool right) {
    const HWND area = NotificationArea();
    const POINT middle{GetSystemMetrics(SM_CXSMICON) / 2, GetSystemMetrics(SM_CYSMICON) / 2};
    int moves = 0;
    WaitUntil("the icon's tip", [&] {
        ShippedProgram::PointAt(area, {middle.x + ++moves % 2, middle.y});
        return Eventually([area] { return TipIsShown(area); }, std::chrono::seconds(5));
    });
    ShippedProgram::ClickAnywhere(area, middle, right);
}

TEST(TrayTest, EitherButtonOnTheIconBringsTheWindowBack) {
    const TemporaryFolder folder;
    const std::wstring book = folder.Write(L"minta.lnd", SampleBook());
    const ShippedProgram program;
    program.OpenBook(book);
    program.Press({VK_DOWN});
    WaitUntil("the first row", [&] { return program.SelectedRow() == 1; });
    RECT place{};
    ASSERT_TRUE(GetWindowRect(program.Main(), &place));

    for (const bool right : {false, true}) {
        program.OpenMenu('N');  // "&Nézet"
        program.Press({VK_DOWN});
        program.Press({VK_RETURN});
        WaitUntil("the hidden window", [&] { return !IsWindowVisible(program.Main()); });
        WaitUntil("the icon", [] { return NotificationArea() != nullptr; });

        ClickIcon(right);
        WaitUntil("the window", [&] { return IsWindowVisible(program.Main()) != FALSE; });
        WaitUntil("the icon's end", [] { return NotificationArea() == nullptr; });
        RECT after{};
        ASSERT_TRUE(GetWindowRect(program.Main(), &after));
        EXPECT_TRUE(EqualRect(&place, &after));
        EXPECT_EQ(program.SelectedRow(), 1);
    }
    program.Press({VK_F4, {VK_MENU}});
    EXPECT_EQ(program.WaitForEnd(), 0u);
}

}  // namespace
}  // namespace lindrel::testing
