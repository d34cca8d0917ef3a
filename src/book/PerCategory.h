// The twelve categories of a book, and a container with a value for each.
#pragma once

#include <array>
#include <cstddef>

#include "faults/Faults.h"

namespace lindrel {

inline constexpr int kCategories = 12;

// Indexed 1..12; throws RangeFault for any other index.
template <typename T>
class PerCategory {
  public:
    T& operator()(int category) { return cells_[Cell(category)]; }
    const T& operator()(int category) const { return cells_[Cell(category)]; }
    bool operator==(const PerCategory&) const = default;

  private:
    static std::size_t Cell(int category) {
        if (category < 1 || category > kCategories) throw RangeFault();
        return static_cast<std::size_t>(category - 1);
    }
    std::array<T, kCategories> cells_{};
};

}  // namespace lindrel
