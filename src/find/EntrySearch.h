// Searching the book: in all categories for the find dialog, and step by step in one category for the search
// box. Only site names are searched, in either case, also of accented letters. Text with a character that a
// book cannot hold is never found.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "book/Book.h"
#include "text/BookText.h"

namespace lindrel {

// An entry that was found. Its index is valid until an entry is added, moved or deleted.
struct Hit {
    int Index = 0;     // in the book, 1-based
    int Category = 0;  // 1..12
    AddressEntry Entry;
    bool operator==(const Hit&) const = default;
};

// The hits of a search, in the order of the book. They stay valid when the book changes.
struct Hits {
    std::vector<Hit> Items;
    std::shared_ptr<const TextStore> Texts;  // owns what the entries point to
};

// The entries whose site name contains `what` (any name if that is empty) and whose address carries the
// ending, which is given without its dot and may be empty.
Hits FindEntries(const Book& book, std::wstring_view what, std::wstring_view ending);

// Whether an address contains an ending, given with its dot, from its fifth character on, or from the twelfth
// on if it starts with "http://www" in either case. That skips the scheme and "www."; the path is searched
// too, since users find pages by it.
bool CarriesEnding(std::string_view url, const CaselessNeedle& ending);

// One step of the search in a category: sets the position (1-based) to the first entry after it whose name
// contains the text, or to 0 if there is none. Start with 0. Throws RangeFault for a category outside 1..12
// and leaves the position unchanged then.
void FindInCategory(const Book& book, std::wstring_view text, int category, std::int16_t& position);

}  // namespace lindrel
