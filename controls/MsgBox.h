// Message boxes.
#pragma once

#include <string>

#include "controls/Windows.h"

namespace lindrel {

inline constexpr wchar_t kApplicationTitle[] = L"Lindrel";
inline constexpr wchar_t kErrorTitle[] = L"Hiba";

// Shows a modal box over its owner and returns the button pressed (IDOK, IDYES, ...). A box without a title
// of its own carries the application's. `style` is a sum of MB_ values.
int MsgBox(HWND owner, const std::wstring& text, UINT style = MB_OK,
           const std::wstring& title = kApplicationTitle);

}  // namespace lindrel
