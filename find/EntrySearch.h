// Searching the book: all categories at once for the find dialog, and one category step by step for the
// search box. Only site names are searched; letter case aside, so that "ű" finds "Ű". What the user types may
// hold characters that no book has; then nothing is found.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "book/Book.h"
#include "book/BookText.h"
#include "book/EntrySequence.h"

namespace lindrel {

// An entry that a search found. Its index names it for as long as no entry is added, moved or deleted.
struct Hit {
    int Index = 0;     // in the book, 1-based
    int Category = 0;  // 1..12
    AddressEntry Entry;
    bool operator==(const Hit&) const = default;
};

// The hits of one search, in book order. They stay readable whatever happens to the book afterwards.
struct Hits {
    std::vector<Hit> Items;
    std::shared_ptr<const TextStore> Texts;  // keeps what the entries point to
};

// The entries whose site name contains `what` and, unless `ending` is empty, whose address carries the ending
// (typed without its dot). Empty `what` is in every name.
Hits FindEntries(const Book& book, std::wstring_view what, std::wstring_view ending);

// Whether an address contains an ending (with its dot) after its scheme, or after "http://www." if it begins
// with "http://www". The path is searched too: users find pages by endings in it.
bool CarriesEnding(std::string_view url, const CaselessNeedle& ending);

// One step of the search in a category: looks from the 0-based position on and sets it behind the first entry
// whose name contains the text, so that it is that entry's 1-based position; 0 when there is none.
void FindInCategory(const Book& book, std::wstring_view text, int category, std::int16_t& position);

}  // namespace lindrel
