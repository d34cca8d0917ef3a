// The questions before entries are deleted. One has OK and Cancel, the other Yes and No: users press the keys
// of each by habit.
#pragma once

#include "window/Windows.h"

namespace lindrel {

// Whether the selected entry may go.
bool MayDeleteSelected(HWND owner);
// Whether the checked entries, `count` of them, may go.
bool MayDeleteChecked(HWND owner, int count);

}  // namespace lindrel
