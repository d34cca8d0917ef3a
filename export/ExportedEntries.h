// Which entries an export takes: those checked when their category's tab was left, in the order of the list.
#pragma once

#include <cstdint>
#include <vector>

#include "book/Book.h"

namespace lindrel {

// Whether a category has entries to export.
inline bool IsExported(const Book& book, int category) {
    return book.Marks.SavedCheckCounts(category) > 0;
}

// Indices, in the book, of a category's entries to export. Only for a category that IsExported().
inline std::vector<int> ExportedEntries(const Book& book, int category) {
    std::vector<int> indices;
    for (const std::int16_t position : book.Marks.SavedCheckLists(category))
        indices.push_back(book.IndexOf(category, position));
    return indices;
}

}  // namespace lindrel
