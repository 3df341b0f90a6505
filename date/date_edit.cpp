#include "date/date_edit.h"

#include "core/text.h"

namespace vorn::date {
namespace {

constexpr std::size_t kPieceSize = 30; // of a date string, with its terminator
constexpr std::int32_t kTwoDigitYears = 100;
constexpr std::int32_t kCenturyOfStrings = 1900;
constexpr Date kNoDate = {9, 0, 0};
constexpr std::int32_t kTimeEpoch = 1900;

std::uint16_t Low16(std::int32_t number) {
    return static_cast<std::uint16_t>(number);
}

// After a change from outside that goes back to the first field.
void FinishFromStart(DateEntry& entry) {
    ResetCaret(entry);
    ClearTypedZeros(entry.date);
    FormatValueText(entry.date);
}

// After one that leaves the caret where it is.
void FinishInPlace(DateEntry& entry) {
    ClearTypedZeros(entry.date);
    FormatValueText(entry.date);
    KeepCaretInText(entry);
}

void TakeLayout(Layout& layout, const EditParams& params, const RegionalProfile& profile) {
    const auto separator = static_cast<char>(params.separator & 0xFF);
    layout.separator = separator != '\0' ? separator : ReadDateSeparator(profile);
    layout.monthLeadingZero = static_cast<std::int32_t>(params.monthLeadingZero);
    layout.dayLeadingZero = static_cast<std::int32_t>(params.dayLeadingZero);
    layout.fourDigitYear = static_cast<std::int32_t>(params.fourDigitYear);
    if (params.kinds[0] == 0) {
        ReadUserLayout(profile, layout.separator, layout);
        return;
    }
    for (std::size_t position = 0; position < kPositions; ++position) {
        layout.kinds[position] = static_cast<std::int32_t>(params.kinds[position]);
    }
}

// The next piece of a date string, without its separator. Returns whether there was one; the text
// becomes null behind the last.
bool TakePiece(const char*& text, char separator, char (&buffer)[kPieceSize]) {
    if (text == nullptr) {
        return false;
    }
    TextBuilder piece = StartText(buffer);
    while (*text != '\0' && *text != separator) {
        Append(piece, *text);
        ++text;
    }
    text = *text == '\0' ? nullptr : text + 1;
    return true;
}

void SetStringField(HeldDate& date, std::int32_t kind, std::int32_t number) {
    switch (kind) {
    case kDay:
        date.value.day = Low16(number);
        break;
    case kMonth:
        date.value.month = Low16(number);
        break;
    case kYear:
        date.value.year = Low16(date.layout.fourDigitYear == 0 && number < kTwoDigitYears
                                    ? number + kCenturyOfStrings
                                    : number);
        break;
    default:
        break;
    }
}

} // namespace

void StartDate(DateEntry& entry, const Date& today, const RegionalProfile& profile) {
    entry.date.value = today;
    ReloadLayout(entry, profile);
}

void ReloadLayout(DateEntry& entry, const RegionalProfile& profile) {
    ReadUserLayout(profile, ReadDateSeparator(profile), entry.date.layout);
    FormatValueText(entry.date);
    KeepCaretInText(entry);
}

void GetEditParams(EditParams& params, const HeldDate& date) {
    params.size = kEditParamsSize;
    params.setDate = 1;
    params.year = date.value.year;
    params.month = date.value.month;
    params.day = date.value.day;
    params.keepLayout = 1;
    params.separator = static_cast<unsigned char>(date.layout.separator);
    params.monthLeadingZero = static_cast<std::uint32_t>(date.layout.monthLeadingZero);
    for (std::size_t position = 0; position < kPositions; ++position) {
        params.kinds[position] = static_cast<std::uint32_t>(date.layout.kinds[position]);
    }
}

void SetEditParams(DateEntry& entry, const EditParams& params, bool takeDate, const Date& today,
                   const RegionalProfile& profile) {
    HeldDate& date = entry.date;
    if (takeDate) {
        date.value = params.year == 0 ? today : Date{params.month, params.day, params.year};
    }
    if (params.keepLayout == 0) {
        TakeLayout(date.layout, params, profile);
    }
    date.null = date.value.year == 0 ? 1 : 0;
    FinishFromStart(entry);
}

void SetDate(DateEntry& entry, const Date& date) {
    entry.date.value = date;
    entry.date.null = date == kNoDate ? 1 : 0;
    FinishInPlace(entry);
}

void SetDateString(DateEntry& entry, const char* text) {
    if (text == nullptr || *text == '\0') {
        SetNull(entry);
        return;
    }
    HeldDate& date = entry.date;
    char copy[kValueTextSize];
    CopyText(copy, text);
    const char* rest = copy;
    char piece[kPieceSize];
    for (std::int32_t kind : date.layout.kinds) {
        if (TakePiece(rest, date.layout.separator, piece)) {
            SetStringField(date, kind, DecimalAt(piece));
        }
    }
    date.null = 0;
    FinishFromStart(entry);
}

void SetNull(DateEntry& entry) {
    entry.date.null = 1;
    entry.date.value = {};
    FinishFromStart(entry);
}

void SetText(DateEntry& entry, const char* text) {
    if (text == nullptr || *text == '\0') {
        SetNull(entry);
        return;
    }
    entry.date.null = 0;
    ParseTypedDate(entry.date, text);
    FinishInPlace(entry);
}

void SetTime(DateEntry& entry, const TimeRecord& time) {
    // In 64 bits no number of a host overflows.
    const std::int64_t year = std::int64_t{time.year} + kTimeEpoch;
    const std::int64_t month = std::int64_t{time.month} + 1;
    entry.date.value = {static_cast<std::uint16_t>(month), Low16(time.day),
                        static_cast<std::uint16_t>(year)};
    entry.date.null = 0;
    FinishFromStart(entry);
}

TimeRecord TimeOf(const Date& date) {
    std::uint16_t weekday = 0;
    DayNumber(date.month, date.day, date.year, nullptr, &weekday);
    TimeRecord time = {};
    time.day = date.day;
    time.month = date.month - 1;
    time.year = date.year - kTimeEpoch;
    time.weekday = weekday;
    time.dayOfYear = DayOfYear(date);
    return time;
}

constinit Captions captions = {{"&OK", "&Cancel", "&Erase"}};

void ResetCaptions(Captions& captions) {
    captions = {{"&OK", "&Cancel", "&Erase"}};
}

char* SetCaption(Captions& captions, std::int32_t which, const char* text) {
    if (which < 0 || which >= kCaptions) {
        return nullptr;
    }
    char(&caption)[kCaptionSize] = captions.texts[which];
    if (text != nullptr) {
        CopyText(caption, text);
    }
    return caption;
}

} // namespace vorn::date
