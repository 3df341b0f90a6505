#include "hierlist/directory_win.h"

#include "core/platform_win.h"

#include <winnetwk.h>

namespace vorn::hierlist {
namespace {

static_assert(kFileReadOnly == FILE_ATTRIBUTE_READONLY && kFileHidden == FILE_ATTRIBUTE_HIDDEN);
static_assert(kFileSystem == FILE_ATTRIBUTE_SYSTEM && kFileArchive == FILE_ATTRIBUTE_ARCHIVE);
static_assert(kFileDirectory == FILE_ATTRIBUTE_DIRECTORY);
static_assert(kFileNameSize == MAX_PATH);

// The bits of a reparse tag that say that it is one of the platform's own, and that the folder
// stands for another one.
constexpr DWORD kPlatformTag = 0x80000000;
constexpr DWORD kNameSurrogate = 0x20000000;

// No message of the system's about a drive without a disk.
class QuietErrors {
public:
    QuietErrors() : before_(SetErrorMode(SEM_FAILCRITICALERRORS)) {}
    ~QuietErrors() { SetErrorMode(before_); }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

private:
    UINT before_;
};

std::uint32_t DriveType(void* /*context*/, const char* root) {
    return GetDriveTypeA(root);
}

void VolumeName(void* /*context*/, const char* root, char* name, std::uint32_t size) {
    const QuietErrors quiet;
    if (GetVolumeInformationA(root, name, size, nullptr, nullptr, nullptr, nullptr, 0) == 0) {
        *name = '\0';
    }
}

std::uint32_t NetworkName(void* /*context*/, const char* device, char* name, std::uint32_t size) {
    DWORD length = size;
    return WNetGetConnectionA(device, name, &length);
}

char CurrentDrive(void* /*context*/) {
    char path[MAX_PATH];
    const DWORD length = GetCurrentDirectoryA(sizeof path, path);
    if (length == 0 || length >= sizeof path || path[1] != ':') {
        return '\0';
    }
    CharUpperBuffA(path, 1);
    return path[0] >= 'A' && path[0] <= 'Z' ? path[0] : '\0';
}

void Take(FileEntry& entry, const WIN32_FIND_DATAA& found) {
    lstrcpynA(entry.name, found.cFileName, sizeof entry.name);
    entry.attributes = found.dwFileAttributes;
    // A tag that is not told, or is not the platform's, is taken for that of a link.
    entry.isLink = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
                   (found.dwReserved0 & (kPlatformTag | kNameSurrogate)) != kPlatformTag;
}

void* FindFirst(void* /*context*/, const char* pattern, FileEntry& entry) {
    const QuietErrors quiet;
    WIN32_FIND_DATAA found;
    HANDLE search = FindFirstFileA(pattern, &found);
    if (search == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    Take(entry, found);
    return search;
}

bool FindNext(void* /*context*/, void* search, FileEntry& entry) {
    const QuietErrors quiet;
    WIN32_FIND_DATAA found;
    if (FindNextFileA(search, &found) == 0) {
        return false;
    }
    Take(entry, found);
    return true;
}

void FindEnd(void* /*context*/, void* search) {
    FindClose(search);
}

void ToLower(void* /*context*/, char* text) {
    CharLowerBuffA(text, static_cast<DWORD>(lstrlenA(text)));
}

} // namespace

std::uint32_t AttributesOf(const char* name) {
    const QuietErrors quiet;
    const DWORD attributes = GetFileAttributesA(name);
    return attributes == INVALID_FILE_ATTRIBUTES ? 0 : attributes;
}

constexpr FileSystem kPlatformFiles = {
    nullptr,   DriveType, VolumeName, NetworkName, CurrentDrive,
    FindFirst, FindNext,  FindEnd,    ToLower,
};

} // namespace vorn::hierlist
