// Makes the controls of a window that has no dialog template.
#pragma once

#include "controls/Windows.h"

namespace lindrel {

// A visible child window, without a size until it is placed. `style` and `extended_style` are the WS_ values
// and those of its class beside WS_CHILD and WS_VISIBLE. Throws std::bad_alloc when the system cannot make
// it.
HWND CreateControl(HWND parent, const wchar_t* window_class, const wchar_t* text, DWORD style, int id,
                   DWORD extended_style = 0);

}  // namespace lindrel
