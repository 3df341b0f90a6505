#include "core/profile_win.h"

#include <cstring>

namespace vorn {
namespace {

constexpr char kSection[] = "intl";

void ReadString(void* /*context*/, const char* key, const char* fallback, char* buffer,
                std::uint32_t size) {
    GetProfileStringA(kSection, key, fallback, buffer, size);
}

std::uint32_t ReadInteger(void* /*context*/, const char* key, std::int32_t fallback) {
    return GetProfileIntA(kSection, key, fallback);
}

} // namespace

constinit const RegionalProfile kUserProfile = {nullptr, ReadString, ReadInteger};

bool ConcernsUserProfile(LPARAM section) {
    const auto* name = reinterpret_cast<const char*>(section);
    return name == nullptr || std::strcmp(name, kSection) == 0;
}

} // namespace vorn
