// Dialogs of fixed size on screens that have no room for them.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

#include "tests/window/support/Painted.h"
#include "tests/window/support/ScaledDialog.h"
#include "tests/window/support/SmallScreen.h"

namespace lindrel::testing {
namespace {

// For each change of place that a control is told of, whether a size is set too.
std::vector<bool> sizes_asked_for;
LRESULT CALLBACK NoteSizesAskedFor(HWND window, UINT message, WPARAM first, LPARAM second, UINT_PTR id,
                                   DWORD_PTR) {
    if (message == WM_NCDESTROY) RemoveWindowSubclass(window, &NoteSizesAskedFor, id);
    if (message == WM_WINDOWPOSCHANGING)
        sizes_asked_for.push_back((reinterpret_cast<const WINDOWPOS*>(second)->flags & SWP_NOSIZE) == 0);
    return DefSubclassProc(window, message, first, second);
}

class DialogScrollTest : public ::testing::Test {
  protected:
    DialogScrollTest() {
        program.Add(1, {{L"Egy", L"http://egy.hu"}, {L"Kettő", L"http://ketto.hu"}});
        program.ClickRow(1);
        program.ClickBox(2);
    }
    DialogOnScreen Open(int command, const std::wstring& caption) const {
        program.Choose(command);
        const DialogOnScreen dialog = program.Dialog(caption);
        program.Settle();
        return dialog;
    }
    DialogOnScreen OpenExport() const { return Open(ID_mnuExport, L"Exportálás"); }
    void Close(const DialogOnScreen& dialog) const {
        dialog.Cancel();
        program.Settle();
    }
    static SIZE SizeOf(const DialogOnScreen& dialog) {
        const RECT window = WindowOf(dialog);
        return {window.right - window.left, window.bottom - window.top};
    }
    static RECT WindowOf(const DialogOnScreen& dialog) {
        RECT window{};
        EXPECT_TRUE(GetWindowRect(dialog.Handle(), &window));
        return window;
    }
    static RECT ClientOf(const DialogOnScreen& dialog) {
        RECT client{};
        EXPECT_TRUE(GetClientRect(dialog.Handle(), &client));
        return client;
    }
    static LONG_PTR BarsOf(const DialogOnScreen& dialog) {
        return GetWindowLongPtrW(dialog.Handle(), GWL_STYLE) & (WS_HSCROLL | WS_VSCROLL);
    }
    static bool IsWithin(const RECT& inner, const RECT& outer) {
        RECT common{};
        return IntersectRect(&common, &inner, &outer) && EqualRect(&common, &inner);
    }
    // The export dialog where there is room for it.
    struct Whole {
        SIZE size;
        RECT client;
        std::map<int, RECT> bounds;
    };
    Whole WithRoom() const {
        const DialogOnScreen dialog = OpenExport();
        const Whole whole{SizeOf(dialog), ClientOf(dialog), AllBounds(dialog)};
        EXPECT_EQ(BarsOf(dialog), 0);
        Close(dialog);
        return whole;
    }
    void Scroll(const DialogOnScreen& dialog, UINT message, WPARAM request) const {
        SendMessageW(dialog.Handle(), message, request, 0);
        program.Settle();
    }
    // How far the controls are moved, which is the same for all of them.
    static POINT MovedFrom(const std::map<int, RECT>& before, const DialogOnScreen& dialog) {
        const std::map<int, RECT> now = AllBounds(dialog);
        const RECT& first = before.begin()->second;
        const POINT moved{now.begin()->second.left - first.left, now.begin()->second.top - first.top};
        for (auto [id, bounds] : before) {
            OffsetRect(&bounds, moved.x, moved.y);
            EXPECT_TRUE(EqualRect(&bounds, &now.at(id))) << id;
        }
        return moved;
    }

    Program program;
};

TEST_F(DialogScrollTest, WithRoomForAllOfItADialogHasNoBars) {
    const auto [size, client, bounds] = WithRoom();
    const SmallScreen screen(program, {7, 9, 7 + size.cx, 9 + size.cy});
    const DialogOnScreen dialog = OpenExport();
    EXPECT_EQ(BarsOf(dialog), 0);
    EXPECT_EQ(WindowOf(dialog).left, 7);
    EXPECT_EQ(WindowOf(dialog).top, 9);
    EXPECT_EQ(SizeOf(dialog).cx, size.cx);
    EXPECT_EQ(SizeOf(dialog).cy, size.cy);
    const POINT moved = MovedFrom(bounds, dialog);
    EXPECT_EQ(moved.x, 0);
    EXPECT_EQ(moved.y, 0);
    Scroll(dialog, WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(MovedFrom(bounds, dialog).y, 0);
    Close(dialog);
}

TEST_F(DialogScrollTest, ALowScreenGivesItAVerticalBarAndKeepsItsWidth) {
    const auto [size, client, bounds] = WithRoom();
    const RECT work{7, 9, 1000, 9 + size.cy - 100};
    const SmallScreen screen(program, work);
    const DialogOnScreen dialog = OpenExport();
    EXPECT_EQ(BarsOf(dialog), WS_VSCROLL);
    EXPECT_TRUE(IsWithin(WindowOf(dialog), work));
    EXPECT_EQ(ClientOf(dialog).right, client.right);
    EXPECT_EQ(ClientOf(dialog).bottom, client.bottom - 100);
    EXPECT_EQ(MovedFrom(bounds, dialog).y, 0);
    Close(dialog);
}

TEST_F(DialogScrollTest, BarAndWheelScrollToTheEndsAndByLines) {
    const auto [size, client, bounds] = WithRoom();
    const SmallScreen screen(program, {0, 0, 1000, size.cy - 100});
    const DialogOnScreen dialog = OpenExport();
    const struct {
        UINT message;
        WPARAM request;
        LONG moved;
    } kSteps[] = {
        {WM_VSCROLL, SB_BOTTOM, -100},
        {WM_VSCROLL, SB_LINEDOWN, -100},
        {WM_VSCROLL, SB_TOP, 0},
        {WM_VSCROLL, SB_LINEUP, 0},
        {WM_VSCROLL, SB_PAGEDOWN, -100},
        {WM_VSCROLL, SB_PAGEUP, 0},
        {WM_VSCROLL, SB_ENDSCROLL, 0},
        {WM_HSCROLL, SB_BOTTOM, 0},
        {WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-20 * WHEEL_DELTA)), -100},
        {WM_MOUSEWHEEL, MAKEWPARAM(0, 20 * WHEEL_DELTA), 0},
    };
    for (const auto& [message, request, moved] : kSteps) {
        Scroll(dialog, message, request);
        EXPECT_EQ(MovedFrom(bounds, dialog).y, moved) << message << " " << request;
        EXPECT_EQ(MovedFrom(bounds, dialog).x, 0);
    }
    RECT line{0, 0, 0, 8};
    program.OnUi([&](frmStart&) { MapDialogRect(dialog.Handle(), &line); });
    Scroll(dialog, WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(MovedFrom(bounds, dialog).y, -line.bottom);
    Scroll(dialog, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)));
    EXPECT_EQ(MovedFrom(bounds, dialog).y, -4 * line.bottom);
    Scroll(dialog, WM_VSCROLL, SB_LINEUP);
    EXPECT_EQ(MovedFrom(bounds, dialog).y, -3 * line.bottom);
    const RECT stale = StalePart(program, dialog.Handle());
    EXPECT_TRUE(IsRectEmpty(&stale));
    Close(dialog);
}

TEST_F(DialogScrollTest, ASmallScreenGivesItBothBars) {
    const auto [size, client, bounds] = WithRoom();
    // In the second case only the bar makes it too wide, in the third one too high.
    const RECT areas[] = {
        {0, 0, size.cx - 100, size.cy - 80}, {0, 0, size.cx, size.cy - 1}, {0, 0, size.cx - 1, size.cy}};
    for (const RECT& work : areas) {
        const SmallScreen screen(program, work);
        const DialogOnScreen dialog = OpenExport();
        EXPECT_EQ(BarsOf(dialog), WS_HSCROLL | WS_VSCROLL);
        EXPECT_TRUE(IsWithin(WindowOf(dialog), work));
        Scroll(dialog, WM_HSCROLL, SB_BOTTOM);
        Scroll(dialog, WM_VSCROLL, SB_BOTTOM);
        MovedFrom(bounds, dialog);
        EXPECT_TRUE(IsWithin(AllBounds(dialog).at(ID_frmExport_cmdCancel), ClientOf(dialog)));
        Close(dialog);
    }
}

// All the way round with the Tab key.
TEST_F(DialogScrollTest, TheFocusIsAlwaysInView) {
    const struct {
        int command;
        const wchar_t* caption;
    } kDialogs[] = {{ID_mnuKat, L"Kategóriák nevei"},  {ID_mnuAdd, L"Új oldal hozzáadása"},
                    {ID_mnuEdit, L"Cím módosítása"},   {ID_mnuMove, L"A kiválasztott címek áthelyezése"},
                    {ID_mnuImport, L"Importálás"},     {ID_mnuExport, L"Exportálás"},
                    {ID_mnuAbout, L"Lindrel névjegye"}};
    for (const auto& [command, caption] : kDialogs) {
        SCOPED_TRACE(::testing::PrintToString(command));
        const DialogOnScreen first = Open(command, caption);
        const SIZE size = SizeOf(first);
        Close(first);
        const RECT work{0, 0, size.cx / 2 + 60, size.cy / 2 + 40};
        const SmallScreen screen(program, work);
        const DialogOnScreen dialog = Open(command, caption);
        EXPECT_TRUE(IsWithin(WindowOf(dialog), work));
        const auto expect_in_view = [&] {
            const RECT client = ClientOf(dialog);
            RECT bounds{};
            EXPECT_TRUE(GetWindowRect(FocusOfThread(program.Thread()), &bounds));
            MapWindowPoints(nullptr, dialog.Handle(), reinterpret_cast<POINT*>(&bounds), 2);
            // Of one larger than the view the start is seen.
            bounds.right = std::min(bounds.right, bounds.left + client.right / 2);
            bounds.bottom = std::min(bounds.bottom, bounds.top + client.bottom / 2);
            EXPECT_TRUE(IsWithin(bounds, client)) << dialog.Focus();
        };
        const int start = dialog.Focus();
        int stops = 0;
        do {
            expect_in_view();
            program.PressKey(FocusOfThread(program.Thread()), VK_TAB);
        } while (dialog.Focus() != start && ++stops < 20);
        EXPECT_EQ(dialog.Focus(), start);
        EXPECT_GT(stops, 0);
        expect_in_view();
        Close(dialog);
    }
}

TEST_F(DialogScrollTest, AButtonThatTheMouseHoldsStaysWhereItIs) {
    const auto [size, client, bounds] = WithRoom();
    const SmallScreen screen(program, {0, 0, 1000, size.cy - 15});
    const DialogOnScreen dialog = OpenExport();
    const std::map<int, RECT> before = AllBounds(dialog);
    const HWND cancel = dialog.Control(ID_frmExport_cmdCancel);
    PostMessageW(cancel, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 2));
    program.Settle();
    EXPECT_EQ(dialog.Focus(), ID_frmExport_cmdCancel);
    EXPECT_EQ(MovedFrom(before, dialog).y, 0);
    PostMessageW(cancel, WM_LBUTTONUP, 0, MAKELPARAM(5, 2));
    dialog.WaitForClose();
}

TEST_F(DialogScrollTest, AtEveryResolutionAllOfItIsReached) {
    const DialogOnScreen dialog = OpenExport();
    const SIZE size = SizeOf(dialog);
    const std::map<int, RECT> before = AllBounds(dialog);
    constexpr LONG kRounding = 2;
    for (const char* const order : {"twc", "ctw", "wct"}) {
        const RECT work{0, 0, 1200, size.cy + 60};
        const SmallScreen screen(program, work);
        ComeToAnotherScreen(program, dialog, order, 144, 96);
        EXPECT_EQ(BarsOf(dialog), WS_VSCROLL) << order;
        EXPECT_TRUE(IsWithin(WindowOf(dialog), work)) << order;
        Scroll(dialog, WM_VSCROLL, SB_BOTTOM);
        const RECT cancel = AllBounds(dialog).at(ID_frmExport_cmdCancel);
        EXPECT_TRUE(IsWithin(cancel, ClientOf(dialog))) << order;
        // Back from where it is scrolled to.
        ComeToAnotherScreen(program, dialog, order, 96, 144);
        EXPECT_EQ(BarsOf(dialog), 0) << order;
        EXPECT_NEAR(SizeOf(dialog).cx, size.cx, kRounding) << order;
        EXPECT_NEAR(SizeOf(dialog).cy, size.cy, kRounding) << order;
        for (const auto& [id, bounds] : AllBounds(dialog))
            for (const auto side : {&RECT::left, &RECT::top, &RECT::right, &RECT::bottom})
                EXPECT_NEAR(bounds.*side, before.at(id).*side, kRounding) << order << " control " << id;
    }
    Close(dialog);
}

// With a size it would take that for the height of its list too, which the size does not count.
TEST_F(DialogScrollTest, AComboBoxIsMovedWithoutASize) {
    const auto [size, client, bounds] = WithRoom();
    const SmallScreen screen(program, {0, 0, 1000, size.cy - 100});
    const DialogOnScreen dialog = OpenExport();
    program.OnUi([&](frmStart&) {
        sizes_asked_for.clear();
        EXPECT_TRUE(SetWindowSubclass(dialog.Control(ID_frmExport_cmbType), &NoteSizesAskedFor, 0, 0));
    });
    Scroll(dialog, WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(MovedFrom(bounds, dialog).y, -100);
    EXPECT_EQ(sizes_asked_for, std::vector<bool>{false});
    Close(dialog);
}

}  // namespace
}  // namespace lindrel::testing
