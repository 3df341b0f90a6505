// What kinds of drives and files there are, as pictures of the list's strip.
#pragma once

#include <cstdint>

namespace vorn::hierlist {

constexpr std::int16_t kPictureDocument = 2; // any file that is nothing else
constexpr std::int16_t kPictureRoot = 3;     // a drive with its folders below it
constexpr std::int16_t kPictureProgram = 4;
constexpr std::int16_t kPictureSystem = 5;
constexpr std::int16_t kPictureText = 8;
constexpr std::int16_t kPictureHelp = 9;
constexpr std::int16_t kPictureRemovable = 10;
constexpr std::int16_t kPictureFixed = 11;
constexpr std::int16_t kPictureNetwork = 12;
constexpr std::int16_t kPictureCdRom = 13;

// Attributes of a file, as the platform numbers them.
constexpr std::uint32_t kFileReadOnly = 0x01;
constexpr std::uint32_t kFileHidden = 0x02;
constexpr std::uint32_t kFileSystem = 0x04;
constexpr std::uint32_t kFileDirectory = 0x10;
constexpr std::uint32_t kFileArchive = 0x20;

// The picture of a folder or file: folders have the one that sorts ahead of all others. The name is
// in lower case.
std::int16_t PictureOfFile(const char* name, std::uint32_t attributes);

} // namespace vorn::hierlist
