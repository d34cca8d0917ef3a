// Text on the clipboard.
#pragma once

#include <string>

#include "controls/Windows.h"

namespace lindrel {

// The clipboard's text; empty when it holds none, or when another program keeps it open.
std::wstring ClipboardText(HWND owner);

// Puts a text, which may be empty, on the clipboard in the place of the text there; what it holds in other
// forms stays. When another program keeps it open the clipboard stays as it is; the user sees that at the
// next paste.
void SetClipboardText(HWND owner, const std::wstring& text);

}  // namespace lindrel
