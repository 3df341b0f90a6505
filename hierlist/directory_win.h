// The file system as the platform tells of it.
#pragma once

#include "hierlist/directory.h"

namespace vorn::hierlist {

extern const FileSystem kPlatformFiles;

} // namespace vorn::hierlist
