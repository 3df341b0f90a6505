// A window with the library's controls, with a function for each notification. It does to each
// control what a user or a program would do, prints what it is told and reads back, and ends with 0
// when that is as expected.
#include <array>
#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vorn32.h>

namespace {

// A top-level window that has a function called for each notification of its controls.
class Host {
public:
    Host() {
        WNDCLASSA windowClass = {};
        windowClass.lpfnWndProc = Proc;
        windowClass.hInstance = GetModuleHandleA(nullptr);
        windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
        windowClass.lpszClassName = "ControlsHost";
        RegisterClassA(&windowClass);
        window = CreateWindowA("ControlsHost", "Controls in C++", WS_OVERLAPPEDWINDOW, 20, 20, 700,
                               560, nullptr, nullptr, windowClass.hInstance, this);
    }
    ~Host() { DestroyWindow(window); }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    HWND Add(const char* className, const char* text, DWORD style, RECT place) {
        const int id = ++lastId;
        return CreateWindowA(className, text, WS_CHILD | WS_VISIBLE | style, place.left, place.top,
                             place.right - place.left, place.bottom - place.top, window,
                             reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                             GetModuleHandleA(nullptr), nullptr);
    }

    void OnCommand(HWND control, WORD code, std::function<void()> run) {
        commands[{control, code}] = std::move(run);
    }
    void OnScroll(HWND control, WORD code, std::function<void()> run) {
        scrolls[{control, code}] = std::move(run);
    }
    void Show() const {
        ShowWindow(window, SW_SHOW);
        UpdateWindow(window);
    }

private:
    using Handlers = std::map<std::pair<HWND, WORD>, std::function<void()>>;

    static LRESULT CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NCCREATE) {
            const auto* creation = reinterpret_cast<CREATESTRUCTA*>(lParam);
            SetWindowLongPtrA(window, GWLP_USERDATA,
                              reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
        }
        auto* host = reinterpret_cast<Host*>(GetWindowLongPtrA(window, GWLP_USERDATA));
        const auto control = reinterpret_cast<HWND>(lParam);
        if (host != nullptr && message == WM_COMMAND) {
            Run(host->commands, control, HIWORD(wParam));
            return 0;
        }
        if (host != nullptr && message == WM_VSCROLL) {
            Run(host->scrolls, control, LOWORD(wParam));
            return 0;
        }
        return DefWindowProcA(window, message, wParam, lParam);
    }
    static void Run(const Handlers& handlers, HWND control, WORD code) {
        const auto found = handlers.find({control, code});
        if (found != handlers.end() && found->second) {
            found->second();
        }
    }

    HWND window = nullptr;
    int lastId = 100;
    Handlers commands;
    Handlers scrolls;
};

int failures = 0;

void Expect(const char* what, LONG actual, LONG expected) {
    std::printf("%s: %ld%s\n", what, actual,
                actual == expected ? "" : ", which is not as expected");
    if (actual != expected) {
        ++failures;
    }
}

void Click(HWND window, int x, int y) {
    SendMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    SendMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

// Each click takes the percent bar a step further.
HWND UseButtonAndBar(Host& host) {
    int clicks = 0;
    HWND button =
        host.Add(VORN_BUTTON_CLASS, "Further", WS_TABSTOP | VBTS_PICTURE, {10, 10, 130, 44});
    HWND bar = host.Add(VORN_PERCENTBAR_CLASS, "", VPBS_SUNKEN | VPBS_PERCENT, {140, 14, 340, 40});
    btnSetPicture(button, 20);
    host.OnCommand(button, VBTN_CLICKED, [&] {
        ++clicks;
        pbSetProgress(bar, pbGetProgress(bar) + 150);
    });
    pbSetLimit(bar, 200);
    Click(button, 10, 10);
    Expect("progress after a click", pbGetProgress(bar), 150);
    Click(button, 10, 10);
    Expect("progress, at most the limit", pbGetProgress(bar), 200);
    Expect("limit of the percent bar", pbGetLimit(bar), 200);
    Expect("clicks of the button", clicks, 2);
    host.OnCommand(button, VBTN_CLICKED, nullptr);
    return button;
}

void UseDial(Host& host) {
    int steps = 0;
    HWND dial = host.Add(VORN_DIAL_CLASS, "", WS_TABSTOP, {580, 10, 660, 90});
    // Of the key "+": towards the maximum.
    host.OnScroll(dial, SB_LINEDOWN, [&] {
        ++steps;
        SetDialPos(dial, GetDialPos(dial) + 1, TRUE);
    });
    LONG minimum = -1;
    LONG maximum = -1;
    SetDialRange(dial, 0, 10, TRUE);
    SetDialPos(dial, 4, TRUE);
    SendMessageA(dial, WM_CHAR, '+', 1);
    GetDialRange(dial, &minimum, &maximum);
    Expect("minimum of the dial", minimum, 0);
    Expect("maximum of the dial", maximum, 10);
    Expect("steps of the dial", steps, 1);
    Expect("position of the dial", GetDialPos(dial), 5);
    DestroyWindow(dial);
}

void UseCalendar(Host& host) {
    int doubleClicks = 0;
    HWND calendar = host.Add(VORN_CALENDAR_CLASS, "", 0, {10, 100, 660, 500});
    host.OnCommand(calendar, VCALN_DBLCLK, [&] { ++doubleClicks; });
    VORNCALENDARDATE date = {};
    SendMessageA(calendar, VCALM_SETDATE, 2000, MAKELONG(2, 29));
    const LRESULT day = SendMessageA(calendar, VCALM_GETDATE, 0, reinterpret_cast<LPARAM>(&date));
    // A hundred years, 24 of them leap years, and 59 days after 1 January 1900, which is 693597.
    Expect("day number of 29 February 2000", static_cast<LONG>(day), 730180);
    Expect("month", date.month, 2);
    Expect("day", date.day, 29);
    Expect("year", date.year, 2000);
    Expect("weekday, a Tuesday", date.weekday, 2);
    Expect("leap year", date.leapYear, 1);
    SendMessageA(calendar, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(1, 1));
    Expect("double clicks on the calendar", doubleClicks, 1);
    DestroyWindow(calendar);
}

void UseComboBox(Host& host, HWND button) {
    int focuses = 0;
    HWND combo =
        host.Add(VORN_COMBOBOX_CLASS, "", WS_TABSTOP | CBS_DROPDOWNLIST, {350, 14, 530, 140});
    host.OnCommand(combo, CBN_SETFOCUS, [&] { ++focuses; });
    for (const char* fruit : {"Apple", "Pear"}) {
        SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(fruit));
    }
    SendMessageA(combo, CB_SETCURSEL, 1, 0);
    std::array<char, 20> text = {};
    SendMessageA(combo, CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(text.data()));
    Expect("text of the combo box is Pear", std::string(text.data()) == "Pear", TRUE);
    SetFocus(button);
    SetFocus(combo);
    Expect("focuses of the combo box", focuses, 1);
    Expect("the focus came from the button",
           SendMessageA(combo, VCBM_GETPREVFOCUS, 0, 0) ==
               LOWORD(reinterpret_cast<DWORD_PTR>(button)),
           TRUE);
    DestroyWindow(combo);
}

void UseFontSelector(Host& host) {
    HWND selector = host.Add(VORN_FONTSELECT_CLASS, "", WS_TABSTOP, {10, 60, 340, 90});
    std::array<char, LF_FACESIZE> family = {};
    Expect("index of 24 points", fsSetFontPointSize(selector, 24), 10);
    Expect("points", fsGetFontPointSize(selector), 24);
    fsGetFontFamily(selector, family.data(), static_cast<int>(family.size()));
    Expect("the font has a family", family[0] > ' ', TRUE);
}

void UsePad(Host& host) {
    int ups = 0;
    HWND pad = host.Add(VORN_UDLR_CLASS, "", 0, {540, 10, 569, 39});
    host.OnCommand(pad, VUDN_UP, [&] { ++ups; });
    Click(pad, 14, 4);
    Expect("steps up of the spin pad", ups, 1);
    host.OnCommand(pad, VUDN_UP, nullptr);
}

} // namespace

int main() {
    // Without it the library would not be loaded, and its classes not be known.
    Expect("the library has a version", GetLongVersion() != 0, TRUE);
    Host host;
    host.Show();
    HWND button = UseButtonAndBar(host);
    UseDial(host);
    UseCalendar(host);
    UseComboBox(host, button);
    UseFontSelector(host);
    UsePad(host);
    std::printf("%s\n", failures == 0 ? "All is as expected." : "Not all is as expected.");
    return failures == 0 ? 0 : 1;
}
