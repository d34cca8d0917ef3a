// The headers of a book file in which more than twelve lines start with "#". Names and addresses are not
// escaped, so such a line may also be half of an entry; the lines around it have to tell.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "book/PerCategory.h"

namespace lindrel {

inline constexpr char kHeaderPrefix = '#';

inline bool HasHeaderPrefix(std::string_view line) {
    return line.starts_with(kHeaderPrefix);
}

// Whether a text contains "://", or starts with "mailto:" or "www." in either case.
bool LooksLikeAddress(std::string_view text);

// Whether somebody may have stored the text as an address, even without a scheme: "index.hu", "C:\lap.htm",
// or an empty text.
bool MayBeAddress(std::string_view text);

enum class HeaderChoice { None, One, Several };

// Lines are 0-based and ascend. Without exactly one choice, Lines are zeros and Doubtful is empty.
struct ChosenHeaders {
    HeaderChoice Choice = HeaderChoice::None;
    std::array<std::size_t, kCategories> Lines{};
    // Lines with the # prefix that are taken for names or addresses but may be headers: every such name, and
    // every such address whose name may itself be an address. An entry "#a" with an address such as
    // "localhost" is read as a header and a name without being reported here.
    std::vector<std::size_t> Doubtful{};
};

// Looks for the choices of twelve lines with the # prefix, the first line among them, that leave only whole
// pairs of a name and an address in between. A name may have the prefix if its address looks like one
// (LooksLikeAddress), an address may have it if its name does not.
ChosenHeaders ChooseHeaders(const std::vector<std::string_view>& lines);

}  // namespace lindrel
