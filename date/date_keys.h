// The keys of the date edit.
#pragma once

#include "core/edit/field_keys.h"
#include "date/date_entry.h"

namespace vorn::date {

// Runs a key that RouteKey says to ask for, with the host's answer. Asking runs host code: when the
// control is gone after it, there is no entry to come here with. `today` is what a null date starts
// from.
edit::Actions RunKey(DateEntry& entry, const edit::Key& key, bool allowed, const Date& today);

} // namespace vorn::date
