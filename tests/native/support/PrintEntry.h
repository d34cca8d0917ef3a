// Prints an entry when a comparison fails.
#pragma once

#include <ostream>

#include "book/Book.h"

namespace lindrel {

inline void PrintTo(const NewEntry& entry, std::ostream* out) {
    *out << "{\"" << entry.SiteName << "\", \"" << entry.URL << "\"}";
}

}  // namespace lindrel
