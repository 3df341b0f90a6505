// Versions as files tell them.
#pragma once

#include "core/platform_win.h"

namespace vorn {

// The packed version in the file's version resource; 0 when there is no such file, no such resource
// or no memory.
DWORD VersionOfFile(const char* file);

} // namespace vorn
