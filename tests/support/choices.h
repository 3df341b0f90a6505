// Where a random or fuzzed test takes its choices from: both have Below(bound), which answers a
// number below the bound.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace vorn::test {

class Random {
public:
    explicit Random(std::uint32_t seed) : engine(seed) {}

    std::uint32_t Below(std::uint32_t bound) {
        return static_cast<std::uint32_t>(engine()) % bound;
    }

private:
    std::mt19937 engine;
};

// A byte a choice; none when they are used up.
class Bytes {
public:
    Bytes(const std::uint8_t* from, std::size_t count) : data(from), left(count) {}

    std::uint32_t Below(std::uint32_t bound) {
        if (left == 0) {
            return 0;
        }
        --left;
        return *data++ % bound;
    }
    bool Empty() const { return left == 0; }

private:
    const std::uint8_t* data;
    std::size_t left;
};

} // namespace vorn::test
