// A user finds an entry in the whole book and words on the internet, by the keyboard.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/e2e/support/ShippedProgram.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/RecordedShell.h"

namespace lindrel::testing {
namespace {

class FindTest : public ::testing::Test {
  protected:
    FindTest() { program.OpenBook(book); }

    TemporaryFolder folder;
    const std::wstring book = folder.Write(L"minta.lnd", SampleBook());
    ShippedProgram program;
};

TEST_F(FindTest, AHitThatIsCheckedIsCheckedInItsCategory) {
    const DialogOnScreen dialog = program.OpenDialog({'F', {VK_CONTROL}}, L"Keresés");
    const auto wait_for_text = [&](int id, const std::wstring& text) {
        EXPECT_TRUE(Eventually([&] { return dialog.Text(id) == text; })) << "control " << id;
    };
    program.Type(L"IDŐKÉP");
    wait_for_text(ID_frmFind_txtWhat, L"IDŐKÉP");
    program.Press({VK_RETURN});
    wait_for_text(ID_frmFind_lblSum_1, L"1");
    for (const int stop : {ID_frmFind_txtTag, ID_frmFind_cmdFind, ID_frmFind_ListView}) {
        program.Press({VK_TAB});
        WaitUntil("the next stop of the tab key", [&] { return dialog.Focus() == stop; });
    }
    program.Press({VK_DOWN});
    wait_for_text(ID_frmFind_lblURL, L"https://www.idokep.hu/");
    program.Press({VK_SPACE});
    program.Press({VK_ESCAPE});
    dialog.WaitForClose();

    WaitUntil("the main window's list", [this] { return program.StatusPanel(3) == L"bejelölve 0"; });
    EXPECT_EQ(program.CheckedRows(), std::vector<int>{});
    program.Press({VK_TAB, {VK_CONTROL}});
    WaitUntil("the weather's tab", [this] { return program.StatusPanel(3) == L"bejelölve 1"; });
    EXPECT_EQ(program.SelectedTab(), 2);
    EXPECT_EQ(program.CheckedRows(), std::vector<int>{2});
    EXPECT_EQ(program.Cell(2, 0), L"Időkép");
}

TEST_F(FindTest, TheWordsReachTheBrowserAsTyped) {
    const RecordedShell shell;
    program.Click(program.Control(ID_frmStart_txtFind), {5, 5});
    program.Type(L"két szó: ŰRHAJÓ");
    WaitUntil("the typed words", [this] { return program.Text(ID_frmStart_txtFind) == L"két szó: ŰRHAJÓ"; });
    const HWND finders = program.Control(ID_frmStart_cmbFinders);
    program.Press({VK_TAB, {VK_SHIFT}});
    for (int service = 1; service <= 3; ++service) {
        program.Press({VK_DOWN});
        WaitUntil("the next service", [&] { return SendMessageW(finders, CB_GETCURSEL, 0, 0) == service; });
    }
    program.Press({VK_TAB});
    program.Press({VK_RETURN});
    EXPECT_EQ(shell.NextAddress(),
              L"http://search.excite.com/search.gw?searchType=Concept&search=két szó: ŰRHAJÓ");
    EXPECT_TRUE(Eventually([&] { return SendMessageW(finders, CB_GETCURSEL, 0, 0) == 0; }))
        << "the service stays chosen";
}

}  // namespace
}  // namespace lindrel::testing
