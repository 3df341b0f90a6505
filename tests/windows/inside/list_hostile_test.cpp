// Parents that do their worst while the outline list tells or asks them something.
#include "core/memory.h"
#include "tests/windows/support/input.h"
#include "tests/windows/support/list_window.h"
#include "tests/windows/support/objects.h"
#include "tests/windows/support/spy.h"

#include <utility>

namespace vorn::hierlist::test {
namespace {

constexpr DWORD kModes[] = {0, LBS_MULTIPLESEL, LBS_EXTENDEDSEL, LBS_MULTIPLESEL | LBS_EXTENDEDSEL};

// What a parent does when it is called; the list may be gone afterwards.
struct Deed {
    const char* name;
    void (*act)(HWND list);
};

Record& RecordIn(HWND list) {
    return *RecordOf<Record>(list);
}

void DeleteRow(HWND list, std::uint32_t row) {
    DeleteItem(RecordIn(list).outline, IndexToHandle(RecordIn(list).outline, row));
}

constexpr Deed kDeeds[] = {
    {"nothing", [](HWND) {}},
    {"delete the item",
     [](HWND list) { DeleteItem(RecordIn(list).outline, RecordIn(list).state.selection.caret); }},
    {"delete the first rows",
     [](HWND list) {
         for (int i = 0; i < 3; ++i) {
             DeleteRow(list, 0);
         }
     }},
    {"delete below",
     [](HWND list) {
         DeleteSubtree(RecordIn(list).outline, IndexToHandle(RecordIn(list).outline, 1));
     }},
    {"empty the list", [](HWND list) { Reset(RecordIn(list).outline); }},
    {"empty and fill it",
     [](HWND list) {
         Reset(RecordIn(list).outline);
         olbAddString(list, "new");
     }},
    {"add", [](HWND list) { olbAddString(list, "z"); }},
    {"close", [](HWND list) { olbCloseItem(list, 1); }},
    {"single", [](HWND list) { ChangeStyle(list, LBS_MULTIPLESEL | LBS_EXTENDEDSEL, 0); }},
    {"multiple", [](HWND list) { ChangeStyle(list, LBS_EXTENDEDSEL, LBS_MULTIPLESEL); }},
    {"extended", [](HWND list) { ChangeStyle(list, LBS_MULTIPLESEL, LBS_EXTENDEDSEL); }},
    {"columns", [](HWND list) { ChangeStyle(list, 0, LBS_MULTICOLUMN); }},
    {"shrink",
     [](HWND list) { SetWindowPos(list, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOZORDER); }},
    {"release", [](HWND list) { SendMessageA(list, WM_LBUTTONUP, 0, 0); }},
    {"press elsewhere",
     [](HWND list) { SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(100, 9)); }},
    {"double click elsewhere",
     [](HWND list) { SendMessageA(list, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(100, 27)); }},
    {"key", [](HWND list) { SendMessageA(list, WM_KEYDOWN, VK_END, 0); }},
    {"character", [](HWND list) { SendMessageA(list, WM_CHAR, '-', 0); }},
    {"focus", [](HWND list) { SetFocus(GetFocus() == list ? GetParent(list) : list); }},
    {"capture", [](HWND list) { SetCapture(GetParent(list)); }},
    {"hide", [](HWND list) { ShowWindow(list, SW_HIDE); }},
    {"pump", [](HWND) { PumpMessages(); }},
    {"destroy", [](HWND list) { DestroyWindow(list); }},
};

class ListHostile : public ListWindow {
protected:
    // Rows a, p (open, with x and y, x open with z), b to f; the caret on x, the focus elsewhere.
    void CreateTree(DWORD style) {
        CreateList(LBS_WANTKEYBOARDINPUT | style, "apbcdef", 4);
        SendMessageA(list, WM_SETREDRAW, FALSE, 0); // each row by itself takes its time
        olbAddChildString(list, 1, "x");
        olbAddChildString(list, 1, "y");
        olbOpenItem(list, 1);
        olbAddChildString(list, 2, "z");
        olbOpenItem(list, 2);
        olbEnableMicroBitmaps(list, TRUE);
        SendMessageA(list, WM_SETREDRAW, TRUE, 0);
        SetFocus(host.window());
        PutCaret(State().selection, At(2));
        host.TakeNotifications();
    }

    // Does the deed when the parent gets a notification or a question, once.
    void Await(UINT message, int code, const Deed& deed) {
        done = false;
        host.answer = [=, this, &deed](const Message& got) -> std::optional<LRESULT> {
            const bool isIt =
                got.message == message && (message != WM_COMMAND || HIWORD(got.wParam) == code);
            if (isIt && !done && IsWindow(list)) {
                done = true;
                deed.act(list);
            }
            return isIt && message != WM_COMMAND ? std::optional<LRESULT>(answer) : std::nullopt;
        };
    }

    // Everything that anything refers to is an item of the list.
    void CheckWhole(const std::string& where) {
        host.answer = nullptr;
        if (!IsWindow(list)) {
            return;
        }
        std::vector<const OlbItem*> all;
        Collect(&Items().top, all);
        const auto isItem = [&](const OlbItem* item) {
            return std::find(all.begin(), all.end(), item) != all.end();
        };
        const Selection& selection = State().selection;
        for (const OlbItem* mark : {selection.anchor, selection.caret, selection.rangeEnd,
                                    static_cast<OlbItem*>(State().pressed), State().dragAt}) {
            EXPECT_TRUE(mark == nullptr || isItem(mark)) << where;
        }
        std::uint32_t count = 0;
        for (const OlbItem* item = selection.first; item != nullptr; item = item->nextSelected) {
            ASSERT_TRUE(isItem(item)) << where;
            EXPECT_TRUE(IsSelected(item)) << where;
            ++count;
        }
        EXPECT_EQ(count, selection.count) << where;
        for (const OlbItem* item : all) {
            count -= IsSelected(item) ? 1 : 0;
            EXPECT_EQ((item->flags & kFlagCaret) != 0,
                      item == selection.caret && selection.hasFocus)
                << where;
        }
        EXPECT_EQ(count, 0u) << where;
        EXPECT_EQ(selection.hasFocus, GetFocus() == list) << where;
        EXPECT_EQ(State().captured, GetCapture() == list) << where;
        EXPECT_EQ(vorn::test::TakeTimer(list, 101), State().captured) << where;
    }

    void CheckAndDestroy(const std::string& where) {
        CheckWhole(where);
        if (IsWindow(list)) {
            SendMessageA(list, WM_LBUTTONUP, 0, 0);
            DestroyWindow(list);
        }
        ReleaseCapture();
    }

    // Has each parent do each deed while the user acts, in each mode.
    void TryAll(UINT message, int code, const std::function<void()>& act) {
        for (const DWORD mode : kModes) {
            for (const Deed& deed : kDeeds) {
                CreateTree(mode);
                Await(message, code, deed);
                act();
                EXPECT_TRUE(done) << deed.name << " was not called for in mode " << mode;
                CheckAndDestroy(std::string(deed.name) + " in mode " + std::to_string(mode));
            }
        }
    }

    bool done = false;
    LRESULT answer = -1;

private:
    static void Collect(const OlbItem* owner, std::vector<const OlbItem*>& all) {
        for (const OlbItem* item = owner->firstChild; item != nullptr; item = item->nextSibling) {
            all.push_back(item);
            Collect(item, all);
        }
    }
};

TEST_F(ListHostile, InsideSelChangeOfAPress) {
    TryAll(WM_COMMAND, LBN_SELCHANGE, [this] { Press(1); });
}

TEST_F(ListHostile, InsideSelChangeOfADoubleClick) {
    TryAll(WM_COMMAND, LBN_SELCHANGE,
           [this] { SendMessageA(list, WM_LBUTTONDBLCLK, MK_LBUTTON, PointOn(1)); });
}

TEST_F(ListHostile, InsideSelChangeOfAClickOnABox) {
    TryAll(WM_COMMAND, LBN_SELCHANGE,
           [this] { SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, PointOn(1, 8)); });
}

TEST_F(ListHostile, InsideDoubleClick) {
    TryAll(WM_COMMAND, LBN_DBLCLK,
           [this] { SendMessageA(list, WM_LBUTTONDBLCLK, MK_LBUTTON, PointOn(1)); });
}

TEST_F(ListHostile, InsideTheFocusOfAPress) {
    TryAll(WM_COMMAND, LBN_SETFOCUS, [this] { Press(1); });
}

TEST_F(ListHostile, InsideTheFocus) {
    TryAll(WM_COMMAND, LBN_SETFOCUS, [this] { SetFocus(list); });
}

TEST_F(ListHostile, InsideTheLossOfTheFocus) {
    TryAll(WM_COMMAND, LBN_KILLFOCUS, [this] {
        SetFocus(list);
        SetFocus(host.window());
    });
}

TEST_F(ListHostile, InsideSelChangeOfACharacter) {
    TryAll(WM_COMMAND, LBN_SELCHANGE, [this] { Type('y'); });
}

// Each with another answer.
TEST_F(ListHostile, InsideTheQuestionAboutAKey) {
    const std::pair<WPARAM, LRESULT> cases[] = {{VK_DOWN, -1}, {VK_SPACE, -1},  {VK_END, 0},
                                                {VK_NEXT, 5},  {VK_RIGHT, 100}, {VK_HOME, -2}};
    for (const auto& [key, each] : cases) {
        answer = each;
        TryAll(WM_VKEYTOITEM, 0, [this, key = key] { Key(key); });
    }
}

TEST_F(ListHostile, InsideTheQuestionAboutOpeningAll) {
    TryAll(WM_VKEYTOITEM, 0, [this] { Key(VK_ADD, MK_CONTROL); });
}

TEST_F(ListHostile, InsideTheQuestionAboutACharacter) {
    const std::pair<char, LRESULT> cases[] = {{'+', -1}, {'-', -1},  {'y', -1},
                                              {'-', 1},  {'a', 100}, {'y', -2}};
    for (const auto& [character, each] : cases) {
        answer = each;
        TryAll(WM_CHARTOITEM, 0, [this, character = character] { Type(character); });
    }
}

// A drag's notification: only where dragging selects.
TEST_F(ListHostile, InsideSelChangeOfADrag) {
    for (const DWORD mode : {DWORD{0}, DWORD{LBS_EXTENDEDSEL}}) {
        for (const Deed& deed : kDeeds) {
            CreateTree(mode);
            Press(0);
            Await(WM_COMMAND, LBN_SELCHANGE, deed);
            Drag(2);
            EXPECT_TRUE(done) << deed.name;
            CheckAndDestroy(deed.name);
        }
    }
}

TEST_F(ListHostile, InsideSelChangeOfTheTimer) {
    for (const Deed& deed : kDeeds) {
        CreateTree(0);
        Press(0);
        SetCursorPos(600, 470);
        Await(WM_COMMAND, LBN_SELCHANGE, deed);
        SendMessageA(list, WM_TIMER, 101, 0);
        EXPECT_TRUE(done) << deed.name;
        CheckAndDestroy(deed.name);
    }
}

// Someone who looks over the list's shoulder acts while it scrolls by a page.
TEST_F(ListHostile, InsideThePageThatAKeyTurns) {
    for (const Deed& deed : kDeeds) {
        CreateTree(0);
        done = false;
        {
            vorn::test::Spy spy(list);
            spy.before = [&](const Message& message) {
                if (message.message == WM_VSCROLL && !std::exchange(done, true)) {
                    deed.act(list);
                }
            };
            Key(VK_NEXT);
        }
        EXPECT_TRUE(done) << "the list scrolls by a message to itself";
        CheckAndDestroy(deed.name);
    }
}

TEST_F(ListHostile, InsideOwnerDrawing) {
    for (const Deed& deed : kDeeds) {
        for (const UINT press : {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK}) {
            CreateTree(LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_EXTENDEDSEL);
            UpdateWindow(list);
            const LPARAM point = PointOn(1);
            Await(WM_DRAWITEM, 0, deed);
            SendMessageA(list, press, MK_LBUTTON, point);
            EXPECT_TRUE(done) << deed.name;
            CheckAndDestroy(deed.name);
        }
    }
}

TEST_F(ListHostile, DestroyedParentTakesTheListAlong) {
    CreateTree(0);
    host.answer = [this](const Message& got) -> std::optional<LRESULT> {
        if (got.message == WM_COMMAND && HIWORD(got.wParam) == LBN_SELCHANGE) {
            DestroyWindow(host.window());
        }
        return std::nullopt;
    };
    Press(1);
    EXPECT_FALSE(IsWindow(list));
}

TEST_F(ListHostile, NothingIsLeftBehind) {
    CreateTree(LBS_EXTENDEDSEL);
    DestroyWindow(list);
    const std::uint32_t blocks = BlockCount();
    const auto cycle = [this] {
        CreateTree(LBS_EXTENDEDSEL);
        Press(0);
        Drag(3);
        Key(VK_END, MK_SHIFT);
        DestroyWindow(list); // with the mouse held
    };
    EXPECT_EQ(vorn::test::ObjectsLeftBy(cycle, 200), "");
    EXPECT_EQ(BlockCount(), blocks);
}

} // namespace
} // namespace vorn::hierlist::test
