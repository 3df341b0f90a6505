// How a failing test shows what an edit answered.
#pragma once

#include "core/edit/edit_actions.h"

#include <ostream>

namespace vorn::edit {

inline void PrintTo(const Action& action, std::ostream* out) {
    *out << "{kind " << static_cast<int>(action.kind) << ", " << action.code << "}";
}

} // namespace vorn::edit
