#include "app/MainLayout.h"

#include <algorithm>

namespace lindrel {

namespace {

constexpr int kMargin = 120;      // at either side of the client area
constexpr int kAboveSearch = 60;  // at least

// What borders and padding add to a line of text.
constexpr int kAroundFieldText = 90;
constexpr int kAroundFindersText = 120;
constexpr int kAroundTabText = 120;
constexpr int kBelowFrameCaption = 45;

void Heighten(Place& place, int needed) {
    place.Height = std::max(place.Height, needed);
}

// Rows keep the distances that they are designed with.
void StackSearch(MainLayout& places, int line) {
    const MainLayout designed;
    Place& finders = places.cmbFinders;
    finders.Top = std::max(finders.Top, line + kBelowFrameCaption);
    Heighten(finders, line + kAroundFindersText);
    Place& find = places.txtFind;
    find.Top = finders.Bottom() + designed.txtFind.Top - designed.cmbFinders.Bottom();
    Heighten(find, line + kAroundFieldText);
    places.Image1.Top = find.Top + (find.Height - places.Image1.Height) / 2;
    places.FrameSearch.Height = find.Bottom() + designed.FrameSearch.Height - designed.txtFind.Bottom();
}

MainLayout StackRows(int line) {
    const MainLayout designed;
    MainLayout places;
    for (Place* const label : {&places.lblSiteName, &places.lblURL}) Heighten(*label, line);
    for (Place* const field : {&places.txtSite, &places.txtURL}) Heighten(*field, line + kAroundFieldText);
    Heighten(places.TabStrip1, line + kAroundTabText);
    const auto below = [](const Place& above, const Place& designed_above, const Place& designed_place) {
        return above.Bottom() + designed_place.Top - designed_above.Bottom();
    };
    places.ListURLs.Top = below(places.TabStrip1, designed.TabStrip1, designed.ListURLs);
    places.lblSiteName.Top = places.ListURLs.Top;
    places.txtSite.Top = below(places.lblSiteName, designed.lblSiteName, designed.txtSite);
    places.lblURL.Top = below(places.txtSite, designed.txtSite, designed.lblURL);
    places.txtURL.Top = below(places.lblURL, designed.lblURL, designed.txtURL);
    places.picGo.Top = below(places.txtURL, designed.txtURL, designed.picGo);
    StackSearch(places, line);
    return places;
}

// The right-hand column, whose frame ends with the list.
void PlaceColumn(MainLayout& places, const MainFrame& frame) {
    const MainLayout designed;
    const int left = frame.Width - 3450;
    const int width = std::min(designed.txtURL.Width, frame.ClientWidth - kMargin - left);
    for (Place* const place :
         {&places.lblSiteName, &places.txtSite, &places.lblURL, &places.txtURL, &places.FrameSearch}) {
        place->Left = left;
        place->Width = width;
    }
    places.picGo.Left = places.txtURL.Left + 2130;
    places.picGo.Width = places.txtURL.Right() - places.picGo.Left;

    places.FrameSearch.Top = places.ListURLs.Bottom() - places.FrameSearch.Height;
    const int narrower = designed.FrameSearch.Width - width;
    places.cmbFinders.Width -= narrower;
    places.txtFind.Width -= narrower;
    places.Image1.Left -= narrower;
}

}  // namespace

int LeastHeight(const MainFrame& frame) {
    const MainLayout rows = StackRows(frame.LineHeight);
    const int around = std::max(frame.Height - frame.ClientHeight, 720);
    return std::max(kLeastHeight, rows.picGo.Bottom() + kAboveSearch + rows.FrameSearch.Height +
                                      frame.StatusBarHeight + around);
}

ResizeStep JudgeSize(const MainFrame& frame) {
    if (frame.Height < kMinimisedHeight) return {.Minimised = true};
    if (frame.Height < LeastHeight(frame)) return {.TooLow = true};
    return {.TooNarrow = frame.Width < kLeastWidth};
}

MainLayout LayOut(const MainFrame& frame) {
    MainLayout places = StackRows(frame.LineHeight);
    places.Toolbar.Width = frame.ClientWidth - places.Toolbar.Left;
    places.TabStrip1.Width = std::min(frame.Width - 120, frame.ClientWidth - places.TabStrip1.Left);

    Place& list = places.ListURLs;
    list.Height = std::min(frame.Height - (list.Top + frame.StatusBarHeight) - 720,
                           frame.ClientHeight - frame.StatusBarHeight - list.Top);
    list.Width = frame.Width - 3800;
    PlaceColumn(places, frame);
    return places;
}

}  // namespace lindrel
