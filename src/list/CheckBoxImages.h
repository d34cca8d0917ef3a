// The check boxes of a list, with air above and below.
#pragma once

#include "window/Owned.h"
#include "window/Windows.h"

namespace lindrel {

// The same pictures in the same order, each in the middle of a higher one. `height` is in pixels and not less
// than that of the pictures. Throws SystemFault when the system cannot.
Owned<HIMAGELIST> InMiddleOf(HIMAGELIST pictures, int height);

}  // namespace lindrel
