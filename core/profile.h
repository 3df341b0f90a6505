// The user's regional settings: the section "intl" of WIN.INI.
#pragma once

#include <cstdint>

namespace vorn {

// How to read them. The functions are called with the record's context.
struct RegionalProfile {
    void* context;

    // Copies the text of a key into the buffer, cut to size - 1 characters and terminated;
    // `fallback` when there is no such key.
    void (*readString)(void* context, const char* key, const char* fallback, char* buffer,
                       std::uint32_t size);

    // The number of a key, `fallback` when there is no such key. Only who reads numbers needs it.
    std::uint32_t (*readInteger)(void* context, const char* key, std::int32_t fallback) = nullptr;
};

} // namespace vorn
