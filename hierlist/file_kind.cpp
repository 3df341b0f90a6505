#include "hierlist/file_kind.h"

#include "hierlist/item.h"

#include <cstring>

namespace vorn::hierlist {
namespace {

struct Extension {
    const char* text;
    std::int16_t picture;
};

constexpr Extension kExtensions[] = {
    {".exe", kPictureProgram}, {".bat", kPictureProgram}, {".com", kPictureProgram},
    {".vbx", kPictureProgram}, {".ocx", kPictureProgram}, {".dll", kPictureProgram},
    {".txt", kPictureText},    {".doc", kPictureText},    {".wri", kPictureText},
    {".rtf", kPictureText},    {".hlp", kPictureHelp},
};

} // namespace

std::int16_t PictureOfFile(const char* name, std::uint32_t attributes) {
    if ((attributes & kFileDirectory) != 0) {
        return kSortFirst;
    }
    if ((attributes & kFileSystem) != 0) {
        return kPictureSystem;
    }
    const char* dot = std::strrchr(name, '.');
    if (dot != nullptr) {
        for (const Extension& extension : kExtensions) {
            if (std::strcmp(dot, extension.text) == 0) {
                return extension.picture;
            }
        }
    }
    return kPictureDocument;
}

} // namespace vorn::hierlist
