#include "hierlist/list_keys.h"

#include <algorithm>

namespace vorn::hierlist {
namespace {

bool HasColumnKeys(const Outline& outline) {
    return Has(outline, kStyleMultiColumn) && !Has(outline, kStyleOwnerDrawVariable);
}

// Page Up and Page Down: scrolls first when there is more than fits.
void Page(Actions& actions, Outline& outline, Input& input, const View& view, std::uint32_t key,
          std::uint32_t modifiers) {
    if (Has(outline, kStyleMultiColumn)) {
        return;
    }
    const bool down = key == kKeyPageDown;
    const std::uint32_t rows = RowCount(outline);
    if (rows > view.rowsPerColumn) {
        Append(actions, {down ? ActionKind::PageDown : ActionKind::PageUp, modifiers});
    } else {
        GoTo(actions, outline, input, down ? rows - 1 : 0, modifiers);
    }
}

// The row that a key goes to from another; kNoRow when it goes nowhere.
std::uint32_t RowFrom(const Outline& outline, const View& view, std::uint32_t key,
                      std::uint32_t from) {
    const std::uint32_t last = RowCount(outline) - 1;
    const std::uint32_t column = std::max(view.rowsPerColumn, 1u);
    switch (key) {
    case kKeyEnd:
        return last;
    case kKeyHome:
        return 0;
    case kKeyLeft:
        return HasColumnKeys(outline) && from >= column ? from - column : kNoRow;
    case kKeyUp:
        return from - 1; // kNoRow for the first
    case kKeyRight:
        if (!HasColumnKeys(outline)) {
            return kNoRow;
        }
        return column <= last - from ? from + column : last;
    case kKeyDown:
        return from < last ? from + 1 : kNoRow;
    default:
        return kNoRow;
    }
}

bool OpensAll(std::uint32_t key, std::uint32_t modifiers) {
    const bool control = (modifiers & kControl) != 0;
    const bool shift = (modifiers & kShift) != 0;
    return control && (key == kKeyAdd || (key == kKeyPlus && shift));
}

} // namespace

Actions TakeAnswer(Outline& outline, Input& input, std::int32_t answer) {
    Actions actions;
    if (answer >= 0) {
        MoveCaret(actions, outline, input, static_cast<std::uint32_t>(answer));
    }
    return actions;
}

Actions KeyDown(Outline& outline, Input& input, const View& view, std::uint32_t key,
                std::uint32_t modifiers) {
    Actions actions;
    if (key == kKeyTab) {
        const bool back = (modifiers & kShift) != 0;
        Append(actions, {back ? ActionKind::FocusPrevious : ActionKind::FocusNext});
        return actions;
    }
    if (RowCount(outline) == 0) {
        return actions;
    }
    const std::uint32_t caretRow = CaretRow(outline, input.selection);
    const std::uint32_t from =
        caretRow != kNoRow ? caretRow : std::min(view.topRow, RowCount(outline) - 1);
    if (key == kKeyPageUp || key == kKeyPageDown) {
        Page(actions, outline, input, view, key, modifiers);
    } else if (key == kKeySpace) {
        if (Has(outline, kStyleMultipleSel)) {
            SelectAt(actions, outline, input, from, 0, Tell::Parent);
        }
    } else if (OpensAll(key, modifiers)) {
        if (caretRow == kNoRow) {
            MoveCaret(actions, outline, input, from);
        }
        Append(actions, {ActionKind::OpenAll, from});
    } else {
        GoTo(actions, outline, input, RowFrom(outline, view, key, from), modifiers);
    }
    return actions;
}

Actions Paged(Outline& outline, Input& input, std::uint32_t key, std::uint32_t modifiers,
              std::uint32_t topBefore, std::uint32_t topNow) {
    Actions actions;
    const bool atEnd = key == kKeyPageDown && topNow == topBefore;
    GoTo(actions, outline, input, atEnd ? RowCount(outline) - 1 : topNow, modifiers);
    return actions;
}

} // namespace vorn::hierlist
