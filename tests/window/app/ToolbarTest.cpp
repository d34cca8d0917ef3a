// The toolbar of the main window and the pictures on its buttons.

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "resources/resource.h"
#include "tests/window/support/Drawn.h"
#include "tests/window/support/OtherScreen.h"
#include "tests/window/support/RealInput.h"

namespace lindrel::testing {
namespace {

const std::vector<std::wstring> kNames{L"Új fájl", L"Megnyit", L"Mentés",   L"Hozzáad", L"Export",
                                       L"Módosít", L"Keresés", L"Áthelyez", L"Töröl",   L"ki/bejelöl"};

class ToolbarTest : public ::testing::Test {
  protected:
    HWND Toolbar() const { return program.Control(ID_frmStart_Toolbar); }
    RECT BoundsOf(int position) const {
        return program.Ask<RECT>([this, position](frmStart&) {
            RECT bounds{};
            EXPECT_TRUE(SendMessageW(Toolbar(), TB_GETITEMRECT, static_cast<WPARAM>(position - 1),
                                     reinterpret_cast<LPARAM>(&bounds)));
            return bounds;
        });
    }
    // With the mouse, on the picture or at the right end of the button.
    void Press(int position, bool right_end = false) const {
        const RECT bounds = BoundsOf(position);
        const LPARAM point = MAKELPARAM(right_end ? bounds.right - 4 : bounds.left + 12, bounds.top + 12);
        PostMessageW(Toolbar(), WM_MOUSEMOVE, 0, point);
        PostMessageW(Toolbar(), WM_LBUTTONDOWN, MK_LBUTTON, point);
        PostMessageW(Toolbar(), WM_LBUTTONUP, 0, point);
    }
    // Two entries in the first category; the first is selected, none is checked.
    MainState TwoEntries() const {
        program.Add(1, {{L"Egy", L"http://egy.hu"}, {L"Kettő", L"http://ketto.hu"}});
        program.ClickRow(1);
        return program.State();
    }
    // That there are ten buttons with their names, and pictures and a first button of these sizes in pixels.
    void ExpectButtons(int picture, int width, int height) const {
        program.OnUi([&](frmStart&) {
            ASSERT_EQ(SendMessageW(Toolbar(), TB_BUTTONCOUNT, 0, 0), 10);
            for (int i = 0; i < 10; ++i) {
                TBBUTTON button{};
                SendMessageW(Toolbar(), TB_GETBUTTON, static_cast<WPARAM>(i),
                             reinterpret_cast<LPARAM>(&button));
                EXPECT_EQ(button.idCommand, ID_frmStart_Toolbar_1 + i);
                EXPECT_EQ(button.iBitmap, i);
                EXPECT_EQ(button.fsStyle, i == 4 ? BTNS_DROPDOWN : BTNS_BUTTON);
                EXPECT_EQ(button.fsState, TBSTATE_ENABLED);
                wchar_t name[32] = L"";
                SendMessageW(Toolbar(), TB_GETBUTTONTEXTW, static_cast<WPARAM>(button.idCommand),
                             reinterpret_cast<LPARAM>(name));
                EXPECT_EQ(name, kNames[static_cast<std::size_t>(i)]);
            }
            const auto pictures =
                reinterpret_cast<HIMAGELIST>(SendMessageW(Toolbar(), TB_GETIMAGELIST, 0, 0));
            EXPECT_EQ(ImageList_GetImageCount(pictures), 10);
            int across = 0;
            int down = 0;
            EXPECT_TRUE(ImageList_GetIconSize(pictures, &across, &down));
            EXPECT_EQ(across, picture);
            EXPECT_EQ(down, picture);
        });
        const RECT first = BoundsOf(1);
        EXPECT_EQ(first.right - first.left, width);
        EXPECT_EQ(first.bottom - first.top, height);
    }

    // The mouse comes to a button, so that the toolbar has its tips.
    HWND TipsAfterHovering() const {
        const RECT first = BoundsOf(1);
        RealInput(program).Move(Toolbar(), {first.left + 12, first.top + 12});
        WaitUntil("the first button under the mouse",
                  [this] { return SendMessageW(Toolbar(), TB_GETHOTITEM, 0, 0) == 0; });
        return reinterpret_cast<HWND>(SendMessageW(Toolbar(), TB_GETTOOLTIPS, 0, 0));
    }
    // All buttons but the first have their names as tips.
    void ExpectTips(HWND tips) const {
        program.OnUi([&](frmStart&) {
            EXPECT_EQ(SendMessageW(tips, TTM_GETTOOLCOUNT, 0, 0), 9);
            for (std::size_t i = 0; i < kNames.size(); ++i) {
                wchar_t text[80] = L"";
                TTTOOLINFOW tool{};
                tool.cbSize = sizeof tool;
                tool.hwnd = Toolbar();
                tool.uId = ID_frmStart_Toolbar_1 + i;
                // Not even an empty tip for the first: Windows could fill it with the button's name.
                EXPECT_EQ(SendMessageW(tips, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool)) != 0,
                          i != 0);
                tool.lpszText = text;
                SendMessageW(tips, TTM_GETTEXTW, 80, reinterpret_cast<LPARAM>(&tool));
                EXPECT_EQ(text, i == 0 ? std::wstring() : kNames[i]);
            }
        });
    }
    // The bounds of all buttons, their size and that of all of them together, as numbers in a row.
    static std::vector<LONG> MeasuresOf(HWND toolbar) {
        std::vector<LONG> measures{static_cast<LONG>(SendMessageW(toolbar, TB_GETBUTTONSIZE, 0, 0)),
                                   static_cast<LONG>(SendMessageW(toolbar, TB_GETPADDING, 0, 0))};
        SIZE all{};
        EXPECT_TRUE(SendMessageW(toolbar, TB_GETMAXSIZE, 0, reinterpret_cast<LPARAM>(&all)));
        measures.insert(measures.end(), {all.cx, all.cy});
        for (WPARAM i = 0; i < kNames.size(); ++i) {
            RECT bounds{};
            EXPECT_TRUE(SendMessageW(toolbar, TB_GETITEMRECT, i, reinterpret_cast<LPARAM>(&bounds)));
            measures.insert(measures.end(), {bounds.left, bounds.top, bounds.right, bounds.bottom});
        }
        return measures;
    }
    // The toolbar measures what one does that has never had another resolution.
    void ExpectAsIfNew(UINT dpi) const {
        program.OnUi([&](frmStart&) {
            const HWND host = CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 900, 100, nullptr, nullptr,
                                              nullptr, nullptr);
            {
                class Toolbar fresh;
                fresh.Create(host);
                const HWND made = GetDlgItem(host, ID_frmStart_Toolbar);
                SendMessageW(made, WM_SETFONT, static_cast<WPARAM>(SendMessageW(Toolbar(), WM_GETFONT, 0, 0)),
                             FALSE);
                fresh.ApplyResolution(dpi);
                EXPECT_EQ(MeasuresOf(Toolbar()), MeasuresOf(made)) << dpi;
                DestroyWindow(host);
            }
        });
    }

    Program program;
};

TEST_F(ToolbarTest, HasTenButtonsWithNamesAndPictures) {
    ExpectButtons(24, 31, 30);
}

TEST_F(ToolbarTest, AllButTheFirstButtonHaveToolTips) {
    ExpectTips(TipsAfterHovering());
}

TEST_F(ToolbarTest, TheFirstButtonStartsANewBook) {
    MainState expected = EmptyState();
    expected.Status[0] = TwoEntries().Status[0];
    Press(1);
    program.Settle();
    EXPECT_EQ(program.State(), expected);
}

TEST_F(ToolbarTest, TheSecondToTheEighthButtonOpenTheirDialogs) {
    const auto expect_file_dialog = [this](int position, const std::wstring& title) {
        Press(position);
        const FileDialogOnScreen dialog = program.FileDialog();
        EXPECT_EQ(dialog.Title(), title);
        dialog.Cancel();
        program.Settle();
    };
    const auto expect_dialog = [this](int position, const std::wstring& caption) {
        Press(position);
        program.Dialog(caption).Cancel();
        program.Settle();
    };
    expect_file_dialog(2, L"File megnyitása");
    expect_dialog(4, L"Új oldal hozzáadása");
    TwoEntries();
    expect_dialog(6, L"Cím módosítása");
    expect_dialog(8, L"A kiválasztott címek áthelyezése");
    program.ClickBox(2);
    expect_dialog(5, L"Exportálás");
    expect_dialog(7, L"Keresés");
    program.OnUi([](frmStart& form) { form.OpenedBook().Modified = true; });
    expect_file_dialog(3, L"File mentése");
}

TEST_F(ToolbarTest, TheNinthButtonDeletes) {
    MainState expected = TwoEntries();
    Press(9);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Text(), L"Tényleg ki akarja törölni ezt a web címet ?");
    box.Press(IDCANCEL);
    EXPECT_EQ(program.State(), expected);
}

TEST_F(ToolbarTest, TheTenthButtonChecksAndUnchecksAll) {
    const MainState before = TwoEntries();
    Press(10);
    program.Settle();
    MainState expected = before;
    expected.Checked = {1, 2};
    expected.Status[2] = L"bejelölve 2";
    EXPECT_EQ(program.State(), expected);
    Press(10);
    program.Settle();
    EXPECT_EQ(program.State(), before);
}

TEST_F(ToolbarTest, PositionsThatHoldNoButtonDoNothing) {
    const MainState before = TwoEntries();
    for (const int id : {ID_frmStart_Toolbar_1 - 1, ID_frmStart_Toolbar_10 + 1}) program.Run(id);
    EXPECT_EQ(program.State(), before);
    EXPECT_TRUE(program.NothingIsOpen());
}

TEST_F(ToolbarTest, TheEntriesOfTheExportMenuDoNothing) {
    TwoEntries();
    program.ClickBox(1);
    const MainState before = program.State();
    for (const int downs : {1, 2}) {
        Press(5, true);
        HWND menu = nullptr;
        WaitUntil("the menu", [&] { return (menu = PoppedUpMenu(program.Thread())) != nullptr; });
        const auto items = reinterpret_cast<HMENU>(SendMessageW(menu, MN_GETHMENU, 0, 0));
        std::vector<std::wstring> texts;
        for (UINT i = 0; i < static_cast<UINT>(GetMenuItemCount(items)); ++i) {
            wchar_t text[40] = L"";
            GetMenuStringW(items, i, text, 40, MF_BYPOSITION);
            texts.emplace_back(text);
        }
        EXPECT_EQ(texts, (std::vector<std::wstring>{L"Szöveges fájlba", L"HTML fájlba"}));
        for (int down = 0; down < downs; ++down) PostMessageW(program.Main(), WM_KEYDOWN, VK_DOWN, 1);
        PostMessageW(program.Main(), WM_KEYDOWN, VK_RETURN, 1);
        WaitUntil("the menu to close", [menu] { return !IsWindowVisible(menu); });
        program.Settle();
        EXPECT_TRUE(program.NothingIsOpen());
        EXPECT_EQ(program.State(), before);
    }
}

TEST_F(ToolbarTest, StandsWholeBetweenMenuAndTabs) {
    RECT toolbar{};
    RECT tabs{};
    GetWindowRect(Toolbar(), &toolbar);
    GetWindowRect(program.Control(ID_frmStart_TabStrip1), &tabs);
    POINT origin{0, 0};
    ClientToScreen(program.Main(), &origin);
    EXPECT_GE(toolbar.top, origin.y);
    EXPECT_LT(toolbar.bottom, tabs.top);
    const RECT last = BoundsOf(10);
    EXPECT_LE(last.right, toolbar.right - toolbar.left);
    EXPECT_LE(last.bottom, toolbar.bottom - toolbar.top);
}

TEST_F(ToolbarTest, TheTwoPictureButtonsShowDifferentPicturesAndKeepTheirNames) {
    EXPECT_EQ(TextOf(program.Control(ID_frmStart_picGo)), L"Ugorj a web oldalra");
    EXPECT_EQ(TextOf(program.Control(ID_frmStart_Image1)), L"Keresés");
    constexpr int kSide = 24;
    std::set<std::vector<COLORREF>> looks{
        std::vector<COLORREF>(kSide * kSide, GetSysColor(COLOR_BTNFACE))};  // no picture
    program.OnUi([&](frmStart&) {
        for (const int id : {ID_frmStart_picGo, ID_frmStart_Image1})
            looks.insert(Drawn(kSide, [&](HDC dc) {
                DRAWITEMSTRUCT item{};
                item.hDC = dc;
                item.rcItem = {0, 0, kSide, kSide};
                SendMessageW(program.Control(id), WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
            }));
    });
    EXPECT_EQ(looks.size(), 3u);
}

TEST_F(ToolbarTest, ANewResolutionScalesThePicturesAndKeepsButtonsAndNames) {
    const MainState before = TwoEntries();
    const OtherScreen screen(program);
    screen.Move(144);
    ExpectButtons(36, 43, 42);
    EXPECT_EQ(program.State(), before);
    Press(10);
    program.Settle();
    EXPECT_EQ(program.State().Checked, (std::vector<int>{1, 2}));
    screen.Move(168);
    ExpectButtons(42, 49, 48);
    screen.Move(96);
    ExpectButtons(24, 31, 30);
    SendMessageW(program.Main(), WM_SETTINGCHANGE, 0, 0);
    ExpectButtons(24, 31, 30);
}

TEST_F(ToolbarTest, AtEachNewResolutionItMeasuresWhatANewOneDoes) {
    const OtherScreen screen(program);
    ExpectAsIfNew(96);
    for (const UINT dpi : {144u, 192u, 144u, 96u, 192u, 96u}) {
        screen.Move(dpi);
        ExpectAsIfNew(dpi);
    }
}

TEST_F(ToolbarTest, ANewResolutionKeepsTheStatesOfTheButtons) {
    const OtherScreen screen(program);
    const auto state = [this](int position) {
        return SendMessageW(Toolbar(), TB_GETSTATE, static_cast<WPARAM>(ID_frmStart_Toolbar_1 + position - 1),
                            0);
    };
    constexpr LRESULT kPressed = TBSTATE_ENABLED | TBSTATE_PRESSED;
    SendMessageW(Toolbar(), TB_SETSTATE, ID_frmStart_Toolbar_1 + 2, 0);
    SendMessageW(Toolbar(), TB_SETSTATE, ID_frmStart_Toolbar_1 + 4, kPressed);
    for (const UINT dpi : {192u, 96u}) {
        screen.Move(dpi);
        for (int position = 1; position <= 10; ++position)
            EXPECT_EQ(state(position), position == 3 ? 0 : position == 5 ? kPressed : TBSTATE_ENABLED);
    }
}

// The letters of the old ones have the size of the old resolution.
TEST_F(ToolbarTest, ANewResolutionMakesTheToolTipsAnew) {
    const OtherScreen screen(program);
    const HWND tips = TipsAfterHovering();
    EXPECT_TRUE(IsWindow(tips));
    screen.Move(192);
    EXPECT_FALSE(IsWindow(tips));
    const HWND new_tips = TipsAfterHovering();
    EXPECT_NE(new_tips, tips);
    ExpectTips(new_tips);
}

}  // namespace
}  // namespace lindrel::testing
