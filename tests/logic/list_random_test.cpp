// A list under any sequence of clicks, keys, drags and changes of its items, beside a model.
#include "tests/support/choices.h"
#include "tests/support/list_model.h"

#include <gtest/gtest.h>
#include <iostream>

namespace vorn::hierlist::test {
namespace {

using vorn::test::Random;

void Play(std::uint32_t seed, std::size_t limit, int operations) {
    std::cout << "seed " << seed << ": " << operations << " operations on " << limit << " items"
              << std::endl;
    Random random(seed);
    ListPair<Random> pair(random, limit);
    for (int step = 1; step <= operations; ++step) {
        pair.Step();
        ASSERT_EQ(pair.Fault(), "")
            << "seed " << seed << ", operation " << step << ", " << pair.done;
    }
}

TEST(ListRandom, Few) {
    for (const std::uint32_t seed : {1u, 2u, 3u, 4u, 5u, 6u}) {
        Play(seed, 4 + seed, 30'000);
    }
}

TEST(ListRandom, Some) {
    for (const std::uint32_t seed : {11u, 12u, 13u}) {
        Play(seed, 40, 15'000);
    }
}

} // namespace
} // namespace vorn::hierlist::test
