// Searching the book: in all categories for the find dialog, and step by step in one category for the search
// box. Only site names are searched, case-insensitively also for accented letters. Text with characters that
// a book cannot hold is not found.
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

// The entries whose site name contains `what` (any name, if that is empty) and whose address carries the
// ending, which is given without its dot and may be empty.
Hits FindEntries(const Book& book, std::wstring_view what, std::wstring_view ending);

// Whether an address contains an ending (with its dot) from its fifth character on, which is past the scheme,
// or from the twelfth on, past the dot, if it begins with "http://www". The path is searched too: users find
// pages by it.
bool CarriesEnding(std::string_view url, const CaselessNeedle& ending);

// One step of the search in a category: finds the first entry after a position whose name contains the text,
// and sets the position (1-based) to it, or to 0 if there is none. Start with position 0.
void FindInCategory(const Book& book, std::wstring_view text, int category, std::int16_t& position);

}  // namespace lindrel
