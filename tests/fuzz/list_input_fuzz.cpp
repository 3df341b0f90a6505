// Any sequence of clicks, keys, drags and changes of the items leaves a list's selection whole and
// as its model is.
#include "tests/support/list_model.h"

#include <cstdlib>

namespace {

constexpr std::size_t kItems = 12;
constexpr int kOperations = 64;

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
    vorn::hierlist::test::ListPair<Bytes> pair(bytes, kItems);
    for (int i = 0; i < kOperations && !bytes.Empty(); ++i) {
        pair.Step();
        if (!pair.Fault().empty()) {
            std::abort();
        }
    }
    return 0;
}
