#include "hierlist/list_mouse.h"

#include <algorithm>

namespace vorn::hierlist {
namespace {

void ExtendDragTo(Actions& actions, Outline& outline, Input& input, std::uint32_t row) {
    Selection& selection = input.selection;
    const bool hasAnchor = RowOf(outline, selection.anchor) != kNoRow;
    if (hasAnchor && !input.dragged && (input.pressModifiers & kShift) == 0) {
        selection.rangeEnd = selection.anchor; // a range of its own, not the last one's
    }
    // A press with Shift leaves the end of its range where there is no anchor to begin it.
    if (hasAnchor || (input.pressModifiers & kShift) != 0) {
        SelectAt(actions, outline, input, row, kShift, Tell::Parent);
    } else if ((input.pressModifiers & kControl) != 0) {
        MoveCaret(actions, outline, input, row); // the press has deselected a row
    } else {
        SelectAt(actions, outline, input, row, 0, Tell::Parent);
        selection.rangeEnd = selection.anchor;
    }
}

Actions DragTo(Outline& outline, Input& input, std::uint32_t row) {
    Actions actions;
    OlbItem* item = IndexToHandle(outline, row);
    if (item == nullptr || item == input.dragAt) {
        return actions;
    }
    if (Has(outline, kStyleMultipleSel)) {
        MoveCaret(actions, outline, input, row);
    } else if (Has(outline, kStyleExtendedSel)) {
        ExtendDragTo(actions, outline, input, row);
    } else {
        SelectAt(actions, outline, input, row, 0, Tell::Parent);
    }
    input.dragAt = item;
    input.dragged = true;
    return actions;
}

bool IsAbove(const Outline& outline, Point point, const Rect& client) {
    return point.y < client.top || (Has(outline, kStyleMultiColumn) && point.x < client.left);
}

bool IsBelow(const Outline& outline, Point point, const Rect& client) {
    return point.y >= client.bottom || (Has(outline, kStyleMultiColumn) && point.x >= client.right);
}

} // namespace

Actions Press(Outline& outline, Input& input, const PressEvent& event) {
    Actions actions;
    if (RowCount(outline) == 0) {
        return actions;
    }
    OlbItem* item = IndexToHandle(outline, event.row);
    input.captured = true;
    input.dragged = false;
    input.pressed = item;
    input.dragAt = item;
    input.pointer = event.point;
    input.pressModifiers = event.modifiers;
    ++input.presses;

    Append(actions, {ActionKind::Capture});
    SelectAt(actions, outline, input, event.row, event.modifiers, Tell::Parent);
    Append(actions, {ActionKind::StartTimer, kDragTimer});
    if (item == nullptr) {
        return actions;
    }
    if (event.isDouble) {
        Append(actions, {ActionKind::Toggle, 0, input.presses});
        AppendNotify(actions, outline, kDoubleClicked, input.presses);
    } else if (event.isOnBox) {
        Append(actions, {ActionKind::Toggle, 0, input.presses});
    }
    return actions;
}

void TogglePressed(Outline& outline, const Input& input) {
    OlbItem* item = input.pressed;
    const std::uint32_t row = RowOf(outline, item);
    if (row == kNoRow || HasChildren(item) == 0 || QueryLocked(item) != 0) {
        return;
    }
    QueryOpen(item) != 0 ? Close(outline, row) : Open(outline, row);
}

Actions Move(Outline& outline, Input& input, Point point, std::uint32_t row) {
    if (!input.captured || point == input.pointer) {
        return {}; // the system also reports moves to where the pointer already is
    }
    input.pointer = point;
    return DragTo(outline, input, row);
}

Actions Release(Input& input) {
    Actions actions;
    if (input.captured) {
        input.captured = false;
        Append(actions, {ActionKind::ReleaseCapture});
        Append(actions, {ActionKind::KillTimer, kDragTimer});
    }
    return actions;
}

Actions CaptureChanged(Input& input, CaptureOwner owner) {
    Actions actions;
    if (input.captured && owner != CaptureOwner::Self) {
        input.captured = false;
        Append(actions, {ActionKind::KillTimer, kDragTimer});
    }
    return actions;
}

Actions Tick(Outline& outline, Input& input, const View& view, std::uint32_t timer, Point pointer,
             const Rect& client) {
    Actions actions;
    if (timer == kIdleTimer) {
        Append(actions, {ActionKind::StartTimer, kIdleTimer});
        return actions;
    }
    if (timer != kDragTimer) {
        return actions;
    }
    if (!input.captured) {
        Append(actions, {ActionKind::KillTimer, kDragTimer});
        return actions;
    }
    if (IsAbove(outline, pointer, client)) {
        return DragTo(outline, input, view.topRow - std::min(view.topRow, 1u));
    }
    if (IsBelow(outline, pointer, client)) {
        const bool isThere = RowOf(outline, input.dragAt) == view.bottomRow;
        return DragTo(outline, input, view.bottomRow + (isThere ? 1 : 0));
    }
    return actions;
}

} // namespace vorn::hierlist
