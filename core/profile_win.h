// The user's regional settings as the platform has them.
#pragma once

#include "core/platform_win.h"
#include "core/profile.h"

namespace vorn {

// The section "intl" of WIN.INI.
extern const RegionalProfile kUserProfile;

// Whether a WM_WININICHANGE is about it: it names this section, in this spelling, or none.
bool ConcernsUserProfile(LPARAM section);

} // namespace vorn
