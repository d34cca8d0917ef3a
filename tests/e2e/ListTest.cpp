// What a user does first with a row of the list: double click, Enter, the menu key.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/e2e/support/ShippedProgram.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/RecordedShell.h"

namespace lindrel::testing {
namespace {

class ListTest : public ::testing::Test {
  protected:
    ListTest() { program.OpenBook(book); }

    TemporaryFolder folder;
    const std::wstring book = folder.Write(L"minta.lnd", SampleBook());
    const RecordedShell shell;
    ShippedProgram program;
};

TEST_F(ListTest, ADoubleClickOpensTheRow) {
    const HWND list = program.Control(ID_frmStart_ListURLs);
    program.Click(list, program.TextOf(3));
    program.Click(list, program.TextOf(3));
    EXPECT_EQ(shell.NextAddress(), program.Cell(3, 1));
    EXPECT_EQ(program.SelectedRow(), 3);
    EXPECT_EQ(program.Text(ID_frmStart_txtURL), program.Cell(3, 1));
}

TEST_F(ListTest, EnterOpensTheRow) {
    program.Press({VK_DOWN});
    program.Press({VK_DOWN});
    program.Press({VK_RETURN});
    EXPECT_EQ(shell.NextAddress(), program.Cell(2, 1));
    EXPECT_EQ(program.SelectedRow(), 2);
    EXPECT_EQ(program.CheckedRows(), std::vector<int>{});
}

TEST_F(ListTest, AnotherProgramChecksRows) {
    const auto expect = [this](const std::vector<int>& checked) {
        EXPECT_EQ(program.CheckedRows(), checked);
        EXPECT_EQ(program.StatusPanel(3), L"bejelölve " + std::to_wstring(checked.size()));
    };
    program.SetCheckState(2, true);
    program.SetCheckState(4, true);
    program.SetCheckState(4, true);
    expect({2, 4});
    program.SetCheckState(2, false);
    expect({4});
    std::vector<int> all;
    for (int row = 1; row <= program.RowCount(); ++row) all.push_back(row);
    ASSERT_GT(all.size(), 4u);
    program.SetCheckState(0, true);
    expect(all);
    program.SetCheckState(0, false);
    expect({});
}

TEST_F(ListTest, TheMenuKeyOpensTheMenuOfTheRow) {
    program.Press({VK_DOWN});
    WaitUntil("the first row", [this] { return program.SelectedRow() == 1; });
    program.Press({VK_APPS});
    WaitUntil("the menu", [this] { return program.PoppedUpMenu() != nullptr; });
    program.Press({VK_DOWN});
    program.Press({VK_RETURN});
    EXPECT_EQ(shell.NextAddress(), program.Cell(1, 1));
    EXPECT_TRUE(Eventually([this] { return program.PoppedUpMenu() == nullptr; }));

    program.Press({VK_APPS});
    WaitUntil("the menu", [this] { return program.PoppedUpMenu() != nullptr; });
    program.Press({VK_DOWN});
    program.Press({VK_DOWN});  // skips the separator
    program.Press({VK_RETURN});
    const DialogOnScreen dialog = WaitForDialog(program.Thread(), L"Cím módosítása");
    EXPECT_EQ(dialog.Text(ID_frmEditRec_txtURL), program.Cell(1, 1));
    program.Press({VK_ESCAPE});
    dialog.WaitForClose();
}

}  // namespace
}  // namespace lindrel::testing
