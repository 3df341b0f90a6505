#include "numeric/number_settings.h"

#include "core/text.h"

#include <cstring>

namespace vorn::numeric {
namespace {

constexpr std::uint32_t kCharacterSize = 2; // one character and its terminator

constexpr std::int32_t kDefaultLeadingZero = 1;
constexpr std::int32_t kDefaultDecimalDigits = 2;

std::uint16_t ReadCharacter(const RegionalProfile& profile, const char* key, const char* fallback) {
    char text[kCharacterSize] = {};
    profile.readString(profile.context, key, fallback, text, kCharacterSize);
    const char character = text[0] != '\0' ? text[0] : fallback[0];
    return static_cast<unsigned char>(character);
}

std::uint16_t ReadThousandChar(const RegionalProfile& profile) {
    return ReadCharacter(profile, "sThousand", ",");
}

std::uint16_t ReadDecimalChar(const RegionalProfile& profile) {
    return ReadCharacter(profile, "sDecimal", ".");
}

std::uint16_t ReadDecimalDigits(const RegionalProfile& profile) {
    return static_cast<std::uint16_t>(
        profile.readInteger(profile.context, "iDigits", kDefaultDecimalDigits));
}

} // namespace

char ThousandCharOf(const NumberSettings& settings) {
    return static_cast<char>(settings.thousandChar & 0xFF);
}

char DecimalCharOf(const NumberSettings& settings) {
    return static_cast<char>(settings.decimalChar & 0xFF);
}

int StoreCreationText(NumberSettings& settings, std::span<char> text, const char* creationText) {
    CopyText(text, creationText == nullptr ? "0" : creationText);
    settings.isNull = text.empty() || text[0] == '\0';
    return 1;
}

int LoadRegionalSettings(NumberSettings& settings, const RegionalProfile& profile) {
    settings.thousandChar = ReadThousandChar(profile);
    settings.decimalChar = ReadDecimalChar(profile);
    settings.leadingZero = static_cast<std::int32_t>(
        profile.readInteger(profile.context, "iLzero", kDefaultLeadingZero));
    return 1;
}

int ReloadRegionalSettings(NumberSettings& settings, const RegionalProfile& profile,
                           const char* section) {
    if (section == nullptr || std::strcmp(section, "intl") != 0 || settings.useRegional == 0) {
        return 0;
    }
    settings.decimalDigits = ReadDecimalDigits(profile);
    return LoadRegionalSettings(settings, profile);
}

int GetEditParams(const NumberSettings& settings, EditParams& params) {
    params.formatKind = settings.formatKind;
    params.rangeCheck = static_cast<std::uint32_t>(settings.rangeCheck);
    params.decimalDigits = settings.decimalDigits;
    params.minValue = settings.minValue;
    params.maxValue = settings.maxValue;
    params.useRegional = static_cast<std::uint32_t>(settings.useRegional);
    params.thousandChar = settings.thousandChar;
    params.decimalChar = settings.decimalChar;
    params.leadingZero = static_cast<std::uint32_t>(settings.leadingZero);
    return 1;
}

int SetEditParams(NumberSettings& settings, const EditParams& params,
                  const RegionalProfile& profile) {
    settings.formatKind = params.formatKind;
    settings.rangeCheck = static_cast<std::int32_t>(params.rangeCheck);
    settings.minValue = params.minValue;
    settings.maxValue = params.maxValue;
    settings.decimalDigits = params.decimalDigits == kUserDecimalDigits
                                 ? ReadDecimalDigits(profile)
                                 : static_cast<std::uint16_t>(params.decimalDigits);
    settings.useRegional = static_cast<std::int32_t>(params.useRegional);
    if (settings.useRegional != 0) {
        return LoadRegionalSettings(settings, profile);
    }
    settings.decimalChar = params.decimalChar != 0 ? params.decimalChar : ReadDecimalChar(profile);
    settings.thousandChar =
        params.thousandChar != 0 ? params.thousandChar : ReadThousandChar(profile);
    settings.leadingZero = static_cast<std::int32_t>(params.leadingZero);
    return 1;
}

int AdoptNumberDisplay(NumberSettings& settings, std::uint32_t& windowStyle) {
    if (settings.formatKind == kGeneral || settings.displayStyle != 0) {
        return 0;
    }
    settings.displayStyle = 1;
    windowStyle = (windowStyle & ~kBitmapDisplayBits) | kNumberDisplayBit;
    return 1;
}

double ClampToRange(const NumberSettings& settings, double value) {
    if (settings.rangeCheck == 0) {
        return value;
    }
    if (value > settings.maxValue) {
        value = settings.maxValue;
    }
    if (value < settings.minValue) {
        value = settings.minValue;
    }
    return value;
}

} // namespace vorn::numeric
