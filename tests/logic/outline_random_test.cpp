// An outline in the hands of a careless host, beside a model of lists of lists.
#include "tests/support/choices.h"
#include "tests/support/outline_pair.h"

#include <gtest/gtest.h>
#include <iostream>

namespace vorn::hierlist::test {
namespace {

using vorn::test::Random;

// Compares everything after each `every`th operation.
void Play(std::uint32_t seed, std::size_t limit, int operations, int every) {
    std::cout << "seed " << seed << ": " << operations << " operations on " << limit << " items"
              << std::endl;
    Random random(seed);
    OutlinePair<Random> pair(random, limit);
    for (int step = 1; step <= operations; ++step) {
        pair.Step();
        if (step % every == 0) {
            ASSERT_EQ(pair.Fault(), "")
                << "seed " << seed << ", operation " << step << ", " << pair.done;
        }
    }
}

TEST(OutlineRandom, Few) {
    for (const std::uint32_t seed : {1u, 2u, 3u, 4u, 5u, 6u}) {
        Play(seed, 6 + seed, 100'000, 1);
    }
}

TEST(OutlineRandom, Some) {
    for (const std::uint32_t seed : {11u, 12u, 13u, 14u}) {
        Play(seed, 30, 50'000, 1);
    }
}

// What an operation answers is compared each time, the rest now and then.
TEST(OutlineRandom, Many) {
    for (const std::uint32_t seed : {21u, 22u}) {
        Play(seed, 300, 100'000, 100);
    }
}

} // namespace
} // namespace vorn::hierlist::test
