#include "find/CheckedHits.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "book/Book.h"
#include "book/CheckMarks.h"
#include "book/EntrySequence.h"
#include "book/PerCategory.h"

namespace lindrel {
namespace {

// Categories 2, 5 and 12 with three entries each: indices 1 to 9.
Book NineEntries() {
    Book book;
    for (const int category : {2, 5, 12}) {
        std::vector<NewEntry> entries;
        for (int i = 1; i <= 3; ++i)
            entries.push_back({"n" + std::to_string(category) + "." + std::to_string(i), "u"});
        book.AddEntry(category, entries);
    }
    return book;
}

std::vector<std::string> NamesOf(const Book& book) {
    std::vector<std::string> names;
    for (int k = 1; k <= kCategories; ++k)
        for (const AddressEntry& entry : book.RowsOf(k).Entries) names.emplace_back(entry.SiteName);
    return names;
}

TEST(CheckedHitsTest, DeletesExactlyTheEntries) {
    Book book = NineEntries();
    DeleteEntries(book, {1, 3, 4, 5, 9});
    EXPECT_EQ(NamesOf(book), (std::vector<std::string>{"n2.2", "n5.3", "n12.1", "n12.2"}));
    EXPECT_EQ(book.CategoryCounts(2), 1);
    EXPECT_EQ(book.CategoryCounts(5), 1);
    EXPECT_EQ(book.CategoryCounts(12), 2);
    EXPECT_EQ(book.EntryCount(), 4);
}

TEST(CheckedHitsTest, DeletingEverythingLeavesAnEmptyBook) {
    Book book = NineEntries();
    DeleteEntries(book, {1, 2, 3, 4, 5, 6, 7, 8, 9});
    EXPECT_TRUE(book.IsEmpty());
    EXPECT_EQ(book.EntryCount(), 0);
    EXPECT_EQ(book.UpperBound(), 1);
}

TEST(CheckedHitsTest, DeletingNothingChangesNothing) {
    Book book = NineEntries();
    DeleteEntries(book, {});
    EXPECT_EQ(NamesOf(book), NamesOf(NineEntries()));
}

TEST(CheckedHitsTest, ChecksExactlyTheEntriesInTheirCategories) {
    Book book = NineEntries();
    book.Marks.Save(1, {4, 5});
    book.Marks.Save(5, {1, 2, 3});
    book.Marks.SetCheckedCount(3);
    CheckOnly(book, {1, 3, 5}, 2);

    CheckMarks expected;
    expected.Save(2, {1, 3});
    expected.Save(5, {2});
    expected.SetCheckedCount(2);
    EXPECT_EQ(book.Marks, expected);
}

TEST(CheckedHitsTest, TheShownCategoryMayHaveNoneOfThem) {
    Book book = NineEntries();
    book.Marks.SetCheckedCount(1);
    CheckOnly(book, {9}, 5);
    CheckMarks expected;
    expected.Save(12, {3});
    EXPECT_EQ(book.Marks, expected);
}

TEST(CheckedHitsTest, NoneClearsEveryCheckMark) {
    Book book = NineEntries();
    book.Marks.Save(2, {2});
    book.Marks.SetCheckedCount(1);
    CheckOnly(book, {}, 2);
    EXPECT_EQ(book.Marks, CheckMarks());
}

}  // namespace
}  // namespace lindrel
