// An outline with its selection, in a window that only writes down what it is to do.
#pragma once

#include "hierlist/list_focus.h"
#include "hierlist/list_keys.h"
#include "hierlist/list_mouse.h"
#include "hierlist/type_ahead.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

namespace vorn::hierlist::test {

class ListHost {
public:
    Outline outline;
    Input input;
    View view{0, 9, 10};
    Rect client{0, 0, 100, 200};
    std::int32_t pointerY = 1000; // so that every move of the mouse is one
    std::size_t longest = 0;      // step so far

    // The host's own code, run when the action with this text is performed.
    std::function<void(const std::string& action)> meanwhile;

    explicit ListHost(std::uint32_t style = 0) {
        outline.style = style | kStyleNotify;
        outline.callbacks = &kCallbacks;
        outline.context = this;
    }
    ~ListHost() { Destroy(outline); }
    ListHost(const ListHost&) = delete;
    ListHost& operator=(const ListHost&) = delete;

    OlbItem* Add(OlbItem* parent, const char* text) { return AddChild(outline, parent, text); }
    // One item for each character, all at the top.
    void AddAll(const std::string& texts) {
        for (const char text : texts) {
            Add(nullptr, std::string(1, text).c_str());
        }
    }
    OlbItem* At(std::uint32_t row) { return IndexToHandle(outline, row); }
    void Drop(std::uint32_t row) { DeleteItem(outline, At(row)); }
    void OpenRow(std::uint32_t row) { Open(outline, row); }
    void CloseRow(std::uint32_t row) { Close(outline, row); }

    // ---- What the user does; each answers what the window does ----

    std::string Click(std::uint32_t row, std::uint32_t modifiers = 0) {
        Actions actions;
        SelectAt(actions, outline, input, row, modifiers, Tell::Parent);
        return Do(actions);
    }
    std::string Caret(std::uint32_t row) {
        Actions actions;
        MoveCaret(actions, outline, input, row);
        return Do(actions);
    }
    std::string Key(std::uint32_t key, std::uint32_t modifiers = 0) {
        return Do(KeyDown(outline, input, view, key, modifiers));
    }
    // The rest of Page Up or Page Down, with the top row as it is after the scrolling.
    std::string AfterPage(std::uint32_t key, std::uint32_t topNow, std::uint32_t modifiers = 0) {
        return Do(Paged(outline, input, key, modifiers, view.topRow, topNow));
    }
    std::string Type(char character) { return Do(TypeCharacter(outline, input, character)); }
    std::string Answer(std::int32_t answer) { return Do(TakeAnswer(outline, input, answer)); }
    std::string Press(std::uint32_t row, std::uint32_t modifiers = 0) {
        return Do(hierlist::Press(outline, input, PressAt(row, modifiers)));
    }
    std::string DoubleClick(std::uint32_t row) {
        PressEvent event = PressAt(row, 0);
        event.isDouble = true;
        return Do(hierlist::Press(outline, input, event));
    }
    std::string PressBox(std::uint32_t row, bool isDouble = false) {
        PressEvent event = PressAt(row, 0);
        event.isOnBox = true;
        event.isDouble = isDouble;
        return Do(hierlist::Press(outline, input, event));
    }
    std::string Drag(std::uint32_t row) {
        ++pointerY;
        return Do(Move(outline, input, {5, pointerY}, row));
    }
    std::string Release() { return Do(hierlist::Release(input)); }
    std::string Tick(Point pointer, std::uint32_t timer = kDragTimer) {
        return Do(hierlist::Tick(outline, input, view, timer, pointer, client));
    }
    std::string Focus(bool gained) {
        return Do(gained ? FocusGained(outline, input) : FocusLost(outline, input));
    }

    // ---- What has come of it ----

    // The texts of the selected items in the order of selecting, as "a c".
    std::string Selected() const {
        std::string texts;
        for (const OlbItem* item = input.selection.first; item != nullptr;
             item = item->nextSelected) {
            texts += (texts.empty() ? "" : " ") + Name(item);
        }
        return texts;
    }
    // The texts of anchor, caret and range end, as "a b -".
    std::string Marks() const {
        const Selection& selection = input.selection;
        return Name(selection.anchor) + " " + Name(selection.caret) + " " +
               Name(selection.rangeEnd);
    }

    static std::string Name(const OlbItem* item) { return item != nullptr ? TextOf(item) : "-"; }

    // Performs what a step answered and returns it, as "show 1, paint 0-2, update, notify 1".
    std::string Do(const Actions& actions) {
        longest = std::max(longest, actions.count);
        std::string text;
        for (const Action& action : actions) {
            if (IsStale(input, action)) {
                continue;
            }
            const std::string one = TextOfAction(action);
            text += (text.empty() ? "" : ", ") + one;
            if (meanwhile) {
                const auto code = meanwhile; // which may replace itself
                code(one);
            }
            Perform(action);
        }
        return text;
    }

private:
    PressEvent PressAt(std::uint32_t row, std::uint32_t modifiers) {
        PressEvent event;
        event.point = {5, ++pointerY};
        event.row = row;
        event.modifiers = modifiers;
        return event;
    }

    void Perform(const Action& action) {
        if (action.kind == ActionKind::Open) {
            Open(outline, action.first);
        } else if (action.kind == ActionKind::Close) {
            Close(outline, action.first);
        } else if (action.kind == ActionKind::OpenAll) {
            OpenAll(outline, At(action.first));
        } else if (action.kind == ActionKind::Toggle) {
            TogglePressed(outline, input);
        }
    }

    static std::string TextOfAction(const Action& action) {
        static constexpr const char* kNames[] = {
            "notify", "show",  "paint",    "paint top", "paint all", "update",
            "open",   "close", "open all", "toggle",    "capture",   "release",
            "start",  "kill",  "page up",  "page down", "next",      "previous",
        };
        std::string text = kNames[static_cast<std::size_t>(action.kind)];
        switch (action.kind) {
        case ActionKind::RepaintRows:
            text += " " + std::to_string(action.first);
            if (action.last != action.first) {
                text += "-" + std::to_string(action.last);
            }
            break;
        case ActionKind::Notify:
        case ActionKind::ShowRow:
        case ActionKind::Open:
        case ActionKind::Close:
        case ActionKind::OpenAll:
        case ActionKind::StartTimer:
        case ActionKind::KillTimer:
            text += " " + std::to_string(action.first);
            break;
        default:
            break;
        }
        return text;
    }

    static Input& InputOf(void* context) { return static_cast<ListHost*>(context)->input; }
    static void Deselected(void* context, OlbItem* item) {
        DropDeselected(InputOf(context).selection, item);
    }
    static void Retired(void* context, OlbItem* item) { DropItem(InputOf(context), item); }
    static void Cleared(void* context) { DropAllItems(InputOf(context)); }

    static constexpr Callbacks kCallbacks = {
        [](void*, const char* first, const char* second) { return std::strcmp(first, second); },
        [](void*, std::uintptr_t, std::uintptr_t, std::uint32_t) { return 0; },
        [](void*, const OlbItem*, std::uint32_t) -> std::uint16_t { return 0; },
        [](void*, std::uint32_t, std::uintptr_t) {},
        [](void*) {},
        [](void*) {},
        [](void*, Redraw, std::uint32_t) {},
        Deselected,
        Retired,
        Cleared,
        [](void*, OlbItem*, std::uintptr_t) { return true; },
        [](void*, OlbItem*) -> std::uintptr_t { return 0; },
    };
};

} // namespace vorn::hierlist::test
