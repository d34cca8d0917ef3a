// Computes the main window's layout, in twips (1/1440 inch). Bounds are relative to the client area.
#pragma once

namespace lindrel {

struct Bounds {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    constexpr int Right() const { return Left + Width; }
    constexpr int Bottom() const { return Top + Height; }
    bool operator==(const Bounds&) const = default;
};

// Of the whole window.
inline constexpr int kLeastWidth = 7700;

// As designed, for lines of text up to 225 twips high.
struct MainLayout {
    Bounds Toolbar{60, 30, 7520, 510};
    Bounds TabStrip1{0, 570, 7580, 345};
    Bounds ListURLs{120, 930, 3900, 3180};
    Bounds lblSiteName{4250, 930, 3210, 225};
    Bounds txtSite{4250, 1170, 3210, 330};
    Bounds lblURL{4250, 1590, 3210, 225};
    Bounds txtURL{4250, 1830, 3210, 330};
    Bounds picGo{6380, 2190, 1080, 390};
    Bounds FrameSearch{4250, 2910, 3210, 1200};
    // Relative to FrameSearch.
    Bounds cmbFinders{150, 270, 2910, 345};
    Bounds txtFind{150, 705, 2415, 330};
    Bounds Image1{2625, 690, 435, 360};
    bool operator==(const MainLayout&) const = default;
};

// What the layout depends on.
struct MainFrame {
    int Width = 0;  // of the whole window
    int Height = 0;
    int ClientWidth = 0;
    int ClientHeight = 0;
    int StatusBarHeight = 0;
    int LineHeight = 0;  // of a line of text
    bool operator==(const MainFrame&) const = default;
};

// The least height of the window: 5200, or more for large letters.
int LeastHeight(const MainFrame& frame);

// Whether a window can be laid out. One that is too low is made higher, and its width judged after that.
enum class SizeVerdict { Minimised, TooLow, TooNarrow, Good };
SizeVerdict JudgeSize(const MainFrame& frame);

// The layout of a window of at least kLeastWidth by LeastHeight(). If the frame is thicker than a classic
// one, the controls end with the client area and the status bar, so that scroll arrows, the last row and the
// right edges are not hidden. Each row is as high as its letters need, and those below move down.
MainLayout LayOut(const MainFrame& frame);

}  // namespace lindrel
