// Size and layout of the real main window.

#include <gtest/gtest.h>

#include <map>
#include <ostream>

#include "app/MainLayout.h"
#include "resources/resource.h"
#include "tests/window/support/Program.h"
#include "window/Windows.h"

static bool operator==(const RECT& a, const RECT& b) {
    return EqualRect(&a, &b) != FALSE;
}
static void PrintTo(const RECT& rect, std::ostream* out) {
    *out << "(" << rect.left << ", " << rect.top << ")-(" << rect.right << ", " << rect.bottom << ")";
}

namespace lindrel::testing {
namespace {

// Sets the height of the user's message font in pixels, and restores the font in the end. The test sends the
// WM_SETTINGCHANGE by which windows learn of it.
class MessageFontOf {
  public:
    explicit MessageFontOf(int pixels) {
        before_.cbSize = sizeof before_;
        EXPECT_TRUE(SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof before_, &before_, 0));
        NONCLIENTMETRICSW changed = before_;
        changed.lfMessageFont.lfHeight = -pixels;
        EXPECT_TRUE(SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof changed, &changed, 0));
    }
    ~MessageFontOf() {
        EXPECT_TRUE(SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof before_, &before_, 0));
    }
    MessageFontOf(const MessageFontOf&) = delete;
    MessageFontOf& operator=(const MessageFontOf&) = delete;

  private:
    NONCLIENTMETRICSW before_{};
};

struct Extent {
    int Width = 0;
    int Height = 0;
    bool operator==(const Extent&) const = default;
};
void PrintTo(const Extent& extent, std::ostream* out) {
    *out << extent.Width << " x " << extent.Height;
}

Extent ExtentOf(const RECT& bounds) {
    return {static_cast<int>(bounds.right - bounds.left), static_cast<int>(bounds.bottom - bounds.top)};
}

// The sizes that the window takes, noted at each WM_SIZE. The least size that it names to the system is
// dropped, so that only its own WM_SIZE handler keeps it from becoming too small.
std::vector<Extent> sizes_taken;
LRESULT CALLBACK NoteSizes(HWND window, UINT message, WPARAM first, LPARAM second, UINT_PTR id, DWORD_PTR) {
    if (message == WM_NCDESTROY) RemoveWindowSubclass(window, &NoteSizes, id);
    if (message == WM_SIZE) {
        RECT outer{};
        EXPECT_TRUE(GetWindowRect(window, &outer));
        sizes_taken.push_back(ExtentOf(outer));
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

class frmStartLayoutTest : public ::testing::Test {
  protected:
    UINT Dpi() const {
        return program.Ask<UINT>([](frmStart& form) { return DpiOf(form.Handle()); });
    }
    // The least size of the window: 7700 x 5200 twips.
    Extent Least() const { return {PixelsAtLeast(7700, Dpi()), PixelsAtLeast(5200, Dpi())}; }
    // What the user drags the window to; the window may answer with another size.
    void Resize(const Extent& size) const {
        program.OnUi([&](frmStart& form) {
            ASSERT_TRUE(SetWindowPos(form.Handle(), nullptr, 0, 0, size.Width, size.Height,
                                     SWP_NOMOVE | SWP_NOZORDER));
        });
        program.Settle();
    }
    Extent Size() const {
        RECT outer{};
        EXPECT_TRUE(GetWindowRect(program.Main(), &outer));
        return ExtentOf(outer);
    }
    RECT Client() const {
        RECT client{};
        EXPECT_TRUE(GetClientRect(program.Main(), &client));
        return client;
    }
    // The bounds of each control in the client area.
    std::map<int, RECT> AllBounds() const {
        std::map<int, RECT> all;
        for (const int id :
             {ID_frmStart_TabStrip1, ID_frmStart_ListURLs, ID_frmStart_lblSiteName, ID_frmStart_txtSite,
              ID_frmStart_lblURL, ID_frmStart_txtURL, ID_frmStart_picGo, ID_frmStart_FrameSearch,
              ID_frmStart_cmbFinders, ID_frmStart_txtFind, ID_frmStart_Image1, ID_frmStart_StatusBar1}) {
            RECT& bounds = all[id];
            EXPECT_TRUE(GetWindowRect(program.Control(id), &bounds));
            MapWindowPoints(nullptr, program.Main(), reinterpret_cast<POINT*>(&bounds), 2);
        }
        return all;
    }
    std::map<int, Extent> Extents() const {
        std::map<int, Extent> extents;
        for (const auto& [id, bounds] : AllBounds()) extents[id] = ExtentOf(bounds);
        return extents;
    }
    // The real controls are where the layout, whose values MainLayoutTest checks, puts them in a window of
    // this size. The system chooses the height of the drop-down list.
    void ExpectLaidOut() const {
        const UINT dpi = Dpi();
        std::map<int, RECT> all = AllBounds();
        const RECT client = Client();
        const RECT status = all[ID_frmStart_StatusBar1];
        EXPECT_EQ(status, (RECT{0, client.bottom - ExtentOf(status).Height, client.right, client.bottom}));
        const MainLayout layout = LayOut({.Width = TwipsOf(Size().Width, dpi),
                                          .Height = TwipsOf(Size().Height, dpi),
                                          .ClientWidth = TwipsOf(client.right, dpi),
                                          .ClientHeight = TwipsOf(client.bottom, dpi),
                                          .StatusBarHeight = TwipsOf(ExtentOf(status).Height, dpi),
                                          .LineHeight = 0});
        const auto in_frame = [&](Bounds bounds) {
            bounds.Left += layout.FrameSearch.Left;
            bounds.Top += layout.FrameSearch.Top;
            return bounds;
        };
        const std::pair<int, Bounds> placed[] = {{ID_frmStart_TabStrip1, layout.TabStrip1},
                                                 {ID_frmStart_ListURLs, layout.ListURLs},
                                                 {ID_frmStart_lblSiteName, layout.lblSiteName},
                                                 {ID_frmStart_txtSite, layout.txtSite},
                                                 {ID_frmStart_lblURL, layout.lblURL},
                                                 {ID_frmStart_txtURL, layout.txtURL},
                                                 {ID_frmStart_picGo, layout.picGo},
                                                 {ID_frmStart_FrameSearch, layout.FrameSearch},
                                                 {ID_frmStart_cmbFinders, in_frame(layout.cmbFinders)},
                                                 {ID_frmStart_txtFind, in_frame(layout.txtFind)},
                                                 {ID_frmStart_Image1, in_frame(layout.Image1)}};
        std::map<int, RECT> expected{{ID_frmStart_StatusBar1, status}};
        for (const auto& [id, bounds] : placed)
            expected[id] = {PixelsOf(bounds.Left, dpi), PixelsOf(bounds.Top, dpi),
                            PixelsOf(bounds.Right(), dpi), PixelsOf(bounds.Bottom(), dpi)};
        all[ID_frmStart_cmbFinders].bottom = expected[ID_frmStart_cmbFinders].bottom = 0;
        EXPECT_EQ(all, expected);
    }

    // Every control is whole, and none overlaps another.
    void ExpectNothingOverlaps() const {
        const auto all = AllBounds();
        const RECT client = Client();
        for (const auto& [id, bounds] : all) {
            RECT inside{};
            ASSERT_TRUE(IntersectRect(&inside, &bounds, &client)) << id;
            EXPECT_TRUE(EqualRect(&inside, &bounds))
                << id << " is clipped at " << Size().Width << " x " << Size().Height;
            for (const auto& [other_id, other] : all) {
                const bool in_frame = other_id == ID_frmStart_cmbFinders || other_id == ID_frmStart_txtFind ||
                                      other_id == ID_frmStart_Image1;
                if (other_id == id || other_id == ID_frmStart_FrameSearch ||
                    (id == ID_frmStart_FrameSearch && in_frame))
                    continue;
                EXPECT_FALSE(IntersectRect(&inside, &bounds, &other))
                    << id << " and " << other_id << " overlap";
            }
        }
    }
    static SIZE SizeOfText(HWND control, const std::wstring& text) {
        const HDC dc = GetDC(control);
        const HGDIOBJ before =
            SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
        SIZE size{};
        EXPECT_TRUE(GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size));
        SelectObject(dc, before);
        ReleaseDC(control, dc);
        return size;
    }
    // Fields and labels are as high as their letters need.
    void ExpectRoomForText() const {
        for (const int id : {ID_frmStart_lblSiteName, ID_frmStart_lblURL, ID_frmStart_txtSite,
                             ID_frmStart_txtURL, ID_frmStart_txtFind, ID_frmStart_TabStrip1}) {
            RECT inside{};
            ASSERT_TRUE(GetClientRect(program.Control(id), &inside));
            EXPECT_GE(inside.bottom, SizeOfText(program.Control(id), L"Ág").cy) << id;
        }
        RECT tab{};
        ASSERT_TRUE(TabCtrl_GetItemRect(program.Control(ID_frmStart_TabStrip1), 0, &tab));
        EXPECT_LE(ExtentOf(tab).Height, Extents().at(ID_frmStart_TabStrip1).Height);
    }

    // The counters in the status bar are never cut off, whatever they count.
    void ExpectRoomForCounters() const {
        const HWND bar = program.Control(ID_frmStart_StatusBar1);
        WPARAM panel = 1;
        for (const wchar_t* const text : {L"megjelenítve (32767 / 32767)", L"bejelölve 32767"}) {
            RECT bounds{};
            program.OnUi(
                [&](frmStart&) { SendMessageW(bar, SB_GETRECT, panel, reinterpret_cast<LPARAM>(&bounds)); });
            EXPECT_GT(ExtentOf(bounds).Width, SizeOfText(bar, text).cx) << panel;
            ++panel;
        }
    }

    // Sets a size that the system does not correct, and tells the sizes that the window then takes in turn.
    // The window is hidden, so that no window manager changes its size.
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
    const Extent least = Least();
    const std::pair<Extent, Extent> tried[] = {{{200, 60}, least},
                                               {{300, 700}, {least.Width, 700}},
                                               {{900, 100}, {900, least.Height}},
                                               {{least.Width - 1, least.Height - 1}, least}};
    for (const auto& [size, taken] : tried) {
        Resize(size);
        EXPECT_EQ(Size(), taken);
    }
}

TEST_F(frmStartLayoutTest, EveryControlIsLaidOutByTheWindowsSizeAndNothingOverlaps) {
    for (const Extent& size : {Least(), Extent{801, 599}, Extent{1150, 873}}) {
        Resize(size);
        EXPECT_EQ(Size(), size);
        SCOPED_TRACE(::testing::PrintToString(size));
        ExpectLaidOut();
        ExpectNothingOverlaps();
    }
}

TEST_F(frmStartLayoutTest, InAThickFrameEveryControlEndsWithTheClientArea) {
    program.OnUi([](frmStart& form) {
        const LONG_PTR style = GetWindowLongPtrW(form.Handle(), GWL_EXSTYLE);
        ASSERT_NE(SetWindowLongPtrW(form.Handle(), GWL_EXSTYLE, style | WS_EX_CLIENTEDGE), 0);
        ASSERT_TRUE(SetWindowPos(form.Handle(), nullptr, 0, 0, 0, 0,
                                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED));
    });
    for (const Extent& size : {Least(), Extent{1001, 697}}) {
        Resize(size);
        SCOPED_TRACE(::testing::PrintToString(size));
        ExpectLaidOut();
        const auto all = AllBounds();
        const RECT client = Client();
        EXPECT_EQ(all.at(ID_frmStart_TabStrip1).right, client.right);
        EXPECT_EQ(all.at(ID_frmStart_ListURLs).bottom, all.at(ID_frmStart_StatusBar1).top);
        for (const int id :
             {ID_frmStart_txtSite, ID_frmStart_txtURL, ID_frmStart_picGo, ID_frmStart_FrameSearch})
            EXPECT_NEAR(all.at(id).right, client.right - PixelsOf(120, Dpi()), 1) << id;
    }
}

TEST_F(frmStartLayoutTest, AWindowForcedBelowTheLeastSizeGrowsBackByItself) {
    const Extent least = Least();
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
        Resize({width, kHighest});
        EXPECT_EQ(Size().Height, kHighest);
        ExpectLaidOut();
    }
}

TEST_F(frmStartLayoutTest, AWindowAsLowAsAMinimisedOneIsLeftAsItIs) {
    Resize({1000, 700});
    const auto before = Extents();
    const int low = PixelsAtLeast(500, Dpi()) - 1;
    EXPECT_EQ(SizesAfterForcing(1000, low), (std::vector<Extent>{{1000, low}}));
    EXPECT_EQ(Extents(), before);
    Resize({1000, 700});
    EXPECT_EQ(SizesAfterForcing(1000, low + 1),
              (std::vector<Extent>{{1000, low + 1}, {1000, Least().Height}}));
    ExpectLaidOut();
}

TEST_F(frmStartLayoutTest, MinimisingChangesNoControl) {
    Resize({1000, 700});
    const auto before = AllBounds();
    const auto extents = Extents();
    ShowWindow(program.Main(), SW_MINIMIZE);
    WaitUntil("the minimised window", [this] { return IsIconic(program.Main()) != FALSE; });
    program.Settle();
    EXPECT_EQ(Extents(), extents);
    ShowWindow(program.Main(), SW_RESTORE);
    WaitUntil("the restored window", [this] { return IsIconic(program.Main()) == FALSE; });
    program.Settle();
    EXPECT_EQ(AllBounds(), before);
}

TEST_F(frmStartLayoutTest, LargeLettersFindRoom) {
    for (const int pixels : {18, 27}) {
        const MessageFontOf large(pixels);
        program.OnUi([](frmStart& form) { SendMessageW(form.Handle(), WM_SETTINGCHANGE, 0, 0); });
        for (const Extent& size : {Extent{1, 1}, Extent{800, 900}, Extent{1, 1}}) {  // 1: the least size
            Resize(size);
            SCOPED_TRACE(pixels);
            ExpectNothingOverlaps();
            ExpectRoomForText();
            // Both counters in letters of 27 pixels are wider than the narrowest window.
            if (pixels == 18 || Size().Width >= 800) ExpectRoomForCounters();
        }
    }
    program.OnUi([](frmStart& form) { SendMessageW(form.Handle(), WM_SETTINGCHANGE, 0, 0); });
    Resize({1, 1});
    EXPECT_EQ(Size().Height, Least().Height);
    ExpectLaidOut();
}

}  // namespace
}  // namespace lindrel::testing
