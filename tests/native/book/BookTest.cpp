#include "book/Book.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "book/CheckMarks.h"
#include "book/PerCategory.h"
#include "edit/CheckedRuns.h"
#include "faults/Faults.h"
#include "tests/native/support/BookFromText.h"

namespace lindrel {
namespace {

// A name of one letter for each entry.
void Add(Book& book, int category, const std::string& letters) {
    std::vector<NewEntry> entries;
    for (const char letter : letters) entries.push_back({{letter}, std::string("http://") + letter});
    book.AddEntry(category, entries);
}

Book BookOf(const std::vector<std::pair<int, std::string>>& categories) {
    Book book;
    for (const auto& [category, letters] : categories) Add(book, category, letters);
    return book;
}

// The names of each category that has any: "2:ab 5:c". Checks everything else that follows from them.
std::string Shown(const Book& book) {
    std::string shown;
    int start = 1;
    for (int k = 1; k <= kCategories; ++k) {
        EXPECT_EQ(book.CategoryStarts(k), start);
        const CategoryRows rows = book.RowsOf(k);
        EXPECT_EQ(rows.Entries.size(), static_cast<std::size_t>(book.CategoryCounts(k)));
        if (!rows.Entries.empty()) shown += (shown.empty() ? "" : " ") + std::to_string(k) + ":";
        for (const AddressEntry& entry : rows.Entries) {
            shown += entry.SiteName;
            EXPECT_EQ(entry.URL, "http://" + std::string(entry.SiteName));
            EXPECT_EQ(book.Entry(start), entry);
            EXPECT_EQ(book.CategoryOf(start++), k);
        }
    }
    EXPECT_EQ(book.EntryCount(), start - 1);
    EXPECT_EQ(book.IsEmpty(), start == 1);
    EXPECT_TRUE(start == 1 || book.UpperBound() == start - 1);
    return shown;
}

TEST(BookTest, ANewBookIsEmpty) {
    const Book book;
    EXPECT_EQ(Shown(book), "");
    for (int k = 1; k <= kCategories; ++k) EXPECT_EQ(book.CategoryNames(k), "Project" + std::to_string(k));
    EXPECT_EQ(book.Marks, CheckMarks());
}

TEST(BookTest, EntriesAreAddedAtTheEndOfTheirCategory) {
    Book book = BookOf({{12, "x"}});
    EXPECT_EQ(Shown(book), "12:x");
    Add(book, 3, "c");
    Add(book, 2, "ab");
    Add(book, 12, "yz");
    EXPECT_EQ(Shown(book), "2:ab 3:c 12:xyz");
}

TEST(BookTest, DeletingTheLastEntryLeavesOneBlankElementAndThenTheEmptyPath) {
    Book book = BookOf({{4, "ab"}});
    book.DeleteEntry(4, 1, 2);
    EXPECT_EQ(Shown(book), "");
    EXPECT_EQ(book.UpperBound(), 1);
    EXPECT_EQ(book.Entry(1), AddressEntry());
    Add(book, 7, "c");
    EXPECT_EQ(Shown(book), "7:c");
}

TEST(BookTest, DeletingARunClosesTheGap) {
    Book book = BookOf({{1, "abcd"}, {2, "e"}});
    book.DeleteEntry(1, 2, 2);
    EXPECT_EQ(Shown(book), "1:ad 2:e");
}

TEST(BookTest, EntriesAnywhereAreDeletedAtOnce) {
    Book book = BookOf({{2, "abc"}, {5, "def"}, {12, "ghi"}});
    book.DeleteEntries({1, 3, 4, 5, 9});
    EXPECT_EQ(Shown(book), "2:b 5:f 12:gh");
    book.DeleteEntries({});
    EXPECT_EQ(Shown(book), "2:b 5:f 12:gh");
    book.DeleteEntries({1, 2, 3, 4});
    EXPECT_EQ(Shown(book), "");
    EXPECT_EQ(book.UpperBound(), 1);
    EXPECT_EQ(book.Entry(1), AddressEntry());
}

TEST(BookTest, AMovedEntryGoesToTheEndOfTheOtherCategory) {
    Book book = BookOf({{2, "ab"}, {3, "c"}, {5, "def"}});
    book.Marks.SetCheckedCount(3);
    book.MoveEntry(5, 1, 2);
    EXPECT_EQ(Shown(book), "2:abe 3:c 5:df");
    EXPECT_EQ(book.Marks.CheckedCount(), 0);
    book.MoveEntry(2, 0, 5);
    EXPECT_EQ(Shown(book), "2:be 3:c 5:dfa");
    Book one = BookOf({{5, "a"}});
    one.MoveEntry(5, 0, 2);
    EXPECT_EQ(Shown(one), "2:a");
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
    Book book = BookOf({{1, "ab"}, {2, "c"}});
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
    EXPECT_THROW(book.SetSiteName(4, "x"), RangeFault);
    EXPECT_THROW(book.SetSiteURL(0, "x"), RangeFault);
    EXPECT_THROW(book.SiteNames(0), RangeFault);
    EXPECT_THROW(book.SiteNames(4), RangeFault);
    EXPECT_EQ(Shown(book), "1:ab 2:c");
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
    EXPECT_THROW(MoveRuns(book, 11, {{1, 1}}, 12), RangeFault);
    EXPECT_THROW(DeleteRuns(book, 12, {{1, 1}, {2, 1}}), RangeFault);
    EXPECT_THROW(DeleteRuns(book, 11, {{1, 1}, {3, 1}}), RangeFault);
    EXPECT_EQ(book.UpperBound(), 2);
    EXPECT_EQ(book.Entry(1), (AddressEntry{"a", "http://a"}));
    EXPECT_EQ(book.Entry(2), (AddressEntry{"b", "http://b"}));
    for (int k = 1; k <= kCategories; ++k)
        EXPECT_EQ(book.CategoryStarts(k), WithTooFewHeaders(2).CategoryStarts(k)) << k;

    Book full = WithTooFewHeaders(kMostEntries);
    EXPECT_EQ(full.EntryCount(), kMostEntries + 2);
    EXPECT_THROW(full.AddEntry(1, {{"m", "http://m"}}), OverflowFault);
    EXPECT_EQ(full.UpperBound(), 2);
}

TEST(BookTest, ABookThatCountsMoreThanItHasKnowsWhatItHas) {
    const Book book = WithTooFewHeaders(5);
    EXPECT_FALSE(book.IsWhole());
    for (int k = 1; k <= kCategories; ++k) {
        const std::size_t stored = k == 11 ? 2 : 0;
        EXPECT_EQ(book.StoredCount(k), static_cast<int>(stored)) << k;
        EXPECT_EQ(book.RowsOf(k).Entries.size(), stored) << k;
    }
    EXPECT_EQ(book.RowsOf(11).Entries, (std::vector<AddressEntry>{{"a", "http://a"}, {"b", "http://b"}}));
    EXPECT_THROW(book.StoredCount(13), RangeFault);

    EXPECT_TRUE(Book().IsWhole());
    const Book whole = BookOf({{1, "abc"}, {3, "d"}});
    EXPECT_TRUE(whole.IsWhole());
    for (int k = 1; k <= kCategories; ++k) EXPECT_EQ(whole.StoredCount(k), whole.CategoryCounts(k)) << k;
}

TEST(BookTest, EntriesAreThoseFromAnIndexOn) {
    const Book book = BookOf({{1, "abc"}});
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
        Book book = BookOf({{1, "ab"}});
        rows = book.RowsOf(1);
        book.SetSiteName(1, "mas");
        EXPECT_EQ(book.SiteNames(1), "mas");
    }
    EXPECT_EQ(rows.Entries, (std::vector<AddressEntry>{{"a", "http://a"}, {"b", "http://b"}}));
}

using Positions = std::vector<std::int16_t>;

TEST(CheckMarksTest, EachCategoryKeepsItsOwnPositionsUntilTheyAreReplacedOrForgotten) {
    CheckMarks marks;
    marks.SaveOneMore(12, 7);
    marks.SaveOneMore(12, 9);
    EXPECT_EQ(marks.CheckedCount(), 0);
    marks.SetCheckedCount(2);
    marks.Save(3, {1, 4});
    EXPECT_EQ(marks.SavedCheckCounts(3), 2);
    EXPECT_EQ(marks.SavedCheckLists(3), (Positions{1, 4}));
    EXPECT_EQ(marks.SavedCheckLists(12), (Positions{7, 9}));
    EXPECT_EQ(marks.SavedCheckCounts(1), 0);
    marks.Save(3, {2});
    EXPECT_EQ(marks.SavedCheckLists(3), Positions{2});
    marks.Forget(3);
    EXPECT_EQ(marks.SavedCheckCounts(3), 0);
    EXPECT_EQ(marks.SavedCheckLists(12), (Positions{7, 9}));
    marks.ForgetAll();
    EXPECT_EQ(marks.SavedCheckCounts(12), 0);
    EXPECT_EQ(marks.CheckedCount(), 2);
    marks.Clear();
    EXPECT_EQ(marks, CheckMarks());
}

TEST(CheckMarksTest, ThereAreTwelveCategories) {
    CheckMarks marks;
    EXPECT_THROW(marks.SavedCheckCounts(0), RangeFault);
    EXPECT_THROW(marks.Save(13, {}), RangeFault);
}

}  // namespace
}  // namespace lindrel
