// The real clipboard, as other programs use it.
#pragma once

#include <optional>
#include <string>

#include "controls/Windows.h"

namespace lindrel::testing {

// Empties it and puts a text on it.
void PutClipboardText(const std::wstring& text);
// Empties it and puts bytes of some form on it that is no text.
void PutClipboardBytes(UINT format, const std::string& bytes);
void EmptyTheClipboard();
// Its text; nothing when it holds none.
std::optional<std::wstring> TextOnClipboard();
bool ClipboardHolds(UINT format);

}  // namespace lindrel::testing
