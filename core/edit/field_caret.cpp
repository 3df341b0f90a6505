#include "core/edit/field_caret.h"

#include <algorithm>

namespace vorn::edit {
namespace {

std::int32_t TargetOf(const FieldCaret& caret, const FieldMap& map, CaretMove move) {
    switch (move) {
    case CaretMove::Left:
        return caret.index - 1;
    case CaretMove::Right:
        return caret.index + 1;
    case CaretMove::Home:
        return caret.firstVisible;
    case CaretMove::End:
        break;
    }
    return map.length;
}

// Fields without room are passed in one go.
void FollowWithField(FieldCaret& caret, const FieldMap& map, CaretMove move) {
    const std::int32_t last = map.count - 1;
    switch (move) {
    case CaretMove::Left:
        while (caret.field > 0 && caret.index == map.starts[caret.field] - 1) {
            --caret.field;
        }
        break;
    case CaretMove::Right:
        while (caret.field < last && caret.index == map.starts[caret.field + 1]) {
            ++caret.field;
        }
        break;
    case CaretMove::Home:
        caret.field = 0;
        break;
    case CaretMove::End:
        caret.field = last;
        break;
    }
}

// Whether the text had to be scrolled: Home and End never do.
bool ScrollLeftToCaret(Actions& actions, FieldCaret& caret, CaretMove move) {
    if (caret.index >= caret.firstVisible) {
        return false;
    }
    caret.firstVisible = caret.index;
    if (move == CaretMove::Left) {
        Append(actions, {ActionKind::NotifyLeftScroll});
    } else {
        Append(actions, {ActionKind::Notify, kHScroll});
    }
    return true;
}

} // namespace

std::int32_t FieldEnd(const FieldMap& map, std::int32_t field) {
    if (field == map.count - 1) {
        return map.length;
    }
    return std::max(map.starts[field], map.starts[field + 1] - map.separatorWidth);
}

std::int32_t FieldAt(const FieldMap& map, std::int32_t index) {
    std::int32_t field = map.count - 1;
    while (field > 0 && index < map.starts[field]) {
        --field;
    }
    return field;
}

std::int32_t FieldBeforeSeparator(const FieldMap& map, std::int32_t index) {
    if (map.separatorWidth == 0 || index >= map.length) {
        return kNoField;
    }
    std::int32_t field = map.count - 2;
    while (field >= 0 && index != map.starts[field + 1] - 1) {
        --field;
    }
    return field;
}

void PutCaret(FieldCaret& caret, const FieldMap& map, std::int32_t index) {
    Select(caret, index, index, index, map.length);
    caret.field = FieldAt(map, caret.index);
}

void SelectField(FieldCaret& caret, const FieldMap& map, std::int32_t field) {
    const std::int32_t start = map.starts[field];
    Select(caret, start, FieldEnd(map, field), start, map.length);
    caret.field = field;
}

void MoveCaret(Actions& actions, FieldCaret& caret, const FieldMap& map, CaretMove move,
               bool extend) {
    const std::int32_t target = TargetOf(caret, map, move);
    if (target < 0 || target > map.length) {
        Append(actions, {ActionKind::Beep});
        return;
    }
    const bool hadSelection = HasSelection(caret);
    if (extend) {
        ExtendTo(caret, target, map.length);
    } else {
        Select(caret, target, target, target, map.length);
    }
    FollowWithField(caret, map, move);
    const bool scrolled = ScrollLeftToCaret(actions, caret, move);
    if (scrolled || hadSelection || HasSelection(caret)) {
        Append(actions, {ActionKind::Repaint});
    }
    Append(actions, {ActionKind::PlaceCaret});
}

} // namespace vorn::edit
