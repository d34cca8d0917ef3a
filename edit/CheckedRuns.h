// The checked rows of a category as runs of neighbours, which move and delete take out of the book one by
// one.
#pragma once

#include <functional>
#include <vector>

#include "book/Book.h"

namespace lindrel {

// `Count` rows from the 1-based position on.
struct RowRun {
    int Position = 0;
    int Count = 0;
    bool operator==(const RowRun&) const = default;
};

// The runs of the rows 1..rows for which `is_checked` answers true, the last run first: taking one out then
// never shifts the rows of the next.
std::vector<RowRun> CheckedRuns(int rows, const std::function<bool(int position)>& is_checked);

// Removes the runs, in their order. They must be of one CheckedRuns() of this category: RangeFault otherwise,
// and the book is as it was.
void DeleteRuns(Book& book, int category, const std::vector<RowRun>& runs);

// Takes the runs out of a category and appends their entries, in the order of the rows, to another one.
// Throws and keeps the book as DeleteRuns() does.
void MoveRuns(Book& book, int source, const std::vector<RowRun>& runs, int destination);

}  // namespace lindrel
