// The about box.

#include <commctrl.h>
#include <gtest/gtest.h>

#include <set>

#include "Version.h"
#include "resources/resource.h"
#include "tests/window/support/Expectations.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/RecordedShell.h"

namespace lindrel::testing {
namespace {

class frmAboutTest : public ::testing::Test {
  protected:
    DialogOnScreen Open() const {
        program.Choose(ID_mnuAbout);
        return program.Dialog(L"Lindrel névjegye");
    }
    void ExpectUntouched() const {
        program.Settle();
        EXPECT_TRUE(program.NothingIsOpen());
        EXPECT_EQ(program.State(), EmptyState());
    }
    static RECT BoundsOf(const DialogOnScreen& dialog, int id) {
        RECT bounds{};
        EXPECT_TRUE(GetWindowRect(dialog.Control(id), &bounds));
        return bounds;
    }

    // How many colours the window shows on the screen.
    static std::size_t ColoursOf(HWND window) {
        RECT area{};
        GetClientRect(window, &area);
        const HDC dc = GetDC(window);
        std::set<COLORREF> colours;
        for (int y = 0; y < area.bottom; ++y)
            for (int x = 0; x < area.right; ++x) colours.insert(GetPixel(dc, x, y));
        ReleaseDC(window, dc);
        return colours.size();
    }

    Program program;
};

TEST_F(frmAboutTest, AnotherResolutionLeavesTheTitleBoldAndLarge) {
    const DialogOnScreen dialog = Open();
    const LONG height = dialog.Font(ID_frmAbout_lblTitle).lfHeight;
    ChangeResolution(program, dialog, 192);
    EXPECT_EQ(dialog.Font(ID_frmAbout_lblTitle).lfWeight, FW_BOLD);
    EXPECT_EQ(dialog.Font(ID_frmAbout_lblTitle).lfHeight, 2 * height);
    dialog.Cancel();
    program.Settle();
}

TEST_F(frmAboutTest, ShowsEveryTextToTheLetter) {
    const DialogOnScreen dialog = Open();
    EXPECT_EQ(dialog.Text(ID_frmAbout_lblTitle), L"Lindrel");
    EXPECT_EQ(dialog.Text(ID_frmAbout_lblVersion), L"Version " + std::to_wstring(LINDREL_VERSION_MAJOR) +
                                                       L"." + std::to_wstring(LINDREL_VERSION_MINOR) + L"." +
                                                       std::to_wstring(LINDREL_VERSION_REVISION));
    EXPECT_EQ(dialog.Text(ID_frmAbout_lblDescription), L"© 2026 Lindrel");
    EXPECT_EQ(dialog.Text(ID_frmAbout_Label1), L"<a>https://lindrel.example/</a>");
    EXPECT_EQ(dialog.Text(ID_frmAbout_lblDisclaimer),
              L"Figyelmeztetés: Jelen számítógépes program a szerzői jog és nemzetközi szerződések védelme "
              L"alatt áll.");
    EXPECT_EQ(dialog.Text(ID_frmAbout_cmdOK), L"OK");
    dialog.ClickAndWaitForClose(ID_frmAbout_cmdOK);
    ExpectUntouched();
}

TEST_F(frmAboutTest, ItsPartsAreInOrderFromTopToBottomAndTheIconIsPainted) {
    const DialogOnScreen dialog = Open();
    const int order[] = {ID_frmAbout_lblTitle,       ID_frmAbout_lblVersion, ID_frmAbout_Line1_0,
                         ID_frmAbout_lblDescription, ID_frmAbout_Label1,     ID_frmAbout_Line1_1,
                         ID_frmAbout_lblDisclaimer,  ID_frmAbout_cmdOK};
    EXPECT_LT(BoundsOf(dialog, ID_frmAbout_picIcon).right, BoundsOf(dialog, ID_frmAbout_lblTitle).left);
    for (std::size_t i = 1; i < std::size(order); ++i)
        EXPECT_LE(BoundsOf(dialog, order[i - 1]).bottom, BoundsOf(dialog, order[i]).top) << order[i];
    for (const int id : order) EXPECT_TRUE(dialog.IsShown(id)) << id;
    const HWND icon = dialog.Control(ID_frmAbout_picIcon);
    EXPECT_TRUE(Eventually([&] { return ColoursOf(icon) > 4; })) << "only the background";
    dialog.ClickAndWaitForClose(ID_frmAbout_cmdOK);
}

TEST_F(frmAboutTest, IsModalClosedByEscTooAndOpensAgainAndAgain) {
    for (int time = 0; time < 3; ++time) {
        const DialogOnScreen dialog = Open();
        EXPECT_FALSE(IsWindowEnabled(program.Main()));
        EXPECT_EQ(dialog.Focus(), ID_frmAbout_cmdOK);
        dialog.Cancel();
        dialog.WaitForClose();
        EXPECT_TRUE(IsWindowEnabled(program.Main()));
    }
    for (int time = 0; time < 3; ++time) Open().ClickAndWaitForClose(ID_frmAbout_cmdOK);
    ExpectUntouched();
}

TEST_F(frmAboutTest, TheHomePageLinkOpensItAndTheBoxStays) {
    const RecordedShell shell;
    const DialogOnScreen dialog = Open();
    program.PressKey(dialog.Control(ID_frmAbout_cmdOK), VK_TAB);
    ASSERT_EQ(dialog.Focus(), ID_frmAbout_Label1);
    program.PressKey(dialog.Control(ID_frmAbout_Label1), VK_RETURN);
    EXPECT_EQ(shell.NextAddress(), L"https://lindrel.example/");

    const HWND link = dialog.Control(ID_frmAbout_Label1);
    const LPARAM point = MAKELPARAM(5, 5);
    PostMessageW(link, WM_LBUTTONDOWN, MK_LBUTTON, point);
    PostMessageW(link, WM_LBUTTONUP, 0, point);
    EXPECT_EQ(shell.NextAddress(), L"https://lindrel.example/");
    EXPECT_EQ(shell.Addresses().size(), 2u);
    EXPECT_TRUE(dialog.IsOpen());
    dialog.ClickAndWaitForClose(ID_frmAbout_cmdOK);
    ExpectUntouched();
}

}  // namespace
}  // namespace lindrel::testing
