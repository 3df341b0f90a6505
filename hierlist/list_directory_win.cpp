// The exported functions that fill an outline list from the file system.
#include "hierlist/directory_win.h"
#include "hierlist/file_kind.h"
#include "hierlist/list_handles_win.h"
#include "hierlist/list_view_win.h"
#include "hierlist/structure.h"

namespace vorn::hierlist {
namespace {

static_assert(kListDrives == DDL_DRIVES && kListExclusive == DDL_EXCLUSIVE);

constexpr char kEverything[] = "*.*";

} // namespace
} // namespace vorn::hierlist

using namespace vorn;
using namespace vorn::hierlist;

extern "C" LONG WINAPI olbDir(HWND window, DWORD attributes, LPCSTR pattern) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    if ((attributes & DDL_DRIVES) != 0) {
        return RowOfHandle(ToHandle(ListDrives(record->outline, kPlatformFiles)));
    }
    if (pattern == nullptr) {
        return LB_ERR;
    }
    return RowOfHandle(ToHandle(ListFiles(record->outline, kPlatformFiles, attributes, pattern)));
}

// Drawing is off meanwhile: a drive has many thousand folders.
extern "C" LONG WINAPI olbDirEx(HWND window, DWORD attributes, LONG drive) {
    if ((attributes & DDL_DRIVES) != 0) {
        return olbDir(window, attributes, kEverything);
    }
    if (RecordOf<Record>(window) == nullptr) {
        return LB_ERR;
    }
    SendMessageA(window, WM_SETREDRAW, FALSE, 0);
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    HOLBITEM root = ToHandle(ListDriveTree(record->outline, kPlatformFiles, attributes,
                                           static_cast<std::uint32_t>(drive)));
    const LONG row = RowOfHandle(root);
    SendMessageA(window, WM_SETREDRAW, TRUE, 0);
    RedrawRows(window);
    return row;
}

// A list of values takes the name for one and does not look at it.
extern "C" LONG WINAPI olbAddFile(HWND window, LPCSTR name) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr || name == nullptr || HoldsValues(record->outline)) {
        return olbAddString(window, name);
    }
    char kindName[kFileNameSize];
    lstrcpynA(kindName, name, sizeof kindName);
    CharLowerBuffA(kindName, static_cast<DWORD>(lstrlenA(kindName)));
    const std::int16_t picture = PictureOfFile(kindName, AttributesOf(name));
    return RowOfHandle(ToHandle(AddChild(record->outline, nullptr, name, picture)));
}
