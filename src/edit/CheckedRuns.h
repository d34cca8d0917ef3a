// The checked rows of a category, as runs of adjacent rows that are moved or deleted together.
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

// The runs of those of the rows 1..rows for which `is_checked` returns true, in ascending order.
std::vector<RowRun> CheckedRuns(int rows, const std::function<bool(int position)>& is_checked);

// The next two take runs in ascending order. They throw RangeFault for rows that the category does not have,
// and leave the book unchanged when they throw.

// Removes the runs.
void DeleteRuns(Book& book, int category, const std::vector<RowRun>& runs);

// Moves the entries of the runs, in the order of the rows, to the end of another category. Also throws what
// Book::AddEntry() throws.
void MoveRuns(Book& book, int source, const std::vector<RowRun>& runs, int destination);

}  // namespace lindrel
