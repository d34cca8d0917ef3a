// Message boxes.
#pragma once

#include <string>

#include "window/Windows.h"

namespace lindrel {

inline constexpr wchar_t kApplicationTitle[] = L"Lindrel";
inline constexpr wchar_t kErrorTitle[] = L"Hiba";

// Shows a message box over the middle of its owner and returns the button pressed (IDOK, IDYES, ...). `style`
// is a combination of MB_ flags. Throws SystemFault if the box cannot be shown.
int MsgBox(HWND owner, const std::wstring& text, UINT style = MB_OK,
           const std::wstring& title = kApplicationTitle);

}  // namespace lindrel
