// The entries to export: those that were checked when the user last left their category, in the order of the
// list. Categories are 1-based.
#pragma once

#include <cstdint>
#include <vector>

#include "book/Book.h"

namespace lindrel {

// Whether a category has entries to export.
inline bool IsExported(const Book& book, int category) {
    return book.Marks.SavedCheckCounts(category) > 0;
}

// The 1-based indices in the book of a category's entries to export.
inline std::vector<int> ExportedEntries(const Book& book, int category) {
    std::vector<int> indices;
    for (const std::int16_t position : book.Marks.SavedCheckLists(category))
        indices.push_back(book.IndexOf(category, position));
    return indices;
}

}  // namespace lindrel
