#include "find/CheckedHits.h"

#include <utility>

namespace lindrel {

void CheckOnly(Book& book, const std::vector<int>& indices, int shown_category) {
    CheckMarks marks;
    for (const int index : indices) {
        const int category = book.CategoryOf(index);
        marks.SaveOneMore(category, index - book.CategoryStarts(category) + 1);
    }
    marks.SetCheckedCount(marks.SavedCheckCounts(shown_category));
    book.Marks = std::move(marks);
}

}  // namespace lindrel
