// The check marks of the address list: the number of checked rows in the category that the list shows, and
// the checked rows of each category as they were last saved. Check marks belong to positions, not to entries,
// so code that moves or deletes entries must drop those that no longer apply.
//
// A category is 1..12; every function that takes one throws RangeFault for any other and changes nothing
// then.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "book/PerCategory.h"

namespace lindrel {

class CheckMarks {
  public:
    // Checked rows of the shown category, 0..32,767.
    std::int16_t CheckedCount() const { return checked_; }
    void SetCheckedCount(int count) { checked_ = static_cast<std::int16_t>(count); }

    // The checked rows saved for a category: their number, and their positions in ascending order.
    std::int16_t SavedCheckCounts(int category) const {
        return static_cast<std::int16_t>(saved_(category).size());
    }
    const std::vector<std::int16_t>& SavedCheckLists(int category) const { return saved_(category); }

    void Save(int category, std::vector<std::int16_t> positions) { saved_(category) = std::move(positions); }
    // Adds a position, which must be greater than those that are saved.
    void SaveOneMore(int category, int position) {
        saved_(category).push_back(static_cast<std::int16_t>(position));
    }
    void Forget(int category) { saved_(category).clear(); }
    void ForgetAll() { saved_ = {}; }
    // Drops everything, CheckedCount() as well.
    void Clear() { *this = {}; }

    bool operator==(const CheckMarks&) const = default;

  private:
    std::int16_t checked_ = 0;
    PerCategory<std::vector<std::int16_t>> saved_;
};

}  // namespace lindrel
