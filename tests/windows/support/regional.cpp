#include "tests/windows/support/regional.h"

#include <windows.h>

namespace vorn::test {
namespace {

constexpr char kSection[] = "intl";

std::optional<std::string> Read(const char* key) {
    // A text that no setting has tells that there is none.
    constexpr char kMissing[] = "\x01";
    char text[256];
    GetProfileStringA(kSection, key, kMissing, text, sizeof text);
    return text == std::string(kMissing) ? std::nullopt : std::optional<std::string>(text);
}

void Write(const char* key, const std::optional<std::string>& value) {
    WriteProfileStringA(kSection, key, value ? value->c_str() : nullptr);
}

} // namespace

RegionalSettings::~RegionalSettings() {
    for (const auto& [key, value] : before_) {
        Write(key.c_str(), value);
    }
}

void RegionalSettings::Set(const char* key, const std::optional<std::string>& value) {
    before_.try_emplace(key, Read(key));
    Write(key, value);
}

} // namespace vorn::test
