// Text on the clipboard.
#pragma once

#include <string>

#include "window/Windows.h"

namespace lindrel {

// Both functions wait up to 200 milliseconds for another program that has the clipboard open, and as long for
// the clipboard's owner to answer, and beep if that was in vain.

// The text on the clipboard; empty if there is none, or if one of these programs makes it wait too long.
std::wstring ClipboardText(HWND owner);

// Puts a text on the clipboard, which may be empty. Pictures, sounds and files on it stay; every other format
// (web page, formatted text, bytes) is removed. If one of these programs makes it wait too long, or there is
// no memory, the clipboard stays as it was.
void SetClipboardText(HWND owner, const std::wstring& text);

}  // namespace lindrel
