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

using Names = std::vector<std::string>;

Book BookOf(int category, const Names& names) {
    Book book;
    for (const std::string& name : names) book.AddEntry(category, {{name, "http://" + name + ".hu"}});
    return book;
}

Names NamesOf(const Book& book, int category) {
    Names names;
    for (const AddressEntry& entry : book.RowsOf(category).Entries) {
        names.emplace_back(entry.SiteName);
        EXPECT_EQ(entry.URL, "http://" + names.back() + ".hu");  // a name never loses its address
    }
    return names;
}

TEST(CheckedRunsTest, AdjacentRowsAreARun) {
    EXPECT_EQ(RunsOf(6, {2, 3, 5}), (Runs{{2, 2}, {5, 1}}));
    EXPECT_EQ(RunsOf(5, {1, 2, 4}), (Runs{{1, 2}, {4, 1}}));
    EXPECT_EQ(RunsOf(5, {5}), (Runs{{5, 1}}));
    EXPECT_EQ(RunsOf(5, {1}), (Runs{{1, 1}}));
    EXPECT_EQ(RunsOf(6, {1, 3, 5}), (Runs{{1, 1}, {3, 1}, {5, 1}}));
    EXPECT_EQ(RunsOf(5, {1, 2, 3, 4, 5}), (Runs{{1, 5}}));
    EXPECT_EQ(RunsOf(5, {}), Runs{});
    EXPECT_EQ(RunsOf(0, {}), Runs{});
}

TEST(CheckedRunsTest, MovedEntriesKeepTheirOrderAndGoToTheEnd) {
    Book book = BookOf(1, {"a", "b", "c", "d", "e", "f"});
    book.AddEntry(4, {{"g", "http://g.hu"}});
    MoveRuns(book, 1, {{2, 2}, {5, 1}}, 4);
    EXPECT_EQ(NamesOf(book, 1), (Names{"a", "d", "f"}));
    EXPECT_EQ(NamesOf(book, 4), (Names{"g", "b", "c", "e"}));
}

TEST(CheckedRunsTest, MovingEverythingLeavesAnEmptyCategory) {
    Book book = BookOf(5, {"a", "b", "c"});
    MoveRuns(book, 5, {{1, 3}}, 2);
    EXPECT_EQ(NamesOf(book, 5), Names{});
    EXPECT_EQ(NamesOf(book, 2), (Names{"a", "b", "c"}));
    EXPECT_EQ(book.EntryCount(), 3);
}

TEST(CheckedRunsTest, DeletingTakesTheRunsOnly) {
    Book book = BookOf(3, {"a", "b", "c", "d", "e"});
    DeleteRuns(book, 3, {{1, 2}, {4, 1}});
    EXPECT_EQ(NamesOf(book, 3), (Names{"c", "e"}));
}

}  // namespace
}  // namespace lindrel
