// What decides how a number is read and written: the host's choices and the user's regional ones.
#pragma once

#include "core/profile.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace vorn::numeric {

// A number as text, with its terminator. No text is ever longer.
constexpr std::size_t kNumberTextSize = 64;

// Format kinds. The first and the last five are for floating numbers, the others for integers. Any
// other number means kGeneral.
constexpr std::uint32_t kGeneral = 0;
constexpr std::uint32_t kInteger = 1;
constexpr std::uint32_t kIntegerGrouped = 2;
constexpr std::uint32_t kIntegerParentheses = 3;
constexpr std::uint32_t kIntegerGroupedParentheses = 4;
constexpr std::uint32_t kFloating = 5;
constexpr std::uint32_t kFloatingGrouped = 6;
constexpr std::uint32_t kFloatingParentheses = 7;
constexpr std::uint32_t kFloatingGroupedParentheses = 8;
constexpr std::uint32_t kFloatingUnpadded = 9; // shown as kFloating, stored without decimals

constexpr bool IsIntegerKind(std::uint32_t formatKind) {
    return formatKind >= kInteger && formatKind <= kIntegerGroupedParentheses;
}

// The display style that draws the number from bitmaps, which there are for integers alone.
constexpr std::uint16_t kDigitDisplay = 2;

struct NumberSettings {
    std::uint32_t formatKind = kGeneral;
    std::int32_t rangeCheck = 0;     // non-zero: what is read is clamped to the range
    std::uint16_t decimalDigits = 0; // behind the decimal character
    double minValue = 0;
    double maxValue = 0;
    std::int32_t useRegional = 0;     // non-zero: the next three follow the user's settings
    std::uint16_t thousandChar = ','; // one character each, in the low byte
    std::uint16_t decimalChar = '.';
    std::int32_t leadingZero = 1; // non-zero: a value below one keeps the 0 before its decimals
    std::int32_t isNull = 0;      // non-zero: there is no value, whatever the text
    std::uint16_t displayStyle = 0;
};

// The characters themselves, 0 when there is none.
char ThousandCharOf(const NumberSettings& settings);
char DecimalCharOf(const NumberSettings& settings);

// Stores the text that a control is created with, cut to the buffer: "0" for null. An empty one
// makes the control null. Returns 1.
int StoreCreationText(NumberSettings& settings, std::span<char> text, const char* creationText);

// Reads the user's two characters and leading zero, for a new control; the decimal digits stay. A
// key without a text counts as missing. Returns 1.
int LoadRegionalSettings(NumberSettings& settings, const RegionalProfile& profile);

// For a change of the profile's section of that name, null for any: reads all four again when it is
// "intl", in this spelling, and the control follows the user's settings. Returns whether it did.
int ReloadRegionalSettings(NumberSettings& settings, const RegionalProfile& profile,
                           const char* section);

// Takes the user's count of decimal digits.
constexpr std::uint32_t kUserDecimalDigits = 0xFFFFFFFF;

// The record in which hosts read and write the settings. Its layout is fixed, whatever the target's
// own alignment of doubles.
#pragma pack(push, 4)
struct EditParams {
    std::uint32_t formatKind;
    std::uint32_t rangeCheck;
    std::uint32_t decimalDigits; // or kUserDecimalDigits; of any other only the low 16 bits count
    std::uint32_t reserved;      // neither read nor written
    double minValue;
    double maxValue;
    std::uint32_t useRegional;  // non-zero: the rest is ignored
    std::uint16_t thousandChar; // 0: the user's
    std::uint16_t decimalChar;
    std::uint32_t leadingZero;
};
#pragma pack(pop)

static_assert(sizeof(EditParams) == 44);
static_assert(offsetof(EditParams, formatKind) == 0 && offsetof(EditParams, rangeCheck) == 4);
static_assert(offsetof(EditParams, decimalDigits) == 8 && offsetof(EditParams, reserved) == 12);
static_assert(offsetof(EditParams, minValue) == 16 && offsetof(EditParams, maxValue) == 24);
static_assert(offsetof(EditParams, useRegional) == 32 && offsetof(EditParams, thousandChar) == 36);
static_assert(offsetof(EditParams, decimalChar) == 38 && offsetof(EditParams, leadingZero) == 40);

// Both return 1. The null flag and the display style are no part of the record.
int GetEditParams(const NumberSettings& settings, EditParams& params);
int SetEditParams(NumberSettings& settings, const EditParams& params,
                  const RegionalProfile& profile);

// The window style bits that choose the display style.
constexpr std::uint32_t kNumberDisplayBit = 0x0008;  // style 1
constexpr std::uint32_t kBitmapDisplayBits = 0x0030; // styles 2 and 3

// Gives a control of display style 0 the style 1 when its format kind is no longer the general one,
// in the record and in the window's style bits. Returns whether it did.
int AdoptNumberDisplay(NumberSettings& settings, std::uint32_t& windowStyle);

// The value, or the limit of the range it is beyond; a minimum above the maximum wins. Without
// range checking the value itself, as for a value that is no number.
double ClampToRange(const NumberSettings& settings, double value);

} // namespace vorn::numeric
