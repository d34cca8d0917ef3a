#include "find/CheckedHits.h"

namespace lindrel {

void DeleteEntries(Book& book, const std::vector<int>& indices) {
    for (auto index = indices.rbegin(); index != indices.rend(); ++index) {
        const int category = book.CategoryOf(*index);
        book.DeleteEntry(category, *index - book.CategoryStarts(category) + 1, 1);
    }
}

void CheckOnly(Book& book, const std::vector<int>& indices, int shown_category) {
    for (int k = 1; k <= kCategories; ++k) book.SavedCheckCounts(k) = 0;
    for (const int index : indices) {
        const int category = book.CategoryOf(index);
        std::int16_t& count = book.SavedCheckCounts(category);
        std::vector<std::int16_t>& positions = book.SavedCheckLists(category);
        // Cuts off what an earlier count had left there.
        positions.resize(static_cast<std::size_t>(count));
        positions.push_back(static_cast<std::int16_t>(index - book.CategoryStarts(category) + 1));
        ++count;
    }
    book.CheckedCount = book.SavedCheckCounts(shown_category);
}

}  // namespace lindrel
