// Puts the main window's layout on the screen.
#pragma once

#include "app/MainLayout.h"
#include "window/Windows.h"

namespace lindrel {

// `places` in twips, at the resolution of the screen that the window is on.
void PlaceControls(HWND window, const MainLayout& places, UINT dpi);

// Answers WM_GETMINMAXINFO with the least size, its height in twips.
void LimitSize(MINMAXINFO& info, int least_height, UINT dpi);

}  // namespace lindrel
