// The keys of the time edit.
#pragma once

#include "core/edit/field_keys.h"
#include "timeedit/time_entry.h"

namespace vorn::timeedit {

// Runs a key that RouteKey says to ask for, with the host's answer. Asking runs host code: when the
// control is gone after it, there is no entry to come here with.
edit::Actions RunKey(TimeEntry& entry, const edit::Key& key, bool allowed);

} // namespace vorn::timeedit
