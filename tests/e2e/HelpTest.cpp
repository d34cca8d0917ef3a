// The help of the shipped program, in the system's own viewer.

#include <gtest/gtest.h>

#include "tests/e2e/support/ShippedProgram.h"
#include "tests/window/support/Polling.h"

namespace lindrel::testing {
namespace {

TEST(HelpTest, F1OpensTheHelpFilesWindowAndTheProgramGoesOn) {
    const ShippedProgram program;
    program.Press({VK_F1});
    HWND viewer = nullptr;
    WaitUntil("the help window", [&] {
        viewer = FindWindowW(L"HH Parent", L"Lindrel súgó");
        return viewer != nullptr && IsWindowVisible(viewer) != FALSE;
    });
    // It has no owner: the program's window can come to the front.
    EXPECT_EQ(GetWindow(viewer, GW_OWNER), nullptr);
    EXPECT_TRUE(IsWindowEnabled(program.Main()));
}

}  // namespace
}  // namespace lindrel::testing
