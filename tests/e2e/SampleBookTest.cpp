// A user's session with the sample book: open, walk the tabs, check with keys and mouse, save under another
// name, close.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/e2e/support/ShippedProgram.h"
#include "tests/support/PlainBook.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

class SampleBookTest : public ::testing::Test {
  protected:
    // Opens a copy of the sample book.
    void Open() const { program.OpenBook(book); }
    void ExpectStatus(const std::wstring& first, const std::wstring& second,
                      const std::wstring& third) const {
        EXPECT_TRUE(Eventually([&] {
            return program.StatusPanel(1) == first && program.StatusPanel(2) == second &&
                   program.StatusPanel(3) == third;
        })) << "the status bar stays at another text";
    }

    const std::string bytes = SampleBook();
    TemporaryFolder folder;
    const std::wstring book = folder.Write(L"minta.lnd", bytes);
    ShippedProgram program;
};

TEST_F(SampleBookTest, EachTabIsReachedByTheKeyboardAndShowsItsEntries) {
    Open();
    PlainBook expected;
    ASSERT_TRUE(PlainReader(bytes).Read(expected).AllCategories);
    for (int tab = 1; tab <= 12; ++tab) {
        const int rows = expected.Of(tab).Count;
        ExpectStatus(
            L"",
            L"megjelenítve (" + std::to_wstring(rows) + L" / " + std::to_wstring(expected.Total()) + L")",
            L"bejelölve 0");
        EXPECT_EQ(program.SelectedTab(), tab);
        EXPECT_EQ(program.RowCount(), rows);
        EXPECT_EQ(program.SelectedRow(), 0);
        program.Press({VK_TAB, {VK_CONTROL}});
        WaitUntil("the next tab", [&] { return program.SelectedTab() == tab % 12 + 1; });
    }
}

TEST_F(SampleBookTest, ChecksWithSpaceAndMouseAndKeepsTheMarksOverTheTabs) {
    Open();
    program.Press({VK_DOWN});
    WaitUntil("the first row", [this] { return program.SelectedRow() == 1; });
    EXPECT_TRUE(Eventually([this] { return program.Text(ID_frmStart_txtURL) == program.Cell(1, 1); }));
    EXPECT_EQ(program.Text(ID_frmStart_txtSite), program.Cell(1, 0));

    program.Press({VK_SPACE});  // checks and goes on to the next row
    WaitUntil("the second row", [this] { return program.SelectedRow() == 2; });
    EXPECT_TRUE(Eventually([this] { return program.Text(ID_frmStart_txtURL) == program.Cell(2, 1); }));
    EXPECT_EQ(program.CheckedRows(), std::vector<int>{1});

    const HWND list = program.Control(ID_frmStart_ListURLs);
    program.Click(list, program.CheckBoxOf(4));
    EXPECT_TRUE(Eventually([this] { return program.CheckedRows() == std::vector<int>{1, 4}; }));
    EXPECT_EQ(program.SelectedRow(), 2);
    program.Click(list, program.TextOf(3));
    EXPECT_TRUE(Eventually([this] { return program.Text(ID_frmStart_txtURL) == program.Cell(3, 1); }));
    EXPECT_EQ(program.CheckedRows(), (std::vector<int>{1, 4}));

    const HWND tabs = program.Control(ID_frmStart_TabStrip1);
    const std::wstring shown = program.StatusPanel(2);
    program.Click(tabs, program.TabAt(2));
    WaitUntil("the second tab", [this] { return program.StatusPanel(3) == L"bejelölve 0"; });
    EXPECT_EQ(program.SelectedTab(), 2);
    EXPECT_EQ(program.CheckedRows(), std::vector<int>{});
    program.Click(tabs, program.TabAt(1));
    ExpectStatus(L"", shown, L"bejelölve 2");
    EXPECT_EQ(program.CheckedRows(), (std::vector<int>{1, 4}));
}

TEST_F(SampleBookTest, SavesUnderAnotherNameToTheByteAndCloses) {
    Open();
    program.Press({'S', {VK_CONTROL}});  // nothing to save: nothing happens
    const std::wstring copy = folder.File(L"másolat.lnd");
    program.OpenMenu('F');
    for (int item = 0; item < 4; ++item) program.Press({VK_DOWN});
    program.Press({VK_RETURN});
    program.AnswerFileDialog(copy);
    const BoxOnScreen saved = program.Box();
    EXPECT_EQ(saved.Title(), L"Lindrel");
    EXPECT_EQ(saved.Text(), L"Elmentve : " + copy);
    program.Press({VK_RETURN});
    EXPECT_TRUE(Eventually([this] { return program.Title() == L"Lindrel -másolat.lnd"; }));
    EXPECT_EQ(TemporaryFolder::Read(copy), bytes);
    EXPECT_EQ(TemporaryFolder::Read(book), bytes);

    program.Press({VK_F4, {VK_MENU}});
    EXPECT_EQ(program.WaitForEnd(), 0u);
}

TEST_F(SampleBookTest, AddsAnEntryByKeysAloneAndIsAskedAboutItAtTheEnd) {
    Open();
    const int rows = program.RowCount();
    const DialogOnScreen add = program.OpenDialog({'A', {VK_CONTROL}}, L"Új oldal hozzáadása");
    program.Type(L"Árvíztűrő");
    WaitUntil("the typed name", [&] { return add.Text(ID_frmAdd_txtDesc) == L"Árvíztűrő"; });
    program.Press({'U', {VK_MENU}});  // the access key of the address
    WaitUntil("the address", [&] { return add.Focus() == ID_frmAdd_txtURL; });
    program.Press({'A', {VK_CONTROL}});
    program.Type(L"http://arviz.hu/");
    program.Press({VK_RETURN});
    add.WaitForClose();
    EXPECT_TRUE(Eventually([&] { return program.RowCount() == rows + 1; }));
    EXPECT_EQ(program.Cell(rows + 1, 0), L"Árvíztűrő");
    EXPECT_EQ(program.Cell(rows + 1, 1), L"http://arviz.hu/");

    program.Press({VK_F4, {VK_MENU}});
    const BoxOnScreen first = program.Box();
    EXPECT_EQ(first.Title(), L"A fájl módosult");
    EXPECT_EQ(first.Text(), L"Kívánja menteni a módosításokat ?");
    program.Press({VK_ESCAPE});
    WaitUntil("the question to go", [&] { return !IsWindow(first.Handle()); });
    EXPECT_EQ(program.RowCount(), rows + 1);

    program.Press({VK_F4, {VK_MENU}});
    program.Box().Press(IDYES);
    const BoxOnScreen saved = program.Box();
    EXPECT_EQ(saved.Text(), L"Elmentve : " + book);
    program.Press({VK_RETURN});
    EXPECT_EQ(program.WaitForEnd(), 0u);
    const std::string added = "\xC1rv\xEDzt\xFBr\xF5\r\nhttp://arviz.hu/\r\n";
    std::string expected = bytes;
    expected.insert(expected.find("\r\n#") + 2, added);
    EXPECT_EQ(TemporaryFolder::Read(book), expected);
}

}  // namespace
}  // namespace lindrel::testing
