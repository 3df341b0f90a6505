#include "core/text.h"

#include <algorithm>

namespace vorn {
namespace {

constexpr int kLongestNumber = 10; // digits of a 32-bit number

} // namespace

void CopyText(std::span<char> buffer, const char* text) {
    std::size_t length = 0;
    while (length + 1 < buffer.size() && text[length] != '\0') {
        buffer[length] = text[length];
        ++length;
    }
    std::fill(buffer.begin() + static_cast<std::ptrdiff_t>(std::min(length, buffer.size())),
              buffer.end(), '\0');
}

TextBuilder StartText(std::span<char> buffer) {
    if (!buffer.empty()) {
        buffer[0] = '\0';
    }
    return {buffer};
}

void Append(TextBuilder& text, char character) {
    if (character == '\0' || text.length + 1 >= text.buffer.size()) {
        return;
    }
    text.buffer[text.length] = character;
    ++text.length;
    text.buffer[text.length] = '\0';
}

void AppendText(TextBuilder& text, const char* characters) {
    for (; *characters != '\0'; ++characters) {
        Append(text, *characters);
    }
}

void AppendNumber(TextBuilder& text, std::uint32_t number, int digits) {
    char reversed[kLongestNumber];
    int count = 0;
    do {
        reversed[count] = static_cast<char>('0' + number % 10);
        ++count;
        number /= 10;
    } while (number != 0);
    for (int place = digits; place > count; --place) {
        Append(text, '0');
    }
    while (count > 0) {
        --count;
        Append(text, reversed[count]);
    }
}

} // namespace vorn
