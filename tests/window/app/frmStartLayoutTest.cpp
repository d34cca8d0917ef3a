// Sizes and places of the real main window.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <ostream>

#include "resources/resource.h"
#include "tests/window/support/MessageFontOf.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

struct Extent {
    int Width = 0;
    int Height = 0;
    bool operator==(const Extent&) const = default;
};
void PrintTo(const Extent& extent, std::ostream* out) {
    *out << extent.Width << " x " << extent.Height;
}

// The sizes that the window takes, noted at each WM_SIZE. The form alone keeps it from becoming too small:
// the least size that it names to the system is dropped.
std::vector<Extent> sizes_taken;
LRESULT CALLBACK NoteSizes(HWND window, UINT message, WPARAM first, LPARAM second, UINT_PTR id, DWORD_PTR) {
    if (message == WM_NCDESTROY) RemoveWindowSubclass(window, &NoteSizes, id);
    if (message == WM_SIZE) {
        RECT outer{};
        EXPECT_TRUE(GetWindowRect(window, &outer));
        sizes_taken.push_back(
            {static_cast<int>(outer.right - outer.left), static_cast<int>(outer.bottom - outer.top)});
    }
    const LRESULT result = DefSubclassProc(window, message, first, second);
    if (message == WM_GETMINMAXINFO) reinterpret_cast<MINMAXINFO*>(second)->ptMinTrackSize = {0, 0};
    return result;
}

// Lets the window become so high, and no higher.
constexpr int kHighest = 300;
LRESULT CALLBACK KeepLow(HWND window, UINT message, WPARAM first, LPARAM second, UINT_PTR id, DWORD_PTR) {
    if (message == WM_NCDESTROY) RemoveWindowSubclass(window, &KeepLow, id);
    const LRESULT result = DefSubclassProc(window, message, first, second);
    auto* const info = reinterpret_cast<MINMAXINFO*>(second);
    if (message == WM_GETMINMAXINFO) info->ptMinTrackSize.y = info->ptMaxTrackSize.y = kHighest;
    return result;
}

// Left, top, right and bottom in the client area, in pixels.
struct Edges {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
    bool operator==(const Edges&) const = default;
};
void PrintTo(const Edges& edges, std::ostream* out) {
    *out << "(" << edges.Left << ", " << edges.Top << ")-(" << edges.Right << ", " << edges.Bottom << ")";
}

class frmStartLayoutTest : public ::testing::Test {
  protected:
    UINT Dpi() const {
        return program.Ask<UINT>([](frmStart& form) { return DpiOf(form.Handle()); });
    }
    // What the user drags the window to; the window may answer with another size.
    void Resize(int width, int height) const {
        program.OnUi([=](frmStart& form) {
            ASSERT_TRUE(SetWindowPos(form.Handle(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER));
        });
        program.Settle();
    }
    SIZE Size() const {
        RECT outer{};
        EXPECT_TRUE(GetWindowRect(program.Main(), &outer));
        return {outer.right - outer.left, outer.bottom - outer.top};
    }
    // Each control's place in the window's client area.
    std::map<int, RECT> Places() const {
        std::map<int, RECT> places;
        for (const int id :
             {ID_frmStart_TabStrip1, ID_frmStart_ListURLs, ID_frmStart_lblSiteName, ID_frmStart_txtSite,
              ID_frmStart_lblURL, ID_frmStart_txtURL, ID_frmStart_picGo, ID_frmStart_FrameSearch,
              ID_frmStart_cmbFinders, ID_frmStart_txtFind, ID_frmStart_Image1, ID_frmStart_StatusBar1}) {
            RECT place{};
            EXPECT_TRUE(GetWindowRect(GetDlgItem(program.Main(), id), &place));
            MapWindowPoints(nullptr, program.Main(), reinterpret_cast<POINT*>(&place), 2);
            places[id] = place;
        }
        return places;
    }

    static Edges EdgesOf(const RECT& place) {
        return {static_cast<int>(place.left), static_cast<int>(place.top), static_cast<int>(place.right),
                static_cast<int>(place.bottom)};
    }
    // Where the layout puts every control in a window of the present size; of the drop-down list, whose
    // height is the system's, the other edges.
    std::map<int, Edges> LaidOutPlaces() const {
        const UINT dpi = Dpi();
        RECT client{};
        EXPECT_TRUE(GetClientRect(program.Main(), &client));
        const RECT status = Places().at(ID_frmStart_StatusBar1);
        const int width = TwipsOf(Size().cx, dpi);
        const int height = TwipsOf(Size().cy, dpi);
        const int client_width = TwipsOf(client.right, dpi);
        const int client_height = TwipsOf(client.bottom, dpi);
        const int status_height = TwipsOf(status.bottom - status.top, dpi);

        std::map<int, Edges> places;
        const auto put = [&](int id, int left, int top, int wide, int high) {
            places[id] = {PixelsOf(left, dpi), PixelsOf(top, dpi), PixelsOf(left + wide, dpi),
                          PixelsOf(top + high, dpi)};
        };
        put(ID_frmStart_TabStrip1, 0, 570, std::min(width - 120, client_width), 345);
        const int list_top = 930;
        const int list_height =
            std::min(height - (list_top + status_height) - 720, client_height - status_height - list_top);
        put(ID_frmStart_ListURLs, 120, list_top, width - 3800, list_height);
        const int column = width - 3450;
        const int wide = std::min(3210, client_width - 120 - column);
        put(ID_frmStart_lblSiteName, column, 930, wide, 225);
        put(ID_frmStart_txtSite, column, 1170, wide, 330);
        put(ID_frmStart_lblURL, column, 1590, wide, 225);
        put(ID_frmStart_txtURL, column, 1830, wide, 330);
        put(ID_frmStart_picGo, column + 2130, 2190, wide - 2130, 390);
        const int frame_top = list_top + list_height - 1200;
        put(ID_frmStart_FrameSearch, column, frame_top, wide, 1200);
        put(ID_frmStart_cmbFinders, column + 150, frame_top + 270, wide - 300, 345);
        put(ID_frmStart_txtFind, column + 150, frame_top + 705, wide - 795, 330);
        put(ID_frmStart_Image1, column + wide - 585, frame_top + 690, 435, 360);
        places[ID_frmStart_cmbFinders].Bottom = 0;
        places[ID_frmStart_StatusBar1] = {0, static_cast<int>(client.bottom - (status.bottom - status.top)),
                                          static_cast<int>(client.right), static_cast<int>(client.bottom)};
        return places;
    }
    void ExpectLaidOut() const {
        std::map<int, Edges> places;
        for (const auto& [id, place] : Places()) places[id] = EdgesOf(place);
        places[ID_frmStart_cmbFinders].Bottom = 0;
        EXPECT_EQ(places, LaidOutPlaces());
    }

    // Every control lies in the client area and over no other.
    void ExpectNothingOverlaps() const {
        const auto places = Places();
        RECT client{};
        ASSERT_TRUE(GetClientRect(program.Main(), &client));
        for (const auto& [id, place] : places) {
            RECT inside{};
            // The strip's own frame may end behind the right edge; its tabs scroll.
            ASSERT_TRUE(IntersectRect(&inside, &place, &client)) << id;
            EXPECT_TRUE(EqualRect(&inside, &place))
                << id << " is clipped at " << Size().cx << " x " << Size().cy;
            for (const auto& [other_id, other] : places) {
                const auto in_frame = [](int control) {
                    return control == ID_frmStart_cmbFinders || control == ID_frmStart_txtFind ||
                           control == ID_frmStart_Image1;
                };
                if (other_id <= id) continue;
                if (id == ID_frmStart_FrameSearch && in_frame(other_id)) continue;
                if (other_id == ID_frmStart_FrameSearch && in_frame(id)) continue;
                EXPECT_FALSE(IntersectRect(&inside, &place, &other))
                    << id << " and " << other_id << " overlap";
            }
        }
    }
    // Fields and labels are as high as their letters need.
    void ExpectRoomForText() const {
        for (const int id : {ID_frmStart_lblSiteName, ID_frmStart_lblURL, ID_frmStart_txtSite,
                             ID_frmStart_txtURL, ID_frmStart_txtFind, ID_frmStart_TabStrip1}) {
            const HWND control = program.Control(id);
            RECT inside{};
            ASSERT_TRUE(GetClientRect(control, &inside));
            const HDC paper = GetDC(control);
            const auto font = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
            const HGDIOBJ before = SelectObject(paper, font);
            TEXTMETRICW metrics{};
            EXPECT_TRUE(GetTextMetricsW(paper, &metrics));
            SelectObject(paper, before);
            ReleaseDC(control, paper);
            EXPECT_GE(inside.bottom, metrics.tmHeight) << id;
        }
        RECT tab{};
        ASSERT_TRUE(TabCtrl_GetItemRect(program.Control(ID_frmStart_TabStrip1), 0, &tab));
        EXPECT_LE(tab.bottom - tab.top,
                  Places().at(ID_frmStart_TabStrip1).bottom - Places().at(ID_frmStart_TabStrip1).top);
    }

    // The status bar's counters are never cut, whatever they count.
    void ExpectRoomForCounters() const {
        const HWND bar = program.Control(ID_frmStart_StatusBar1);
        const HDC paper = GetDC(bar);
        const auto font = reinterpret_cast<HFONT>(SendMessageW(bar, WM_GETFONT, 0, 0));
        const HGDIOBJ before = SelectObject(paper, font);
        const std::wstring texts[] = {L"megjelenítve (32767 / 32767)", L"bejelölve 32767"};
        for (WPARAM panel = 1; panel <= 2; ++panel) {
            const std::wstring& text = texts[panel - 1];
            SIZE size{};
            EXPECT_TRUE(GetTextExtentPoint32W(paper, text.c_str(), static_cast<int>(text.size()), &size));
            RECT place{};
            program.OnUi(
                [&](frmStart&) { SendMessageW(bar, SB_GETRECT, panel, reinterpret_cast<LPARAM>(&place)); });
            EXPECT_GT(place.right - place.left, size.cx) << panel;
        }
        SelectObject(paper, before);
        ReleaseDC(bar, paper);
    }

    // Sets a size that the system does not correct, and tells the sizes that the window then takes in turn.
    // The window is hidden, so that no window manager has a say in its size.
    std::vector<Extent> SizesAfterForcing(int width, int height) const {
        program.OnUi([=](frmStart& form) {
            ShowWindow(form.Handle(), SW_HIDE);
            ASSERT_TRUE(SetWindowSubclass(form.Handle(), &NoteSizes, 0, 0));
            sizes_taken.clear();
            ASSERT_TRUE(SetWindowPos(form.Handle(), nullptr, 0, 0, width, height,
                                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOSENDCHANGING));
        });
        program.Settle();
        return sizes_taken;
    }

    Program program;
};

TEST_F(frmStartLayoutTest, ATooSmallWindowSnapsToItsLeastSize) {
    const UINT dpi = Dpi();
    const SIZE least{PixelsAtLeast(7700, dpi), PixelsAtLeast(5200, dpi)};
    const SIZE tried[] = {{200, 60}, {300, 700}, {900, 100}, {least.cx - 1, least.cy - 1}};
    for (const SIZE& size : tried) {
        Resize(size.cx, size.cy);
        const SIZE got = Size();
        EXPECT_EQ(got.cx, std::max(size.cx, least.cx)) << size.cx << " x " << size.cy;
        EXPECT_EQ(got.cy, std::max(size.cy, least.cy)) << size.cx << " x " << size.cy;
    }
}

TEST_F(frmStartLayoutTest, AtTheLeastWidthListAndRightColumnStandToTheTwip) {
    const UINT dpi = Dpi();
    Resize(PixelsAtLeast(7700, dpi), PixelsAtLeast(5200, dpi));
    const auto places = Places();
    const RECT list = places.at(ID_frmStart_ListURLs);
    const int outer_width = TwipsOf(Size().cx, dpi);
    EXPECT_NEAR(TwipsOf(list.right - list.left, dpi), outer_width - 3800, TwipsOf(1, dpi));
    for (const int id : {ID_frmStart_lblSiteName, ID_frmStart_txtSite, ID_frmStart_lblURL, ID_frmStart_txtURL,
                         ID_frmStart_FrameSearch})
        EXPECT_EQ(places.at(id).left, PixelsOf(outer_width - 3450, dpi)) << id;
    EXPECT_EQ(places.at(ID_frmStart_picGo).left, PixelsOf(outer_width - 3450 + 2130, dpi));
    EXPECT_EQ(places.at(ID_frmStart_FrameSearch).bottom, list.bottom);
}

TEST_F(frmStartLayoutTest, EveryControlStandsByTheWindowsSize) {
    const UINT dpi = Dpi();
    const Extent tried[] = {{PixelsAtLeast(7700, dpi), PixelsAtLeast(5200, dpi)}, {801, 599}, {1150, 873}};
    for (const Extent& size : tried) {
        Resize(size.Width, size.Height);
        EXPECT_EQ((Extent{static_cast<int>(Size().cx), static_cast<int>(Size().cy)}), size);
        SCOPED_TRACE(::testing::PrintToString(size));
        ExpectLaidOut();
    }
}

TEST_F(frmStartLayoutTest, BehindAThickFrameEveryControlEndsWithTheClientArea) {
    program.OnUi([](frmStart& form) {
        const LONG_PTR style = GetWindowLongPtrW(form.Handle(), GWL_EXSTYLE);
        ASSERT_NE(SetWindowLongPtrW(form.Handle(), GWL_EXSTYLE, style | WS_EX_CLIENTEDGE), 0);
        ASSERT_TRUE(SetWindowPos(form.Handle(), nullptr, 0, 0, 0, 0,
                                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED));
    });
    const UINT dpi = Dpi();
    const Extent tried[] = {{PixelsAtLeast(7700, dpi), PixelsAtLeast(5200, dpi)}, {1001, 697}};
    for (const Extent& size : tried) {
        Resize(size.Width, size.Height);
        SCOPED_TRACE(::testing::PrintToString(size));
        ExpectLaidOut();
        const auto places = Places();
        RECT client{};
        ASSERT_TRUE(GetClientRect(program.Main(), &client));
        EXPECT_EQ(places.at(ID_frmStart_TabStrip1).right, client.right);
        EXPECT_EQ(places.at(ID_frmStart_ListURLs).bottom, places.at(ID_frmStart_StatusBar1).top);
        for (const int id :
             {ID_frmStart_txtSite, ID_frmStart_txtURL, ID_frmStart_picGo, ID_frmStart_FrameSearch})
            EXPECT_NEAR(places.at(id).right, client.right - PixelsOf(120, dpi), 1) << id;
    }
}

TEST_F(frmStartLayoutTest, AWindowForcedBelowTheLeastSizeGrowsBackByItself) {
    const UINT dpi = Dpi();
    const Extent least{PixelsAtLeast(7700, dpi), PixelsAtLeast(5200, dpi)};
    EXPECT_EQ(SizesAfterForcing(900, 100), (std::vector<Extent>{{900, 100}, {900, least.Height}}));
    ExpectLaidOut();
    EXPECT_EQ(SizesAfterForcing(200, 700), (std::vector<Extent>{{200, 700}, {least.Width, 700}}));
    ExpectLaidOut();
    // First the height, then, in the resize that this raises, the width.
    EXPECT_EQ(SizesAfterForcing(200, 100), (std::vector<Extent>{{200, 100}, {200, least.Height}, least}));
    ExpectLaidOut();
    EXPECT_EQ(
        SizesAfterForcing(least.Width - 1, least.Height - 1),
        (std::vector<Extent>{{least.Width - 1, least.Height - 1}, {least.Width - 1, least.Height}, least}));
    ExpectLaidOut();
    EXPECT_EQ(SizesAfterForcing(least.Width + 1, least.Height + 1),
              (std::vector<Extent>{{least.Width + 1, least.Height + 1}}));
    ExpectLaidOut();
}

// As on a small screen with very large letters.
TEST_F(frmStartLayoutTest, AWindowThatCannotTakeItsLeastHeightIsLaidOutAllTheSame) {
    program.OnUi([](frmStart& form) { ASSERT_TRUE(SetWindowSubclass(form.Handle(), &KeepLow, 0, 0)); });
    for (const int width : {900, 1000}) {
        Resize(width, kHighest);
        EXPECT_EQ(Size().cy, kHighest);
        ExpectLaidOut();
    }
}

TEST_F(frmStartLayoutTest, AWindowAsLowAsAMinimisedOneIsLeftAsItIs) {
    const UINT dpi = Dpi();
    Resize(1000, 700);
    const auto sizes = [this] {
        std::map<int, Extent> result;
        for (const auto& [id, place] : Places())
            result[id] = {static_cast<int>(place.right - place.left),
                          static_cast<int>(place.bottom - place.top)};
        return result;
    };
    const auto before = sizes();
    const int low = PixelsAtLeast(500, dpi) - 1;
    EXPECT_EQ(SizesAfterForcing(1000, low), (std::vector<Extent>{{1000, low}}));
    EXPECT_EQ(sizes(), before);
    Resize(1000, 700);
    EXPECT_EQ(SizesAfterForcing(1000, low + 1),
              (std::vector<Extent>{{1000, low + 1}, {1000, PixelsAtLeast(5200, dpi)}}));
    ExpectLaidOut();
}

TEST_F(frmStartLayoutTest, MinimisingChangesNoControl) {
    Resize(1000, 700);
    const auto before = Places();
    ShowWindow(program.Main(), SW_MINIMIZE);
    WaitUntil("the minimised window", [this] { return IsIconic(program.Main()) != FALSE; });
    program.Settle();
    const auto sizes = [](const std::map<int, RECT>& places) {
        std::map<int, std::pair<LONG, LONG>> result;
        for (const auto& [id, place] : places)
            result[id] = {place.right - place.left, place.bottom - place.top};
        return result;
    };
    EXPECT_EQ(sizes(Places()), sizes(before));
    ShowWindow(program.Main(), SW_RESTORE);
    WaitUntil("the restored window", [this] { return IsIconic(program.Main()) == FALSE; });
    program.Settle();
    const auto after = Places();
    for (const auto& [id, place] : before) EXPECT_TRUE(EqualRect(&place, &after.at(id))) << id;
}

TEST_F(frmStartLayoutTest, NothingOverlapsAtAnySizeFromTheLeastOn) {
    const UINT dpi = Dpi();
    const SIZE tried[] = {{PixelsAtLeast(7700, dpi), PixelsAtLeast(5200, dpi)}, {800, 600}, {1200, 900}};
    for (const SIZE& size : tried) {
        Resize(size.cx, size.cy);
        ExpectNothingOverlaps();
    }
}

TEST_F(frmStartLayoutTest, LargeLettersFindRoom) {
    for (const int pixels : {18, 27}) {
        const MessageFontOf large(pixels);
        program.OnUi([](frmStart& form) { SendMessageW(form.Handle(), WM_SETTINGCHANGE, 0, 0); });
        const SIZE tried[] = {{1, 1}, {800, 900}, {1, 1}};  // the window takes its least size
        for (const SIZE& size : tried) {
            Resize(size.cx, size.cy);
            SCOPED_TRACE(pixels);
            ExpectNothingOverlaps();
            ExpectRoomForText();
            // Both counters in letters of 27 pixels are wider than the narrowest window.
            if (pixels == 18 || Size().cx >= 800) ExpectRoomForCounters();
        }
    }
    program.OnUi([](frmStart& form) { SendMessageW(form.Handle(), WM_SETTINGCHANGE, 0, 0); });
    Resize(1, 1);
    EXPECT_EQ(Size().cy, PixelsAtLeast(5200, Dpi()));
    ExpectLaidOut();
}

}  // namespace
}  // namespace lindrel::testing
