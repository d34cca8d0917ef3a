#include "edit/CheckedRuns.h"

#include <string>
#include <utility>

#include "faults/Faults.h"

namespace lindrel {

namespace {

// Throws RangeFault for rows that the category does not have.
std::vector<int> IndicesOf(const Book& book, int category, const std::vector<RowRun>& runs) {
    std::vector<int> indices;
    for (const RowRun& run : runs) {
        if (run.Position < 1 || run.Position - 1 > book.CategoryCounts(category) - run.Count)
            throw RangeFault();
        for (int position = run.Position; position < run.Position + run.Count; ++position)
            indices.push_back(book.IndexOf(category, position));
    }
    return indices;
}

}  // namespace

std::vector<RowRun> CheckedRuns(int rows, const std::function<bool(int)>& is_checked) {
    std::vector<RowRun> runs;
    int run_end = 0;  // the position after the last run
    for (int position = 1; position <= rows; ++position) {
        if (!is_checked(position)) continue;
        if (position != run_end) runs.push_back({position, 0});
        ++runs.back().Count;
        run_end = position + 1;
    }
    return runs;
}

void DeleteRuns(Book& book, int category, const std::vector<RowRun>& runs) {
    book.DeleteEntries(IndicesOf(book, category, runs));
}

void MoveRuns(Book& book, int source, const std::vector<RowRun>& runs, int destination) {
    const std::vector<int> indices = IndicesOf(book, source, runs);
    std::vector<NewEntry> moved;
    moved.reserve(indices.size());
    for (const int index : indices)
        moved.push_back({std::string(book.SiteNames(index)), std::string(book.SiteURLs(index))});
    // On a copy, so that the book is unchanged if it cannot take the entries.
    Book changed = book;
    changed.DeleteEntries(indices);
    changed.AddEntry(destination, moved);
    book = std::move(changed);
}

}  // namespace lindrel
