#include "app/PlaceControls.h"

#include "controls/Display.h"
#include "resources/resource.h"

namespace lindrel {

namespace {

// The height of a combo box includes its list; the system chooses that of the closed box.
constexpr int kHeightOfFindersWithList = 3000;

Place Inside(const Place& frame, Place place) {
    place.Left += frame.Left;
    place.Top += frame.Top;
    return place;
}

}  // namespace

void PlaceControls(HWND window, const MainLayout& places, UINT dpi) {
    const Place& frame = places.FrameSearch;
    Place finders = Inside(frame, places.cmbFinders);
    finders.Height = kHeightOfFindersWithList;
    const struct {
        int Id;
        Place Where;
    } placed[] = {
        {ID_frmStart_Toolbar, places.Toolbar},
        {ID_frmStart_TabStrip1, places.TabStrip1},
        {ID_frmStart_ListURLs, places.ListURLs},
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
    for (const auto& [id, place] : placed) {
        const int left = PixelsOf(place.Left, dpi);
        const int top = PixelsOf(place.Top, dpi);
        SetWindowPos(GetDlgItem(window, id), nullptr, left, top, PixelsOf(place.Right(), dpi) - left,
                     PixelsOf(place.Bottom(), dpi) - top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    InvalidateRect(GetDlgItem(window, ID_frmStart_FrameSearch), nullptr, TRUE);
}

void LimitSize(MINMAXINFO& info, UINT dpi) {
    info.ptMinTrackSize = {PixelsAtLeast(kLeastWidth, dpi), PixelsAtLeast(kLeastHeight, dpi)};
}

}  // namespace lindrel
