// Text on the clipboard.
#pragma once

#include <string>

#include "window/Windows.h"

namespace lindrel {

// Both wait up to 200 milliseconds for a program that has the clipboard open, or that has promised what is on
// it.

// The clipboard's text; empty when it holds none, or when that program does not let go or answer.
std::wstring ClipboardText(HWND owner);

// Puts a text on the clipboard, an empty one too. Pictures, sounds and files on it stay; every other form of
// an older text goes (web page, formatted text, bytes). When that program does not let go or answer, or
// memory is short, nothing changes; the user sees that at the next paste.
void SetClipboardText(HWND owner, const std::wstring& text);

}  // namespace lindrel
