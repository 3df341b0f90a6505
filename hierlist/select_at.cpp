#include "hierlist/select_at.h"

#include <algorithm>

namespace vorn::hierlist {
namespace {

// The row at hand and what becomes of it.
struct Target {
    OlbItem* item;
    std::uint32_t row;
    bool becameSelected = false;
};

// Moves the caret; the rows that its mark leaves and reaches are painted anew.
void TakeCaretTo(Actions& actions, Outline& outline, Selection& selection, const Target& target) {
    if (selection.caret != target.item) {
        if (selection.hasFocus) {
            RepaintRow(actions, outline, RowOf(outline, selection.caret));
            RepaintRow(actions, outline, target.row);
        }
        PutCaret(selection, target.item);
    }
}

void ClearAll(Actions& actions, Outline& outline, Selection& selection) {
    if (selection.count > 1) {
        RepaintAll(actions, outline);
    } else if (selection.count == 1) {
        RepaintRow(actions, outline, RowOf(outline, selection.first));
    }
    ClearSelection(outline, selection);
}

void SelectTarget(Actions& actions, Outline& outline, Selection& selection, Target& target) {
    if (SelectItem(outline, selection, target.item)) {
        target.becameSelected = true;
        RepaintRow(actions, outline, target.row);
    }
}

void DeselectTarget(Actions& actions, Outline& outline, Selection& selection,
                    const Target& target) {
    DeselectItem(outline, selection, target.item);
    RepaintRow(actions, outline, target.row);
}

// A run of rows, in whichever order its ends come.
struct RowRange {
    std::uint32_t first;
    std::uint32_t last;
};

RowRange Between(std::uint32_t one, std::uint32_t other) {
    return {std::min(one, other), std::max(one, other)};
}

// Both ranges have the anchor's row in common.
void ReplaceRange(Actions& actions, Outline& outline, Selection& selection, RowRange previous,
                  RowRange next, Target& target) {
    std::uint32_t deselected = 0;
    if (previous.first < next.first) {
        deselected += SelectRows(outline, selection, previous.first, next.first - 1, false);
    }
    if (next.last < previous.last) {
        deselected += SelectRows(outline, selection, next.last + 1, previous.last, false);
    }
    const std::uint32_t selected = SelectRows(outline, selection, next.first, next.last, true);
    target.becameSelected = selected != 0;
    if (selected + deselected != 0) {
        RepaintRows(actions, outline, std::min(previous.first, next.first),
                    std::max(previous.last, next.last));
    }
}

void ExtendTo(Actions& actions, Outline& outline, Selection& selection, Target& target) {
    const std::uint32_t endRow = RowOf(outline, selection.rangeEnd);
    if (endRow == kNoRow) {
        SelectTarget(actions, outline, selection, target);
    } else {
        std::uint32_t anchorRow = RowOf(outline, selection.anchor);
        if (anchorRow == kNoRow) {
            selection.anchor = selection.rangeEnd;
            anchorRow = endRow;
        }
        ReplaceRange(actions, outline, selection, Between(anchorRow, endRow),
                     Between(anchorRow, target.row), target);
    }
    selection.rangeEnd = target.item;
}

void Extended(Actions& actions, Outline& outline, Selection& selection, Target& target,
              std::uint32_t modifiers) {
    TakeCaretTo(actions, outline, selection, target);
    if ((modifiers & kShift) != 0) {
        ExtendTo(actions, outline, selection, target);
    } else if ((modifiers & kControl) != 0 && IsSelected(target.item)) {
        DeselectTarget(actions, outline, selection, target);
        selection.anchor = nullptr;
    } else {
        const bool adds = (modifiers & kControl) != 0;
        if (!adds && (selection.count > 1 || selection.anchor != target.item)) {
            ClearAll(actions, outline, selection);
        }
        SelectTarget(actions, outline, selection, target);
        selection.anchor = target.item;
    }
}

void Multiple(Actions& actions, Outline& outline, Selection& selection, Target& target) {
    TakeCaretTo(actions, outline, selection, target);
    if (IsSelected(target.item)) {
        DeselectTarget(actions, outline, selection, target);
    } else {
        SelectTarget(actions, outline, selection, target);
        selection.anchor = target.item;
    }
}

// The selection may have more than the anchor, from before the style was changed.
void Single(Actions& actions, Outline& outline, Selection& selection, Target& target) {
    ClearAll(actions, outline, selection);
    SelectTarget(actions, outline, selection, target);
    TakeCaretTo(actions, outline, selection, target);
    selection.anchor = target.item;
}

} // namespace

void SelectAt(Actions& actions, Outline& outline, Input& input, std::uint32_t row,
              std::uint32_t modifiers, Tell tell) {
    Target target{IndexToHandle(outline, row), row};
    if (target.item == nullptr) {
        return;
    }
    Append(actions, {ActionKind::ShowRow, row});
    if (Has(outline, kStyleExtendedSel)) {
        Extended(actions, outline, input.selection, target, modifiers);
    } else if (Has(outline, kStyleMultipleSel)) {
        Multiple(actions, outline, input.selection, target);
    } else {
        Single(actions, outline, input.selection, target);
    }
    AppendUpdate(actions);
    if (target.becameSelected && tell == Tell::Parent) {
        AppendNotify(actions, outline, kSelChange);
    }
}

void MoveCaret(Actions& actions, Outline& outline, Input& input, std::uint32_t row) {
    const Target target{IndexToHandle(outline, row), row};
    if (target.item != nullptr) {
        Append(actions, {ActionKind::ShowRow, row});
        TakeCaretTo(actions, outline, input.selection, target);
        AppendUpdate(actions);
    }
}

void GoTo(Actions& actions, Outline& outline, Input& input, std::uint32_t row,
          std::uint32_t modifiers) {
    if (Has(outline, kStyleMultipleSel)) {
        MoveCaret(actions, outline, input, row);
    } else {
        SelectAt(actions, outline, input, row, modifiers & kShift, Tell::Parent);
    }
}

Actions SelectRow(Outline& outline, Input& input, std::uint32_t row, bool on, Tell tell) {
    Actions actions;
    Target target{IndexToHandle(outline, row), row};
    if (target.item == nullptr) {
        return actions;
    }
    if (on) {
        SelectTarget(actions, outline, input.selection, target);
    } else if (IsSelected(target.item)) {
        DeselectTarget(actions, outline, input.selection, target);
    }
    AppendUpdate(actions);
    if (target.becameSelected && tell == Tell::Parent) {
        AppendNotify(actions, outline, kSelChange);
    }
    return actions;
}

} // namespace vorn::hierlist
