#include "book/Book.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "book/PerCategory.h"
#include "edit/CheckedRuns.h"
#include "faults/Faults.h"
#include "tests/native/support/BookFromText.h"

namespace lindrel {
namespace {

using Texts = std::vector<std::string>;

void Add(Book& book, int category, const Texts& names) {
    std::vector<NewEntry> entries;
    for (const std::string& name : names) entries.push_back({name, "http://" + name});
    book.AddEntry(category, entries);
}

Texts NamesOf(const Book& book, int category) {
    Texts names;
    for (int p = 1; p <= book.CategoryCounts(category); ++p) {
        const int index = book.IndexOf(category, p);
        names.emplace_back(book.SiteNames(index));
        EXPECT_EQ(book.SiteURLs(index), "http://" + names.back());
    }
    return names;
}

std::vector<int> StartsOf(const Book& book) {
    std::vector<int> starts;
    for (int k = 1; k <= kCategories; ++k) starts.push_back(book.CategoryStarts(k));
    return starts;
}

TEST(BookTest, ANewBookIsEmpty) {
    const Book book;
    EXPECT_TRUE(book.IsEmpty());
    for (int k = 1; k <= kCategories; ++k) {
        EXPECT_EQ(book.CategoryNames(k), "Project" + std::to_string(k));
        EXPECT_EQ(book.CategoryCounts(k), 0);
        EXPECT_EQ(book.CategoryStarts(k), 1);
        EXPECT_EQ(book.Marks.SavedCheckCounts(k), 0);
    }
    EXPECT_EQ(book.EntryCount(), 0);
    EXPECT_EQ(book.Marks.CheckedCount(), 0);
}

TEST(BookTest, AddingToTheLastCategoryGoesToTheEnd) {
    Book book;
    Add(book, 2, {"a", "b"});
    Add(book, 12, {"x"});
    Add(book, 12, {"y", "z"});
    EXPECT_EQ(NamesOf(book, 2), (Texts{"a", "b"}));
    EXPECT_EQ(NamesOf(book, 12), (Texts{"x", "y", "z"}));
    EXPECT_EQ(book.EntryCount(), 5);
}

TEST(BookTest, ABookWithEntriesInTheLastCategoryAloneIsNotEmpty) {
    Book book;
    Add(book, 12, {"x"});
    EXPECT_FALSE(book.IsEmpty());
    Add(book, 3, {"c"});
    EXPECT_EQ(NamesOf(book, 3), Texts{"c"});
    EXPECT_EQ(NamesOf(book, 12), Texts{"x"});
}

TEST(BookTest, DeletingTheLastEntryLeavesOneBlankElementAndThenTheEmptyPath) {
    Book book;
    Add(book, 4, {"a", "b"});
    book.DeleteEntry(4, 1, 2);
    EXPECT_TRUE(book.IsEmpty());
    EXPECT_EQ(book.UpperBound(), 1);
    EXPECT_EQ(book.Entry(1), AddressEntry());
    Add(book, 7, {"c"});
    EXPECT_EQ(book.UpperBound(), 1);
    EXPECT_EQ(NamesOf(book, 7), Texts{"c"});
}

TEST(BookTest, DeletingARunClosesTheGap) {
    Book book;
    Add(book, 1, {"a", "b", "c", "d"});
    Add(book, 2, {"e"});
    book.DeleteEntry(1, 2, 2);
    EXPECT_EQ(NamesOf(book, 1), (Texts{"a", "d"}));
    EXPECT_EQ(NamesOf(book, 2), Texts{"e"});
    EXPECT_EQ(StartsOf(book), (std::vector<int>{1, 3, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4}));
    EXPECT_EQ(book.UpperBound(), 3);
}

TEST(BookTest, EntriesAnywhereAreDeletedAtOnce) {
    Book book;
    Add(book, 2, {"a", "b", "c"});
    Add(book, 5, {"d", "e", "f"});
    Add(book, 12, {"g", "h", "i"});
    book.DeleteEntries({1, 3, 4, 5, 9});
    EXPECT_EQ(NamesOf(book, 2), Texts{"b"});
    EXPECT_EQ(NamesOf(book, 5), Texts{"f"});
    EXPECT_EQ(NamesOf(book, 12), (Texts{"g", "h"}));
    EXPECT_EQ(StartsOf(book), (std::vector<int>{1, 1, 2, 2, 2, 3, 3, 3, 3, 3, 3, 3}));
    EXPECT_EQ(book.UpperBound(), 4);
    book.DeleteEntries({});
    EXPECT_EQ(book.EntryCount(), 4);
    book.DeleteEntries({1, 2, 3, 4});
    EXPECT_TRUE(book.IsEmpty());
    EXPECT_EQ(book.UpperBound(), 1);
    EXPECT_EQ(book.Entry(1), AddressEntry());
}

TEST(BookTest, MovingTowardsTheFrontAppendsAndShiftsTheStartsBetween) {
    Book book;
    Add(book, 2, {"a", "b"});
    Add(book, 3, {"c"});
    Add(book, 5, {"d", "e", "f"});
    book.Marks.SetCheckedCount(3);
    book.MoveEntry(5, 1, 2);
    EXPECT_EQ(NamesOf(book, 2), (Texts{"a", "b", "e"}));
    EXPECT_EQ(NamesOf(book, 3), Texts{"c"});
    EXPECT_EQ(NamesOf(book, 5), (Texts{"d", "f"}));
    EXPECT_EQ(StartsOf(book), (std::vector<int>{1, 1, 4, 5, 5, 7, 7, 7, 7, 7, 7, 7}));
    EXPECT_EQ(book.Marks.CheckedCount(), 0);
}

TEST(BookTest, MovingTowardsTheEndAppendsAndShiftsTheStartsBetween) {
    Book book;
    Add(book, 2, {"a", "b"});
    Add(book, 3, {"c"});
    Add(book, 5, {"d", "e"});
    book.MoveEntry(2, 0, 5);
    EXPECT_EQ(NamesOf(book, 2), Texts{"b"});
    EXPECT_EQ(NamesOf(book, 3), Texts{"c"});
    EXPECT_EQ(NamesOf(book, 5), (Texts{"d", "e", "a"}));
    EXPECT_EQ(StartsOf(book), (std::vector<int>{1, 1, 2, 3, 3, 6, 6, 6, 6, 6, 6, 6}));
}

TEST(BookTest, MovingInABookOfOneChangesCountsAndStartsOnly) {
    Book book;
    Add(book, 5, {"a"});
    book.MoveEntry(5, 0, 2);
    EXPECT_EQ(NamesOf(book, 2), Texts{"a"});
    EXPECT_EQ(book.CategoryCounts(5), 0);
    EXPECT_EQ(book.UpperBound(), 1);
    EXPECT_EQ(StartsOf(book), (std::vector<int>{1, 1, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2}));
}

TEST(BookTest, AFullBookRefusesOneMoreAndStaysAsItWas) {
    Book book;
    book.AddEntry(3, std::vector<NewEntry>(kMostEntries, {"n", "http://n"}));
    EXPECT_EQ(book.EntryCount(), kMostEntries);
    EXPECT_EQ(book.CategoryStarts(12), kMostEntries + 1);  // no fault
    EXPECT_THROW(book.AddEntry(1, {{"m", "http://m"}}), OverflowFault);
    EXPECT_EQ(book.EntryCount(), kMostEntries);
    EXPECT_EQ(book.CategoryCounts(1), 0);
}

TEST(BookTest, BadArgumentsAreFaultsThatChangeNothing) {
    Book book;
    Add(book, 1, {"a", "b"});
    Add(book, 2, {"c"});
    EXPECT_THROW(book.DeleteEntry(0, 1, 1), RangeFault);
    EXPECT_THROW(book.DeleteEntry(13, 1, 1), RangeFault);
    EXPECT_THROW(book.DeleteEntry(1, 0, 1), RangeFault);
    EXPECT_THROW(book.DeleteEntry(1, 2, 2), RangeFault);
    EXPECT_THROW(book.DeleteEntry(1, 1, -1), RangeFault);
    for (const auto& indices : std::vector<std::vector<int>>{{0, 1}, {3, 4}, {1, 1}, {2, 1}})
        EXPECT_THROW(book.DeleteEntries(indices), RangeFault);
    EXPECT_THROW(book.MoveEntry(1, 2, 2), RangeFault);
    EXPECT_THROW(book.MoveEntry(1, 0, 13), RangeFault);
    EXPECT_THROW(book.MoveEntry(1, 0, 1), ArgumentFault);
    EXPECT_THROW(book.AddEntry(13, {{"x", "y"}}), RangeFault);
    EXPECT_THROW(book.SiteNames(0), RangeFault);
    EXPECT_THROW(book.SiteNames(4), RangeFault);
    EXPECT_EQ(NamesOf(book, 1), (Texts{"a", "b"}));
    EXPECT_EQ(NamesOf(book, 2), Texts{"c"});
}

// A book loaded from a file with eleven headers: category 11 keeps the count of the open book.
Book WithTooFewHeaders(int counted) {
    Book open;
    open.AddEntry(11, std::vector<NewEntry>(static_cast<std::size_t>(counted), {"old", "http://old"}));
    std::string file;
    for (int k = 1; k <= 11; ++k) file += "#K\r\n";
    return testing::Read(file + "a\r\nhttp://a\r\nb\r\nhttp://b\r\n", open).TheBook;
}

TEST(BookTest, ABookThatCountsMoreThanItHasIsLeftAloneByFaults) {
    Book book = WithTooFewHeaders(2);
    EXPECT_EQ(book.EntryCount(), 4);
    EXPECT_EQ(book.UpperBound(), 2);
    EXPECT_THROW(book.MoveEntry(11, 0, 12), RangeFault);
    EXPECT_THROW(book.AddEntry(12, {{"m", "http://m"}}), RangeFault);
    EXPECT_THROW(book.RowsOf(12), RangeFault);
    EXPECT_THROW(MoveRuns(book, 11, {{1, 1}}, 12), RangeFault);
    EXPECT_THROW(DeleteRuns(book, 12, {{1, 1}, {2, 1}}), RangeFault);
    EXPECT_THROW(DeleteRuns(book, 11, {{1, 1}, {3, 1}}), RangeFault);
    EXPECT_EQ(book.UpperBound(), 2);
    EXPECT_EQ(NamesOf(book, 11), (Texts{"a", "b"}));
    EXPECT_EQ(StartsOf(book), StartsOf(WithTooFewHeaders(2)));

    Book full = WithTooFewHeaders(kMostEntries);
    EXPECT_EQ(full.EntryCount(), kMostEntries + 2);
    EXPECT_THROW(full.AddEntry(1, {{"m", "http://m"}}), OverflowFault);
    EXPECT_EQ(full.UpperBound(), 2);
}

TEST(BookTest, EntriesAreThoseFromAnIndexOn) {
    Book book;
    Add(book, 1, {"a", "b", "c"});
    const auto entries = book.Entries(2, 2);
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0], book.Entry(2));
    EXPECT_EQ(entries[1], book.Entry(3));
    EXPECT_EQ(book.Entries(1, 3).size(), 3U);
    EXPECT_TRUE(book.Entries(4, 0).empty());
    EXPECT_THROW(book.Entries(0, 1), RangeFault);
    EXPECT_THROW(book.Entries(1, -1), RangeFault);
    EXPECT_THROW(book.Entries(1, 4), RangeFault);
    EXPECT_THROW(book.Entries(4, 1), RangeFault);
}

TEST(BookTest, RowsStayReadableAfterTheBookIsGone) {
    CategoryRows rows;
    {
        Book book;
        Add(book, 1, {"egy", "ketto"});
        rows = book.RowsOf(1);
        book.SetSiteName(1, "mas");
        EXPECT_EQ(book.SiteNames(1), "mas");
    }
    ASSERT_EQ(rows.Entries.size(), 2U);
    EXPECT_EQ(rows.Entries[0].SiteName, "egy");
    EXPECT_EQ(rows.Entries[1].URL, "http://ketto");
}

TEST(BookTest, TheCategoryOfAnIndexIsTheLastThatBeginsNotBehindIt) {
    Book book;
    Add(book, 2, {"a", "b"});
    Add(book, 5, {"c"});
    EXPECT_EQ(book.CategoryOf(1), 2);
    EXPECT_EQ(book.CategoryOf(2), 2);
    EXPECT_EQ(book.CategoryOf(3), 5);
}

}  // namespace
}  // namespace lindrel
