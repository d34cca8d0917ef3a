// The check boxes of a list, with empty space above and below.
#pragma once

#include "window/Owned.h"
#include "window/Windows.h"

namespace lindrel {

// The same pictures in the same order, each in the middle of a picture of this height, which is in pixels and
// not less than their own. Throws SystemFault if Windows cannot draw them.
Owned<HIMAGELIST> InMiddleOf(HIMAGELIST pictures, int height);

}  // namespace lindrel
