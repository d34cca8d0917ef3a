// The headers of a book file in which more than twelve lines begin with "#". Names and addresses are written
// as they stand, so such a line may also be half of an entry; the lines around it have to tell.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "book/PerCategory.h"

namespace lindrel {

inline constexpr char kHeaderMark = '#';

// Whether a line begins with the mark.
inline bool IsMarked(std::string_view line) {
    return line.starts_with(kHeaderMark);
}

// Whether a text contains "://", or begins with "mailto:" or "www." in either case.
bool LooksLikeAddress(std::string_view text);

// Whether somebody may have stored the text as an address, also without a scheme: "index.hu", "C:\lap.htm",
// or nothing at all.
bool MayBeAddress(std::string_view text);

enum class HeaderChoice { None, One, Several };

// Lines are 0-based and ascend. There are some only if there is exactly one choice.
struct ChosenHeaders {
    HeaderChoice Choice = HeaderChoice::None;
    std::array<std::size_t, kCategories> Lines{};
    // Marked lines that are no headers by this choice, but may have been meant so: names, and addresses whose
    // name may be an address. An address without a scheme behind a name with the mark is read so amiss.
    std::vector<std::size_t> Doubtful{};
};

// Looks for the choices of twelve marked lines, the first line among them, that leave nothing but whole pairs
// of a name and an address between them. A name may bear the mark if its address looks like one, an address
// if its name does not.
ChosenHeaders ChooseHeaders(const std::vector<std::string_view>& lines);

}  // namespace lindrel
