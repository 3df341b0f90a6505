#include "timeedit/time_parse.h"

#include "core/text.h"

namespace vorn::timeedit {
namespace {

constexpr int kPieces = 4;
constexpr int kSuffixPiece = 3;
constexpr std::size_t kPieceSize = 20;

struct Pieces {
    char texts[kPieces][kPieceSize] = {};
};

Pieces Split(const char* text, char separator) {
    Pieces pieces;
    std::size_t lengths[kPieces] = {};
    int piece = 0;
    for (std::size_t index = 0; index + 1 < kValueTextSize && text[index] != '\0'; ++index) {
        const char character = text[index];
        if (character == separator) {
            ++piece;
        } else if (character == ' ') {
            piece = kSuffixPiece;
        } else if (piece < kPieces && lengths[piece] + 1 < kPieceSize) {
            pieces.texts[piece][lengths[piece]] = character;
            ++lengths[piece];
        }
    }
    return pieces;
}

std::uint16_t LeadingNumber(const char* text) {
    std::uint32_t number = 0;
    for (; *text >= '0' && *text <= '9'; ++text) {
        number = number * 10 + static_cast<std::uint32_t>(*text - '0');
    }
    return static_cast<std::uint16_t>(number);
}

char Lower(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

const char* SkipBlanks(const char* text) {
    while (*text == ' ') {
        ++text;
    }
    return text;
}

bool MakeNull(HeldTime& held) {
    held.value = {};
    held.am = 1;
    held.null = 1;
    return true;
}

} // namespace

bool IsSameSuffix(const char* read, const char* suffix) {
    read = SkipBlanks(read);
    if (*read == '\0') {
        return *suffix == '\0';
    }
    suffix = SkipBlanks(suffix);
    while (*read != '\0' && Lower(*read) == Lower(*suffix)) {
        read = SkipBlanks(read + 1);
        suffix = SkipBlanks(suffix + 1);
    }
    return *read == *suffix;
}

bool ReadTimeText(HeldTime& held, const char* text) {
    if (text == nullptr || *text == '\0') {
        return MakeNull(held);
    }
    const Pieces pieces = Split(text, SeparatorOf(held.format));
    Time read = {LeadingNumber(pieces.texts[0]), LeadingNumber(pieces.texts[1]),
                 LeadingNumber(pieces.texts[2])};
    bool am = IsMorning(read);
    const char* suffix = pieces.texts[kSuffixPiece];
    if (IsSameSuffix(suffix, held.format.amText)) {
        am = true;
    } else if (IsSameSuffix(suffix, held.format.pmText)) {
        am = false;
    }
    if (read.hour >= kNoon) {
        read.hour = static_cast<std::uint16_t>(read.hour - kNoon);
    }
    if (!am) {
        read.hour = static_cast<std::uint16_t>(read.hour + kNoon);
    }
    if (read == held.value && am == (held.am != 0)) {
        return false;
    }
    held.value = read;
    held.am = am ? 1 : 0;
    held.null = 0;
    return true;
}

} // namespace vorn::timeedit
