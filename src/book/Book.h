// The book: twelve named categories with their entries, and the check marks of the address list. The entries
// of all categories are stored one after the other; category c has the indices CategoryStarts(c) to
// CategoryStarts(c) + CategoryCounts(c) - 1. Numbers are 1-based unless a comment says otherwise. Counts have
// 16 bits, so a book holds at most 32,767 entries.
//
// A function that throws leaves the book unchanged.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "book/CheckMarks.h"
#include "book/EntrySequence.h"
#include "book/PerCategory.h"

namespace lindrel {

inline constexpr int kMostEntries = 32767;

// An entry to be added to a book.
struct NewEntry {
    std::string SiteName;  // book text
    std::string URL;       // book text
    bool operator==(const NewEntry&) const = default;
};

// A copy of a category's entries, which stays valid when the book changes.
struct CategoryRows {
    std::vector<AddressEntry> Entries;
    std::shared_ptr<const TextStore> Texts;  // owns what the entries point to
};

class Book {
  public:
    Book();

    // Names the categories "Project1" to "Project12" and drops all entries and check marks. The memory of the
    // entries is kept until the next load or addition.
    void Reset();

    const std::string& CategoryNames(int category) const { return names_(category); }
    std::int16_t CategoryCounts(int category) const { return counts_(category); }
    // 1..32,768: an empty category at the end of a full book starts one past the last entry.
    int CategoryStarts(int category) const { return starts_(category); }
    // Entries in the whole book, 0..32,767; more only in a book that was loaded with too few headers.
    int EntryCount() const { return starts_(kCategories) + counts_(kCategories) - 1; }
    bool IsEmpty() const { return starts_(kCategories) == 1 && counts_(kCategories) == 0; }

    // The texts of an entry, as book text. The index is 1..UpperBound() (RangeFault otherwise). The views are
    // valid until the book changes, and longer only while somebody keeps Texts().
    std::string_view SiteNames(int index) const { return entries_.At(index).SiteName; }
    std::string_view SiteURLs(int index) const { return entries_.At(index).URL; }
    const AddressEntry& Entry(int index) const { return entries_.At(index); }
    // `count` entries from an index on, for going through many of them. RangeFault if they are not all there.
    EntryParts Entries(int index, int count) const { return entries_.Parts(index, count); }
    std::shared_ptr<const TextStore> Texts() const { return entries_.SharedTexts(); }
    // Number of elements that are stored. Not a test for an empty book: that may still have a blank element,
    // or those of the book before.
    int UpperBound() const { return entries_.Size(); }

    // Index of the entry at a position of a category. Only the category is checked.
    int IndexOf(int category, int position) const { return starts_(category) + position - 1; }
    // The category of an index: the last one that starts at or before it.
    int CategoryOf(int index) const;
    CategoryRows RowsOf(int category) const;

    void SetCategoryName(int category, std::string_view name) { names_(category) = name; }
    void SetSiteName(int index, std::string_view name);
    void SetSiteURL(int index, std::string_view url);

    // The next three also throw RangeFault for a category outside 1..12, and for one that counts entries
    // which the book does not have because it was loaded with too few headers.

    // Appends entries to a category, in their order. Throws OverflowFault if the book or the category would
    // have more than 32,767.
    void AddEntry(int category, const std::vector<NewEntry>& entries);
    // Removes `count` entries of a category from a position on. Throws RangeFault if the category does not
    // have them all.
    void DeleteEntry(int category, int position, int count);
    // Moves the entry at an offset of a category, 0-based unlike the positions above, to the end of another
    // one and sets Marks.CheckedCount() to 0. Throws RangeFault for an offset that the source does not have,
    // ArgumentFault when source and destination are the same.
    void MoveEntry(int source, int offset, int destination);

    CheckMarks Marks;

  private:
    friend class BookReader;
    void RecomputeStarts();

    PerCategory<std::string> names_;
    PerCategory<std::int16_t> counts_;
    PerCategory<int> starts_;
    EntrySequence entries_;
};

}  // namespace lindrel
