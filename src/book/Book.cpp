#include "book/Book.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <numeric>
#include <utility>

#include "faults/Faults.h"

namespace lindrel {

Book::Book() {
    Reset();
}

void Book::Reset() {
    for (int k = 1; k <= kCategories; ++k) {
        counts_(k) = 0;
        names_(k) = "Project" + std::to_string(k);
    }
    RecomputeStarts();
    Marks.Clear();
}

int Book::StoredCount(int category) const {
    return std::clamp(UpperBound() + 1 - starts_(category), 0, int{counts_(category)});
}

std::size_t Book::Slot(int index) const {
    if (index < 1 || index > UpperBound()) throw RangeFault();
    return static_cast<std::size_t>(index - 1);
}

std::span<const AddressEntry> Book::Entries(int index, int count) const {
    if (count == 0) return {};
    if (index < 1 || count < 0 || index - 1 > UpperBound() - count) throw RangeFault();
    return std::span(entries_).subspan(static_cast<std::size_t>(index - 1), static_cast<std::size_t>(count));
}

CategoryRows Book::RowsOf(int category) const {
    const auto entries = Entries(starts_(category), StoredCount(category));
    return {{entries.begin(), entries.end()}, texts_};
}

int Book::CategoryOf(int index) const {
    int category = 1;
    for (int k = 2; k <= kCategories; ++k)
        if (starts_(k) <= index) category = k;
    return category;
}

void Book::SetSiteName(int index, std::string_view name) {
    const std::size_t slot = Slot(index);
    entries_[slot].SiteName = texts_->Keep(name);
}

void Book::SetSiteURL(int index, std::string_view url) {
    const std::size_t slot = Slot(index);
    entries_[slot].URL = texts_->Keep(url);
}

void Book::AddEntry(int category, const std::vector<NewEntry>& entries) {
    const int index = starts_(category) + counts_(category);
    const int room = std::max(0, kMostEntries - EntryCount());
    if (std::cmp_greater(entries.size(), room)) throw OverflowFault();
    // An empty book drops whatever it still stores.
    const bool afresh = IsEmpty();
    if (!afresh && index > UpperBound() + 1) throw RangeFault();

    const auto texts = afresh ? std::make_shared<TextStore>() : texts_;
    std::vector<AddressEntry> added;
    added.reserve(entries.size());
    for (const NewEntry& entry : entries)
        added.push_back({texts->Keep(entry.SiteName), texts->Keep(entry.URL)});
    if (afresh)
        entries_ = std::move(added);
    else
        entries_.insert(entries_.begin() + (index - 1), added.begin(), added.end());
    texts_ = texts;
    counts_(category) = static_cast<std::int16_t>(counts_(category) + std::ssize(entries));
    RecomputeStarts();
}

void Book::DeleteEntry(int category, int position, int count) {
    if (position < 1 || count < 0 || position - 1 > counts_(category) - count) throw RangeFault();
    std::vector<int> indices(static_cast<std::size_t>(count));
    std::iota(indices.begin(), indices.end(), IndexOf(category, position));
    DeleteEntries(indices);
}

void Book::DeleteEntries(const std::vector<int>& indices) {
    if (indices.empty()) return;
    if (indices.front() < 1 || indices.back() > std::min(EntryCount(), UpperBound()) ||
        std::adjacent_find(indices.begin(), indices.end(), std::greater_equal()) != indices.end())
        throw RangeFault();

    if (indices.size() == entries_.size()) {
        std::vector<AddressEntry> blank(1);
        texts_ = std::make_shared<TextStore>();
        entries_ = std::move(blank);
    } else {
        auto kept = entries_.begin() + (indices.front() - 1);
        for (auto index = indices.begin(); index != indices.end(); ++index) {
            const auto next = index + 1 == indices.end() ? entries_.end() : entries_.begin() + (index[1] - 1);
            kept = std::move(entries_.begin() + *index, next, kept);
        }
        entries_.erase(kept, entries_.end());
    }
    auto left = indices.begin();
    for (int k = 1; k <= kCategories; ++k) {
        const auto end = std::lower_bound(left, indices.end(), starts_(k) + counts_(k));
        counts_(k) = static_cast<std::int16_t>(counts_(k) - (end - left));
        left = end;
    }
    RecomputeStarts();
}

void Book::MoveEntry(int source, int offset, int destination) {
    if (offset < 0 || offset >= counts_(source)) throw RangeFault();
    const int end = starts_(destination) + counts_(destination);
    if (source == destination) throw ArgumentFault();

    const int from = starts_(source) + offset;
    if (from > UpperBound() || end > UpperBound() + 1) throw RangeFault();
    const auto moved = entries_.begin() + (from - 1);
    const auto destination_end = entries_.begin() + (end - 1);
    if (source > destination)
        std::rotate(destination_end, moved, moved + 1);
    else
        std::rotate(moved, moved + 1, destination_end);

    counts_(source) = static_cast<std::int16_t>(counts_(source) - 1);
    counts_(destination) = static_cast<std::int16_t>(counts_(destination) + 1);
    RecomputeStarts();
    Marks.SetCheckedCount(0);
}

void Book::RecomputeStarts() {
    starts_(1) = 1;
    for (int k = 2; k <= kCategories; ++k) starts_(k) = starts_(k - 1) + counts_(k - 1);
}

}  // namespace lindrel
