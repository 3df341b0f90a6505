// What tests can ask of the blocks that tests/support/guarded_memory_win.cpp gives.
#pragma once

namespace vorn {

// Whether nobody wrote where a block that is out does not reach: before it to the beginning of its
// page, and behind it to the end. False for an address that is no guarded block's.
bool IsIntact(const void* block);

} // namespace vorn
