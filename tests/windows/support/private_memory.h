// What memory a process has.
#pragma once

#include <windows.h>

namespace vorn::test {

// The bytes that the process has of memory of its own, in use by its heaps or held ready for them.
SIZE_T PrivateBytes();

} // namespace vorn::test
