// The file system as the platform tells of it.
#pragma once

#include "hierlist/directory.h"

namespace vorn::hierlist {

extern const FileSystem kPlatformFiles;

// The attributes of a file; 0 when there is none.
std::uint32_t AttributesOf(const char* name);

} // namespace vorn::hierlist
