// An outline list in a host window, seen from inside, and what a user and a hostile parent do to
// it.
#pragma once

#include "core/window_win.h"
#include "hierlist/list_record_win.h"
#include "hierlist/list_view_win.h"
#include "tests/windows/support/host_window.h"

#include <gtest/gtest.h>
#include <string>
#include <vorn32.h>

namespace vorn::hierlist::test {

using vorn::test::HostWindow;
using vorn::test::Message;
using vorn::test::PumpFor;
using vorn::test::PumpMessages;

using Codes = std::vector<int>;

class ListWindow : public testing::Test {
protected:
    ~ListWindow() override { HoldKeys(0); }

    // 200 pixels wide and as many rows of 18 pixels high as told, with the rows of the texts. The
    // height of rows is set, so that no font changes it.
    HWND CreateList(DWORD style, const std::string& texts, int rowsInView = 4) {
        list = host.Create(VORN_HIERLIST_CLASS, LBS_NOTIFY | style, 10, 10, 200, 18 * rowsInView);
        RecordOf<Record>(list)->options.rowHeight = 18;
        SendMessageA(list, WM_SETREDRAW, FALSE, 0); // painting after each row takes its time
        for (const char text : texts) {
            const char item[] = {text, '\0'};
            olbAddString(list, item);
        }
        SendMessageA(list, WM_SETREDRAW, TRUE, 0);
        host.TakeNotifications();
        return list;
    }

    Outline& Items() { return RecordOf<Record>(list)->outline; }
    Input& State() { return RecordOf<Record>(list)->state; }
    OlbItem* At(std::uint32_t row) { return IndexToHandle(Items(), row); }

    // The selected texts in the order of selecting, as "a c".
    std::string Selected() {
        std::string texts;
        for (const OlbItem* item = State().selection.first; item != nullptr;
             item = item->nextSelected) {
            texts += (texts.empty() ? "" : " ") + std::string(TextOf(item));
        }
        return texts;
    }
    std::string Caret() {
        const OlbItem* caret = State().selection.caret;
        return caret != nullptr ? TextOf(caret) : "-";
    }

    // ---- The user ----

    static void HoldKeys(WPARAM modifiers) {
        BYTE keys[256] = {};
        GetKeyboardState(keys);
        constexpr BYTE kUp = 0;
        constexpr BYTE kDown = 0x80;
        keys[VK_SHIFT] = (modifiers & MK_SHIFT) != 0 ? kDown : kUp;
        keys[VK_CONTROL] = (modifiers & MK_CONTROL) != 0 ? kDown : kUp;
        SetKeyboardState(keys);
    }
    void Key(WPARAM key, WPARAM modifiers = 0) {
        HoldKeys(modifiers);
        SendMessageA(list, WM_KEYDOWN, key, 0);
        HoldKeys(0);
    }
    void Type(char character) {
        SendMessageA(list, WM_CHAR, static_cast<unsigned char>(character), 0);
    }
    // The middle of a row's height, 100 pixels to the right.
    LPARAM PointOn(int row, int x = 100) {
        const int top = static_cast<int>(RecordOf<Record>(list)->topIndex);
        return MAKELPARAM(x, (row - top) * 18 + 9);
    }
    void Press(int row, WPARAM modifiers = 0) {
        SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON | modifiers, PointOn(row));
    }
    void Release() { SendMessageA(list, WM_LBUTTONUP, 0, 0); }
    void Click(int row, WPARAM modifiers = 0) {
        Press(row, modifiers);
        Release();
    }
    void DoubleClick(int row) {
        SendMessageA(list, WM_LBUTTONDBLCLK, MK_LBUTTON, PointOn(row));
        Release();
    }
    void Drag(int row) { SendMessageA(list, WM_MOUSEMOVE, MK_LBUTTON, PointOn(row)); }

    HostWindow host;
    HWND list = nullptr;
};

} // namespace vorn::hierlist::test
