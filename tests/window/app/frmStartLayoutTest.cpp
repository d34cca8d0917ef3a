// Sizes and places of the real main window.

#include <gtest/gtest.h>

#include <map>

#include "resources/resource.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

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
        const auto places = Places();
        RECT client{};
        ASSERT_TRUE(GetClientRect(program.Main(), &client));
        for (const auto& [id, place] : places) {
            RECT inside{};
            // The strip's own frame may end behind the right edge; its tabs scroll.
            ASSERT_TRUE(IntersectRect(&inside, &place, &client)) << id;
            EXPECT_TRUE(EqualRect(&inside, &place)) << id << " is clipped at " << size.cx << " x " << size.cy;
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
}

}  // namespace
}  // namespace lindrel::testing
