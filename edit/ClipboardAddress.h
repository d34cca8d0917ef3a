// The address that the add dialog proposes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lindrel {

// The address in what the clipboard holds: a text with "http:", "www.", "ftp:" or "@" anywhere in it, in
// either letter case, without the blanks around it and completed by "http://" or "mailto:" where that is
// missing. Nothing when it holds none of these. Line breaks count as blanks, for the field has one line.
std::optional<std::wstring> AddressFromClipboard(std::wstring_view text);

}  // namespace lindrel
