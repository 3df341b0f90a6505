// Every message and function that takes an item's handle, with handles of items that are rows, that
// are hidden and that are just being deleted, and with what is none.
#include "core/memory.h"
#include "tests/windows/support/outline_list.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <vector>

namespace {

using vorn::BlockCount;
using vorn::test::Message;
using vorn::test::OutlineListTest;
using vorn::test::PumpMessages;

constexpr LONG_PTR kNone = -1; // as a row and as a handle

HOLBITEM Handle(LONG_PTR number) {
    return reinterpret_cast<HOLBITEM>(number);
}

template <class Answer>
LONG_PTR Number(Answer answer) {
    if constexpr (std::is_pointer_v<Answer>) {
        return reinterpret_cast<LONG_PTR>(answer);
    } else {
        return answer;
    }
}

// The same call as a function and as a message, about an item and perhaps another one.
struct Call {
    const char* name;
    LONG_PTR (*function)(HWND list, HOLBITEM item, HOLBITEM other);
    LONG_PTR (*message)(HWND list, HOLBITEM item, HOLBITEM other);
    LONG_PTR refusal;      // the answer about no item
    bool takesTop = false; // null and OLB_NOITEM stand for the top level, or for the list
};

LONG_PTR Send(HWND list, UINT message, WPARAM wParam, HOLBITEM item) {
    return SendMessageA(list, message, wParam, Number(item));
}

template <class Record>
LONG_PTR SendRecord(HWND list, UINT message, WPARAM wParam, const Record& record) {
    return SendMessageA(list, message, wParam, reinterpret_cast<LPARAM>(&record));
}

#define WITH_ITEM(function, code, refusal)                                                         \
    {                                                                                              \
#function, [](HWND list, HOLBITEM item, HOLBITEM) { return Number(function(list, item)); }, \
            [](HWND list, HOLBITEM item, HOLBITEM) { return Send(list, code, 0, item); }, refusal      \
    }

#define WITH_NUMBER(function, code, number, refusal, takesTop)                                     \
    {                                                                                              \
#function,                                                                                 \
            [](HWND list, HOLBITEM item, HOLBITEM) {                                               \
                return Number(function(list, item, number));                                       \
            },                                                                                     \
            [](HWND list, HOLBITEM item, HOLBITEM) {                                               \
                return Send(list, code, static_cast<WPARAM>(number), item);                        \
            },                                                                                     \
            refusal, takesTop       \
    }

#define WITH_PAIR(function, code)                                                                  \
    {                                                                                              \
#function,                                                                                 \
            [](HWND list, HOLBITEM item, HOLBITEM other) {                                         \
                return Number(function(list, item, other, 1));                                     \
            },                                                                                     \
            [](HWND list, HOLBITEM item, HOLBITEM other) {                                         \
                return SendRecord(list, code, 1, OLBHANDLEPAIR{item, other});                      \
            },                                                                                     \
            0       \
    }

char buffer[256];

const Call kCalls[] = {
    WITH_ITEM(olbDeleteStringEx, OLBM_DELETESTRINGEX, kNone),
    WITH_ITEM(olbDeleteSubTreeEx, OLBM_DELETESUBTREEEX, kNone),
    WITH_ITEM(olbQueryOpenEx, OLBM_QUERYOPENEX, kNone),
    WITH_ITEM(olbQueryLockEx, OLBM_QUERYLOCKEX, kNone),
    WITH_ITEM(olbHasChildrenEx, OLBM_HASCHILDRENEX, kNone),
    WITH_ITEM(olbQueryVisible, OLBM_QUERYVISIBLE, kNone),
    WITH_ITEM(olbQueryLevelEx, OLBM_QUERYLEVELEX, kNone),
    WITH_ITEM(olbQueryParentEx, OLBM_QUERYPARENTEX, kNone),
    WITH_ITEM(olbGetTextLengthEx, OLBM_GETTEXTLENGTHEX, kNone),
    WITH_ITEM(olbGetItemDataEx, OLBM_GETITEMDATAEX, kNone),
    WITH_NUMBER(olbLockItemEx, OLBM_LOCKITEMEX, TRUE, kNone, false),
    WITH_NUMBER(olbSetItemDataEx, OLBM_SETITEMDATAEX, 7, kNone, false),
    WITH_NUMBER(olbSetBitmapIndexEx, OLBM_SETBITMAPINDEXEX, 1, kNone, true),
    WITH_PAIR(olbMoveItemEx, OLBM_MOVEITEMEX),
    WITH_PAIR(olbMoveChildrenEx, OLBM_MOVECHILDRENEX),
    WITH_PAIR(olbCopyItemEx, OLBM_COPYITEMEX),
    WITH_PAIR(olbCopyChildrenEx, OLBM_COPYCHILDRENEX),
    {"olbHandleToIndex",
     [](HWND, HOLBITEM item, HOLBITEM) { return Number(olbHandleToIndex(item)); },
     [](HWND list, HOLBITEM item, HOLBITEM) { return Send(list, OLBM_HANDLETOINDEX, 0, item); },
     kNone},
    {"olbGetChildHandleEx",
     [](HWND, HOLBITEM item, HOLBITEM) { return Number(olbGetChildHandleEx(item, 0)); },
     [](HWND list, HOLBITEM item, HOLBITEM) { return Send(list, OLBM_GETCHILDHANDLEEX, 0, item); },
     kNone},
    {"olbGetTextEx",
     [](HWND list, HOLBITEM item, HOLBITEM) { return Number(olbGetTextEx(list, item, buffer)); },
     [](HWND list, HOLBITEM item, HOLBITEM) {
         return SendRecord(list, OLBM_GETTEXTEX, 0, OLBHANDLEBUFFER{item, buffer});
     },
     kNone},
    {"olbGetFullPathEx",
     [](HWND list, HOLBITEM item, HOLBITEM) {
         return LONG_PTR{lstrlenA(olbGetFullPathEx(list, item, buffer))};
     },
     [](HWND list, HOLBITEM item, HOLBITEM) {
         return SendRecord(list, OLBM_GETFULLPATHEX, 0, OLBHANDLEBUFFER{item, buffer});
     },
     0},
    {"olbSetItemTextEx",
     [](HWND list, HOLBITEM item, HOLBITEM) { return Number(olbSetItemTextEx(list, item, "x")); },
     [](HWND list, HOLBITEM item, HOLBITEM) {
         return SendRecord(list, OLBM_SETITEMTEXTEX, 0, OLBHANDLETEXT{item, "x"});
     },
     kNone},
    {"olbFindStringEx",
     [](HWND list, HOLBITEM item, HOLBITEM) {
         return Number(olbFindStringEx(list, item, -1, "c", FALSE));
     },
     [](HWND list, HOLBITEM item, HOLBITEM) {
         return SendRecord(list, OLBM_FINDSTRINGEX, 0, OLBHANDLESEARCH{item, -1, "c"});
     },
     kNone, true},
    {"olbFindStringEx for whole texts",
     [](HWND list, HOLBITEM item, HOLBITEM) {
         return Number(olbFindStringEx(list, item, -1, "c", TRUE));
     },
     [](HWND list, HOLBITEM item, HOLBITEM) {
         return SendRecord(list, OLBM_FINDSTRINGEXACTEX, 0, OLBHANDLESEARCH{item, -1, "c"});
     },
     kNone, true},
    {"olbAddChildStringEx",
     [](HWND list, HOLBITEM item, HOLBITEM) {
         return Number(olbAddChildStringEx(list, item, "new"));
     },
     [](HWND list, HOLBITEM item, HOLBITEM) {
         return SendRecord(list, OLBM_ADDCHILDSTRINGEX, 0, OLBHANDLETEXT{item, "new"});
     },
     kNone, true},
    {"olbInsertStringEx",
     [](HWND list, HOLBITEM item, HOLBITEM) {
         return Number(olbInsertStringEx(list, item, 1, "new"));
     },
     [](HWND list, HOLBITEM item, HOLBITEM) {
         return SendRecord(list, OLBM_INSERTSTRINGEX, 0, OLBINSERTION{item, 1, "new"});
     },
     kNone, true},
    {"olbSetBitmapsEx",
     [](HWND list, HOLBITEM item, HOLBITEM) {
         return Number(olbSetBitmapsEx(list, item, nullptr));
     },
     [](HWND list, HOLBITEM item, HOLBITEM) { return Send(list, OLBM_SETBITMAPSEX, 0, item); }, 0,
     true},
    // All rows have one height here, whatever the handle.
    WITH_NUMBER(olbSetItemHeightEx, OLBM_SETITEMHEIGHTEX, 18, 0, true),
    WITH_ITEM(olbGetItemHeightEx, OLBM_GETITEMHEIGHTEX, 18),
};

// All items that are left, hidden ones too, as far as a host can come by their handles.
void Collect(HOLBITEM parent, std::vector<HOLBITEM>& items) {
    for (LONG n = 0;; ++n) {
        HOLBITEM child = olbGetChildHandleEx(parent, n);
        if (child == nullptr || child == OLB_NOITEM) {
            return;
        }
        items.push_back(child);
        Collect(child, items);
    }
}

std::vector<HOLBITEM> AllItems(HWND list) {
    std::vector<HOLBITEM> items;
    for (LONG row = 0; olbIndexToHandle(list, row) != nullptr; ++row) {
        items.push_back(olbIndexToHandle(list, row));
        Collect(items.back(), items);
    }
    return items;
}

// Every item with what it is, in words that a change would change.
std::string StateOf(HWND list) {
    std::string state = std::to_string(olbGetCount(list)) + " items, " +
                        std::to_string(olbGetVisibleCount(list)) + " rows\n";
    for (HOLBITEM item : AllItems(list)) {
        for (const LONG_PTR fact :
             {LONG_PTR{olbHandleToIndex(item)}, LONG_PTR{olbQueryLevelEx(list, item)},
              LONG_PTR{olbQueryOpenEx(list, item)}, LONG_PTR{olbQueryLockEx(list, item)},
              LONG_PTR{olbHasChildrenEx(list, item)}, LONG_PTR{olbQueryVisible(list, item)},
              Number(olbQueryParentEx(list, item)), olbGetItemDataEx(list, item)}) {
            state += std::to_string(fact) + " ";
        }
        state += "\n";
    }
    return state;
}

class HierListHandles : public OutlineListTest {
protected:
    // Rows open (with "one", and "two" that is closed over "deep") and last.
    HWND Plant(DWORD style) {
        HWND list = Create(style | WS_VSCROLL | LBS_EXTENDEDSEL);
        open_ = olbAddChildStringEx(list, nullptr, "open");
        olbAddChildStringEx(list, open_, "one");
        closed_ = olbAddChildStringEx(list, open_, "two");
        deep_ = olbAddChildStringEx(list, closed_, "deep");
        olbAddChildStringEx(list, deep_, "deeper");
        olbAddString(list, "last");
        olbOpenItem(list, 0);
        olbSetItemHeight(list, -1, 18);
        return list;
    }

    // Has every call refuse the handle, alone and beside a good one, and change nothing.
    static void ExpectRefused(HWND list, HOLBITEM handle, HOLBITEM good, bool isNull) {
        const std::string before = StateOf(list);
        for (const Call& call : kCalls) {
            if (isNull && call.takesTop) {
                continue;
            }
            SCOPED_TRACE(call.name);
            EXPECT_EQ(call.function(list, handle, good), call.refusal);
            EXPECT_EQ(call.message(list, handle, good), call.refusal);
            const std::string name = call.name;
            const bool isPair = call.refusal == 0 && (name.find("Move") != std::string::npos ||
                                                      name.find("Copy") != std::string::npos);
            if (isPair && !isNull) { // null is the top level as a new parent
                EXPECT_EQ(call.function(list, good, handle), 0);
                EXPECT_EQ(call.message(list, good, handle), 0);
            }
        }
        EXPECT_EQ(StateOf(list), before);
    }

    HOLBITEM open_ = nullptr, closed_ = nullptr, deep_ = nullptr;
};

TEST_F(HierListHandles, ThatAreNoneAreRefused) {
    for (const DWORD style : {DWORD{0}, DWORD{LBS_OWNERDRAWFIXED}}) {
        HWND list = Plant(style);
        for (const LONG_PTR number : {LONG_PTR{0}, LONG_PTR{-1}, LONG_PTR{65535}, LONG_PTR{1}}) {
            SCOPED_TRACE(number);
            ExpectRefused(list, Handle(number), closed_, number == 0 || number == -1);
        }
        DestroyWindow(list);
    }
}

TEST_F(HierListHandles, OfItemsThatAreBeingDeletedAreRefused) {
    const struct {
        const char* name;
        void (*act)(HWND list, HOLBITEM item);
    } ends[] = {
        {"deleting", [](HWND list, HOLBITEM item) { olbDeleteStringEx(list, item); }},
        {"emptying", [](HWND list, HOLBITEM) { olbResetContent(list); }},
        {"destroying", [](HWND list, HOLBITEM) { DestroyWindow(list); }},
    };
    const std::uint32_t before = BlockCount();
    for (const auto& end : ends) {
        SCOPED_TRACE(end.name);
        HWND list = Plant(LBS_OWNERDRAWFIXED);
        HOLBITEM good = olbAddChildStringEx(list, nullptr, "good");
        const bool goes = lstrcmpA(end.name, "deleting") != 0;
        // Children come before their parents: all of these are still to be told of at first.
        const std::vector<HOLBITEM> dying = {open_, closed_, deep_};
        int told = 0;
        host.answer = [&](const Message& message) -> std::optional<LRESULT> {
            if (message.message == WM_DELETEITEM && told++ == 0) {
                for (HOLBITEM item : dying) {
                    ExpectRefused(list, item, goes ? item : good, false);
                }
            }
            return std::nullopt;
        };
        end.act(list, open_);
        EXPECT_GE(told, 5);
        host.answer = nullptr;
        if (IsWindow(list)) {
            DestroyWindow(list);
        }
        EXPECT_EQ(BlockCount(), before);
    }
}

// ---- Live handles ----

// Calls with any of the items that there are, and now and then with what is none.
class Caller {
public:
    Caller(HWND list, std::uint32_t seed) : list_(list), random_(seed) {}

    void Step() {
        items_ = AllItems(list_);
        const Call& call = kCalls[random_() % std::size(kCalls)];
        const auto act = random_() % 2 == 0 ? call.function : call.message;
        name = call.name;
        act(list_, Any(), Any());
        if (random_() % 8 == 0) {
            const LONG row = static_cast<LONG>(random_() % 8);
            random_() % 2 == 0 ? olbOpenItem(list_, row) : olbCloseItem(list_, row);
        }
        if (olbGetCount(list_) > 300) {
            olbResetContent(list_);
        }
        if (AllItems(list_).size() < 5) {
            HOLBITEM parent = olbAddChildStringEx(list_, nullptr, "a");
            olbAddChildStringEx(list_, olbAddChildStringEx(list_, parent, "b"), "c");
        }
    }

    // What is wrong with the list; empty when nothing is. That all parents of a row are open is
    // not asked: children that their parent does not count stay rows when it is closed.
    std::string Fault() const {
        LONG row = 0;
        for (HOLBITEM item = olbIndexToHandle(list_, 0); item != nullptr;
             item = olbIndexToHandle(list_, ++row)) {
            if (olbHandleToIndex(item) != row) {
                return "row " + std::to_string(row);
            }
        }
        const std::vector<HOLBITEM> items = AllItems(list_);
        const std::set<HOLBITEM> known(items.begin(), items.end());
        for (HOLBITEM item : items) {
            HOLBITEM parent = olbQueryParentEx(list_, item);
            if (parent != nullptr && !known.contains(parent)) {
                return "a parent that there is not";
            }
        }
        return known.size() == items.size() ? "" : "an item twice";
    }

    const char* name = "";

private:
    HOLBITEM Any() {
        constexpr LONG_PTR kOthers[] = {0, -1, 65535, 1};
        const std::size_t index = random_() % (items_.size() + std::size(kOthers));
        return index < items_.size() ? items_[index] : Handle(kOthers[index - items_.size()]);
    }

    HWND list_;
    std::mt19937 random_;
    std::vector<HOLBITEM> items_;
};

TEST_F(HierListHandles, OfAnyItemAreBorneInAnyCall) {
    const std::uint32_t before = BlockCount();
    for (const DWORD style : {DWORD{0}, DWORD{LBS_SORT}, DWORD{LBS_OWNERDRAWFIXED},
                              DWORD{LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS}}) {
        HWND list = Plant(style);
        SendMessageA(list, WM_SETREDRAW, FALSE, 0);
        Caller caller(list, 4321 + style);
        for (int step = 0; step < 3000; ++step) {
            caller.Step();
            ASSERT_EQ(caller.Fault(), "")
                << caller.name << ", step " << step << ", style " << style;
        }
        SendMessageA(list, WM_SETREDRAW, TRUE, 0);
        PumpMessages();
        DestroyWindow(list);
        EXPECT_EQ(BlockCount(), before);
    }
}

} // namespace
