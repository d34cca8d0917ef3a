// The address that the add dialog proposes when it opens.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lindrel {

// The address in a text from the clipboard: the whole text without blanks at its ends, with a blank for each
// line break and with "http://" or "mailto:" put in front where it is missing. nullopt if the text contains
// none of "http:", "https:", "www.", "ftp:" and "@" (in either case).
std::optional<std::wstring> AddressFromClipboard(std::wstring_view text);

}  // namespace lindrel
