#include "tests/windows/support/private_memory.h"

namespace vorn::test {

SIZE_T PrivateBytes() {
    SIZE_T bytes = 0;
    MEMORY_BASIC_INFORMATION region{};
    for (const char* at = nullptr; VirtualQuery(at, &region, sizeof region) != 0;
         at = static_cast<const char*>(region.BaseAddress) + region.RegionSize) {
        if (region.State == MEM_COMMIT && region.Type == MEM_PRIVATE) {
            bytes += region.RegionSize;
        }
    }
    return bytes;
}

} // namespace vorn::test
