// What the user is asked before entries are deleted. Each question has its own buttons, OK and Cancel or Yes
// and No: hands that know them press the right key unread.
#pragma once

#include "controls/Windows.h"

namespace lindrel {

// Whether the selected entry may go.
bool MayDeleteSelected(HWND owner);
// Whether the checked entries, `count` of them, may go.
bool MayDeleteChecked(HWND owner, int count);

}  // namespace lindrel
