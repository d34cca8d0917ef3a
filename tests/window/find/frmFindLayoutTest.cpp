// Bounds and fonts of the controls in the find dialog.

#include <algorithm>
#include <map>
#include <string>

#include "tests/window/find/FindSession.h"
#include "tests/window/support/Expectations.h"
#include "tests/window/support/Painted.h"

namespace lindrel::testing {
namespace {

class frmFindLayoutTest : public FindSession {};

bool operator==(const RECT& a, const RECT& b) {
    return EqualRect(&a, &b) != FALSE;
}

// The bounds of each control in the dialog.
std::map<int, RECT> AllBounds(const DialogOnScreen& dialog) {
    std::map<int, RECT> all;
    for (HWND control = GetWindow(dialog.Handle(), GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        RECT& bounds = all[GetDlgCtrlID(control)];
        GetWindowRect(control, &bounds);
        MapWindowPoints(HWND_DESKTOP, dialog.Handle(), reinterpret_cast<POINT*>(&bounds), 2);
    }
    return all;
}

RECT Scaled(RECT bounds, int to, int from) {
    for (LONG* const side : {&bounds.left, &bounds.top, &bounds.right, &bounds.bottom})
        *side = MulDiv(*side, to, from);
    return bounds;
}

void Resize(const Program& program, const DialogOnScreen& dialog, LONG width, LONG height) {
    SetWindowPos(dialog.Handle(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
    program.Settle();
}

SIZE SizeOf(const DialogOnScreen& dialog) {
    RECT window{};
    GetWindowRect(dialog.Handle(), &window);
    return {window.right - window.left, window.bottom - window.top};
}

// What the system does when a dialog comes to another screen, in the order of the letters: (t)ells the
// dialog, scales the (w)indow, scales the (c)ontrols.
void ComeToAnotherScreen(const Program& program, const DialogOnScreen& dialog, const std::string& order,
                         int to, int from) {
    program.OnUi([&](frmStart&) {
        RECT window{};
        RECT client{};
        GetWindowRect(dialog.Handle(), &window);
        GetClientRect(dialog.Handle(), &client);
        const LONG frame_x = window.right - window.left - client.right;
        const LONG frame_y = window.bottom - window.top - client.bottom;
        for (const char step : order) {
            if (step == 't')
                SendMessageW(dialog.Handle(), WM_DPICHANGED, MAKEWPARAM(to, to),
                             reinterpret_cast<LPARAM>(&window));
            if (step == 'w')
                SetWindowPos(dialog.Handle(), nullptr, 0, 0, MulDiv(client.right, to, from) + frame_x,
                             MulDiv(client.bottom, to, from) + frame_y, SWP_NOMOVE | SWP_NOZORDER);
            if (step != 'c') continue;
            for (const auto& [id, bounds] : AllBounds(dialog)) {
                const RECT scaled = Scaled(bounds, to, from);
                SetWindowPos(dialog.Control(id), nullptr, scaled.left, scaled.top, scaled.right - scaled.left,
                             scaled.bottom - scaled.top, SWP_NOZORDER);
            }
        }
    });
    program.Settle();
}

TEST_F(frmFindLayoutTest, OnAnotherScreenEverythingIsInProportionWhateverIsScaledFirst) {
    constexpr LONG kRounding = 2;
    AddSixEntries();
    std::string order = "ctw";
    do {
        const FindDialog dialog = Open();
        // Larger, so that it can shrink again before it is told.
        Resize(program, dialog, SizeOf(dialog).cx * 13 / 10, SizeOf(dialog).cy * 11 / 10);
        const std::map<int, RECT> before = AllBounds(dialog);
        ComeToAnotherScreen(program, dialog, order, 144, 96);
        for (const auto& [id, bounds] : AllBounds(dialog)) {
            const RECT wanted = Scaled(before.at(id), 144, 96);
            for (const auto side : {&RECT::left, &RECT::top, &RECT::right, &RECT::bottom})
                EXPECT_NEAR(bounds.*side, wanted.*side, kRounding) << order << " control " << id;
        }
        // And back, to the pixel.
        ComeToAnotherScreen(program, dialog, order, 96, 144);
        for (const auto& [id, bounds] : AllBounds(dialog))
            EXPECT_TRUE(bounds == before.at(id)) << order << " control " << id;
        dialog.Close();
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(frmFindLayoutTest, TheAddressHasAFixedPitchFontAtEveryResolution) {
    AddSixEntries();
    const FindDialog dialog = Open();
    const LOGFONTW font = dialog.Font(ID_frmFind_lblURL);
    EXPECT_EQ(std::wstring(font.lfFaceName), L"Courier New");
    ChangeResolution(program, dialog, 192);
    EXPECT_EQ(std::wstring(dialog.Font(ID_frmFind_lblURL).lfFaceName), L"Courier New");
    EXPECT_EQ(dialog.Font(ID_frmFind_lblURL).lfHeight, 2 * font.lfHeight);
}

TEST_F(frmFindLayoutTest, AnEnlargedDialogGivesTheRoomToTheList) {
    AddSixEntries();
    const FindDialog dialog = Open();
    std::map<int, RECT> expected = AllBounds(dialog);
    EXPECT_EQ(expected.size(), 13u);
    // How far left, top, right and bottom move; the other controls stay.
    const std::map<int, RECT> moves{
        {ID_frmFind_txtWhat, {0, 0, 130, 0}},   {ID_frmFind_cmdFind, {130, 0, 130, 0}},
        {ID_frmFind_ListView, {0, 0, 130, 70}}, {ID_frmFind_lblURL, {0, 70, 130, 70}},
        {ID_frmFind_Command2, {0, 70, 0, 70}},  {ID_frmFind_Command3, {0, 70, 0, 70}},
        {ID_frmFind_cmdDel, {130, 70, 130, 70}}};
    for (const auto& [id, move] : moves)
        for (const auto side : {&RECT::left, &RECT::top, &RECT::right, &RECT::bottom})
            expected.at(id).*side += move.*side;
    Resize(program, dialog, SizeOf(dialog).cx + 130, SizeOf(dialog).cy + 70);
    for (const auto& [id, bounds] : AllBounds(dialog)) EXPECT_TRUE(bounds == expected.at(id)) << id;
}

TEST_F(frmFindLayoutTest, AtItsSmallestEveryControlIsWhole) {
    AddSixEntries();
    const FindDialog dialog = Open();
    Resize(program, dialog, 1, 1);
    RECT client{};
    GetClientRect(dialog.Handle(), &client);
    const std::map<int, RECT> all = AllBounds(dialog);
    for (const auto& [id, bounds] : all) {
        RECT inside{};
        EXPECT_TRUE(IntersectRect(&inside, &bounds, &client) && inside == bounds) << id << " sticks out";
        for (const auto& [other, other_bounds] : all)
            EXPECT_TRUE(other == id || !IntersectRect(&inside, &bounds, &other_bounds))
                << id << " overlaps " << other;
    }
    // A header and at least three hits fit into the list.
    EXPECT_GE(ListView_GetCountPerPage(dialog.List().Handle()), 3);
    // Each button is wide enough for its text.
    for (const int id : {ID_frmFind_cmdFind, ID_frmFind_Command2, ID_frmFind_Command3, ID_frmFind_cmdDel}) {
        SIZE ideal{};
        if (Button_GetIdealSize(dialog.Control(id), &ideal)) {
            EXPECT_LE(ideal.cx, all.at(id).right - all.at(id).left) << id;
        }
    }
}

TEST_F(frmFindLayoutTest, AfterEveryChangeOfItsSizeAllOfItIsShown) {
    const FindDialog dialog = FindSix();
    dialog.ClickHit(2);
    const SIZE tried[] = {{600, 450}, {1000, 700}, {1003, 702}, {1400, 900}, {800, 500}, {1, 1}};
    for (const SIZE& size : tried) {
        Resize(program, dialog, size.cx, size.cy);
        const RECT stale = StalePart(program, dialog.Handle());
        EXPECT_TRUE(stale == RECT{}) << size.cx << " x " << size.cy << ": (" << stale.left << ", "
                                     << stale.top << ")-(" << stale.right << ", " << stale.bottom << ")";
    }
}

}  // namespace
}  // namespace lindrel::testing
