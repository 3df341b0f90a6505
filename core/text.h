// Texts built in buffers of a fixed size.
#pragma once

#include <cstdint>
#include <span>

namespace vorn {

// Copies a terminated text and fills the rest of the buffer with zeros. What does not fit is cut; a
// buffer of no size takes nothing.
void CopyText(std::span<char> buffer, const char* text);

// A buffer and how much of it is used. The text is terminated as long as the buffer has any room.
struct TextBuilder {
    std::span<char> buffer;
    std::size_t length = 0;
};

// An empty text.
TextBuilder StartText(std::span<char> buffer);

// All append, or cut what does not fit. The character 0 appends nothing. A number is decimal, with
// leading zeros up to `digits` places.
void Append(TextBuilder& text, char character);
void AppendText(TextBuilder& text, const char* characters);
void AppendNumber(TextBuilder& text, std::uint32_t number, int digits);

} // namespace vorn
