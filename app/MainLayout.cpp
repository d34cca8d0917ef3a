#include "app/MainLayout.h"

#include <algorithm>

namespace lindrel {

MainLayout LayOut(const MainFrame& frame) {
    MainLayout places;
    places.Toolbar.Width = frame.ClientWidth - places.Toolbar.Left;
    places.TabStrip1.Width = std::min(frame.Width - 120, frame.ClientWidth - places.TabStrip1.Left);

    Place& list = places.ListURLs;
    list.Height = std::min(frame.Height - (list.Top + frame.StatusBarHeight) - 720,
                           frame.ClientHeight - frame.StatusBarHeight - list.Top);
    list.Width = frame.Width - 3800;

    places.FrameSearch.Top = list.Bottom() - places.FrameSearch.Height;
    const int right_column = frame.Width - 3450;
    for (Place* const place :
         {&places.lblSiteName, &places.txtSite, &places.lblURL, &places.txtURL, &places.FrameSearch})
        place->Left = right_column;
    places.picGo.Left = places.txtURL.Left + 2130;
    return places;
}

}  // namespace lindrel
