// A host of edits: it writes down what an edit tells its parent and asks itself, in order.
#pragma once

#include "tests/windows/support/host_window.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace vorn::test {

// "ask" and "changed" are the edit's messages to itself, "paint" that it painted; the others are
// notifications, such as "EN_UPDATE". One of an unusual form has its numbers.
using Events = std::vector<std::string>;

class EditHost : public testing::Test {
protected:
    HostWindow host;
    Events events;
    bool notesPaints = false;
    LRESULT allowed = 1; // the answer to what the edit asks
    // Runs inside each event, after it was written down.
    std::function<void(HWND edit, const std::string& event)> onEvent;

    EditHost();
    ~EditHost() override;

    // Creates an edit and looks over its shoulder.
    HWND CreateEdit(const char* className, DWORD style, int width = 120, int height = 24);
    void Watch(HWND edit);

    Events TakeEvents();

    static std::string TextOf(HWND edit);
    // Selection and caret as "0-2".
    static std::string SelectionOf(HWND edit);
    static void Select(HWND edit, int start, int end) { SendMessageA(edit, EM_SETSEL, start, end); }

    // Where the caret is, in the client area; {-1, -1} when another window has it or none.
    static POINT CaretAt(HWND edit);
    static SIZE CaretSize(HWND edit);

    static void SetClipboard(const std::string& text);
    static std::string ClipboardText();

    // Keys as a user makes them, to the window with the focus; returns when they are through.
    static void PressKey(WORD key);
    static void PressShifted(WORD key);
    static void PressControlled(WORD key);
    static void Type(const char* digits);

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Note(HWND edit, const std::string& event);
};

// A section of WIN.INI that is put back as it was.
class ChangedProfile {
public:
    ChangedProfile(const char* key, const char* text);
    ~ChangedProfile();
    ChangedProfile(const ChangedProfile&) = delete;
    ChangedProfile& operator=(const ChangedProfile&) = delete;

private:
    std::string key_;
    std::string old_;
    bool existed_;
};

} // namespace vorn::test
