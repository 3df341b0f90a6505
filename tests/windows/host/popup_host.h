// The date edit's modal dialog, driven step by step while it runs.
#pragma once

#include "tests/windows/support/host_window.h"
#include "tests/windows/support/spy.h"

#include <windows.h>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <vorn32.h>

namespace vorn::test {

// The dialog of this thread; null when there is none.
HWND FindPopup();

class PopupTest : public testing::Test {
protected:
    using Step = std::function<void(HWND dialog)>;

    // A date edit with its button, 25 December 1995 in it.
    HWND Create(DWORD style = 0, int x = 20, int y = 20);

    // Presses the date edit's button and takes the steps in the dialog, some time apart; then the
    // dialog must end by itself. Returns whether there was one.
    bool Open(HWND dateEdit, std::vector<Step> steps);
    bool Open(HWND dateEdit, const Step& step) { return Open(dateEdit, std::vector<Step>{step}); }

    // The same for the dialog alone; what it ends with.
    INT_PTR ResultOf(HWND dateEdit, const Step& step);

    static void Command(HWND dialog, int id, int code = 0);
    static void Click(HWND dialog, int id);

    static DtDate DateOf(HWND dateEdit);
    static std::string TextOf(HWND window);
    static std::string ValueOf(HWND dateEdit);
    static VORNCALENDARDATE CalendarDate(HWND dialog);
    static void ShowDate(HWND dialog, WORD year, WORD month, WORD day);

    // The window of a control in the dialog's client area.
    static RECT PlaceOf(HWND dialog, int id);

    HostWindow host;
};

// For comparing dates in a line.
std::string DateText(const DtDate& date);
std::string DateText(const VORNCALENDARDATE& date);

} // namespace vorn::test
