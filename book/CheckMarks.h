// The check marks of the address list: how many rows of the shown category are checked, and which rows of
// each category were checked when its list was last saved. They belong to positions, not to entries: who
// moves or deletes entries drops the marks that no longer fit.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "book/PerCategory.h"

namespace lindrel {

class CheckMarks {
  public:
    // Checked rows of the list that is shown, 0..32,767.
    std::int16_t CheckedCount() const { return checked_; }
    void SetCheckedCount(int count) { checked_ = static_cast<std::int16_t>(count); }

    // What was saved for a category, 1..12 (RangeFault otherwise): how many rows, and their 1-based positions
    // in ascending order.
    std::int16_t SavedCheckCounts(int category) const {
        return static_cast<std::int16_t>(saved_(category).size());
    }
    const std::vector<std::int16_t>& SavedCheckLists(int category) const { return saved_(category); }

    void Save(int category, std::vector<std::int16_t> positions) { saved_(category) = std::move(positions); }
    // Adds a row behind those saved.
    void SaveOneMore(int category, int position) {
        saved_(category).push_back(static_cast<std::int16_t>(position));
    }
    void Forget(int category) { saved_(category).clear(); }
    void ForgetAll() { saved_ = {}; }
    // Nothing is checked any more, shown or saved.
    void Clear() { *this = {}; }

    bool operator==(const CheckMarks&) const = default;

  private:
    std::int16_t checked_ = 0;
    PerCategory<std::vector<std::int16_t>> saved_;
};

}  // namespace lindrel
