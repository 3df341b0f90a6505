#include "hierlist/type_ahead.h"

#include "hierlist/compare.h"

namespace vorn::hierlist {
namespace {

bool IsIgnored(char character) {
    return character == '\t' || character == '\r' || character == ' ' || character == '\0';
}

// Searches from an item up to and including `last`, or to the last sibling for null.
std::uint32_t FirstMatch(Outline& outline, OlbItem* item, const OlbItem* last, const char* text) {
    for (; item != nullptr; item = item->nextSibling) {
        // A child that was put at a position under a hidden parent need not be a row.
        const std::uint32_t row =
            Matches(outline, item, text, false) ? RowOf(outline, item) : kNoRow;
        if (row != kNoRow || item == last) {
            return row;
        }
    }
    return kNoRow;
}

void AppendOnCaret(Actions& actions, Outline& outline, const Input& input, ActionKind kind) {
    const std::uint32_t row = CaretRow(outline, input.selection);
    if (row != kNoRow) {
        Append(actions, {kind, row});
        RepaintAll(actions, outline);
        AppendUpdate(actions);
    }
}

} // namespace

std::uint32_t FindSibling(Outline& outline, std::uint32_t start, const char* text) {
    OlbItem* from = IndexToHandle(outline, start);
    const bool isNested = from != nullptr && from->parent != nullptr;
    OlbItem* first = isNested ? from->parent->firstChild : outline.top.firstChild;
    std::uint32_t row = kNoRow;
    if (from != nullptr) {
        row = FirstMatch(outline, from->nextSibling, nullptr, text);
    }
    if (row == kNoRow) {
        row = FirstMatch(outline, first, from, text);
    }
    return row;
}

Actions SelectString(Outline& outline, Input& input, std::uint32_t start, const char* text,
                     Tell tell, std::uint32_t& row) {
    Actions actions;
    row = FindSibling(outline, start, text);
    SelectAt(actions, outline, input, row, 0, tell);
    return actions;
}

Actions TypeCharacter(Outline& outline, Input& input, char character) {
    Actions actions;
    if (IsIgnored(character)) {
        return actions;
    }
    if (character == '+') {
        AppendOnCaret(actions, outline, input, ActionKind::Open);
    } else if (character == '-') {
        AppendOnCaret(actions, outline, input, ActionKind::Close);
    } else if (!HoldsValues(outline)) {
        const char text[] = {character, '\0'};
        std::uint32_t row = kNoRow;
        return SelectString(outline, input, CaretRow(outline, input.selection), text, Tell::Parent,
                            row);
    }
    return actions;
}

} // namespace vorn::hierlist
