// Outline lists of values tell their parent of each one when they are destroyed: hosts free there
// what the values stand for.
#include "core/memory.h"
#include "hierlist/list_record_win.h"
#include "tests/windows/support/outline_list.h"

#include <algorithm>
#include <vector>

namespace vorn::hierlist {
namespace {

using test::kOutlineId;
using test::Message;
using test::OutlineListTest;

constexpr DWORD kValueStyles[] = {LBS_OWNERDRAWFIXED, LBS_OWNERDRAWVARIABLE};

LPCSTR Value(LONG_PTR value) {
    return reinterpret_cast<LPCSTR>(value);
}

class HierListDestroy : public OutlineListTest {
protected:
    std::vector<DELETEITEMSTRUCT> told;
    std::function<void()> meanwhile; // run once, inside the first message

    HierListDestroy() {
        host.answer = [this](const Message& message) -> std::optional<LRESULT> {
            if (message.message == WM_DELETEITEM) {
                told.push_back(*reinterpret_cast<const DELETEITEMSTRUCT*>(message.lParam));
                if (meanwhile) {
                    std::exchange(meanwhile, nullptr)();
                }
            }
            return std::nullopt;
        };
    }

    // Rows 10 (closed, with 11 and 12 below it), 20 and 30, each with its value as data.
    HWND Fill(DWORD style) {
        HWND list = Create(style | WS_VSCROLL);
        HOLBITEM parent = olbAddChildStringEx(list, nullptr, Value(10));
        olbSetItemDataEx(list, parent, 10);
        for (const LONG_PTR value : {11, 12}) {
            olbSetItemDataEx(list, olbAddChildStringEx(list, parent, Value(value)), value);
        }
        for (const LONG_PTR value : {20, 30}) {
            olbSetItemDataEx(list, olbAddChildStringEx(list, nullptr, Value(value)), value);
        }
        return list;
    }

    std::vector<ULONG_PTR> Data() const {
        std::vector<ULONG_PTR> data;
        for (const DELETEITEMSTRUCT& news : told) {
            data.push_back(news.itemData);
        }
        return data;
    }
};

using Values = std::vector<ULONG_PTR>;

TEST_F(HierListDestroy, TellsOfEachValueAsEmptyingDoes) {
    for (const DWORD style : kValueStyles) {
        HWND list = Fill(style);
        told.clear();
        olbResetContent(list);
        EXPECT_EQ(Data(), (Values{11, 12, 10, 20, 30}));
        DestroyWindow(list);
        EXPECT_EQ(told.size(), 5u) << "an empty list has nothing to tell";

        list = Fill(style);
        told.clear();
        DestroyWindow(list);
        EXPECT_EQ(Data(), (Values{11, 12, 10, 20, 30})) << "children before their parent";
        for (const DELETEITEMSTRUCT& news : told) {
            EXPECT_EQ(news.CtlType, UINT{ODT_LISTBOX});
            EXPECT_EQ(news.CtlID, UINT{kOutlineId});
            EXPECT_EQ(news.itemID, static_cast<UINT>(-1));
            EXPECT_EQ(news.hwndItem, list);
        }
    }
}

TEST_F(HierListDestroy, TellsOfTextsNothing) {
    for (const DWORD style : {DWORD{0}, DWORD{LBS_OWNERDRAWFIXED | LBS_HASSTRINGS}}) {
        HWND list = Create(style);
        olbAddString(list, "text");
        olbSetItemData(list, 0, 5);
        DestroyWindow(list);
        EXPECT_TRUE(told.empty());
    }
}

// The order is the list's own.
TEST_F(HierListDestroy, TellsOfAsMuchAsTheSystemsListBox) {
    Values data[2];
    const char* const classes[] = {VORN_HIERLIST_CLASS, "LISTBOX"};
    for (const int which : {0, 1}) {
        HWND list = host.Create(classes[which], LBS_OWNERDRAWFIXED, 5, 6, 100, 100, kOutlineId);
        for (const LPARAM value : {5, 6, 7}) {
            const LRESULT row = SendMessageA(list, LB_ADDSTRING, 0, value);
            SendMessageA(list, LB_SETITEMDATA, static_cast<WPARAM>(row), value);
        }
        told.clear();
        DestroyWindow(list);
        data[which] = Data();
        std::sort(data[which].begin(), data[which].end());
    }
    EXPECT_EQ(data[0], (Values{5, 6, 7}));
    EXPECT_EQ(data[1], data[0]);
}

TEST_F(HierListDestroy, TellsWhenItsParentIsDestroyed) {
    Fill(LBS_OWNERDRAWFIXED);
    told.clear();
    DestroyWindow(host.window());
    EXPECT_EQ(Data(), (Values{11, 12, 10, 20, 30}));
}

TEST_F(HierListDestroy, PaintsAndScrollsNoMore) {
    HWND list = Fill(LBS_OWNERDRAWFIXED);
    for (LONG_PTR value = 40; value < 60; ++value) {
        olbAddString(list, Value(value));
    }
    olbSetTopIndex(list, 10);
    int others = 0;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        others += message.message == WM_DRAWITEM || message.message == WM_MEASUREITEM;
        return std::nullopt;
    };
    DestroyWindow(list);
    EXPECT_EQ(others, 0);
}

TEST_F(HierListDestroy, BearsWhatItsParentDoesMeanwhile) {
    HWND list = nullptr;
    const struct {
        const char* name;
        std::function<void()> act;
        std::size_t told;
    } deeds[] = {
        {"destroys it", [&] { DestroyWindow(list); }, 1},
        {"empties it", [&] { olbResetContent(list); }, 5},
        {"adds a value", [&] { olbAddString(list, Value(99)); }, 5},
        {"adds a value and deletes it",
         [&] {
             olbAddString(list, Value(99));
             olbDeleteString(list, 0);
         },
         6},
        {"turns drawing on and repaints it",
         [&] {
             SendMessageA(list, WM_SETREDRAW, TRUE, 0);
             RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
         },
         5},
        {"keeps texts from then on", [&] { olbChangeStyle(list, LBS_HASSTRINGS); }, 5},
    };
    const std::uint32_t before = BlockCount();
    for (const DWORD style : kValueStyles) {
        for (const auto& [name, act, count] : deeds) {
            SCOPED_TRACE(name);
            list = Fill(style);
            told.clear();
            meanwhile = act;
            DestroyWindow(list);
            EXPECT_FALSE(IsWindow(list));
            EXPECT_EQ(told.size(), count);
            EXPECT_EQ(BlockCount(), before);
        }
    }
}

TEST_F(HierListDestroy, ParentMayBeDestroyedMeanwhile) {
    const std::uint32_t before = BlockCount();
    HWND list = Fill(LBS_OWNERDRAWFIXED);
    meanwhile = [&] { DestroyWindow(host.window()); };
    DestroyWindow(list);
    EXPECT_FALSE(IsWindow(list));
    EXPECT_EQ(BlockCount(), before);
}

} // namespace
} // namespace vorn::hierlist
