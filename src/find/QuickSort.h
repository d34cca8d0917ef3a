// Sorting part of a sequence in place. Part of the library of reusable pieces; the program has no caller of
// its own at present.
#pragma once

#include <cstddef>
#include <span>
#include <utility>

#include "faults/Faults.h"

namespace lindrel {

// Sorts the values at low..high (0-based, inclusive) into ascending order by "<"; equal values may change
// their order. Does nothing if there are no values or if high <= low. Throws RangeFault for indices out of
// bounds, before it changes anything; if a comparison throws, the order of the values is unspecified.
template <typename Value>
void QuickSort(std::span<Value> values, int low, int high) {
    if (values.empty() || high <= low) return;
    if (low < 0 || high >= static_cast<int>(values.size())) throw RangeFault();
    const auto at = [values](int index) -> Value& { return values[static_cast<std::size_t>(index)]; };

    const Value pivot = at(low + (high - low) / 2);
    int i = low;
    int j = high;
    while (i <= j) {
        while (at(i) < pivot && i < high) ++i;
        while (pivot < at(j) && j > low) --j;
        if (i <= j) {
            std::swap(at(i), at(j));
            ++i;
            --j;
        }
    }
    if (low < j) QuickSort(values, low, j);
    if (i < high) QuickSort(values, i, high);
}

}  // namespace lindrel
