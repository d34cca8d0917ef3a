#include "app/MainLayout.h"

#include <algorithm>

namespace lindrel {

namespace {

constexpr int kMinimisedHeight = 500;  // a lower window is minimised
constexpr int kLeastHeight = 5200;
constexpr int kMargin = 120;        // at either side of the client area
constexpr int kAroundClient = 720;  // height of a classic frame, its title and menu
constexpr int kAboveSearch = 60;    // at least

// Height of borders and padding around a line of text.
constexpr int kAroundFieldText = 90;
constexpr int kAroundFindersText = 120;
constexpr int kAroundTabText = 120;
constexpr int kBelowFrameCaption = 45;

// Places a row under others that have grown by `down`, and makes it as high as needed.
void PlaceRow(Bounds& row, int needed, int& down) {
    row.Top += down;
    const int growth = std::max(needed - row.Height, 0);
    row.Height += growth;
    down += growth;
}

MainLayout StackRows(int line) {
    MainLayout layout;
    int down = 0;
    PlaceRow(layout.TabStrip1, line + kAroundTabText, down);
    layout.ListURLs.Top += down;
    PlaceRow(layout.lblSiteName, line, down);
    PlaceRow(layout.txtSite, line + kAroundFieldText, down);
    PlaceRow(layout.lblURL, line, down);
    PlaceRow(layout.txtURL, line + kAroundFieldText, down);
    PlaceRow(layout.picGo, 0, down);

    down = std::max(line + kBelowFrameCaption - layout.cmbFinders.Top, 0);
    PlaceRow(layout.cmbFinders, line + kAroundFindersText, down);
    PlaceRow(layout.txtFind, line + kAroundFieldText, down);
    layout.Image1.Top = layout.txtFind.Top + (layout.txtFind.Height - layout.Image1.Height) / 2;
    layout.FrameSearch.Height += down;
    return layout;
}

}  // namespace

int LeastHeight(const MainFrame& frame) {
    const MainLayout rows = StackRows(frame.LineHeight);
    return std::max(kLeastHeight, rows.picGo.Bottom() + kAboveSearch + rows.FrameSearch.Height +
                                      frame.StatusBarHeight +
                                      std::max(frame.Height - frame.ClientHeight, kAroundClient));
}

SizeVerdict JudgeSize(const MainFrame& frame) {
    if (frame.Height < kMinimisedHeight) return SizeVerdict::Minimised;
    if (frame.Height < LeastHeight(frame)) return SizeVerdict::TooLow;
    return frame.Width < kLeastWidth ? SizeVerdict::TooNarrow : SizeVerdict::Good;
}

MainLayout LayOut(const MainFrame& frame) {
    MainLayout layout = StackRows(frame.LineHeight);
    layout.Toolbar.Width = frame.ClientWidth - layout.Toolbar.Left;
    layout.TabStrip1.Width = std::min(frame.Width - 120, frame.ClientWidth - layout.TabStrip1.Left);

    Bounds& list = layout.ListURLs;
    list.Height = std::min(frame.Height - (list.Top + frame.StatusBarHeight) - kAroundClient,
                           frame.ClientHeight - frame.StatusBarHeight - list.Top);
    list.Width = frame.Width - 3800;

    const int left = frame.Width - 3450;
    const int narrower = std::max(layout.FrameSearch.Width - (frame.ClientWidth - kMargin - left), 0);
    for (Bounds* const row :
         {&layout.lblSiteName, &layout.txtSite, &layout.lblURL, &layout.txtURL, &layout.FrameSearch}) {
        row->Left = left;
        row->Width -= narrower;
    }
    layout.picGo.Left = layout.txtURL.Left + 2130;
    layout.picGo.Width = layout.txtURL.Right() - layout.picGo.Left;
    layout.FrameSearch.Top = list.Bottom() - layout.FrameSearch.Height;
    layout.cmbFinders.Width -= narrower;
    layout.txtFind.Width -= narrower;
    layout.Image1.Left -= narrower;
    return layout;
}

}  // namespace lindrel
