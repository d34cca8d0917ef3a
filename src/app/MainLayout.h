// The arithmetic of the main window's layout, in twips (1/1440 inch). Width and Height are the window's outer
// measures; places are relative to the client area.
#pragma once

namespace lindrel {

struct Place {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    constexpr int Right() const { return Left + Width; }
    constexpr int Bottom() const { return Top + Height; }
    bool operator==(const Place&) const = default;
};

inline constexpr int kLeastWidth = 7700;
inline constexpr int kLeastHeight = 5200;
// A window lower than this is minimised.
inline constexpr int kMinimisedHeight = 500;

struct MainLayout {
    // As designed, for lines of text up to 225 twips high; LayOut() moves and resizes what follows window and
    // font.
    Place Toolbar{60, 30, 7520, 510};
    Place TabStrip1{0, 570, 7580, 345};
    Place ListURLs{120, 930, 3900, 3180};
    Place lblSiteName{4250, 930, 3210, 225};
    Place txtSite{4250, 1170, 3210, 330};
    Place lblURL{4250, 1590, 3210, 225};
    Place txtURL{4250, 1830, 3210, 330};
    Place picGo{6380, 2190, 1080, 390};
    Place FrameSearch{4250, 2910, 3210, 1200};
    // Inside FrameSearch, relative to its corner.
    Place cmbFinders{150, 270, 2910, 345};
    Place txtFind{150, 705, 2415, 330};
    Place Image1{2625, 690, 435, 360};
    bool operator==(const MainLayout&) const = default;
};

// What surrounds the controls, and what their font needs.
struct MainFrame {
    int Width = 0;         // outer
    int Height = 0;        // outer
    int ClientWidth = 0;   // what the frame leaves
    int ClientHeight = 0;  // what frame, title and menu leave
    int StatusBarHeight = 0;
    int LineHeight = 0;  // of a line of text
    bool operator==(const MainFrame&) const = default;
};

// kLeastHeight, or more where large letters need it.
int LeastHeight(const MainFrame& frame);

// What a resize asks for: nothing at all (minimised), a higher window (whose own resize then lays out), a
// wider window first, or just the layout.
struct ResizeStep {
    bool Minimised = false;
    bool TooLow = false;
    bool TooNarrow = false;
    bool operator==(const ResizeStep&) const = default;
};
ResizeStep JudgeSize(const MainFrame& frame);

// The places in a window of at least kLeastWidth by LeastHeight(). Where a frame takes more room than the
// classic one, the controls end with the client area and the status bar, so that the scroll arrows, the last
// row and the right edges are never hidden. Where letters are large, each row is as high as they need and
// those below move down.
MainLayout LayOut(const MainFrame& frame);

}  // namespace lindrel
