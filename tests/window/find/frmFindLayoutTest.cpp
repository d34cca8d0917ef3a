// Bounds and fonts of the controls in the find dialog.

#include <algorithm>
#include <map>
#include <string>

#include "tests/window/find/FindSession.h"
#include "tests/window/support/Expectations.h"
#include "tests/window/support/Painted.h"
#include "tests/window/support/ScaledDialog.h"
#include "tests/window/support/SmallScreen.h"

namespace lindrel::testing {
namespace {

class frmFindLayoutTest : public FindSession {
  protected:
    // The dialog and all its buttons are within a work area, the list has room for hits, and no control is on
    // another.
    static void ExpectWholeWithin(const RECT& work, const DialogOnScreen& dialog) {
        RECT window{};
        RECT client{};
        RECT common{};
        ASSERT_TRUE(GetWindowRect(dialog.Handle(), &window));
        ASSERT_TRUE(GetClientRect(dialog.Handle(), &client));
        EXPECT_TRUE(IntersectRect(&common, &window, &work) && EqualRect(&common, &window));
        const std::map<int, RECT> all = AllBounds(dialog);
        for (const auto& [id, bounds] : all) {
            EXPECT_TRUE(IntersectRect(&common, &bounds, &client) && EqualRect(&common, &bounds)) << id;
            for (const auto& [other, other_bounds] : all)
                EXPECT_TRUE(other == id || !IntersectRect(&common, &bounds, &other_bounds))
                    << id << " overlaps " << other;
        }
        EXPECT_GE(ListView_GetCountPerPage(dialog.Control(ID_frmFind_ListView)), 1);
    }
};

bool operator==(const RECT& a, const RECT& b) {
    return EqualRect(&a, &b) != FALSE;
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

TEST_F(frmFindLayoutTest, OnAScreenTooSmallForItTheListShrinks) {
    AddSixEntries();
    const FindDialog first = Open();
    Resize(program, first, 1, 1);
    const SIZE least = SizeOf(first);
    first.Close();
    // Room for what it opens with, for its smallest size, and for less.
    for (const LONG shorter : {0, 40, 70}) {
        const RECT work{20, 30, 20 + least.cx + 10, 30 + least.cy - shorter};
        const SmallScreen screen(program, work);
        const FindDialog dialog = Open();
        ExpectWholeWithin(work, dialog);
        EXPECT_EQ(SizeOf(dialog).cy, least.cy - shorter);
        EXPECT_EQ(SizeOf(dialog).cx, least.cx + 10);
        // It can be made smaller than the screen, but not smaller than its smallest size.
        Resize(program, dialog, 1, 1);
        EXPECT_EQ(SizeOf(dialog).cy, least.cy - shorter);
        EXPECT_EQ(SizeOf(dialog).cx, least.cx);
        ExpectWholeWithin(work, dialog);
        dialog.Close();
    }
}

TEST_F(frmFindLayoutTest, ComingToAScreenTooSmallForItItShrinks) {
    AddSixEntries();
    const FindDialog dialog = Open();
    const std::map<int, RECT> before = AllBounds(dialog);
    RECT work{0, 0, 0, 0};
    work.right = SizeOf(dialog).cx * 3 / 2 + 20;
    work.bottom = SizeOf(dialog).cy * 6 / 5;
    const SmallScreen screen(program, work);
    ComeToAnotherScreen(program, dialog, "twc", 144, 96);
    ExpectWholeWithin(work, dialog);
    EXPECT_EQ(SizeOf(dialog).cy, work.bottom);
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
