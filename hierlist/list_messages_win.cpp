// The outline list's own messages, each the twin of a function, in the order of their numbers.
#include "hierlist/list_messages_win.h"

#include "hierlist/list_handles_win.h"

#include <iterator>

namespace vorn::hierlist {
namespace {

// One message's arguments.
struct Call {
    HWND window;
    WPARAM wParam;
    LPARAM lParam;

    LONG Number() const { return static_cast<LONG>(wParam); }
    WORD Short() const { return LOWORD(wParam); }
    BOOL Flag() const { return wParam != 0 ? TRUE : FALSE; }
    LONG SecondNumber() const { return static_cast<LONG>(lParam); }
    BOOL SecondFlag() const { return lParam != 0 ? TRUE : FALSE; }
    HOLBITEM Handle() const { return reinterpret_cast<HOLBITEM>(lParam); }
    LPCSTR Text() const { return reinterpret_cast<LPCSTR>(lParam); }
    LPSTR Buffer() const { return reinterpret_cast<LPSTR>(lParam); }

    template <class Record>
    const Record* In() const {
        return reinterpret_cast<const Record*>(lParam);
    }
};

LRESULT Answer(HOLBITEM handle) {
    return reinterpret_cast<LRESULT>(handle);
}

LRESULT Answer(HBITMAP bitmap) {
    return reinterpret_cast<LRESULT>(bitmap);
}

// Texts answer their length, in 16 bits; errors are errors.
LRESULT AnswerLength(LONG length) {
    return length == LB_ERR ? LB_ERR : LOWORD(length);
}

LRESULT AnswerPath(LPCSTR path) {
    return path == nullptr ? LB_ERR : AnswerLength(lstrlenA(path));
}

// Copying and moving: two rows or two handles in a record, the position beside it.
template <auto Function>
LRESULT WithRowPair(const Call& call) {
    const auto* pair = call.In<OLBROWPAIR>();
    return pair == nullptr ? LB_ERR
                           : Function(call.window, static_cast<LONG>(pair->item),
                                      static_cast<LONG>(pair->parent), call.Short());
}

template <auto Function>
LRESULT WithHandlePair(const Call& call) {
    const auto* pair = call.In<OLBHANDLEPAIR>();
    return pair == nullptr ? LB_ERR
                           : Answer(Function(call.window, pair->item, pair->parent, call.Short()));
}

LRESULT FindRow(const Call& call, BOOL exact) {
    const auto* search = call.In<OLBROWSEARCH>();
    return search == nullptr ? LB_ERR
                             : olbFindString(call.window, static_cast<LONG>(search->parent),
                                             static_cast<LONG>(search->start), search->text, exact);
}

LRESULT FindHandle(const Call& call, BOOL exact) {
    const auto* search = call.In<OLBHANDLESEARCH>();
    return search == nullptr
               ? LB_ERR
               : Answer(olbFindStringEx(call.window, search->parent,
                                        static_cast<LONG>(search->start), search->text, exact));
}

LRESULT AddUnderHandle(const Call& call) {
    const auto* record = call.In<OLBHANDLETEXT>();
    return record == nullptr ? LB_ERR
                             : Answer(olbAddChildStringEx(call.window, record->item, record->text));
}

LRESULT InsertUnderHandle(const Call& call) {
    const auto* record = call.In<OLBINSERTION>();
    return record == nullptr ? LB_ERR
                             : Answer(olbInsertStringEx(call.window, record->parent,
                                                        record->position, record->text));
}

LRESULT PathOfHandle(const Call& call) {
    const auto* record = call.In<OLBHANDLEBUFFER>();
    return record == nullptr
               ? LB_ERR
               : AnswerPath(olbGetFullPathEx(call.window, record->item, record->buffer));
}

LRESULT TextOfHandle(const Call& call) {
    const auto* record = call.In<OLBHANDLEBUFFER>();
    return record == nullptr
               ? LB_ERR
               : AnswerLength(olbGetTextEx(call.window, record->item, record->buffer));
}

LRESULT SetTextOfHandle(const Call& call) {
    const auto* record = call.In<OLBHANDLETEXT>();
    return record == nullptr ? LB_ERR : olbSetItemTextEx(call.window, record->item, record->text);
}

// A function that takes nothing but the window, a row, a handle or a flag.
template <auto Function>
LRESULT WithNothing(const Call& call) {
    return Function(call.window);
}
template <auto Function>
LRESULT WithRow(const Call& call) {
    return Function(call.window, call.Number());
}
template <auto Function>
LRESULT WithHandle(const Call& call) {
    return Function(call.window, call.Handle());
}
template <auto Function>
LRESULT WithFlag(const Call& call) {
    return Function(call.window, call.Flag());
}
template <auto Function>
LRESULT DoWithRow(const Call& call) {
    Function(call.window, call.Number());
    return 0;
}

using Answerer = LRESULT (*)(const Call&);

constexpr UINT kFirstMessage = OLBM_ADDCHILDSTRING;

constexpr Answerer kAnswers[] = {
    [](const Call& call) -> LRESULT {
        return olbAddChildString(call.window, call.Number(), call.Text());
    },
    AddUnderHandle,
    [](const Call& call) -> LRESULT { return olbAddString(call.window, call.Text()); },
    [](const Call& call) -> LRESULT { return olbChangeStyle(call.window, call.Short()); },
    DoWithRow<olbCloseItem>,
    WithRowPair<olbCopyChildren>,
    WithHandlePair<olbCopyChildrenEx>,
    WithRowPair<olbCopyItem>,
    WithHandlePair<olbCopyItemEx>,
    WithRow<olbDeleteString>,
    WithHandle<olbDeleteStringEx>,
    WithRow<olbDeleteSubTree>,
    WithHandle<olbDeleteSubTreeEx>,
    [](const Call& call) -> LRESULT {
        return olbDirEx(call.window, static_cast<DWORD>(call.wParam), call.SecondNumber());
    },
    [](const Call& call) -> LRESULT { return FindRow(call, call.Flag()); },
    [](const Call& call) -> LRESULT { return FindHandle(call, call.Flag()); },
    [](const Call& call) -> LRESULT { return FindRow(call, TRUE); },
    [](const Call& call) -> LRESULT { return FindHandle(call, TRUE); },
    WithNothing<olbGetBottomIndex>,
    [](const Call& call) -> LRESULT {
        return Answer(olbGetChildHandle(call.window, call.Number(), call.SecondNumber()));
    },
    [](const Call& call) -> LRESULT {
        return Answer(olbGetChildHandleEx(call.Handle(), call.Number()));
    },
    WithNothing<olbGetCount>,
    WithNothing<olbGetCurSel>,
    [](const Call& call) -> LRESULT { return Answer(olbGetCurSelEx(call.window)); },
    [](const Call& call) -> LRESULT {
        return AnswerPath(olbGetFullPath(call.window, call.Number(), call.Buffer()));
    },
    PathOfHandle,
    WithRow<olbGetItemData>,
    WithHandle<olbGetItemDataEx>,
    WithRow<olbGetItemHeight>,
    WithHandle<olbGetItemHeightEx>,
    [](const Call& call) -> LRESULT {
        return olbGetItemRect(call.window, call.Number(), reinterpret_cast<RECT*>(call.lParam));
    },
    [](const Call& call) -> LRESULT {
        olbGetPathSeparator(call.window, call.Buffer());
        return 0;
    },
    WithRow<olbGetSel>,
    [](const Call& call) -> LRESULT {
        return olbGetSelItems(call.window, call.Number(), reinterpret_cast<int*>(call.lParam));
    },
    [](const Call& call) -> LRESULT {
        return AnswerLength(olbGetText(call.window, call.Number(), call.Buffer()));
    },
    TextOfHandle,
    [](const Call& call) -> LRESULT {
        return AnswerLength(olbGetTextLength(call.window, call.Number()));
    },
    [](const Call& call) -> LRESULT {
        return AnswerLength(olbGetTextLengthEx(call.window, call.Handle()));
    },
    WithNothing<olbGetTopIndex>,
    WithNothing<olbGetVisibleCount>,
    [](const Call& call) -> LRESULT { return olbHandleToIndex(call.Handle()); },
    [](const Call& call) -> LRESULT {
        return Answer(olbIndexToHandle(call.window, call.Number()));
    },
    [](const Call& call) -> LRESULT {
        return olbInsertString(call.window, call.Number(), call.Text());
    },
    InsertUnderHandle,
    [](const Call& call) -> LRESULT {
        return olbLockItem(call.window, call.Number(), call.SecondFlag());
    },
    [](const Call& call) -> LRESULT {
        return olbLockItemEx(call.window, call.Handle(), call.Flag());
    },
    WithRowPair<olbMoveChildren>,
    WithHandlePair<olbMoveChildrenEx>,
    WithRowPair<olbMoveItem>,
    WithHandlePair<olbMoveItemEx>,
    DoWithRow<olbOpenItem>,
    DoWithRow<olbOpenAll>,
    WithNothing<olbIsAutoOpen>,
    WithRow<olbHasChildren>,
    WithHandle<olbHasChildrenEx>,
    WithRow<olbQueryLevel>,
    WithHandle<olbQueryLevelEx>,
    WithRow<olbQueryLock>,
    WithHandle<olbQueryLockEx>,
    WithRow<olbQueryOpen>,
    WithHandle<olbQueryOpenEx>,
    WithRow<olbQueryParent>,
    [](const Call& call) -> LRESULT {
        return Answer(olbQueryParentEx(call.window, call.Handle()));
    },
    WithHandle<olbQueryVisible>,
    [](const Call& call) -> LRESULT {
        return olbSelectString(call.window, call.Number(), call.Text());
    },
    WithFlag<olbSetAutoOpen>,
    [](const Call& call) -> LRESULT {
        return olbSetBitmapIndex(call.window, call.Number(), call.SecondNumber());
    },
    [](const Call& call) -> LRESULT {
        return olbSetBitmapIndexEx(call.window, call.Handle(), call.Number());
    },
    [](const Call& call) -> LRESULT {
        return Answer(
            olbSetBitmaps(call.window, call.Number(), reinterpret_cast<HBITMAP>(call.lParam)));
    },
    [](const Call& call) -> LRESULT {
        return Answer(
            olbSetBitmapsEx(call.window, call.Handle(), reinterpret_cast<HBITMAP>(call.wParam)));
    },
    [](const Call& call) -> LRESULT {
        return olbSetBorderStyle(call.window, static_cast<DWORD>(call.wParam));
    },
    WithRow<olbSetCurSel>,
    WithFlag<olbSetFullSelectRect>,
    [](const Call& call) -> LRESULT { return olbSetIndent(call.window, call.Short()); },
    [](const Call& call) -> LRESULT {
        return olbSetItemData(call.window, call.Number(), call.lParam);
    },
    [](const Call& call) -> LRESULT {
        return olbSetItemDataEx(call.window, call.Handle(), static_cast<LONG_PTR>(call.wParam));
    },
    [](const Call& call) -> LRESULT {
        return olbSetItemHeight(call.window, call.Number(), call.SecondNumber());
    },
    [](const Call& call) -> LRESULT {
        return olbSetItemHeightEx(call.window, call.Handle(), call.Number());
    },
    [](const Call& call) -> LRESULT {
        return olbSetItemText(call.window, call.Number(), call.Text());
    },
    SetTextOfHandle,
    [](const Call& call) -> LRESULT {
        olbSetLevelBitmap(call.window, static_cast<int>(call.wParam),
                          reinterpret_cast<HBITMAP>(call.lParam));
        return 0;
    },
    [](const Call& call) -> LRESULT {
        return olbSetLevelIndex(call.window, static_cast<int>(call.wParam), call.SecondNumber());
    },
    [](const Call& call) -> LRESULT {
        return olbSetPathSeparator(call.window, static_cast<char>(call.wParam));
    },
    WithFlag<olbSetProportionalScrollBars>,
    [](const Call& call) -> LRESULT {
        return olbSetSel(call.window, call.Number(), call.SecondFlag());
    },
    WithRow<olbSetTopIndex>,
    WithFlag<olbShowLines>,
};

static_assert(kFirstMessage + std::size(kAnswers) - 1 == OLBM_SHOWLINES);

} // namespace

bool AnswerOwnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    if (message == OLBM_CLOSEALL) {
        olbCloseAll(window);
        result = 0;
        return true;
    }
    if (message < kFirstMessage || message - kFirstMessage >= std::size(kAnswers)) {
        return false;
    }
    result = kAnswers[message - kFirstMessage]({window, wParam, lParam});
    return true;
}

} // namespace vorn::hierlist
