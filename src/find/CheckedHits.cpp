#include "find/CheckedHits.h"

namespace lindrel {

void DeleteEntries(Book& book, const std::vector<int>& indices) {
    // From the last one on, so that the other indices stay valid.
    for (auto index = indices.rbegin(); index != indices.rend(); ++index) {
        const int category = book.CategoryOf(*index);
        book.DeleteEntry(category, *index - book.CategoryStarts(category) + 1, 1);
    }
}

void CheckOnly(Book& book, const std::vector<int>& indices, int shown_category) {
    book.Marks.ForgetAll();
    for (const int index : indices) {
        const int category = book.CategoryOf(index);
        book.Marks.SaveOneMore(category, index - book.CategoryStarts(category) + 1);
    }
    book.Marks.SetCheckedCount(book.Marks.SavedCheckCounts(shown_category));
}

}  // namespace lindrel
