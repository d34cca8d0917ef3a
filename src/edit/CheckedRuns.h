// The checked rows of a category, as runs of adjacent rows that can be moved or deleted one by one.
#pragma once

#include <functional>
#include <vector>

#include "book/Book.h"

namespace lindrel {

// `Count` rows from a 1-based position on.
struct RowRun {
    int Position = 0;
    int Count = 0;
    bool operator==(const RowRun&) const = default;
};

// The runs of those of the rows 1..rows for which `is_checked` returns true, the last run first, so that
// removing one does not shift the next.
std::vector<RowRun> CheckedRuns(int rows, const std::function<bool(int position)>& is_checked);

// Removes the runs, which must be in the order of CheckedRuns(). Throws RangeFault for rows that the category
// does not have, and leaves the book unchanged.
void DeleteRuns(Book& book, int category, const std::vector<RowRun>& runs);

// Moves the entries of the runs, in the order of the rows, to the end of another category. Throws what
// DeleteRuns() and Book::AddEntry() throw, and leaves the book unchanged.
void MoveRuns(Book& book, int source, const std::vector<RowRun>& runs, int destination);

}  // namespace lindrel
