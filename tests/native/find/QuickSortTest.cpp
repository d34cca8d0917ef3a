#include "find/QuickSort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "faults/Faults.h"

namespace lindrel {
namespace {

template <typename Value>
std::vector<Value> Sorted(std::vector<Value> values, int low, int high) {
    QuickSort(std::span<Value>(values), low, high);
    return values;
}

using Numbers = std::vector<int>;

TEST(QuickSortTest, SortsAscending) {
    EXPECT_EQ(Sorted<int>({5, -4, 5, 0, 5, -4, 9}, 0, 6), (Numbers{-4, -4, 0, 5, 5, 5, 9}));
    EXPECT_EQ(Sorted<std::string>({"b", "a\xFB", "", "a", "B"}, 0, 4),
              (std::vector<std::string>{"", "B", "a", "a\xFB", "b"}));
}

TEST(QuickSortTest, SortsOnlyBetweenTheIndices) {
    EXPECT_EQ(Sorted<int>({9, 8, 7, 6, 5}, 1, 3), (Numbers{9, 6, 7, 8, 5}));
    EXPECT_EQ(Sorted<int>({2, 1, 4, 3}, 0, 1), (Numbers{1, 2, 4, 3}));
    EXPECT_EQ(Sorted<int>({2, 1, 4, 3}, 2, 3), (Numbers{2, 1, 3, 4}));
}

TEST(QuickSortTest, NothingHappensWithoutARangeOrWithoutValues) {
    const Numbers values{3, 1, 2};
    EXPECT_EQ(Sorted(values, 1, 1), values);
    EXPECT_EQ(Sorted(values, 2, 0), values);
    EXPECT_EQ(Sorted(values, 5, 4), values);
    EXPECT_EQ(Sorted<int>({}, 0, 5), Numbers{});
}

TEST(QuickSortTest, IndicesBeyondTheValuesAreRefusedBeforeAnythingMoves) {
    Numbers values{3, 1, 2};
    EXPECT_THROW(QuickSort(std::span(values), 0, 3), RangeFault);
    EXPECT_THROW(QuickSort(std::span(values), -1, 2), RangeFault);
    EXPECT_EQ(values, (Numbers{3, 1, 2}));
}

TEST(QuickSortTest, EveryOrderOfSevenValuesIsSorted) {
    Numbers order{0, 1, 1, 2, 3, 3, 4};
    const Numbers expected = order;
    do {
        ASSERT_EQ(Sorted(order, 0, 6), expected);
    } while (std::next_permutation(order.begin(), order.end()));
}

// Compares by its key only, so that the order of equal ones shows.
struct Named {
    int key;
    char name;
    bool operator<(const Named& other) const { return key < other.key; }
    bool operator==(const Named&) const = default;
};

TEST(QuickSortTest, EqualValuesChangePlaces) {
    EXPECT_EQ(Sorted<Named>({{1, 'a'}, {1, 'b'}}, 0, 1), (std::vector<Named>{{1, 'b'}, {1, 'a'}}));
    EXPECT_EQ(Sorted<Named>({{1, 'a'}, {1, 'b'}, {1, 'c'}}, 0, 2),
              (std::vector<Named>{{1, 'c'}, {1, 'b'}, {1, 'a'}}));
}

}  // namespace
}  // namespace lindrel
