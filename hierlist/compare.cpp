// Which item comes first, and which one a search is for.
#include "hierlist/compare.h"

#include <cstring>

namespace vorn::hierlist {

int CompareItems(const Outline& outline, const OlbItem* first, const OlbItem* second) {
    const bool firstAhead = first->bitmapIndex == kSortFirst;
    const bool secondAhead = second->bitmapIndex == kSortFirst;
    if (firstAhead != secondAhead) {
        return firstAhead ? -1 : 1;
    }
    const char* firstKey = SortKeyOf(first);
    const char* secondKey = SortKeyOf(second);
    if (firstKey != nullptr && secondKey != nullptr) {
        return std::strcmp(firstKey, secondKey);
    }
    return outline.callbacks->compareTexts(outline.context, TextOf(first), TextOf(second));
}

bool Matches(const Outline& outline, const OlbItem* item, const char* text, bool exact) {
    if (HoldsValues(outline)) {
        return ValueOf(item) == reinterpret_cast<std::uintptr_t>(text);
    }
    text = text != nullptr ? text : "";
    if (exact) {
        return outline.callbacks->compareTexts(outline.context, TextOf(item), text) == 0;
    }
    return std::strncmp(TextOf(item), text, std::strlen(text)) == 0;
}

} // namespace vorn::hierlist
