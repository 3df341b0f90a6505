// Outline lists whose parent does its worst inside the messages that they send.
#include "core/memory.h"
#include "core/window_win.h"
#include "hierlist/list_record_win.h"
#include "hierlist/list_scroll_win.h"
#include "hierlist/list_view_win.h"
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/outline_list.h"
#include "tests/windows/support/outline_messages.h"

#include <vector>

namespace vorn::hierlist {
namespace {

using test::Message;
using test::OutlineListTest;

struct Deed {
    const char* name;
    void (*act)(HWND list);
};

OlbItem* RowOf(HWND list, std::uint32_t row) {
    const Record* record = RecordOf<Record>(list);
    return record != nullptr ? IndexToHandle(record->outline, row) : nullptr;
}

void DeleteRow(HWND list, std::uint32_t row) {
    if (OlbItem* item = RowOf(list, row)) {
        DeleteItem(RecordOf<Record>(list)->outline, item);
    }
}

const Deed kDeeds[] = {
    {"destroys it", [](HWND list) { DestroyWindow(list); }},
    {"deletes the first item", [](HWND list) { DeleteRow(list, 0); }},
    {"deletes the third item", [](HWND list) { DeleteRow(list, 2); }},
    {"empties it",
     [](HWND list) {
         if (Record* record = RecordOf<Record>(list)) {
             Reset(record->outline);
         }
     }},
    {"adds an item", [](HWND list) { olbAddString(list, "more"); }},
    {"repaints it",
     [](HWND list) { RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }},
    {"makes columns", [](HWND list) { ChangeStyle(list, 0, LBS_MULTICOLUMN); }},
    {"draws itself no more",
     [](HWND list) { ChangeStyle(list, LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE, 0); }},
    {"makes it small",
     [](HWND list) { SetWindowPos(list, nullptr, 0, 0, 3, 3, SWP_NOMOVE | SWP_NOZORDER); }},
    {"scrolls it", [](HWND list) { SendMessageA(list, WM_VSCROLL, SB_BOTTOM, 0); }},
    {"changes its border", [](HWND list) { olbSetBorderStyle(list, 3); }},
    {"turns drawing off", [](HWND list) { SendMessageA(list, WM_SETREDRAW, FALSE, 0); }},
    {"sets a font", [](HWND list) { SendMessageA(list, WM_SETFONT, 0, TRUE); }},
};

// What a list goes through: it sends every message there is.
void Use(HWND list) {
    HOLBITEM parent = olbAddChildStringEx(list, nullptr, "parent");
    for (int i = 0; i < 8; ++i) {
        olbAddChildStringEx(list, i % 2 == 0 ? nullptr : parent, "item");
        if (RowOf(list, 0) != reinterpret_cast<OlbItem*>(parent)) {
            parent = nullptr; // gone, or not to be relied on
        }
    }
    olbOpenItem(list, 0);
    SendMessageA(list, WM_VSCROLL, SB_PAGEDOWN, 0);
    RedrawRows(list);
    RedrawFromRow(list, 2);
    olbCloseItem(list, 0);
    DeleteRow(list, 1);
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    if (IsWindow(list)) {
        UpdateWindow(list);
    }
}

class HierListHosts : public OutlineListTest {
protected:
    // Has the parent do the deed once, inside the count-th message of this number.
    void Arm(UINT message, int count, const Deed& deed, const HWND& list) {
        left_ = count;
        host.answer = [this, message, &deed,
                       &list](const Message& received) -> std::optional<LRESULT> {
            if (received.message == message && list != nullptr && --left_ == 0) {
                deed.act(list);
            }
            return std::nullopt;
        };
    }
    bool Happened() const { return left_ <= 0; }

private:
    int left_ = 0;
};

constexpr DWORD kStyles[] = {
    WS_VSCROLL | LBS_OWNERDRAWFIXED | LBS_SORT,
    WS_VSCROLL | LBS_OWNERDRAWVARIABLE,
    WS_VSCROLL | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS | LBS_SORT,
    WS_HSCROLL | LBS_OWNERDRAWVARIABLE | LBS_MULTICOLUMN,
    WS_HSCROLL | LBS_OWNERDRAWFIXED | LBS_MULTICOLUMN | LBS_HASSTRINGS,
};

TEST_F(HierListHosts, AreBorneInEveryMessage) {
    const std::uint32_t before = BlockCount();
    int happened = 0;
    for (const UINT message :
         {WM_DRAWITEM, WM_MEASUREITEM, WM_COMPAREITEM, WM_DELETEITEM, WM_CTLCOLORLISTBOX}) {
        for (const Deed& deed : kDeeds) {
            for (const DWORD style : kStyles) {
                for (const int count : {1, 4}) {
                    SCOPED_TRACE(deed.name);
                    HWND list = nullptr;
                    Arm(message, count, deed, list);
                    list = Create(style);
                    RecordOf<Record>(list)->options.flags |= kOptionAskBackground;
                    Use(list);
                    happened += Happened();
                    host.answer = nullptr;
                    if (IsWindow(list)) {
                        DestroyWindow(list);
                    }
                    ASSERT_EQ(BlockCount(), before) << message << " style " << style;
                }
            }
        }
    }
    // All but the comparisons and deletions of lists that keep texts, and some fourth messages.
    EXPECT_GT(happened, 350);
}

TEST_F(HierListHosts, MayDestroyItWhileItIsCreated) {
    const std::uint32_t before = BlockCount();
    host.answer = [&](const Message& received) -> std::optional<LRESULT> {
        if (received.message == WM_MEASUREITEM) {
            HWND list = GetDlgItem(host.window(), test::kOutlineId);
            if (list != nullptr) {
                DestroyWindow(list);
            }
        }
        return std::nullopt;
    };
    Create(LBS_OWNERDRAWFIXED);
    host.answer = nullptr;
    if (HWND list = GetDlgItem(host.window(), test::kOutlineId)) {
        DestroyWindow(list);
    }
    EXPECT_EQ(BlockCount(), before);
}

TEST_F(HierListHosts, MayRepaintWithoutEndFromTheirMessages) {
    HWND list = Create(LBS_OWNERDRAWFIXED);
    int drawn = 0;
    host.answer = [&](const Message& received) -> std::optional<LRESULT> {
        if (received.message == WM_DRAWITEM && ++drawn < 100) {
            RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        }
        return std::nullopt;
    };
    olbAddString(list, nullptr);
    EXPECT_LT(drawn, 100) << "put off until the paint has ended";
    host.answer = nullptr;
}

TEST_F(HierListHosts, MaySendAnything) {
    const auto create = [&] {
        HWND list = Create(WS_VSCROLL | WS_HSCROLL | OLBS_SUNKEN);
        AddRows(list, 30);
        return list;
    };
    test::SendRandomMessages(create, 6207, 20000, test::OutlineMessagesWithAddresses());
}

} // namespace
} // namespace vorn::hierlist
