// The toolbar of the main window and the pictures on its buttons.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/window/support/Drawn.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/RealInput.h"

namespace lindrel::testing {
namespace {

class ToolbarTest : public ::testing::Test {
  protected:
    HWND Toolbar() const { return program.Control(ID_frmStart_Toolbar); }
    RECT PlaceOf(int position) const {
        return program.Ask<RECT>([this, position](frmStart&) {
            RECT place{};
            EXPECT_TRUE(SendMessageW(Toolbar(), TB_GETITEMRECT, static_cast<WPARAM>(position - 1),
                                     reinterpret_cast<LPARAM>(&place)));
            return place;
        });
    }
    // With the mouse, on the picture or on what is at the right end of the button.
    void Press(int position, bool right_end = false) const {
        const RECT place = PlaceOf(position);
        const LPARAM point = MAKELPARAM(right_end ? place.right - 4 : place.left + 12, place.top + 12);
        const HWND toolbar = Toolbar();
        PostMessageW(toolbar, WM_MOUSEMOVE, 0, point);
        PostMessageW(toolbar, WM_LBUTTONDOWN, MK_LBUTTON, point);
        PostMessageW(toolbar, WM_LBUTTONUP, 0, point);
    }
    // A button opens a dialog while there are entries.
    void ExpectDialog(int position, const std::wstring& caption) const {
        TwoEntries();
        Press(position);
        program.Dialog(caption).Cancel();
    }
    bool ButtonEnabled(int position) const {
        return SendMessageW(Toolbar(), TB_ISBUTTONENABLED,
                            static_cast<WPARAM>(ID_frmStart_Toolbar_1 + position - 1), 0) != 0;
    }
    HWND OpenMenu() const {
        HWND menu = nullptr;
        WaitUntil("the drop-down menu", [&] {
            menu = PoppedUpMenu(program.Thread());
            return menu != nullptr;
        });
        return menu;
    }
    // Two entries in the first category; the first is selected, none is checked.
    MainState TwoEntries() const {
        program.Add(1, {{L"Egy", L"http://egy.hu"}, {L"Kettő", L"http://ketto.hu"}});
        program.ClickRow(1);
        return program.State();
    }

    Program program;
};

TEST_F(ToolbarTest, HasTenButtonsWithNamesAndPictures) {
    program.OnUi([this](frmStart& form) {
        const HWND toolbar = Toolbar();
        const std::vector<std::wstring> names{L"Új fájl", L"Megnyit", L"Mentés",   L"Hozzáad", L"Export",
                                              L"Módosít", L"Keresés", L"Áthelyez", L"Töröl",   L"ki/bejelöl"};
        ASSERT_EQ(SendMessageW(toolbar, TB_BUTTONCOUNT, 0, 0), 10);
        for (int i = 0; i < 10; ++i) {
            TBBUTTON button{};
            SendMessageW(toolbar, TB_GETBUTTON, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&button));
            EXPECT_EQ(button.idCommand, ID_frmStart_Toolbar_1 + i);
            EXPECT_EQ(button.iBitmap, i);
            EXPECT_EQ(button.fsStyle, i == 4 ? BTNS_DROPDOWN : BTNS_BUTTON);
            wchar_t name[32] = L"";
            SendMessageW(toolbar, TB_GETBUTTONTEXTW, static_cast<WPARAM>(button.idCommand),
                         reinterpret_cast<LPARAM>(name));
            EXPECT_EQ(name, names[static_cast<std::size_t>(i)]);
        }
        // The disabled looks are made when they are needed.
        EXPECT_EQ(SendMessageW(toolbar, TB_GETDISABLEDIMAGELIST, 0, 0), 0);
        form.EnableCommand(ID_mnuEdit, false);
        for (const int message : {TB_GETIMAGELIST, TB_GETDISABLEDIMAGELIST}) {
            const auto pictures =
                reinterpret_cast<HIMAGELIST>(SendMessageW(toolbar, static_cast<UINT>(message), 0, 0));
            EXPECT_EQ(ImageList_GetImageCount(pictures), 10);
            int width = 0;
            int height = 0;
            EXPECT_TRUE(ImageList_GetIconSize(pictures, &width, &height));
            EXPECT_EQ(width, PixelsOf(360, DpiOf(form.Handle())));
            EXPECT_EQ(height, width);
            RECT button{};
            EXPECT_TRUE(SendMessageW(toolbar, TB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&button)));
            EXPECT_GT(button.right - button.left, width);
            EXPECT_GT(button.bottom - button.top, height);
        }
    });
}

TEST_F(ToolbarTest, AllButTheFirstButtonHaveToolTips) {
    const RECT first = PlaceOf(1);
    RealInput(program).Move(Toolbar(), {first.left + 12, first.top + 12});
    WaitUntil("the first button under the mouse",
              [this] { return SendMessageW(Toolbar(), TB_GETHOTITEM, 0, 0) == 0; });
    const std::vector<std::wstring> tips = program.Ask<std::vector<std::wstring>>([this](frmStart&) {
        const HWND toolbar = Toolbar();
        const auto window = reinterpret_cast<HWND>(SendMessageW(toolbar, TB_GETTOOLTIPS, 0, 0));
        std::vector<std::wstring> texts;
        for (int i = 0; i < 10; ++i) {
            wchar_t text[80] = L"";
            TTTOOLINFOW tool{};
            tool.cbSize = sizeof tool;
            tool.hwnd = toolbar;
            tool.uId = static_cast<UINT_PTR>(ID_frmStart_Toolbar_1 + i);
            // Not even an empty tip for the first: the system could fill it with the button's name.
            EXPECT_EQ(SendMessageW(window, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool)) != 0,
                      i != 0);
            tool.lpszText = text;
            SendMessageW(window, TTM_GETTEXTW, 80, reinterpret_cast<LPARAM>(&tool));
            texts.emplace_back(text);
        }
        return texts;
    });
    EXPECT_EQ(tips, (std::vector<std::wstring>{L"", L"Megnyit", L"Mentés", L"Hozzáad", L"Export", L"Módosít",
                                               L"Keresés", L"Áthelyez", L"Töröl", L"ki/bejelöl"}));
}

TEST_F(ToolbarTest, TheFirstButtonStartsANewBook) {
    MainState expected = EmptyState();
    expected.Status[0] = TwoEntries().Status[0];
    Press(1);
    program.Settle();
    EXPECT_EQ(program.State(), expected);
}

TEST_F(ToolbarTest, TheSecondButtonOpens) {
    Press(2);
    const FileDialogOnScreen dialog = program.FileDialog();
    EXPECT_EQ(dialog.Title(), L"File megnyitása");
    dialog.Cancel();
}

TEST_F(ToolbarTest, TheThirdButtonSaves) {
    program.OnUi([](frmStart& form) { form.OpenedBook().Modified = true; });
    Press(3);
    const FileDialogOnScreen dialog = program.FileDialog();
    EXPECT_EQ(dialog.Title(), L"File mentése");
    dialog.Cancel();
}

TEST_F(ToolbarTest, TheFourthButtonAdds) {
    Press(4);
    program.Dialog(L"Új oldal hozzáadása").Cancel();
}

TEST_F(ToolbarTest, TheFifthButtonExports) {
    TwoEntries();
    program.ClickBox(2);
    Press(5);
    program.Dialog(L"Exportálás").Cancel();
}

TEST_F(ToolbarTest, TheSixthButtonModifies) {
    ExpectDialog(6, L"Cím módosítása");
}

TEST_F(ToolbarTest, TheSeventhButtonFinds) {
    ExpectDialog(7, L"Keresés");
}

TEST_F(ToolbarTest, TheEighthButtonMoves) {
    ExpectDialog(8, L"A kiválasztott címek áthelyezése");
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
        const HWND menu = OpenMenu();
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

TEST_F(ToolbarTest, AButtonIsEnabledWithItsCommand) {
    const int commands[] = {ID_mnuNew,  ID_mnuOpen, ID_mnuSave, ID_mnuAdd, ID_mnuExport,
                            ID_mnuEdit, ID_mnuFind, ID_mnuMove, ID_mnuDel, ID_mnuSelectAll};
    program.OnUi([&commands](frmStart& form) {
        for (const int command : commands) form.EnableCommand(command, true);
    });
    for (int position = 1; position <= 10; ++position) {
        const int command = commands[position - 1];
        EXPECT_TRUE(ButtonEnabled(position)) << position;
        program.OnUi([command](frmStart& form) { form.EnableCommand(command, false); });
        for (int other = 1; other <= 10; ++other) EXPECT_EQ(ButtonEnabled(other), other != position);
        program.OnUi([command](frmStart& form) { form.EnableCommand(command, true); });
    }
}

TEST_F(ToolbarTest, ADisabledButtonRunsNothing) {
    const MainState before = TwoEntries();
    program.OnUi([](frmStart& form) { form.EnableCommand(ID_mnuNew, false); });
    Press(1);
    program.Settle();
    EXPECT_EQ(program.State(), before);
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
    RECT last = PlaceOf(10);
    EXPECT_LE(last.right, toolbar.right - toolbar.left);
    EXPECT_LE(last.bottom, toolbar.bottom - toolbar.top);
}

TEST_F(ToolbarTest, TheTwoPictureButtonsShowDifferentPicturesAndKeepTheirNames) {
    const auto painted = [](HWND button) {
        constexpr int kSide = 24;
        return Drawn(kSide, [&](HDC canvas) {
            DRAWITEMSTRUCT item{};
            item.hDC = canvas;
            item.rcItem = {0, 0, kSide, kSide};
            SendMessageW(button, WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
        });
    };
    program.OnUi([&](frmStart&) {
        EXPECT_EQ(TextOf(program.Control(ID_frmStart_picGo)), L"Ugorj a web oldalra");
        EXPECT_EQ(TextOf(program.Control(ID_frmStart_Image1)), L"Keresés");
        const std::vector<COLORREF> go = painted(program.Control(ID_frmStart_picGo));
        const std::vector<COLORREF> search = painted(program.Control(ID_frmStart_Image1));
        const std::vector<COLORREF> empty(go.size(), GetSysColor(COLOR_BTNFACE));
        EXPECT_NE(go, search);
        EXPECT_NE(go, empty);
        EXPECT_NE(search, empty);
    });
}

TEST_F(ToolbarTest, ANewResolutionKeepsButtonsAndNames) {
    const MainState before = TwoEntries();
    const RECT place = PlaceOf(10);
    program.OnUi([](frmStart& form) {
        RECT proposed{};
        GetWindowRect(form.Handle(), &proposed);
        SendMessageW(form.Handle(), WM_DPICHANGED, MAKEWPARAM(96, 96), reinterpret_cast<LPARAM>(&proposed));
        SendMessageW(form.Handle(), WM_SETTINGCHANGE, 0, 0);
    });
    const RECT after = PlaceOf(10);
    EXPECT_TRUE(EqualRect(&place, &after));
    EXPECT_EQ(program.State(), before);
    Press(10);
    program.Settle();
    EXPECT_EQ(program.State().Checked, (std::vector<int>{1, 2}));
}

}  // namespace
}  // namespace lindrel::testing
