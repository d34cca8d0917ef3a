#include "app/PlaceControls.h"

#include "resources/resource.h"
#include "window/Display.h"
#include "window/PlacedTogether.h"

namespace lindrel {

namespace {

// The height of a combo box includes its list; the system chooses that of the closed box.
constexpr int kHeightOfFindersWithList = 3000;

constexpr int kControls = 12;

Place Inside(const Place& frame, Place place) {
    place.Left += frame.Left;
    place.Top += frame.Top;
    return place;
}

RECT InPixels(const Place& place, UINT dpi) {
    return {PixelsOf(place.Left, dpi), PixelsOf(place.Top, dpi), PixelsOf(place.Right(), dpi),
            PixelsOf(place.Bottom(), dpi)};
}

}  // namespace

void PlaceControls(HWND window, const MainLayout& places, UINT dpi) {
    const Place& frame = places.FrameSearch;
    Place finders = Inside(frame, places.cmbFinders);
    finders.Height = kHeightOfFindersWithList;
    const struct {
        int Id;
        Place Where;
    } moved[] = {
        {ID_frmStart_lblSiteName, places.lblSiteName},
        {ID_frmStart_txtSite, places.txtSite},
        {ID_frmStart_lblURL, places.lblURL},
        {ID_frmStart_txtURL, places.txtURL},
        {ID_frmStart_picGo, places.picGo},
        {ID_frmStart_FrameSearch, frame},
        {ID_frmStart_cmbFinders, finders},
        {ID_frmStart_txtFind, Inside(frame, places.txtFind)},
        {ID_frmStart_Image1, Inside(frame, places.Image1)},
    };
    PlacedTogether together(window, kControls);
    together.Stretch(ID_frmStart_Toolbar, InPixels(places.Toolbar, dpi));
    together.Stretch(ID_frmStart_TabStrip1, InPixels(places.TabStrip1, dpi));
    together.Move(ID_frmStart_ListURLs, InPixels(places.ListURLs, dpi));
    for (const auto& [id, place] : moved) together.Move(id, InPixels(place, dpi));
}

void LimitSize(MINMAXINFO& info, int least_height, UINT dpi) {
    info.ptMinTrackSize = {PixelsAtLeast(kLeastWidth, dpi), PixelsAtLeast(least_height, dpi)};
}

}  // namespace lindrel
