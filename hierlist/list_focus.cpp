#include "hierlist/list_focus.h"

namespace vorn::hierlist {
namespace {

Actions ChangeFocus(Outline& outline, Input& input, bool hasFocus, std::uint32_t code) {
    Actions actions;
    PutFocus(input.selection, hasFocus);
    if (input.selection.caret != nullptr) {
        const std::uint32_t row = RowOf(outline, input.selection.caret);
        if (row != kNoRow) {
            Append(actions, {ActionKind::RepaintRows, row, row});
        }
    } else {
        Append(actions, {ActionKind::RepaintTop});
    }
    AppendUpdate(actions);
    AppendNotify(actions, outline, code);
    return actions;
}

} // namespace

Actions FocusGained(Outline& outline, Input& input) {
    return ChangeFocus(outline, input, true, kGotFocus);
}

Actions FocusLost(Outline& outline, Input& input) {
    return ChangeFocus(outline, input, false, kLostFocus);
}

} // namespace vorn::hierlist
