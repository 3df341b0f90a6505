// The user's regional settings while a test changes them.
#pragma once

#include <map>
#include <optional>
#include <string>

namespace vorn::test {

// From construction on the keys of WIN.INI's section "intl" that are set are the test's; they are
// as they were at the end of the scope. Tells nobody.
class RegionalSettings {
public:
    RegionalSettings() = default;
    ~RegionalSettings();
    RegionalSettings(const RegionalSettings&) = delete;
    RegionalSettings& operator=(const RegionalSettings&) = delete;

    // An empty value takes the key away.
    void Set(const char* key, const std::optional<std::string>& value);

private:
    std::map<std::string, std::optional<std::string>> before_;
};

} // namespace vorn::test
