// Gaining and losing the focus.
#pragma once

#include "hierlist/list_input.h"

namespace vorn::hierlist {

// The caret gets its mark, and is painted with it before the parent is told. Where there is no
// caret the strip of the top row is painted: an empty list has its focus rectangle there, and in
// another one that painting makes the top row the caret.
Actions FocusGained(Outline& outline, Input& input);

// The caret loses its mark.
Actions FocusLost(Outline& outline, Input& input);

} // namespace vorn::hierlist
