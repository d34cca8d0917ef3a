// The book: twelve named categories with their entries, and the check marks of the address list. The entries
// of all categories are stored one after the other; category c has the indices CategoryStarts(c) to
// CategoryStarts(c) + CategoryCounts(c) - 1. Counts have 16 bits, so a book holds at most 32,767 entries.
//
// A category is 1..12, an index (in the whole book) and a position (in its category) are 1-based. Every
// function that takes a category throws RangeFault for any other. A function that throws leaves the book
// unchanged.
//
// A book that was loaded from a file with too few headers may count entries that are not stored. Functions
// that would need one of those throw RangeFault; see StoredCount() and IsWhole().
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "book/CheckMarks.h"
#include "book/PerCategory.h"
#include "book/TextStore.h"

namespace lindrel {

inline constexpr int kMostEntries = 32767;

// An entry to be added to a book.
struct NewEntry {
    std::string SiteName;  // book text
    std::string URL;       // book text
    bool operator==(const NewEntry&) const = default;
};

// An entry of a book. The texts belong to the book's TextStore.
struct AddressEntry {
    std::string_view SiteName;
    std::string_view URL;
    bool operator==(const AddressEntry&) const = default;
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
    bool IsEmpty() const { return EntryCount() == 0; }
    // How many of the entries that a category counts are stored: the first ones.
    int StoredCount(int category) const;
    // Whether all entries that the book counts are stored.
    bool IsWhole() const { return EntryCount() <= UpperBound(); }
    // Number of stored entries. Not a test for an empty book, which may still store a blank entry, or those
    // of the book before.
    int UpperBound() const { return static_cast<int>(entries_.size()); }

    // The entry at an index 1..UpperBound() (RangeFault otherwise), and its texts as book text. References
    // are valid until the book changes, texts for as long as somebody holds Texts().
    const AddressEntry& Entry(int index) const { return entries_[Slot(index)]; }
    std::string_view SiteNames(int index) const { return Entry(index).SiteName; }
    std::string_view SiteURLs(int index) const { return Entry(index).URL; }
    // `count` entries from an index on, valid until the book changes. Throws RangeFault unless all of them
    // are stored; no entries (count 0) may be asked for at any index.
    std::span<const AddressEntry> Entries(int index, int count) const;
    // A copy of a category's stored entries.
    CategoryRows RowsOf(int category) const;
    std::shared_ptr<const TextStore> Texts() const { return texts_; }

    // Index of the entry at a position of a category. The position is not checked.
    int IndexOf(int category, int position) const { return starts_(category) + position - 1; }
    // The category of an index: the last one that starts at or before it.
    int CategoryOf(int index) const;

    void SetCategoryName(int category, std::string_view name) { names_(category) = name; }
    // The index is 1..UpperBound() (RangeFault otherwise).
    void SetSiteName(int index, std::string_view name);
    void SetSiteURL(int index, std::string_view url);

    // Appends entries to a category, in their order. Throws OverflowFault if the book would have more than
    // 32,767.
    void AddEntry(int category, const std::vector<NewEntry>& entries);
    // Removes `count` entries of a category from a position on. Throws RangeFault if the category does not
    // have them all.
    void DeleteEntry(int category, int position, int count);
    // Removes the entries at these indices in one pass over the book. Throws RangeFault if the indices do not
    // ascend or are outside 1..EntryCount().
    void DeleteEntries(const std::vector<int>& indices);
    // Moves the entry at an offset (0-based) of a category to the end of another one and sets
    // Marks.CheckedCount() to 0. Throws RangeFault for an offset that the source does not have,
    // ArgumentFault if source and destination are the same.
    void MoveEntry(int source, int offset, int destination);

    CheckMarks Marks;

  private:
    friend class BookReader;
    std::size_t Slot(int index) const;
    void RecomputeStarts();

    PerCategory<std::string> names_;
    PerCategory<std::int16_t> counts_;
    PerCategory<int> starts_;
    std::vector<AddressEntry> entries_;
    std::shared_ptr<TextStore> texts_ = std::make_shared<TextStore>();  // shared with copies of the book
};

}  // namespace lindrel
