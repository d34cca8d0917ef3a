// A walk through the program at random, compared with a plain model of it after each step. The seed is
// printed; LINDREL_WALK_SEED and LINDREL_WALK_STEPS walk another way, or farther.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

#include "tests/support/Times.h"
#include "tests/window/support/RandomUser.h"

namespace lindrel::testing {
namespace {

std::uint32_t NumberFrom(const char* variable, std::uint32_t otherwise) {
    const char* const text = std::getenv(variable);
    return text == nullptr ? otherwise : static_cast<std::uint32_t>(std::stoul(text));
}

TEST(RandomWalkTest, TheProgramAgreesWithTwelveLists) {
    const std::uint32_t seed = NumberFrom("LINDREL_WALK_SEED", std::random_device()());
    const std::uint32_t steps = NumberFrom("LINDREL_WALK_STEPS", static_cast<std::uint32_t>(Times(500, 60)));
    std::cout << "LINDREL_WALK_SEED=" << seed << " LINDREL_WALK_STEPS=" << steps << std::endl;
    RandomUser user(seed);
    try {
        for (std::uint32_t step = 1; step <= steps && !HasFailure(); ++step) {
            user.Step();
            if (step % 10 == 0 && !HasFailure()) user.SaveAndReopen();
        }
    } catch (const std::exception& thrown) {
        ADD_FAILURE() << thrown.what();
    }
    if (HasFailure()) std::cout << "the last steps:\n" << user.LastSteps() << std::flush;
}

}  // namespace
}  // namespace lindrel::testing
