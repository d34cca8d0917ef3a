#include "edit/CheckedRuns.h"

#include <cstddef>
#include <string>
#include <utility>

namespace lindrel {

std::vector<RowRun> CheckedRuns(int rows, const std::function<bool(int)>& is_checked) {
    std::vector<RowRun> runs;
    int run_end = 0;
    for (int position = rows; position >= 1; --position) {
        if (is_checked(position)) {
            if (run_end == 0) run_end = position;
        } else if (run_end != 0) {
            runs.push_back({position + 1, run_end - position});
            run_end = 0;
        }
    }
    if (run_end != 0) runs.push_back({1, run_end});
    return runs;
}

// Both work on a copy, so that the book is unchanged if a later run is refused.

void DeleteRuns(Book& book, int category, const std::vector<RowRun>& runs) {
    Book rest = book;
    for (const RowRun& run : runs) rest.DeleteEntry(category, run.Position, run.Count);
    book = std::move(rest);
}

void MoveRuns(Book& book, int source, const std::vector<RowRun>& runs, int destination) {
    std::vector<NewEntry> moved;
    for (std::size_t i = runs.size(); i-- > 0;) {
        const RowRun& run = runs[i];
        for (int position = run.Position; position < run.Position + run.Count; ++position) {
            const int index = book.IndexOf(source, position);
            moved.push_back({std::string(book.SiteNames(index)), std::string(book.SiteURLs(index))});
        }
    }
    Book changed = book;
    DeleteRuns(changed, source, runs);
    changed.AddEntry(destination, moved);
    book = std::move(changed);
}

}  // namespace lindrel
