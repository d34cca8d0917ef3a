// The check boxes of a list, with empty space above and below.
#pragma once

#include <algorithm>

#include "window/Display.h"
#include "window/Owned.h"

namespace lindrel {

// The height of the rows, in pixels, that leaves space between check boxes of a height.
constexpr int RowHeight(int box_height, UINT dpi) {
    constexpr int kLeast = 300;  // twips
    return std::max(box_height, PixelsOf(kLeast, dpi));
}

// An empty list of pictures that are one pixel wide and this high. Throws SystemFault.
Owned<HIMAGELIST> NoPictures(int height);

// The same pictures in the same order, each in the middle of a picture of this height, which is in pixels and
// not less than their own. Throws SystemFault if Windows cannot draw them.
Owned<HIMAGELIST> InMiddleOf(HIMAGELIST pictures, int height);

}  // namespace lindrel
