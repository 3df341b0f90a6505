#include "date/date_layout.h"

namespace vorn::date {
namespace {

// One character, and eleven, with their terminators.
constexpr std::uint32_t kSeparatorSize = 2;
constexpr std::uint32_t kPictureSize = 12;

constexpr char kDefaultSeparator[] = "/";
constexpr char kDefaultPicture[] = "M/d/yy";

// The part behind the next separator, or the end of the text.
const char* NextPart(const char* text, char separator) {
    while (*text != '\0' && *text != separator) {
        ++text;
    }
    return *text == '\0' ? text : text + 1;
}

// `part` starts with the letter that decides; the letters behind it may be the terminator.
void ReadPart(const char* part, std::int32_t& kind, Layout& layout) {
    switch (part[0]) {
    case 'M':
        kind = kMonth;
        layout.monthLeadingZero = part[1] == 'M';
        break;
    case 'd':
        kind = kDay;
        layout.dayLeadingZero = part[1] == 'd';
        break;
    case 'y':
        kind = kYear;
        layout.fourDigitYear = part[1] != '\0' && part[2] == 'y';
        break;
    default:
        break;
    }
}

} // namespace

void ReadShortDateLayout(const char* format, char separator, Layout& layout) {
    const char* part = format;
    for (std::int32_t& kind : layout.kinds) {
        ReadPart(part, kind, layout);
        part = NextPart(part, separator);
    }
    layout.separator = separator;
}

char ReadDateSeparator(const RegionalProfile& profile) {
    char text[kSeparatorSize] = {};
    profile.readString(profile.context, "sDate", kDefaultSeparator, text, kSeparatorSize);
    // A key without a text would leave the fields run together.
    return text[0] != '\0' ? text[0] : kDefaultSeparator[0];
}

void ReadUserLayout(const RegionalProfile& profile, char separator, Layout& layout) {
    char picture[kPictureSize] = {};
    profile.readString(profile.context, "sShortDate", kDefaultPicture, picture, kPictureSize);
    ReadShortDateLayout(picture, separator, layout);
}

} // namespace vorn::date
