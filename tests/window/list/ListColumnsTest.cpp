// The widths of the columns in both lists.

#include <cstdlib>

#include "resources/resource.h"
#include "tests/window/find/FindSession.h"
#include "tests/window/support/RealInput.h"

namespace lindrel::testing {
namespace {

using Widths = std::vector<int>;

class ListColumnsTest : public FindSession {
  protected:
    static int ClientWidth(HWND list) {
        RECT client{};
        EXPECT_TRUE(GetClientRect(list, &client));
        return client.right;
    }
    static bool HasBar(HWND list, DWORD style) {
        return (static_cast<DWORD>(GetWindowLongPtrW(list, GWL_STYLE)) & style) != 0;
    }
    static Widths WidthsOf(HWND list) {
        return {ListView_GetColumnWidth(list, 0), ListView_GetColumnWidth(list, 1)};
    }
    // The columns fill the list, the first as near to its part first : all as whole pixels can be, and there
    // is no scroll bar below.
    static void ExpectShared(HWND list, int first, int all) {
        const int width = ClientWidth(list);
        const Widths widths = WidthsOf(list);
        EXPECT_EQ(widths[0] + widths[1], width);
        EXPECT_LE(2 * std::abs(widths[0] * all - width * first), all);
        EXPECT_FALSE(HasBar(list, WS_HSCROLL));
    }
    void Resize(HWND window, int width, int height) const {
        SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        program.Settle();
    }
    void AddMany() const {
        std::vector<Row> rows;
        for (int i = 1; i <= 100; ++i)
            rows.emplace_back(L"x" + std::to_wstring(i), L"http://" + std::to_wstring(i) + L".hu");
        program.Add(1, rows);
    }

    const HWND list = program.Control(ID_frmStart_ListURLs);
};

TEST_F(ListColumnsTest, ShareTheWidthOfTheListWhateverItIs) {
    for (const int width : {760, 1200, 514, 641, 999}) {
        Resize(program.Main(), width, 500);
        ExpectShared(list, 200, 483);
    }
}

TEST_F(ListColumnsTest, MakeRoomForTheScrollBarAndTakeItBack) {
    const int without = ClientWidth(list);
    AddMany();
    program.ClickTab(1);
    EXPECT_TRUE(HasBar(list, WS_VSCROLL));
    EXPECT_LT(ClientWidth(list), without);
    ExpectShared(list, 200, 483);
    program.ClickTab(2);
    EXPECT_FALSE(HasBar(list, WS_VSCROLL));
    EXPECT_EQ(ClientWidth(list), without);
    ExpectShared(list, 200, 483);
}

TEST_F(ListColumnsTest, StayAsTheUserDraggedThem) {
    const Widths before = WidthsOf(list);
    const RealInput hands(program);
    hands.Drag(ListView_GetHeader(list), {before[0], 8}, {before[0] - 60, 8});
    const Widths dragged = WidthsOf(list);
    EXPECT_NEAR(dragged[0], before[0] - 60, 2);
    EXPECT_EQ(dragged[1], before[1]);
    for (const int width : {1200, 600, 800}) {
        Resize(program.Main(), width, 500);
        EXPECT_EQ(WidthsOf(list), dragged);
    }
    AddMany();
    program.ClickTab(1);
    EXPECT_EQ(WidthsOf(list), dragged);
    program.Run(ID_mnuNew);
    EXPECT_EQ(WidthsOf(list), dragged);
}

TEST_F(ListColumnsTest, StayAsADoubleClickOnADividerMadeThem) {
    AddMany();
    const Widths before = WidthsOf(list);
    const RealInput hands(program);
    hands.Click(ListView_GetHeader(list), {before[0], 8}, 2);
    const Widths fitted = WidthsOf(list);
    EXPECT_LT(fitted[0], before[0]);
    Resize(program.Main(), 1200, 500);
    EXPECT_EQ(WidthsOf(list), fitted);
}

TEST_F(ListColumnsTest, OfTheFindDialogDoTheSame) {
    AddMany();
    const FindDialog dialog = Open();
    const HWND hits = dialog.List().Handle();
    ExpectShared(hits, 2, 3);
    dialog.Search(L"x");
    EXPECT_TRUE(HasBar(hits, WS_VSCROLL));
    ExpectShared(hits, 2, 3);
    Resize(dialog.Handle(), 900, 600);
    ExpectShared(hits, 2, 3);
    ListView_SetColumnWidth(hits, 0, 77);
    const Widths set = WidthsOf(hits);
    Resize(dialog.Handle(), 700, 500);
    EXPECT_EQ(WidthsOf(hits), set);
    dialog.Close();
    Open().Close();
}

}  // namespace
}  // namespace lindrel::testing
