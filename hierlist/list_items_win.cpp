// The exported functions that put items into an outline list, take them out, move and copy them.
#include "hierlist/list_handles_win.h"

namespace vorn::hierlist {
namespace {

// MoveItem and its kin.
using Relocation = OlbItem* (*)(Outline&, OlbItem*, OlbItem*, std::uint16_t);

HOLBITEM RelocateHandle(HWND window, Relocation relocate, HOLBITEM item, HOLBITEM parent,
                        WORD position) {
    Record* record = RecordOf<Record>(window);
    return record == nullptr
               ? OLB_NOITEM
               : ToHandle(relocate(record->outline, ToItem(item), ToItem(parent), position));
}

LONG RelocateRow(HWND window, Relocation relocate, LONG row, LONG parent, WORD position) {
    return RowOfHandle(
        RelocateHandle(window, relocate, HandleAt(window, row), OwnerAt(window, parent), position));
}

} // namespace
} // namespace vorn::hierlist

using namespace vorn;
using namespace vorn::hierlist;

// ---- Adding ----

extern "C" LONG WINAPI olbAddString(HWND window, LPCSTR text) {
    return olbAddChildString(window, -1, text);
}

// Hosts add very many: the record is fetched once.
extern "C" LONG WINAPI olbAddChildString(HWND window, LONG parent, LPCSTR text) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    const OlbItem* item = AddChild(record->outline, ItemAt(*record, parent), text);
    return IsItem(item) ? ToRow(IndexOfAdded(record->outline, item)) : LB_ERR;
}

extern "C" HOLBITEM WINAPI olbAddChildStringEx(HWND window, HOLBITEM parent, LPCSTR text) {
    Record* record = RecordOf<Record>(window);
    return record == nullptr ? OLB_NOITEM
                             : ToHandle(AddChild(record->outline, ToItem(parent), text));
}

extern "C" LONG WINAPI olbInsertString(HWND window, LONG row, LPCSTR text) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    return ToRow(
        HandleToIndex(InsertAtRow(record->outline, static_cast<std::uint32_t>(row), text)));
}

extern "C" HOLBITEM WINAPI olbInsertStringEx(HWND window, HOLBITEM parent, WORD position,
                                             LPCSTR text) {
    Record* record = RecordOf<Record>(window);
    return record == nullptr
               ? OLB_NOITEM
               : ToHandle(InsertChild(record->outline, ToItem(parent), position, text));
}

// ---- Removing ----

extern "C" LONG WINAPI olbDeleteString(HWND window, LONG row) {
    return olbDeleteStringEx(window, HandleAt(window, row));
}

extern "C" LONG WINAPI olbDeleteStringEx(HWND window, HOLBITEM item) {
    Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR : ToRow(DeleteItem(record->outline, ToItem(item)));
}

extern "C" LONG WINAPI olbDeleteSubTree(HWND window, LONG row) {
    return olbDeleteSubTreeEx(window, HandleAt(window, row));
}

extern "C" LONG WINAPI olbDeleteSubTreeEx(HWND window, HOLBITEM item) {
    Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR : DeleteSubtree(record->outline, ToItem(item));
}

extern "C" void WINAPI olbResetContent(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        Reset(record->outline);
    }
}

// ---- Moving and copying ----

extern "C" LONG WINAPI olbMoveItem(HWND window, LONG row, LONG newParent, WORD position) {
    return RelocateRow(window, MoveItem, row, newParent, position);
}

extern "C" HOLBITEM WINAPI olbMoveItemEx(HWND window, HOLBITEM item, HOLBITEM newParent,
                                         WORD position) {
    return RelocateHandle(window, MoveItem, item, newParent, position);
}

extern "C" LONG WINAPI olbMoveChildren(HWND window, LONG from, LONG to, WORD position) {
    return RelocateRow(window, MoveChildren, from, to, position);
}

extern "C" HOLBITEM WINAPI olbMoveChildrenEx(HWND window, HOLBITEM from, HOLBITEM to,
                                             WORD position) {
    return RelocateHandle(window, MoveChildren, from, to, position);
}

extern "C" LONG WINAPI olbCopyItem(HWND window, LONG row, LONG newParent, WORD position) {
    return RelocateRow(window, CopyItem, row, newParent, position);
}

extern "C" HOLBITEM WINAPI olbCopyItemEx(HWND window, HOLBITEM item, HOLBITEM newParent,
                                         WORD position) {
    return RelocateHandle(window, CopyItem, item, newParent, position);
}

extern "C" LONG WINAPI olbCopyChildren(HWND window, LONG from, LONG to, WORD position) {
    return RelocateRow(window, CopyChildren, from, to, position);
}

extern "C" HOLBITEM WINAPI olbCopyChildrenEx(HWND window, HOLBITEM from, HOLBITEM to,
                                             WORD position) {
    return RelocateHandle(window, CopyChildren, from, to, position);
}
