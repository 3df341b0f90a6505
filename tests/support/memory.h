// What tests can ask of the blocks that tests/support/memory.cpp gives.
#pragma once

#include <cstdint>

namespace vorn {

// The bytes of all blocks that were ever asked for.
std::uint64_t BytesAsked();

} // namespace vorn
