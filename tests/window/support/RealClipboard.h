// The real clipboard, as other programs use it.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>

#include "window/Windows.h"

namespace lindrel::testing {

// Empties it and puts a text on it.
void PutClipboardText(const std::wstring& text);
// Empties it and puts bytes of some form on it that is no text.
void PutClipboardBytes(UINT format, const std::string& bytes);
// Empties it and puts several of them on it, in the order of their numbers.
void PutClipboardForms(const std::map<UINT, std::string>& forms);
void EmptyTheClipboard();
// Its text; nothing when it holds none.
std::optional<std::wstring> TextOnClipboard();
// All forms on it, with those that the system makes of others; and the bytes of one.
std::set<UINT> FormsOnClipboard();
std::string BytesOnClipboard(UINT format);

}  // namespace lindrel::testing
