#include "find/CheckedHits.h"

#include <gtest/gtest.h>

#include "book/Book.h"
#include "book/CheckMarks.h"
#include "faults/Faults.h"

namespace lindrel {
namespace {

class CheckedHitsTest : public ::testing::Test {
  protected:
    // Indices 1 to 9, some of them checked.
    CheckedHitsTest() {
        for (const int category : {2, 5, 12}) book.AddEntry(category, {{"a", "u"}, {"b", "u"}, {"c", "u"}});
        book.Marks.Save(1, {4, 5});
        book.Marks.Save(5, {1, 2, 3});
        book.Marks.SetCheckedCount(3);
    }
    Book book;
    CheckMarks expected;
};

TEST_F(CheckedHitsTest, ChecksExactlyTheEntriesInTheirCategories) {
    CheckOnly(book, {1, 3, 5}, 2);
    expected.Save(2, {1, 3});
    expected.Save(5, {2});
    expected.SetCheckedCount(2);
    EXPECT_EQ(book.Marks, expected);
}

TEST_F(CheckedHitsTest, TheShownCategoryMayHaveNoneOfThem) {
    CheckOnly(book, {9}, 5);
    expected.Save(12, {3});
    EXPECT_EQ(book.Marks, expected);
}

TEST_F(CheckedHitsTest, NoneClearsEveryCheckMark) {
    CheckOnly(book, {}, 2);
    EXPECT_EQ(book.Marks, expected);
}

TEST_F(CheckedHitsTest, ABadCategoryIsAFaultThatChangesNothing) {
    expected = book.Marks;
    EXPECT_THROW(CheckOnly(book, {1}, 13), RangeFault);
    EXPECT_EQ(book.Marks, expected);
}

}  // namespace
}  // namespace lindrel
