#include "app/MainLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

namespace lindrel {

// Prints values when a comparison fails.
void PrintTo(const Bounds& bounds, std::ostream* out) {
    *out << "{left " << bounds.Left << ", top " << bounds.Top << ", " << bounds.Width << " x "
         << bounds.Height << "}";
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

TEST(MainLayoutTest, JudgesTheHeightFirstAndThenTheWidth) {
    EXPECT_EQ(JudgeSize({}), SizeVerdict::Minimised);
    EXPECT_EQ(JudgeSize(ClassicFrame(2400, 499)), SizeVerdict::Minimised);
    EXPECT_EQ(JudgeSize(ClassicFrame(9000, 500)), SizeVerdict::TooLow);
    EXPECT_EQ(JudgeSize(ClassicFrame(100, 5199)), SizeVerdict::TooLow);
    EXPECT_EQ(JudgeSize(ClassicFrame(7699, 5200)), SizeVerdict::TooNarrow);
    EXPECT_EQ(JudgeSize(ClassicFrame(7700, 5200)), SizeVerdict::Good);
}

TEST(MainLayoutTest, AtTheLeastSize) {
    const MainLayout expected{.Toolbar = {60, 30, 7520, 510},
                              .TabStrip1 = {0, 570, 7580, 345},
                              .ListURLs = {120, 930, 3900, 3220},
                              .lblSiteName = {4250, 930, 3210, 225},
                              .txtSite = {4250, 1170, 3210, 330},
                              .lblURL = {4250, 1590, 3210, 225},
                              .txtURL = {4250, 1830, 3210, 330},
                              .picGo = {6380, 2190, 1080, 390},
                              .FrameSearch = {4250, 2950, 3210, 1200}};
    EXPECT_EQ(LayOut(ClassicFrame(7700, 5200)), expected);
}

TEST(MainLayoutTest, InALargeWindow) {
    const MainLayout expected{.Toolbar = {60, 30, 19821, 510},
                              .TabStrip1 = {0, 570, 19881, 345},
                              .ListURLs = {120, 930, 16201, 13023},
                              .lblSiteName = {16551, 930, 3210, 225},
                              .txtSite = {16551, 1170, 3210, 330},
                              .lblURL = {16551, 1590, 3210, 225},
                              .txtURL = {16551, 1830, 3210, 330},
                              .picGo = {18681, 2190, 1080, 390},
                              .FrameSearch = {16551, 12753, 3210, 1200}};
    EXPECT_EQ(LayOut(ClassicFrame(20001, 15003)), expected);
}

// The column keeps its left edge and ends as far from the client area's edge as the list begins.
TEST(MainLayoutTest, NothingIsHiddenByAThickFrame) {
    MainFrame frame = ClassicFrame(7700, 5200);
    frame.ClientWidth = 7460;   // 8 pixels on either side
    frame.ClientHeight = 4315;  // 59 pixels for borders, title and menu
    const MainLayout expected{.Toolbar = {60, 30, 7400, 510},
                              .TabStrip1 = {0, 570, 7460, 345},
                              .ListURLs = {120, 930, 3900, 3055},
                              .lblSiteName = {4250, 930, 3090, 225},
                              .txtSite = {4250, 1170, 3090, 330},
                              .lblURL = {4250, 1590, 3090, 225},
                              .txtURL = {4250, 1830, 3090, 330},
                              .picGo = {6380, 2190, 960, 390},
                              .FrameSearch = {4250, 2785, 3090, 1200},
                              .cmbFinders = {150, 270, 2790, 345},
                              .txtFind = {150, 705, 2295, 330},
                              .Image1 = {2505, 690, 435, 360}};
    EXPECT_EQ(LayOut(frame), expected);
}

// Every row of the right column has the height that its letters need, and none touches another.
void ExpectRoomForText(const MainLayout& layout, const MainFrame& frame) {
    EXPECT_EQ(layout.lblSiteName.Top, layout.ListURLs.Top);
    EXPECT_GE(layout.ListURLs.Top, layout.TabStrip1.Bottom());
    EXPECT_GE(layout.TabStrip1.Height, frame.LineHeight + 120);
    for (const Bounds& label : {layout.lblSiteName, layout.lblURL}) EXPECT_GE(label.Height, frame.LineHeight);
    for (const Bounds& field : {layout.txtSite, layout.txtURL, layout.txtFind})
        EXPECT_GE(field.Height, frame.LineHeight + 90);
    EXPECT_GE(layout.cmbFinders.Height, frame.LineHeight + 120);
    EXPECT_LT(layout.lblSiteName.Bottom(), layout.txtSite.Top);
    EXPECT_LT(layout.txtSite.Bottom(), layout.lblURL.Top);
    EXPECT_LT(layout.lblURL.Bottom(), layout.txtURL.Top);
    EXPECT_LT(layout.txtURL.Bottom(), layout.picGo.Top);
    EXPECT_LE(layout.picGo.Bottom(), layout.FrameSearch.Top);
    EXPECT_GE(layout.cmbFinders.Top, frame.LineHeight);
    EXPECT_LT(layout.cmbFinders.Bottom(), layout.txtFind.Top);
    EXPECT_LT(layout.txtFind.Bottom(), layout.FrameSearch.Height);
    EXPECT_LE(layout.Image1.Bottom(), layout.FrameSearch.Height);
    EXPECT_LE(layout.txtFind.Right(), layout.Image1.Left);
    EXPECT_LT(layout.Image1.Right(), layout.FrameSearch.Width);
    EXPECT_LE(layout.FrameSearch.Right(), frame.ClientWidth - 120);
    EXPECT_LE(layout.FrameSearch.Bottom(), frame.ClientHeight - frame.StatusBarHeight);
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
            EXPECT_EQ(JudgeSize(frame), SizeVerdict::Good);
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
    const MainLayout expected{.Toolbar = {60, 30, 7520, 510},
                              .TabStrip1 = {0, 570, 7580, 450},
                              .ListURLs = {120, 1035, 3900, 3810},
                              .lblSiteName = {4250, 1035, 3210, 330},
                              .txtSite = {4250, 1380, 3210, 420},
                              .lblURL = {4250, 1890, 3210, 330},
                              .txtURL = {4250, 2235, 3210, 420},
                              .picGo = {6380, 2685, 1080, 390},
                              .FrameSearch = {4250, 3345, 3210, 1500},
                              .cmbFinders = {150, 375, 2910, 450},
                              .txtFind = {150, 915, 2415, 420},
                              .Image1 = {2625, 945, 435, 360}};
    EXPECT_EQ(LayOut(frame), expected);
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
