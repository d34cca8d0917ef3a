// The book: twelve named categories, each with an ordered run of entries, and the check marks that the
// windows keep for it. The entries of all categories stand in one sequence, category 1's first; category c
// owns the indices CategoryStarts(c) .. CategoryStarts(c) + CategoryCounts(c) - 1. All numbers are 1-based.
// Counts and indices are 16-bit, so a book holds at most 32,767 entries, wherever they lie.
//
// Every routine that changes the book either does its whole work or throws and leaves the book as it was.
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

// A copy of one category's rows that stays readable whatever happens to the book afterwards.
struct CategoryRows {
    std::vector<AddressEntry> Entries;
    std::shared_ptr<const TextStore> Texts;  // keeps what the entries point to
};

class Book {
  public:
    Book();

    // The names "Project1" to "Project12", no entries; the texts of the entry sequence stay until the next
    // load.
    void Reset();

    const std::string& CategoryNames(int category) const { return names_(category); }
    std::int16_t CategoryCounts(int category) const { return counts_(category); }
    // 1..32,768: the start of an empty category behind a full book is one past the last entry.
    int CategoryStarts(int category) const { return starts_(category); }
    // Number of entries in the whole book, 0..32,767 (more only in a book loaded with too few headers).
    int EntryCount() const { return starts_(kCategories) + counts_(kCategories) - 1; }
    bool IsEmpty() const { return starts_(kCategories) == 1 && counts_(kCategories) == 0; }

    // Texts of the entry at an index, 1..UpperBound(); RangeFault outside it. The views hold until the text
    // of that entry changes or the book is replaced.
    std::string_view SiteNames(int index) const { return entries_.At(index).SiteName; }
    std::string_view SiteURLs(int index) const { return entries_.At(index).URL; }
    // Both texts. A copy of them stays readable whatever happens to the book while Texts() is kept.
    const AddressEntry& Entry(int index) const { return entries_.At(index); }
    std::shared_ptr<const TextStore> Texts() const { return entries_.SharedTexts(); }
    // Size of the entry sequence. Never decide emptiness by it: a book without entries keeps one blank
    // element, or what a larger book left behind.
    int UpperBound() const { return entries_.Size(); }

    // Index of the entry at a 1-based position of a category; nothing is checked but the category.
    int IndexOf(int category, int position) const { return starts_(category) + position - 1; }
    // The last category whose start is not greater than the index.
    int CategoryOf(int index) const;
    CategoryRows RowsOf(int category) const;

    void SetCategoryName(int category, std::string_view name) { names_(category) = name; }
    void SetSiteName(int index, std::string_view name);
    void SetSiteURL(int index, std::string_view url);

    // The next three throw RangeFault for a category outside 1..12 or one that counts entries which the book
    // does not have (loaded with too few headers). Whatever fault they throw, the book is as it was.

    // Appends entries at the end of a category, in their order. Throws OverflowFault when the book or the
    // category would hold more than 32,767.
    void AddEntry(int category, const std::vector<NewEntry>& entries);
    // Removes `count` entries of a category from the 1-based position on. Throws RangeFault when they do not
    // all lie in the category.
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
