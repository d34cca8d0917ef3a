#include "app/MainLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

namespace lindrel {

// Prints values when a comparison fails.
static void PrintTo(const Place& place, std::ostream* out) {
    *out << "{left " << place.Left << ", top " << place.Top << ", " << place.Width << " x " << place.Height
         << "}";
}

namespace {

// A window with a classic frame: 4 pixels on each side, and 48 for borders, title and menu together. Lines of
// text are as high as the window was designed for.
MainFrame ClassicFrame(int width, int height) {
    return {.Width = width,
            .Height = height,
            .ClientWidth = width - 120,
            .ClientHeight = height - 720,
            .StatusBarHeight = 330,
            .LineHeight = 225};
}

TEST(MainLayoutTest, AMinimisedWindowChangesNothing) {
    EXPECT_EQ(JudgeSize(ClassicFrame(2400, 499)), (ResizeStep{.Minimised = true}));
    EXPECT_EQ(JudgeSize({}), (ResizeStep{.Minimised = true}));
}

TEST(MainLayoutTest, ALowWindowGrowsFirst) {
    EXPECT_EQ(JudgeSize(ClassicFrame(9000, 500)), (ResizeStep{.TooLow = true}));
    // The width does not matter yet.
    EXPECT_EQ(JudgeSize(ClassicFrame(100, 5199)), (ResizeStep{.TooLow = true}));
}

TEST(MainLayoutTest, ANarrowWindowGrowsAndIsLaidOut) {
    EXPECT_EQ(JudgeSize(ClassicFrame(7699, 5200)), (ResizeStep{.TooNarrow = true}));
    EXPECT_EQ(JudgeSize(ClassicFrame(7700, 5200)), ResizeStep{});
}

TEST(MainLayoutTest, PlacesAtTheMinimumSize) {
    const MainLayout places = LayOut(ClassicFrame(7700, 5200));
    EXPECT_EQ(places.TabStrip1, (Place{0, 570, 7580, 345}));
    EXPECT_EQ(places.ListURLs, (Place{120, 930, 3900, 3220}));
    EXPECT_EQ(places.lblSiteName, (Place{4250, 930, 3210, 225}));
    EXPECT_EQ(places.txtSite, (Place{4250, 1170, 3210, 330}));
    EXPECT_EQ(places.lblURL, (Place{4250, 1590, 3210, 225}));
    EXPECT_EQ(places.txtURL, (Place{4250, 1830, 3210, 330}));
    EXPECT_EQ(places.picGo, (Place{6380, 2190, 1080, 390}));
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
    EXPECT_EQ(places.picGo, (Place{18681, 2190, 1080, 390}));
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
    // The column keeps its left edge and ends as far from the client area's edge as the list begins.
    EXPECT_EQ(places.lblSiteName, (Place{4250, 930, 3090, 225}));
    EXPECT_EQ(places.txtSite, (Place{4250, 1170, 3090, 330}));
    EXPECT_EQ(places.lblURL, (Place{4250, 1590, 3090, 225}));
    EXPECT_EQ(places.txtURL, (Place{4250, 1830, 3090, 330}));
    EXPECT_EQ(places.picGo, (Place{6380, 2190, 960, 390}));
    EXPECT_EQ(places.FrameSearch, (Place{4250, 2785, 3090, 1200}));
    EXPECT_EQ(places.cmbFinders, (Place{150, 270, 2790, 345}));
    EXPECT_EQ(places.txtFind, (Place{150, 705, 2295, 330}));
    EXPECT_EQ(places.Image1, (Place{2505, 690, 435, 360}));
}

// Every row of the right column has the height that its letters need, and none touches another.
void ExpectRoomForText(const MainLayout& places, const MainFrame& frame) {
    EXPECT_EQ(places.lblSiteName.Top, places.ListURLs.Top);
    EXPECT_GE(places.ListURLs.Top, places.TabStrip1.Bottom());
    EXPECT_GE(places.TabStrip1.Height, frame.LineHeight + 120);
    for (const Place& label : {places.lblSiteName, places.lblURL}) EXPECT_GE(label.Height, frame.LineHeight);
    for (const Place& field : {places.txtSite, places.txtURL, places.txtFind})
        EXPECT_GE(field.Height, frame.LineHeight + 90);
    EXPECT_GE(places.cmbFinders.Height, frame.LineHeight + 120);
    EXPECT_LT(places.lblSiteName.Bottom(), places.txtSite.Top);
    EXPECT_LT(places.txtSite.Bottom(), places.lblURL.Top);
    EXPECT_LT(places.lblURL.Bottom(), places.txtURL.Top);
    EXPECT_LT(places.txtURL.Bottom(), places.picGo.Top);
    EXPECT_LE(places.picGo.Bottom(), places.FrameSearch.Top);
    EXPECT_GE(places.cmbFinders.Top, frame.LineHeight);
    EXPECT_LT(places.cmbFinders.Bottom(), places.txtFind.Top);
    EXPECT_LT(places.txtFind.Bottom(), places.FrameSearch.Height);
    EXPECT_LE(places.Image1.Bottom(), places.FrameSearch.Height);
    EXPECT_LE(places.txtFind.Right(), places.Image1.Left);
    EXPECT_LT(places.Image1.Right(), places.FrameSearch.Width);
    EXPECT_LE(places.FrameSearch.Right(), frame.ClientWidth - 120);
    EXPECT_LE(places.FrameSearch.Bottom(), frame.ClientHeight - frame.StatusBarHeight);
}

TEST(MainLayoutTest, AtTheLeastSizeThereIsRoomForLettersOfAnySize) {
    for (int line = 0; line <= 900; line += 15) {
        SCOPED_TRACE(line);
        for (const int around : {720, 885, 1200}) {  // borders, title and menu grow with the letters too
            MainFrame frame = ClassicFrame(7700, 5200);
            frame.ClientWidth = 7460;
            frame.LineHeight = line;
            frame.StatusBarHeight = std::max(330, line + 105);
            frame.ClientHeight = frame.Height - around;
            frame.Height = LeastHeight(frame);
            frame.ClientHeight = frame.Height - around;
            EXPECT_EQ(JudgeSize(frame), ResizeStep{});
            ExpectRoomForText(LayOut(frame), frame);
        }
    }
}

TEST(MainLayoutTest, LettersOfTheDesignedSizeLeaveTheRowsAsDesigned) {
    MainFrame frame = ClassicFrame(7700, 5200);
    for (const int line : {0, 195, 225}) {
        frame.LineHeight = line;
        EXPECT_EQ(LeastHeight(frame), 5200);
        EXPECT_EQ(LayOut(frame), LayOut(ClassicFrame(7700, 5200)));
    }
}

TEST(MainLayoutTest, LargeLettersMoveTheRowsDown) {
    MainFrame frame = ClassicFrame(7700, 6000);
    frame.LineHeight = 330;  // of a font of 18 pixels
    frame.StatusBarHeight = 435;
    const MainLayout places = LayOut(frame);
    EXPECT_EQ(places.Toolbar, (Place{60, 30, 7520, 510}));
    EXPECT_EQ(places.TabStrip1, (Place{0, 570, 7580, 450}));
    EXPECT_EQ(places.ListURLs, (Place{120, 1035, 3900, 3810}));
    EXPECT_EQ(places.lblSiteName, (Place{4250, 1035, 3210, 330}));
    EXPECT_EQ(places.txtSite, (Place{4250, 1380, 3210, 420}));
    EXPECT_EQ(places.lblURL, (Place{4250, 1890, 3210, 330}));
    EXPECT_EQ(places.txtURL, (Place{4250, 2235, 3210, 420}));
    EXPECT_EQ(places.picGo, (Place{6380, 2685, 1080, 390}));
    EXPECT_EQ(places.FrameSearch, (Place{4250, 3345, 3210, 1500}));
    EXPECT_EQ(places.cmbFinders, (Place{150, 375, 2910, 450}));
    EXPECT_EQ(places.txtFind, (Place{150, 915, 2415, 420}));
    EXPECT_EQ(places.Image1, (Place{2625, 945, 435, 360}));
}

TEST(MainLayoutTest, TheLeastHeightGrowsWithTheLettersOnly) {
    MainFrame frame = ClassicFrame(7700, 5200);
    frame.LineHeight = 330;
    frame.StatusBarHeight = 435;
    // Rows down to picGo, a gap, the frame, the status bar, and what borders, title and menu take.
    EXPECT_EQ(LeastHeight(frame), 3075 + 60 + 1500 + 435 + 720);
}

}  // namespace
}  // namespace lindrel
