#include "tests/windows/host/popup_host.h"

#include "tests/windows/support/input.h"

namespace vorn::test {
namespace {

constexpr UINT kStepMilliseconds = 20;
constexpr int kMostTries = 150; // three seconds

// What the running dialog is taken through; there is one at a time.
struct Script {
    std::vector<std::function<void(HWND)>> steps;
    std::size_t next = 0;
    int tries = 0;
    bool seen = false;
};
Script* script = nullptr;

void CALLBACK TakeStep(HWND, UINT, UINT_PTR, DWORD) {
    HWND dialog = FindPopup();
    if (dialog == nullptr || script == nullptr) {
        return;
    }
    script->seen = true;
    if (script->next < script->steps.size()) {
        script->steps[script->next++](dialog); // may run this anew in a loop of its own
        return;
    }
    if (++script->tries > kMostTries) {
        ADD_FAILURE() << "the dialog did not end";
        EndDialog(dialog, IDCANCEL);
    }
}

BOOL CALLBACK TakeIfPopup(HWND window, LPARAM found) {
    char title[40] = "";
    GetWindowTextA(window, title, sizeof title);
    if (lstrcmpA(title, "Select Date") == 0) {
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    }
    return TRUE;
}

} // namespace

HWND FindPopup() {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), TakeIfPopup, reinterpret_cast<LPARAM>(&found));
    return found;
}

HWND PopupTest::Create(DWORD style, int x, int y) {
    HWND dateEdit =
        host.Create(VORN_DATEEDIT_CLASS, style | VDTS_CALENDAR | WS_TABSTOP, x, y, 160, 32);
    const DtEditParams layout = {.size = sizeof(DtEditParams),
                                 .setDate = TRUE,
                                 .year = 1995,
                                 .month = 12,
                                 .day = 25,
                                 .reserved1 = 0,
                                 .keepLayout = FALSE,
                                 .separator = '/',
                                 .reserved2 = 0,
                                 .monthLeadingZero = FALSE,
                                 .dayLeadingZero = FALSE,
                                 .fourDigitYear = TRUE,
                                 .kinds = {DT_MONTH, DT_DAY, DT_YEAR}};
    dtSetEditParams(dateEdit, &layout);
    return dateEdit;
}

bool PopupTest::Open(HWND dateEdit, std::vector<Step> steps) {
    Script running;
    running.steps = std::move(steps);
    script = &running;
    const UINT_PTR timer = SetTimer(nullptr, 0, kStepMilliseconds, TakeStep);
    RECT client{};
    GetClientRect(dateEdit, &client);
    SendMouse(dateEdit, WM_LBUTTONDOWN, static_cast<int>(client.right) - 3,
              static_cast<int>(client.bottom) / 2);
    KillTimer(nullptr, timer);
    script = nullptr;
    if (running.seen) {
        EXPECT_EQ(running.next, running.steps.size()) << "the dialog ended too early";
    }
    PumpMessages();
    return running.seen;
}

INT_PTR PopupTest::ResultOf(HWND dateEdit, const Step& step) {
    constexpr int kRecordOffset = 8;
    Script running;
    running.steps = {step};
    script = &running;
    const UINT_PTR timer = SetTimer(nullptr, 0, kStepMilliseconds, TakeStep);
    const INT_PTR result =
        DialogBoxParamA(GetModuleHandleA("VORN32.dll"), MAKEINTRESOURCEA(110), host.window(),
                        CalendarProc, GetWindowLongPtrA(dateEdit, kRecordOffset));
    KillTimer(nullptr, timer);
    script = nullptr;
    return result;
}

void PopupTest::Command(HWND dialog, int id, int code) {
    SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, code),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

void PopupTest::Click(HWND dialog, int id) {
    HWND button = GetDlgItem(dialog, id);
    RECT client{};
    GetClientRect(button, &client);
    const int x = static_cast<int>(client.right) / 2;
    const int y = static_cast<int>(client.bottom) / 2;
    SendMouse(button, WM_LBUTTONDOWN, x, y);
    SendMouse(button, WM_LBUTTONUP, x, y);
}

DtDate PopupTest::DateOf(HWND dateEdit) {
    DtDate date{};
    dtGetDate(dateEdit, &date);
    return date;
}

std::string PopupTest::TextOf(HWND window) {
    char text[80] = "";
    SendMessageA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

std::string PopupTest::ValueOf(HWND dateEdit) {
    char text[32] = "";
    dtGetDateString(dateEdit, text);
    return text;
}

VORNCALENDARDATE PopupTest::CalendarDate(HWND dialog) {
    VORNCALENDARDATE date{};
    SendDlgItemMessageA(dialog, 300, VCALM_GETDATE, 0, reinterpret_cast<LPARAM>(&date));
    return date;
}

void PopupTest::ShowDate(HWND dialog, WORD year, WORD month, WORD day) {
    SendDlgItemMessageA(dialog, 300, VCALM_SETDATE, year, MAKELPARAM(month, day));
}

RECT PopupTest::PlaceOf(HWND dialog, int id) {
    RECT place{};
    GetWindowRect(GetDlgItem(dialog, id), &place);
    MapWindowPoints(HWND_DESKTOP, dialog, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

std::string DateText(const DtDate& date) {
    return std::to_string(date.month) + "/" + std::to_string(date.day) + "/" +
           std::to_string(date.year);
}

std::string DateText(const VORNCALENDARDATE& date) {
    return std::to_string(date.month) + "/" + std::to_string(date.day) + "/" +
           std::to_string(date.year);
}

} // namespace vorn::test
