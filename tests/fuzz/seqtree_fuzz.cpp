// Any sequence of operations leaves sequence trees whole and in the order that a vector has.
#include "hierlist/seqtree.h"
#include "tests/support/seqtree_model.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

using namespace vorn::hierlist;
using namespace vorn::hierlist::test;

constexpr std::size_t kNodes = 48;
constexpr std::size_t kOperations = 32;

void RequireWhole(const Pair& pair) {
    if (!pair.Fault().empty()) {
        std::abort();
    }
}

// A position byte: mostly itself, at the top of its range the odd ones.
std::uint32_t PositionOf(std::uint8_t byte) {
    return byte < 0xFC ? byte : byte - 0x100u;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::array<OlbSeqNode, kNodes> pool;
    Order spare;
    for (OlbSeqNode& node : pool) {
        spare.push_back(&node);
    }

    std::array<Pair, 3> pairs;
    for (std::size_t at = 0; at + 4 <= size && at < 4 * kOperations; at += 4) {
        Pair& one = pairs[data[at] / 4 % pairs.size()];
        Pair& other = pairs[data[at] / 16 % pairs.size()];
        const std::uint32_t first = PositionOf(data[at + 1]);
        const std::uint32_t second = PositionOf(data[at + 2]);
        switch (data[at] % 4) {
        case 0:
        case 1:
            for (std::uint32_t left = data[at + 3] % 16 + 1; left > 0 && !spare.empty(); --left) {
                one.Insert(first, spare.back());
                spare.pop_back();
            }
            break;
        case 2: {
            const Pair run = one.Cut(first, second);
            RequireWhole(run);
            spare.insert(spare.end(), run.order.begin(), run.order.end());
            break;
        }
        default: {
            Pair run = one.Cut(first, second);
            RequireWhole(run);
            other.Splice(PositionOf(data[at + 3]), run);
            RequireWhole(other);
            break;
        }
        }
        RequireWhole(one);
    }
    return 0;
}
