#include "app/MainLayout.h"

#include <gtest/gtest.h>

#include <ostream>

namespace lindrel {

// Prints values when a comparison fails.
static void PrintTo(const Place& place, std::ostream* out) {
    *out << "{left " << place.Left << ", top " << place.Top << ", " << place.Width << " x " << place.Height
         << "}";
}

namespace {

// A window with a classic frame: 4 pixels on each side, and 48 for borders, title and menu together.
MainFrame ClassicFrame(int width, int height) {
    return {.Width = width,
            .Height = height,
            .ClientWidth = width - 120,
            .ClientHeight = height - 720,
            .StatusBarHeight = 330};
}

TEST(MainLayoutTest, AMinimisedWindowChangesNothing) {
    EXPECT_EQ(JudgeSize(2400, 499), (ResizeStep{.Minimised = true}));
    EXPECT_EQ(JudgeSize(0, 0), (ResizeStep{.Minimised = true}));
}

TEST(MainLayoutTest, ALowWindowGrowsFirst) {
    EXPECT_EQ(JudgeSize(9000, 500), (ResizeStep{.TooLow = true}));
    EXPECT_EQ(JudgeSize(100, 5199), (ResizeStep{.TooLow = true}));  // the width does not matter yet
}

TEST(MainLayoutTest, ANarrowWindowGrowsAndIsLaidOut) {
    EXPECT_EQ(JudgeSize(7699, 5200), (ResizeStep{.TooNarrow = true}));
    EXPECT_EQ(JudgeSize(7700, 5200), ResizeStep{});
}

TEST(MainLayoutTest, PlacesAtTheMinimumSize) {
    const MainLayout places = LayOut(ClassicFrame(7700, 5200));
    EXPECT_EQ(places.TabStrip1, (Place{0, 570, 7580, 345}));
    EXPECT_EQ(places.ListURLs, (Place{120, 930, 3900, 3220}));
    EXPECT_EQ(places.lblSiteName, (Place{4250, 930, 3210, 225}));
    EXPECT_EQ(places.txtSite, (Place{4250, 1170, 3210, 330}));
    EXPECT_EQ(places.lblURL, (Place{4250, 1590, 3210, 225}));
    EXPECT_EQ(places.txtURL, (Place{4250, 1830, 3210, 330}));
    EXPECT_EQ(places.picGo, (Place{6380, 2220, 1080, 375}));
    EXPECT_EQ(places.FrameSearch, (Place{4250, 2950, 3210, 1200}));
}

TEST(MainLayoutTest, PlacesOfALargeWindow) {
    const MainLayout places = LayOut(ClassicFrame(20001, 15003));
    EXPECT_EQ(places.TabStrip1, (Place{0, 570, 19881, 345}));
    EXPECT_EQ(places.ListURLs, (Place{120, 930, 16201, 13023}));
    EXPECT_EQ(places.lblSiteName, (Place{16551, 930, 3210, 225}));
    EXPECT_EQ(places.txtSite, (Place{16551, 1170, 3210, 330}));
    EXPECT_EQ(places.lblURL, (Place{16551, 1590, 3210, 225}));
    EXPECT_EQ(places.txtURL, (Place{16551, 1830, 3210, 330}));
    EXPECT_EQ(places.picGo, (Place{18681, 2220, 1080, 375}));
    EXPECT_EQ(places.FrameSearch, (Place{16551, 12753, 3210, 1200}));
}

TEST(MainLayoutTest, NothingIsHiddenByAThickFrame) {
    MainFrame frame = ClassicFrame(7700, 5200);
    frame.ClientWidth = 7460;   // 8 pixels on either side
    frame.ClientHeight = 4315;  // 59 pixels for borders, title and menu
    const MainLayout places = LayOut(frame);
    EXPECT_EQ(places.TabStrip1.Right(), 7460);
    EXPECT_EQ(places.ListURLs.Bottom(), 4315 - 330);
    EXPECT_EQ(places.ListURLs.Width, 3900);
    EXPECT_EQ(places.FrameSearch.Bottom(), places.ListURLs.Bottom());
    EXPECT_LE(places.FrameSearch.Right(), 7460);
}

TEST(MainLayoutTest, TheControlsOfTheRightColumnDoNotTouchAtTheMinimumSize) {
    MainFrame frame = ClassicFrame(7700, 5200);
    frame.ClientHeight = 4315;
    const MainLayout places = LayOut(frame);
    EXPECT_LT(places.lblSiteName.Bottom(), places.txtSite.Top);
    EXPECT_LT(places.txtSite.Bottom(), places.lblURL.Top);
    EXPECT_LT(places.lblURL.Bottom(), places.txtURL.Top);
    EXPECT_LT(places.txtURL.Bottom(), places.picGo.Top);
    EXPECT_LE(places.picGo.Bottom(), places.FrameSearch.Top);
    EXPECT_LE(places.Image1.Bottom(), places.FrameSearch.Height);
    EXPECT_LE(places.txtFind.Right(), places.Image1.Left);
}

}  // namespace
}  // namespace lindrel
