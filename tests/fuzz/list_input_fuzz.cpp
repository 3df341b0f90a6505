// Any sequence of clicks, keys, drags and changes of the items leaves a list's selection whole and
// as its model is.
#include "tests/support/choices.h"
#include "tests/support/list_model.h"

#include <cstdlib>

namespace {

constexpr std::size_t kItems = 12;
constexpr int kOperations = 64;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    vorn::test::Bytes bytes(data, size);
    vorn::hierlist::test::ListPair<vorn::test::Bytes> pair(bytes, kItems);
    for (int i = 0; i < kOperations && !bytes.Empty(); ++i) {
        pair.Step();
        if (!pair.Fault().empty()) {
            std::abort();
        }
    }
    return 0;
}
