#include "book/Book.h"

#include <algorithm>
#include <cstddef>

#include "faults/Faults.h"

namespace lindrel {

Book::Book() {
    Reset();
}

void Book::Reset() {
    for (int k = 1; k <= kCategories; ++k) {
        starts_(k) = 1;
        counts_(k) = 0;
        names_(k) = "Project" + std::to_string(k);
    }
    Marks.Clear();
}

int Book::CategoryOf(int index) const {
    int category = 1;
    for (int k = 2; k <= kCategories; ++k)
        if (starts_(k) <= index) category = k;
    return category;
}

CategoryRows Book::RowsOf(int category) const {
    return {entries_.Copy(starts_(category), counts_(category)), entries_.SharedTexts()};
}

void Book::SetSiteName(int index, std::string_view name) {
    AddressEntry& entry = entries_.At(index);
    entry.SiteName = entries_.Texts().Keep(name);
}

void Book::SetSiteURL(int index, std::string_view url) {
    AddressEntry& entry = entries_.At(index);
    entry.URL = entries_.Texts().Keep(url);
}

void Book::AddEntry(int category, const std::vector<NewEntry>& entries) {
    const int place = starts_(category) + counts_(category);
    const int room = std::max(0, kMostEntries - (IsEmpty() ? 0 : EntryCount()));
    if (entries.size() > static_cast<std::size_t>(room)) throw OverflowFault();
    const int added = static_cast<int>(entries.size());
    if (counts_(category) > kMostEntries - added) throw OverflowFault();

    if (IsEmpty()) entries_.Recreate(0);
    // The texts first: if memory runs out, the book is still unchanged.
    std::vector<AddressEntry> kept;
    kept.reserve(entries.size());
    for (const NewEntry& entry : entries)
        kept.push_back({entries_.Texts().Keep(entry.SiteName), entries_.Texts().Keep(entry.URL)});
    entries_.Insert(place, kept);
    counts_(category) = static_cast<std::int16_t>(counts_(category) + added);
    for (int k = category + 1; k <= kCategories; ++k) starts_(k) += added;
}

void Book::DeleteEntry(int category, int position, int count) {
    if (position < 1 || count < 0 || position - 1 > counts_(category) - count) throw RangeFault();
    const int index = IndexOf(category, position);
    if (index == 1 && count == entries_.Size())
        entries_.Recreate(1);
    else
        entries_.Remove(index, count);
    for (int k = category + 1; k <= kCategories; ++k) starts_(k) -= count;
    counts_(category) = static_cast<std::int16_t>(counts_(category) - count);
}

void Book::MoveEntry(int source, int offset, int destination) {
    if (offset < 0 || offset >= counts_(source)) throw RangeFault();
    const int behind = starts_(destination) + counts_(destination);
    if (source == destination) throw ArgumentFault();

    const int from = starts_(source) + offset;
    const AddressEntry moved = entries_.At(from);
    const int to = source > destination ? behind : behind - 1;
    // A book loaded with too few headers may count entries that it does not have.
    if (to < 1 || to > entries_.Size()) throw RangeFault();
    entries_.Remove(from, 1);
    entries_.Insert(to, {&moved, 1});

    counts_(source) = static_cast<std::int16_t>(counts_(source) - 1);
    counts_(destination) = static_cast<std::int16_t>(counts_(destination) + 1);
    if (source > destination)
        for (int k = destination + 1; k <= source; ++k) starts_(k) += 1;
    else
        for (int k = source + 1; k <= destination; ++k) starts_(k) -= 1;
    Marks.SetCheckedCount(0);
}

void Book::RecomputeStarts() {
    starts_(1) = 1;
    for (int k = 2; k <= kCategories; ++k) starts_(k) = starts_(k - 1) + counts_(k - 1);
}

}  // namespace lindrel
