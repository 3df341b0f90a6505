// Any sequence of operations leaves an outline whole and as its model is.
#include "tests/support/outline_pair.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr std::size_t kItems = 16;
constexpr int kOperations = 48;
constexpr int kComparedEvery = 4; // comparing takes most of the time

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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes bytes(data, size);
    vorn::hierlist::test::OutlinePair<Bytes> pair(bytes, kItems);
    for (int i = 1; i <= kOperations && !bytes.Empty(); ++i) {
        pair.Step();
        if (i % kComparedEvery == 0 && !pair.Fault().empty()) {
            std::abort();
        }
    }
    if (!pair.Fault().empty()) {
        std::abort();
    }
    return 0;
}
