#include "book/CheckMarks.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "faults/Faults.h"

namespace lindrel {
namespace {

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
