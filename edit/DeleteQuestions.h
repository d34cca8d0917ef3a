// What the user is asked before entries are deleted. The two questions differ in their buttons (intended).
#pragma once

#include "controls/Windows.h"

namespace lindrel {

// Whether the selected entry may go.
bool MayDeleteSelected(HWND owner);
// Whether the checked entries, `count` of them, may go.
bool MayDeleteChecked(HWND owner, int count);

}  // namespace lindrel
