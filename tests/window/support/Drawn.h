// What something looks like when it is drawn.
#pragma once

#include <functional>
#include <vector>

#include "window/Windows.h"

namespace lindrel::testing {

// The colours of a square of `side` by `side` pixels after something was drawn on it, line by line from the
// top.
std::vector<COLORREF> Drawn(int side, const std::function<void(HDC canvas)>& draw);

}  // namespace lindrel::testing
