// The address that the add dialog proposes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lindrel {

// The address in a text from the clipboard, or nothing if the text has none of "http:", "https:", "www.",
// "ftp:" and "@" in it (in either case). The address is the whole text without blanks at its ends, with line
// breaks replaced by blanks and with "http://" or "mailto:" put in front where it is missing.
std::optional<std::wstring> AddressFromClipboard(std::wstring_view text);

}  // namespace lindrel
