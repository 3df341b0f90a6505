// The version functions, answered from the library's version resource.
#include "core/version_win.h"

#include "core/version_number.h"

#include <vorn32.h>

namespace {

DWORD PackedVersion(const void* versionInfo) {
    void* value = nullptr;
    UINT length = 0;
    if (!VerQueryValueA(versionInfo, "\\", &value, &length) || value == nullptr ||
        length < sizeof(VS_FIXEDFILEINFO)) {
        return 0;
    }
    const auto& info = *static_cast<const VS_FIXEDFILEINFO*>(value);
    return vorn::PackVersion(info.dwFileVersionMS, info.dwFileVersionLS);
}

} // namespace

namespace vorn {

DWORD VersionOfFile(const char* file) {
    DWORD handle = 0;
    const DWORD size = GetFileVersionInfoSizeA(file, &handle);
    if (size == 0) {
        return 0;
    }
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, size);
    if (memory == nullptr) {
        return 0;
    }
    DWORD version = 0;
    void* versionInfo = GlobalLock(memory);
    if (versionInfo != nullptr) {
        if (GetFileVersionInfoA(file, handle, size, versionInfo)) {
            version = PackedVersion(versionInfo);
        }
        GlobalUnlock(memory);
    }
    GlobalFree(memory);
    return version;
}

} // namespace vorn

// By the name alone: the system finds the DLL that the process has loaded under it.
extern "C" DWORD WINAPI GetLongVersion() {
    return vorn::VersionOfFile("VORN32.DLL");
}

extern "C" DWORD WINAPI GetVORNVersion() {
    return vorn::ShortVersion(GetLongVersion());
}
