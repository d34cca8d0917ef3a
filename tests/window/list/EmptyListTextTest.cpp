// What the lists show while they have no rows.

#include <algorithm>

#include "resources/resource.h"
#include "tests/window/find/FindSession.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

// What is drawn into a window, in the program's thread.
std::vector<std::pair<HWND, std::wstring>> texts_drawn;
RECT last_bounds{};
decltype(&DrawTextW) real_draw_text = nullptr;
int WINAPI WriteDown(HDC dc, LPCWSTR text, int length, LPRECT bounds, UINT format) {
    texts_drawn.emplace_back(WindowFromDC(dc), text);
    last_bounds = *bounds;
    return real_draw_text(dc, text, length, bounds, format);
}

constexpr wchar_t kEmptyCategory[] =
    L"Ebben a kategóriában nincs cím.\r\n\r\nCím hozzáadása: Ctrl+A\r\nKönyv megnyitása: Ctrl+O";

class EmptyListTextTest : public FindSession {
  protected:
    // Every text that is drawn when a list is repainted, in order.
    std::vector<std::wstring> TextsIn(HWND window) const {
        real_draw_text = &DrawTextW;
        const ReplacedImport recorder(real_draw_text, &WriteDown);
        std::vector<std::wstring> texts;
        program.OnUi([&](frmStart&) {
            texts_drawn.clear();
            RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
            for (const auto& [where, text] : texts_drawn)
                if (where == window) texts.push_back(text);
        });
        return texts;
    }

    const HWND list = program.Control(ID_frmStart_ListURLs);
};

TEST_F(EmptyListTextTest, OfAnEmptyCategoryIsNotARow) {
    EXPECT_EQ(TextsIn(list), std::vector<std::wstring>{kEmptyCategory});
    EXPECT_EQ(program.List().Count(), 0);
    EXPECT_EQ(program.State(), EmptyState());
    // The shortcuts that it names are those of the menus.
    wchar_t caption[80] = L"";
    GetMenuStringW(GetMenu(program.Main()), ID_mnuAdd, caption, 80, MF_BYCOMMAND);
    EXPECT_EQ(std::wstring(caption), L"Cím hozzáadása...\tCtrl+A");
    GetMenuStringW(GetMenu(program.Main()), ID_mnuOpen, caption, 80, MF_BYCOMMAND);
    EXPECT_EQ(std::wstring(caption), L"Megnyitás...\tCtrl+O");
}

TEST_F(EmptyListTextTest, FitsBelowTheHeaderOfTheSmallestWindow) {
    SetWindowPos(program.Main(), nullptr, 0, 0, 1, 1, SWP_NOMOVE | SWP_NOZORDER);
    program.Settle();
    TextsIn(list);
    RECT client{};
    RECT header{};
    GetClientRect(list, &client);
    GetClientRect(ListView_GetHeader(list), &header);
    EXPECT_GE(last_bounds.top, header.bottom);
    program.OnUi([&](frmStart&) {
        const HDC dc = GetDC(list);
        SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(list, WM_GETFONT, 0, 0)));
        RECT needed{0, 0, last_bounds.right - last_bounds.left, 0};
        DrawTextW(dc, kEmptyCategory, -1, &needed, DT_CALCRECT | DT_WORDBREAK);
        EXPECT_LE(needed.right, last_bounds.right - last_bounds.left);
        EXPECT_LE(needed.bottom, last_bounds.bottom - last_bounds.top);
        ReleaseDC(list, dc);
    });
}

TEST_F(EmptyListTextTest, DisappearsWithTheFirstRowAndComesBackAfterTheLast) {
    program.Add(1, {{L"Egy", L"http://egy.hu"}});
    EXPECT_EQ(TextsIn(list), std::vector<std::wstring>{});
    program.ClickTab(2);
    EXPECT_EQ(TextsIn(list), std::vector<std::wstring>{kEmptyCategory});
    program.ClickTab(1);
    EXPECT_EQ(TextsIn(list), std::vector<std::wstring>{});
    program.Run(ID_mnuNew);
    EXPECT_EQ(TextsIn(list), std::vector<std::wstring>{kEmptyCategory});
}

TEST_F(EmptyListTextTest, OfTheFindDialogAppearsOnlyAfterASearch) {
    AddSixEntries();
    const FindDialog dialog = Open();
    const HWND hits = dialog.List().Handle();
    EXPECT_EQ(TextsIn(hits), std::vector<std::wstring>{});
    dialog.Search(L"y");
    EXPECT_EQ(TextsIn(hits), std::vector<std::wstring>{L"Nincs találat."});
    dialog.Search(L"x");
    EXPECT_EQ(TextsIn(hits), std::vector<std::wstring>{});
    dialog.Close();
}

}  // namespace
}  // namespace lindrel::testing
