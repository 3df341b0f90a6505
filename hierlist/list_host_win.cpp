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

// Keys of one locale are comparable: that of the first one. lstrcmpA goes by the thread's.
std::uint32_t SortKey(void* context, const char* text, char* key, std::uint32_t room) {
    Record& record = RecordIn(context);
    const LCID locale = GetThreadLocale();
    if (record.sortLocale == 0) {
        record.sortLocale = locale;
    }
    if (record.sortLocale != locale) {
        return 0;
    }
    const int size = LCMapStringA(locale, LCMAP_SORTKEY | LOCALE_USE_CP_ACP, text, lstrlenA(text),
                                  key, static_cast<int>(room));
    return static_cast<std::uint32_t>(size);
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
    const std::uint32_t rows = SeqCount(record.outline.visibleRoot);
    const bool grew = rows > record.rowsBefore;
    record.rowsBefore = rows;
    if (grew && !IsDrawingOn(record)) {
        record.barsStale = true; // all that there is to do: hosts add very many items meanwhile
    } else {
        UpdateBars(record.window);
    }
}

// The outline knows of LBS_NOREDRAW and that a moved row is drawn in spite of it.
void RedrawAnyway(HWND window) {
    const Record* record = RecordOf<Record>(window);
    if (record != nullptr && !record->redrawOff) {
        vorn::Redraw(window);
    }
}

void RedrawPart(void* context, vorn::hierlist::Redraw what, std::uint32_t row) {
    const Record& record = RecordIn(context);
    if (record.redrawOff) {
        return;
    }
    HWND window = record.window;
    switch (what) {
    case vorn::hierlist::Redraw::All:
        RedrawAnyway(window);
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
    Record& record = RecordIn(context);
    DropAllItems(record.state);
    record.sortLocale = 0;
    ClearTable(record.sideTable);
}

bool RecordItem(void* context, OlbItem* item, std::uintptr_t value) {
    return EnterItem(RecordIn(context).sideTable, item, value);
}

std::uintptr_t ForgetItem(void* context, OlbItem* item) {
    return LeaveTable(RecordIn(context).sideTable, item);
}

} // namespace

constexpr Callbacks kListCallbacks = {
    CompareTexts, CompareValues, Measure, Deleted,    ErrorSpace, RowsChanged, RedrawPart,
    Deselected,   Retired,       Cleared, RecordItem, ForgetItem, SortKey,
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
    return DataOf(item);
}

} // namespace vorn::hierlist
