#include "hierlist/type_ahead.h"

#include "hierlist/compare.h"

namespace vorn::hierlist {
namespace {

bool IsIgnored(char character) {
    return character == '\t' || character == '\r' || character == ' ' || character == '\0';
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

std::uint32_t FindSibling(const Outline& outline, std::uint32_t start, const char* text) {
    const OlbItem* from = IndexToHandle(outline, start);
    const bool isNested = from != nullptr && from->parent != nullptr;
    const OlbItem* first = isNested ? from->parent->firstChild : outline.top.firstChild;
    const OlbItem* item = from != nullptr ? from->nextSibling : first;
    for (; item != nullptr; item = item->nextSibling) {
        if (Matches(outline, item, text, false)) {
            return HandleToIndex(item);
        }
    }
    if (from == nullptr) {
        return kNoRow;
    }
    for (item = first; item != nullptr; item = item->nextSibling) {
        if (Matches(outline, item, text, false)) {
            return HandleToIndex(item);
        }
        if (item == from) {
            break;
        }
    }
    return kNoRow;
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
