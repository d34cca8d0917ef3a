// Places and fonts of the controls in the find dialog.

#include <algorithm>
#include <map>
#include <string>

#include "tests/window/find/FindSession.h"
#include "tests/window/support/Expectations.h"
#include "tests/window/support/Painted.h"

namespace lindrel::testing {
namespace {

class frmFindLayoutTest : public FindSession {};

RECT PlaceOf(const DialogOnScreen& dialog, int id) {
    RECT place{};
    GetWindowRect(dialog.Control(id), &place);
    MapWindowPoints(HWND_DESKTOP, dialog.Handle(), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

bool operator==(const RECT& a, const RECT& b) {
    return EqualRect(&a, &b) != FALSE;
}

std::vector<RECT> PlacesOfAll(const DialogOnScreen& dialog) {
    std::vector<RECT> places;
    for (HWND control = GetWindow(dialog.Handle(), GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT))
        places.push_back(PlaceOf(dialog, GetDlgCtrlID(control)));
    return places;
}

RECT Scaled(RECT place, int to, int from) {
    for (LONG* const side : {&place.left, &place.top, &place.right, &place.bottom})
        *side = MulDiv(*side, to, from);
    return place;
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
            for (HWND control = GetWindow(dialog.Handle(), GW_CHILD); step == 'c' && control != nullptr;
                 control = GetWindow(control, GW_HWNDNEXT)) {
                const RECT place = Scaled(PlaceOf(dialog, GetDlgCtrlID(control)), to, from);
                SetWindowPos(control, nullptr, place.left, place.top, place.right - place.left,
                             place.bottom - place.top, SWP_NOZORDER);
            }
        }
    });
    program.Settle();
}

TEST_F(frmFindLayoutTest, OnAnotherScreenEverythingStandsInProportionWhateverIsScaledFirst) {
    constexpr LONG kRounding = 2;
    AddSixEntries();
    std::string order = "ctw";
    do {
        const FindDialog dialog = Open();
        // Larger, so that it can shrink again before it is told.
        RECT window{};
        GetWindowRect(dialog.Handle(), &window);
        SetWindowPos(dialog.Handle(), nullptr, 0, 0, (window.right - window.left) * 13 / 10,
                     (window.bottom - window.top) * 11 / 10, SWP_NOMOVE | SWP_NOZORDER);
        program.Settle();
        const std::vector<RECT> before = PlacesOfAll(dialog);
        ComeToAnotherScreen(program, dialog, order, 144, 96);
        const std::vector<RECT> after = PlacesOfAll(dialog);
        for (std::size_t i = 0; i < before.size(); ++i) {
            const RECT wanted = Scaled(before[i], 144, 96);
            for (const auto side : {&RECT::left, &RECT::top, &RECT::right, &RECT::bottom})
                EXPECT_NEAR(after[i].*side, wanted.*side, kRounding) << order << " control " << i;
        }
        // And back, to the pixel.
        ComeToAnotherScreen(program, dialog, order, 96, 144);
        const std::vector<RECT> back = PlacesOfAll(dialog);
        for (std::size_t i = 0; i < before.size(); ++i)
            EXPECT_TRUE(back[i] == before[i]) << order << " control " << i;
        dialog.Close();
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(frmFindLayoutTest, TheAddressStandsInAFixedPitchFont) {
    AddHungarianEntries();
    const FindDialog dialog = Open();
    LOGFONTW font{};
    const auto handle =
        reinterpret_cast<HFONT>(SendMessageW(dialog.Control(ID_frmFind_lblURL), WM_GETFONT, 0, 0));
    ASSERT_NE(GetObjectW(handle, sizeof font, &font), 0);
    EXPECT_EQ(std::wstring(font.lfFaceName), L"Courier New");
    dialog.Close();
}

TEST_F(frmFindLayoutTest, AnotherResolutionLeavesTheAddressInItsFixedPitch) {
    AddSixEntries();
    const FindDialog dialog = Open();
    const LONG height = dialog.Font(ID_frmFind_lblURL).lfHeight;
    ChangeResolution(program, dialog, 192);
    EXPECT_EQ(std::wstring(dialog.Font(ID_frmFind_lblURL).lfFaceName), L"Courier New");
    EXPECT_EQ(dialog.Font(ID_frmFind_lblURL).lfHeight, 2 * height);
    dialog.Close();
}

TEST_F(frmFindLayoutTest, AnEnlargedDialogGivesTheRoomToTheList) {
    AddSixEntries();
    const FindDialog dialog = Open();
    const auto moved = [](RECT place, LONG left, LONG top, LONG right, LONG bottom) {
        return RECT{place.left + left, place.top + top, place.right + right, place.bottom + bottom};
    };
    constexpr int kEvery[] = {
        ID_frmFind_Label1,   ID_frmFind_txtWhat,  ID_frmFind_Label3,   ID_frmFind_txtTag,   ID_frmFind_Label2,
        ID_frmFind_cmdFind,  ID_frmFind_lblSum_0, ID_frmFind_lblSum_1, ID_frmFind_ListView, ID_frmFind_lblURL,
        ID_frmFind_Command2, ID_frmFind_Command3, ID_frmFind_cmdDel};
    std::map<int, RECT> before;
    for (const int id : kEvery) before[id] = PlaceOf(dialog, id);
    RECT window{};
    GetWindowRect(dialog.Handle(), &window);
    SetWindowPos(dialog.Handle(), nullptr, 0, 0, window.right - window.left + 130,
                 window.bottom - window.top + 70, SWP_NOMOVE | SWP_NOZORDER);
    program.Settle();
    for (const int id : {ID_frmFind_Label1, ID_frmFind_Label2, ID_frmFind_Label3, ID_frmFind_txtTag,
                         ID_frmFind_lblSum_0, ID_frmFind_lblSum_1})
        EXPECT_TRUE(PlaceOf(dialog, id) == before[id]) << id;
    EXPECT_TRUE(PlaceOf(dialog, ID_frmFind_txtWhat) == moved(before[ID_frmFind_txtWhat], 0, 0, 130, 0));
    EXPECT_TRUE(PlaceOf(dialog, ID_frmFind_cmdFind) == moved(before[ID_frmFind_cmdFind], 130, 0, 130, 0));
    EXPECT_TRUE(PlaceOf(dialog, ID_frmFind_ListView) == moved(before[ID_frmFind_ListView], 0, 0, 130, 70));
    EXPECT_TRUE(PlaceOf(dialog, ID_frmFind_lblURL) == moved(before[ID_frmFind_lblURL], 0, 70, 130, 70));
    EXPECT_TRUE(PlaceOf(dialog, ID_frmFind_Command2) == moved(before[ID_frmFind_Command2], 0, 70, 0, 70));
    EXPECT_TRUE(PlaceOf(dialog, ID_frmFind_Command3) == moved(before[ID_frmFind_Command3], 0, 70, 0, 70));
    EXPECT_TRUE(PlaceOf(dialog, ID_frmFind_cmdDel) == moved(before[ID_frmFind_cmdDel], 130, 70, 130, 70));
    dialog.Close();
}

TEST_F(frmFindLayoutTest, AtItsSmallestEveryControlIsWhole) {
    AddSixEntries();
    const FindDialog dialog = Open();
    SetWindowPos(dialog.Handle(), nullptr, 0, 0, 1, 1, SWP_NOMOVE | SWP_NOZORDER);
    program.Settle();
    RECT client{};
    GetClientRect(dialog.Handle(), &client);
    std::vector<std::pair<int, RECT>> places;
    for (const int id :
         {ID_frmFind_Label1, ID_frmFind_txtWhat, ID_frmFind_Label3, ID_frmFind_txtTag, ID_frmFind_Label2,
          ID_frmFind_cmdFind, ID_frmFind_lblSum_0, ID_frmFind_lblSum_1, ID_frmFind_ListView,
          ID_frmFind_lblURL, ID_frmFind_Command2, ID_frmFind_Command3, ID_frmFind_cmdDel})
        places.emplace_back(id, PlaceOf(dialog, id));
    for (const auto& [id, place] : places) {
        RECT inside{};
        EXPECT_TRUE(IntersectRect(&inside, &place, &client) && inside == place) << id << " sticks out";
        for (const auto& [other, other_place] : places)
            EXPECT_TRUE(other == id || !IntersectRect(&inside, &place, &other_place))
                << id << " lies over " << other;
    }
    // A header and at least three hits fit into the list.
    EXPECT_GE(ListView_GetCountPerPage(dialog.List().Handle()), 3);
    // Each button is wide enough for its text.
    for (const int id : {ID_frmFind_cmdFind, ID_frmFind_Command2, ID_frmFind_Command3, ID_frmFind_cmdDel}) {
        SIZE ideal{};
        if (Button_GetIdealSize(dialog.Control(id), &ideal)) {
            const RECT place = PlaceOf(dialog, id);
            EXPECT_LE(ideal.cx, place.right - place.left) << id;
        }
    }
    dialog.Close();
}

TEST_F(frmFindLayoutTest, AfterEveryChangeOfItsSizeAllOfItIsShown) {
    AddSixEntries();
    const FindDialog dialog = Open();
    dialog.Search(L"x");
    dialog.ClickHit(2);
    const SIZE tried[] = {{600, 450}, {1000, 700}, {1003, 702}, {1400, 900}, {800, 500}, {1, 1}};
    for (const SIZE& size : tried) {
        SetWindowPos(dialog.Handle(), nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        program.Settle();
        const RECT stale = StalePart(program, dialog.Handle());
        EXPECT_TRUE(stale == RECT{}) << size.cx << " x " << size.cy << ": (" << stale.left << ", "
                                     << stale.top << ")-(" << stale.right << ", " << stale.bottom << ")";
    }
    dialog.Close();
}

}  // namespace
}  // namespace lindrel::testing
