// Any sequence of operations leaves an outline whole and as its model is.
#include "tests/support/choices.h"
#include "tests/support/outline_pair.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr std::size_t kItems = 16;
constexpr int kOperations = 48;
constexpr int kComparedEvery = 4; // comparing takes most of the time

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    vorn::test::Bytes bytes(data, size);
    vorn::hierlist::test::OutlinePair<vorn::test::Bytes> pair(bytes, kItems);
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
