#include "edit/CheckedRuns.h"

#include <gtest/gtest.h>

#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "book/Book.h"

namespace lindrel {

static void PrintTo(const RowRun& run, std::ostream* out) {
    *out << "(position " << run.Position << ", count " << run.Count << ")";
}

namespace {

using Runs = std::vector<RowRun>;

Runs RunsOf(int rows, const std::set<int>& checked) {
    return CheckedRuns(rows, [&](int position) { return checked.contains(position); });
}

Book BookOf(int category, int count) {
    Book book;
    std::vector<NewEntry> entries;
    for (int i = 1; i <= count; ++i)
        entries.push_back({"n" + std::to_string(i), "http://" + std::to_string(i) + ".hu"});
    book.AddEntry(category, entries);
    return book;
}

std::vector<std::string> NamesOf(const Book& book, int category) {
    std::vector<std::string> names;
    for (int position = 1; position <= book.CategoryCounts(category); ++position) {
        const int index = book.IndexOf(category, position);
        names.emplace_back(book.SiteNames(index));
        // A name never loses its address.
        EXPECT_EQ(book.SiteURLs(index), "http://" + names.back().substr(1) + ".hu");
    }
    return names;
}

TEST(CheckedRunsTest, AdjacentRowsAreARun) {
    EXPECT_EQ(RunsOf(6, {2, 3, 5}), (Runs{{2, 2}, {5, 1}}));
    EXPECT_EQ(RunsOf(5, {1, 2, 4}), (Runs{{1, 2}, {4, 1}}));
    EXPECT_EQ(RunsOf(5, {5}), (Runs{{5, 1}}));
    EXPECT_EQ(RunsOf(5, {1}), (Runs{{1, 1}}));
    EXPECT_EQ(RunsOf(6, {1, 3, 5}), (Runs{{1, 1}, {3, 1}, {5, 1}}));
}

TEST(CheckedRunsTest, AllRowsAreOneRunAndNoRowNone) {
    EXPECT_EQ(RunsOf(5, {1, 2, 3, 4, 5}), (Runs{{1, 5}}));
    EXPECT_EQ(RunsOf(5, {}), Runs{});
    EXPECT_EQ(RunsOf(0, {}), Runs{});
}

TEST(CheckedRunsTest, MovedEntriesKeepTheirOrderAndGoToTheEnd) {
    Book book = BookOf(1, 6);
    book.AddEntry(4, {{"n7", "http://7.hu"}});
    MoveRuns(book, 1, RunsOf(6, {2, 3, 5}), 4);
    EXPECT_EQ(NamesOf(book, 1), (std::vector<std::string>{"n1", "n4", "n6"}));
    EXPECT_EQ(NamesOf(book, 4), (std::vector<std::string>{"n7", "n2", "n3", "n5"}));
}

TEST(CheckedRunsTest, MovingEverythingLeavesAnEmptyCategory) {
    Book book = BookOf(5, 3);
    MoveRuns(book, 5, RunsOf(3, {1, 2, 3}), 2);
    EXPECT_EQ(NamesOf(book, 5), std::vector<std::string>{});
    EXPECT_EQ(NamesOf(book, 2), (std::vector<std::string>{"n1", "n2", "n3"}));
    EXPECT_EQ(book.EntryCount(), 3);
}

TEST(CheckedRunsTest, DeletingTakesTheRunsOnly) {
    Book book = BookOf(3, 5);
    DeleteRuns(book, 3, RunsOf(5, {1, 2, 4}));
    EXPECT_EQ(NamesOf(book, 3), (std::vector<std::string>{"n3", "n5"}));
}

}  // namespace
}  // namespace lindrel
