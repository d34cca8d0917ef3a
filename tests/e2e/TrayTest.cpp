// Tray mode of the shipped program, with real clicks on the icon in the notification area.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/e2e/support/ShippedProgram.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

// The window in which Wine shows the notification area on a desktop without one, while it holds an icon.
HWND NotificationArea() {
    const HWND area = FindWindowW(nullptr, L"Wine System Tray");
    return area != nullptr && IsWindowVisible(area) ? area : nullptr;
}

TEST(TrayTest, EitherButtonOnTheIconBringsTheWindowBack) {
    const TemporaryFolder folder;
    const std::wstring book = folder.Write(L"minta.lnd", SampleBook());
    const ShippedProgram program;
    program.Press({'O', {VK_CONTROL}});
    program.AnswerFileDialog(book);
    WaitUntil("the opened book", [&] { return program.Title() == L"Lindrel -minta.lnd"; });
    program.Press({VK_DOWN});
    WaitUntil("the first row", [&] { return program.SelectedRow() == 1; });
    RECT place{};
    ASSERT_TRUE(GetWindowRect(program.Main(), &place));

    for (const bool right : {false, true}) {
        program.Press({'N', {VK_MENU}});  // "&Nézet"
        program.Press({VK_DOWN});
        program.Press({VK_RETURN});
        WaitUntil("the hidden window", [&] { return !IsWindowVisible(program.Main()); });
        WaitUntil("the icon", [] { return NotificationArea() != nullptr; });

        const HWND area = NotificationArea();
        ShippedProgram::ClickAnywhere(
            area, {GetSystemMetrics(SM_CXSMICON) / 2, GetSystemMetrics(SM_CYSMICON) / 2}, right);
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
