// The main window itself: what a change of the system's settings leaves alone, and what it tells
// programs that read the screen aloud.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

class frmStartWindowTest : public ::testing::Test {
  protected:
    HWND Control(int id) const { return GetDlgItem(program.Main(), id); }
    std::vector<int> ColumnWidths() const {
        const HWND list = Control(ID_frmStart_ListURLs);
        return {ListView_GetColumnWidth(list, 0), ListView_GetColumnWidth(list, 1)};
    }

    Program program;
};

TEST_F(frmStartWindowTest, AChangeOfTheSettingsLeavesTheColumnsAsTheUserMadeThem) {
    const HWND list = Control(ID_frmStart_ListURLs);
    const int address = ColumnWidths()[1];
    ListView_SetColumnWidth(list, 0, 77);
    for (const int message : {WM_SETTINGCHANGE, WM_SYSCOLORCHANGE, WM_THEMECHANGED})
        SendMessageW(program.Main(), static_cast<UINT>(message), 0, 0);
    program.Settle();
    EXPECT_EQ(ColumnWidths(), (std::vector<int>{77, address}));
}

// Screen readers take a field's name from the text just before it.
TEST_F(frmStartWindowTest, EveryTextBoxHasItsNameBeforeIt) {
    const std::vector<std::pair<int, std::wstring>> names = {{ID_frmStart_txtSite, L"Webhely neve"},
                                                             {ID_frmStart_txtURL, L"URL"},
                                                             {ID_frmStart_cmbFinders, L"&keresés"},
                                                             {ID_frmStart_txtFind, L"keresett szöveg"}};
    for (const auto& [id, name] : names) EXPECT_EQ(TextOf(GetWindow(Control(id), GW_HWNDPREV)), name);
    EXPECT_FALSE(IsWindowVisible(Control(ID_frmStart_lblFind)));
}

TEST_F(frmStartWindowTest, AfterADeletionTheArrowKeysGoOnFromTheSamePlace) {
    program.Add(1, {{L"1", L"http://1.hu"}, {L"2", L"http://2.hu"}, {L"3", L"http://3.hu"}});
    const HWND list = Control(ID_frmStart_ListURLs);
    const auto expect_focus = [&](int row) {
        EXPECT_EQ(program.State().SelectedRow, 0);
        EXPECT_EQ(ListView_GetNextItem(list, -1, LVNI_FOCUSED) + 1, row);
    };
    const auto remove = [&] {
        program.Choose(ID_mnuDel);
        program.Box().Press(IDOK);
        program.Settle();
    };
    program.ClickRow(2);
    remove();
    expect_focus(2);
    program.ClickRow(2);
    remove();
    expect_focus(1);  // the last that is left
    program.PressKey(list, VK_SPACE);
    EXPECT_EQ(program.State().Checked, std::vector<int>{1});
}

}  // namespace
}  // namespace lindrel::testing
