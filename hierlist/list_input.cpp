#include "hierlist/list_input.h"

#include <algorithm>

namespace vorn::hierlist {
namespace {

bool IsRepaint(const Action& action) {
    return action.kind == ActionKind::RepaintRows || action.kind == ActionKind::RepaintTop ||
           action.kind == ActionKind::RepaintAll;
}

bool Covers(const Action& action, std::uint32_t first, std::uint32_t last) {
    return action.kind == ActionKind::RepaintAll ||
           (action.kind == ActionKind::RepaintRows && action.first <= first && last <= action.last);
}

// What was marked before the last Update has been painted.
const Action* FirstUnpainted(const Actions& actions) {
    const Action* from = actions.begin();
    for (const Action& action : actions) {
        if (action.kind == ActionKind::Update) {
            from = &action + 1;
        }
    }
    return from;
}

bool IsMarked(const Actions& actions, std::uint32_t first, std::uint32_t last) {
    return std::any_of(FirstUnpainted(actions), actions.end(),
                       [&](const Action& action) { return Covers(action, first, last); });
}

} // namespace

bool IsStale(const Input& input, const Action& action) {
    switch (action.kind) {
    case ActionKind::StartTimer:
        return action.first == kDragTimer && !input.captured;
    case ActionKind::Notify:
        if (action.first != kDoubleClicked) {
            return false;
        }
        [[fallthrough]];
    case ActionKind::Toggle:
        return input.pressed == nullptr || input.presses != action.last;
    default:
        return false;
    }
}

void DropItem(Input& input, const OlbItem* item) {
    DropItem(input.selection, item);
    input.pressed = input.pressed != item ? input.pressed : nullptr;
    input.dragAt = input.dragAt != item ? input.dragAt : nullptr;
}

void DropAllItems(Input& input) {
    DropAllItems(input.selection);
    input.pressed = nullptr;
    input.dragAt = nullptr;
}

void RepaintRow(Actions& actions, const Outline& outline, std::uint32_t row) {
    if (row != kNoRow) {
        RepaintRows(actions, outline, row, row);
    }
}

void RepaintRows(Actions& actions, const Outline& outline, std::uint32_t first,
                 std::uint32_t last) {
    if (!Has(outline, kStyleNoRedraw) && !IsMarked(actions, first, last)) {
        Append(actions, {ActionKind::RepaintRows, first, last});
    }
}

void RepaintAll(Actions& actions, const Outline& outline) {
    if (!Has(outline, kStyleNoRedraw)) {
        Append(actions, {ActionKind::RepaintAll});
    }
}

void AppendUpdate(Actions& actions) {
    if (std::any_of(FirstUnpainted(actions), actions.end(), IsRepaint)) {
        Append(actions, {ActionKind::Update});
    }
}

void AppendNotify(Actions& actions, const Outline& outline, std::uint32_t code,
                  std::uint32_t press) {
    if (code > kDoubleClicked || Has(outline, kStyleNotify)) {
        Append(actions, {ActionKind::Notify, code, press});
    }
}

} // namespace vorn::hierlist
