// The version functions, answered from the library's version resource.
#include "core/platform_win.h"
#include "core/version_number.h"

#include <vorn32.h>

namespace {

// Found among the process's modules, not by a path.
constexpr char kFileName[] = "VORN32.DLL";

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

extern "C" DWORD WINAPI GetLongVersion() {
    DWORD handle = 0;
    const DWORD size = GetFileVersionInfoSizeA(kFileName, &handle);
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
        if (GetFileVersionInfoA(kFileName, handle, size, versionInfo)) {
            version = PackedVersion(versionInfo);
        }
        GlobalUnlock(memory);
    }
    GlobalFree(memory);
    return version;
}

extern "C" DWORD WINAPI GetVORNVersion() {
    return vorn::ShortVersion(GetLongVersion());
}
