// Performing what a control's state machine answered.
#pragma once

#include "core/record_win.h"

namespace vorn {

// Performs the actions of a step one by one, in order, with `perform(action)`. Each may run host
// code: the rest falls away once the control is gone, and so does an action that a step in there
// has undone. The record type has its control's state as `state`; the control's IsStale is found
// beside its actions.
template <class Record, class Actions, class Perform>
void PerformActions(HWND window, const Actions& actions, Perform perform) {
    for (const auto& action : actions) {
        const Record* record = RecordOf<Record>(window);
        if (record == nullptr) {
            return;
        }
        if (!IsStale(record->state, action)) {
            perform(action);
        }
    }
}

} // namespace vorn
