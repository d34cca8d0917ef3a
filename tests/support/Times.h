// How often a test repeats something. ./test.sh --all and ctest's preset `all` set LINDREL_LONG.
#pragma once

#include <cstdlib>

namespace lindrel::testing {

inline int Times(int in_a_long_run, int in_a_short_one) {
    return std::getenv("LINDREL_LONG") != nullptr ? in_a_long_run : in_a_short_one;
}

}  // namespace lindrel::testing
