// An item's name with those of its parents.
#include "hierlist/outline.h"

#include <algorithm>
#include <cstring>

namespace vorn::hierlist {
namespace {

constexpr std::size_t kLongestPath = 255;

// A part of the path that ends where the part below it begins. A separator of NUL is none.
std::size_t LengthOf(const Outline& outline, const OlbItem* item, bool isLast) {
    const std::size_t length = std::strlen(TextOf(item));
    const bool ends = length != 0 && TextOf(item)[length - 1] == outline.pathSeparator;
    return length + (isLast || ends || outline.pathSeparator == '\0' ? 0 : 1);
}

} // namespace

std::uint32_t FullPath(const Outline& outline, const OlbItem* item, char* buffer) {
    std::size_t whole = 0;
    if (IsItem(item)) {
        for (const OlbItem* at = item; at != nullptr; at = at->parent) {
            whole += LengthOf(outline, at, at == item);
        }
        std::size_t end = whole;
        for (const OlbItem* at = item; at != nullptr; at = at->parent) {
            const std::size_t begin = end - LengthOf(outline, at, at == item);
            const std::size_t cut = std::min(end, kLongestPath);
            const std::size_t textEnd = std::min(begin + std::strlen(TextOf(at)), cut);
            if (begin < cut) {
                std::memcpy(buffer + begin, TextOf(at), textEnd - begin);
                std::memset(buffer + textEnd, outline.pathSeparator, cut - textEnd);
            }
            end = begin;
        }
    }
    const std::size_t length = std::min(whole, kLongestPath);
    buffer[length] = '\0';
    return static_cast<std::uint32_t>(length);
}

} // namespace vorn::hierlist
