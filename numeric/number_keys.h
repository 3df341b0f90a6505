// The keys of the numeric edit. Those that type a character come again as that.
#pragma once

#include "core/edit/field_keys.h"
#include "numeric/number_entry.h"

namespace vorn::numeric {

// What becomes of a key. A read-only control refuses every one that is not the system's.
edit::KeyRoute RouteNumberKey(const edit::Key& key, bool readOnly);

// Runs a key that RouteNumberKey says to ask for, with the host's answer. Asking runs host code:
// when the control is gone after it, there is no entry to come here with. A key without a use is
// passed on.
edit::Actions RunKey(NumberEntry& entry, const edit::Key& key, bool allowed);

} // namespace vorn::numeric
