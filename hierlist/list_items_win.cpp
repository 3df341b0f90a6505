// The exported functions that put items into an outline list and open and close them.
#include "hierlist/list_record_win.h"

#include <vorn32/hierlist.h>

namespace vorn::hierlist {
namespace {

OlbItem* ToItem(HOLBITEM handle) {
    return reinterpret_cast<OlbItem*>(handle);
}

HOLBITEM ToHandle(OlbItem* item) {
    return reinterpret_cast<HOLBITEM>(item);
}

// Adds a child, at the top level for none. Returns its row, of a hidden one the position among its
// siblings.
LONG AddRow(Record& record, OlbItem* parent, const char* text) {
    return static_cast<LONG>(HandleToIndex(AddChild(record.outline, parent, text)));
}

} // namespace
} // namespace vorn::hierlist

using namespace vorn;
using namespace vorn::hierlist;

extern "C" LONG WINAPI olbAddString(HWND window, LPCSTR text) {
    Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR : AddRow(*record, nullptr, text);
}

extern "C" LONG WINAPI olbAddChildString(HWND window, LONG parent, LPCSTR text) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    OlbItem* owner = IndexToHandle(record->outline, static_cast<std::uint32_t>(parent));
    return AddRow(*record, owner, text);
}

extern "C" HOLBITEM WINAPI olbAddChildStringEx(HWND window, HOLBITEM parent, LPCSTR text) {
    Record* record = RecordOf<Record>(window);
    return record == nullptr ? OLB_NOITEM
                             : ToHandle(AddChild(record->outline, ToItem(parent), text));
}

extern "C" void WINAPI olbOpenItem(HWND window, LONG row) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        Open(record->outline, static_cast<std::uint32_t>(row));
    }
}

extern "C" void WINAPI olbCloseItem(HWND window, LONG row) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        Close(record->outline, static_cast<std::uint32_t>(row));
    }
}
