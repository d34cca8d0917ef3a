// Text on the clipboard.
#pragma once

#include <string>

#include "controls/Windows.h"

namespace lindrel {

// The clipboard's text; empty when it holds none, or when another program keeps it open.
std::wstring ClipboardText(HWND owner);

// Replaces the text on the clipboard, with an empty one too; what is there in other formats stays. When
// another program keeps the clipboard open, nothing changes; the user sees that at the next paste.
void SetClipboardText(HWND owner, const std::wstring& text);

}  // namespace lindrel
