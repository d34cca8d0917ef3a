// The toolbar of the shipped program under a real mouse.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/e2e/support/ShippedProgram.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

class ToolbarTest : public ::testing::Test {
  protected:
    void ClickButton(int position) const {
        const RECT button = program.ToolbarButton(position);
        program.Click(program.Control(ID_frmStart_Toolbar), {button.left + 12, button.top + 12});
    }
    TemporaryFolder folder;
    const std::wstring book = folder.Write(L"minta.lnd", SampleBook());
    ShippedProgram program;
};

TEST_F(ToolbarTest, OpensAndChecksAllAndStartsAnew) {
    ClickButton(2);
    program.AnswerFileDialog(book);
    WaitUntil("the opened book", [this] { return program.Title() == L"Lindrel -minta.lnd"; });
    ClickButton(10);
    EXPECT_TRUE(
        Eventually([this] { return static_cast<int>(program.CheckedRows().size()) == program.RowCount(); }));
    EXPECT_GT(program.RowCount(), 0);
    ClickButton(1);
    EXPECT_TRUE(Eventually([this] { return program.Title() == L"Lindrel " && program.RowCount() == 0; }));
}

TEST_F(ToolbarTest, TheArrowOfExportOpensAMenuWhoseEntriesDoNothing) {
    const RECT button = program.ToolbarButton(5);
    program.Click(program.Control(ID_frmStart_Toolbar), {button.right - 4, button.top + 12});
    WaitUntil("the menu", [this] { return program.PoppedUpMenu() != nullptr; });
    program.Press({VK_DOWN});
    program.Press({VK_RETURN});
    WaitUntil("the menu's end", [this] { return program.PoppedUpMenu() == nullptr; });
    // The program is ready for the next command, so the entry has done all that it does.
    program.Press({'O', {VK_CONTROL}});
    EXPECT_EQ(program.FileDialog().Title(), L"File megnyitása");
    program.Press({VK_ESCAPE});
}

}  // namespace
}  // namespace lindrel::testing
