#include "hierlist/list_host_win.h"

#include "core/window_win.h"
#include "hierlist/list_scroll_win.h"
#include "hierlist/list_view_win.h"

#include <algorithm>
#include <limits>

namespace vorn::hierlist {
namespace {

constexpr UINT kWholeList = 65535; // the item of a question about all rows

Record& RecordIn(void* context) {
    return *static_cast<Record*>(context);
}

UINT IdOf(HWND window) {
    return static_cast<UINT>(GetDlgCtrlID(window));
}

template <class Question>
LRESULT AskParent(HWND window, UINT message, const Question& question) {
    return SendMessageA(GetParent(window), message, IdOf(window),
                        reinterpret_cast<LPARAM>(&question));
}

std::uint16_t ToHeight(UINT answer) {
    return static_cast<std::uint16_t>(
        std::min<UINT>(answer, std::numeric_limits<std::uint16_t>::max()));
}

int CompareTexts(void* /*context*/, const char* first, const char* second) {
    return lstrcmpA(first, second);
}

int CompareValues(void* context, std::uintptr_t first, std::uintptr_t second, std::uint32_t row) {
    HWND window = RecordIn(context).window;
    COMPAREITEMSTRUCT question{};
    question.CtlType = ODT_LISTBOX;
    question.CtlID = IdOf(window);
    question.hwndItem = window;
    question.itemID1 = kWholeList;
    question.itemData1 = first;
    question.itemID2 = row;
    question.itemData2 = second;
    return static_cast<int>(AskParent(window, WM_COMPAREITEM, question));
}

std::uint16_t Measure(void* context, const OlbItem* item, std::uint32_t row) {
    Record& record = RecordIn(context);
    HWND window = record.window;
    const bool multiColumn = (StyleOf(window) & kStyleMultiColumn) != 0;
    MEASUREITEMSTRUCT question{};
    question.CtlType = ODT_LISTBOX;
    question.CtlID = IdOf(window);
    question.itemID = row;
    question.itemWidth =
        static_cast<UINT>(multiColumn ? ColumnWidthOf(record.options) : ClientRect(window).right);
    question.itemHeight = static_cast<UINT>(record.options.rowHeight);
    question.itemData = (item->marks & kMarkValue) != 0 ? item->itemData
                                                        : reinterpret_cast<ULONG_PTR>(TextOf(item));
    AskParent(window, WM_MEASUREITEM, question);
    return ToHeight(question.itemHeight);
}

void Deleted(void* context, std::uint32_t row, std::uintptr_t itemData) {
    HWND window = RecordIn(context).window;
    DELETEITEMSTRUCT news{};
    news.CtlType = ODT_LISTBOX;
    news.CtlID = IdOf(window);
    news.itemID = row;
    news.hwndItem = window;
    news.itemData = itemData;
    AskParent(window, WM_DELETEITEM, news);
}

void ErrorSpace(void* context) {
    NotifyParent(RecordIn(context).window, static_cast<WORD>(LBN_ERRSPACE));
}

void RowsChanged(void* context) {
    Record& record = RecordIn(context);
    ForgetColumns(record);
    if (IsDrawingOn(record)) {
        UpdateBars(record.window);
    } else {
        record.barsStale = true;
    }
}

void RedrawPart(void* context, vorn::hierlist::Redraw what, std::uint32_t row) {
    const Record& record = RecordIn(context);
    if (!IsDrawingOn(record)) {
        return; // as nothing else does while a host adds thousands of items
    }
    HWND window = record.window;
    switch (what) {
    case vorn::hierlist::Redraw::All:
        RedrawRows(window);
        break;
    case vorn::hierlist::Redraw::FromRow:
        RedrawFromRow(window, row);
        break;
    case vorn::hierlist::Redraw::Row:
        RedrawRow(window, row);
        break;
    }
}

void Deselected(void* context, OlbItem* item) {
    DropDeselected(RecordIn(context).state.selection, item);
}

void Retired(void* context, OlbItem* item) {
    DropItem(RecordIn(context).state, item);
}

void Cleared(void* context) {
    DropAllItems(RecordIn(context).state);
}

// What a list box keeps of an item beside its text, its place and a value, an item's own record
// keeps here: there is no table beside it that could run out of memory.
bool RecordItem(void* /*context*/, OlbItem* /*item*/, std::uintptr_t /*value*/) {
    return true;
}

std::uintptr_t ForgetItem(void* /*context*/, OlbItem* /*item*/) {
    return 0;
}

} // namespace

constexpr Callbacks kListCallbacks = {
    CompareTexts, CompareValues, Measure, Deleted, ErrorSpace, RowsChanged,
    RedrawPart,   Deselected,    Retired, Cleared, RecordItem, ForgetItem,
};

void AskRowHeight(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    MEASUREITEMSTRUCT question{};
    question.CtlType = ODT_LISTBOX;
    question.CtlID = IdOf(window);
    question.itemID = kWholeList;
    question.itemWidth = static_cast<UINT>(ClientRect(window).right);
    question.itemHeight = static_cast<UINT>(record->options.rowHeight);
    SendMessageA(window, WM_MEASUREITEM, question.CtlID, reinterpret_cast<LPARAM>(&question));
    record = RecordOf<Record>(window);
    if (record != nullptr) {
        record->options.rowHeight = std::max<std::int32_t>(ToHeight(question.itemHeight), 1);
        record->options.hasOwnRowHeight = true;
        UpdateBars(window);
    }
}

LRESULT OnMeasureItem(HWND window, WPARAM wParam, LPARAM lParam) {
    return SendMessageA(GetParent(window), WM_MEASUREITEM, wParam, lParam);
}

ULONG_PTR OwnerDrawData(const OlbItem* item) {
    if ((item->marks & kMarkValue) == 0) {
        return reinterpret_cast<ULONG_PTR>(TextOf(item));
    }
    return item->itemData != 0 ? item->itemData : ValueOf(item);
}

} // namespace vorn::hierlist
