// Tray mode of the shipped program, with real clicks on the icon in the notification area.

#include <gtest/gtest.h>

#include "tests/e2e/support/ShippedProgram.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

// The window in which Wine shows the notification area on a desktop without one, while it holds an icon.
HWND NotificationArea() {
    const HWND area = FindWindowW(nullptr, L"Wine System Tray");
    return area != nullptr && IsWindowVisible(area) ? area : nullptr;
}

// Clicks the icon and tells whether that brought the window back. The notification area may still be on its
// way to its place; then the click misses, and a user would click again.
bool ClickIcon(bool right, HWND main) {
    const HWND area = NotificationArea();
    if (area != nullptr)
        ShippedProgram::ClickAnywhere(
            area, {GetSystemMetrics(SM_CXSMICON) / 2, GetSystemMetrics(SM_CYSMICON) / 2}, right);
    return Eventually([main] { return IsWindowVisible(main) != FALSE; }, kPatience);
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

        WaitUntil("the window", [&] { return ClickIcon(right, program.Main()); });
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
