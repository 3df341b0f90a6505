// A window with all of the library's controls, with a function for each notification. It does to
// each control what a user or a program would do, prints what it is told and reads back, and ends
// with 0 when that is as expected.
#include <array>
#include <cstdio>
#include <cstring>
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

// What a line of the output ends with.
const char* Judge(bool asExpected) {
    failures += asExpected ? 0 : 1;
    return asExpected ? "" : ", which is not as expected";
}

void Expect(const char* what, LONG actual, LONG expected) {
    std::printf("%s: %ld%s\n", what, actual, Judge(actual == expected));
}

void ExpectNumber(const char* what, double actual, double expected) {
    std::printf("%s: %g%s\n", what, actual, Judge(actual == expected));
}

void ExpectText(const char* what, const std::string& actual, const std::string& expected) {
    std::printf("%s: %s%s\n", what, actual.c_str(), Judge(actual == expected));
}

template <typename Record>
void ExpectSame(const char* what, const Record& actual, const Record& expected) {
    const bool same = std::memcmp(&actual, &expected, sizeof(Record)) == 0;
    std::printf("%s: %d%s\n", what, same, Judge(same));
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
    ExpectText("text of the combo box", text.data(), "Pear");
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

NmEditParams UpTo5000() {
    NmEditParams params = {};
    params.formatKind = NM_FLOATING_GROUPED;
    params.rangeCheck = TRUE;
    params.decimalDigits = 2;
    params.minValue = -1000.5;
    params.maxValue = 5000.25;
    params.thousandChar = '\'';
    params.decimalChar = ',';
    params.leadingZero = TRUE;
    return params;
}

// Functions notify of nothing, a text that is set does.
void UseNumericEdit(Host& host) {
    int changes = 0;
    HWND edit =
        host.Add(VORN_NUMEDIT_CLASS, "0", WS_TABSTOP | VNMS_SUNKEN | VNMS_SPIN, {350, 60, 450, 86});
    host.OnCommand(edit, EN_CHANGE, [&] { ++changes; });
    const NmEditParams params = UpTo5000();
    NmEditParams kept = {};
    nmSetEditParams(edit, &params);
    nmGetEditParams(edit, &kept);
    ExpectSame("format and range are those set", kept, params);

    double number = 1234.5;
    nmSetDouble(edit, &number);
    number = 0;
    nmGetDouble(edit, &number);
    ExpectNumber("number", number, 1234.5);
    std::array<char, 64> text = {};
    nmGetLastGoodNumber(edit, text.data());
    ExpectText("number as text", text.data(), "1234,50");
    nmSetInteger(edit, -321);
    Expect("integer", nmGetInteger(edit), -321);
    number = 100000;
    nmSetDouble(edit, &number);
    nmGetDouble(edit, &number);
    ExpectNumber("number, at most the maximum", number, 5000.25);
    Expect("changes by functions", changes, 0);
    SendMessageA(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("7.25"));
    nmGetDouble(edit, &number);
    ExpectNumber("number of the text", number, 7.25);
    Expect("changes of the number", changes, 1);
    DestroyWindow(edit);
}

// 05.03.2007, in this layout.
DtEditParams DayMonthYear() {
    DtEditParams params = {};
    params.size = sizeof params;
    params.setDate = TRUE;
    params.year = 2007;
    params.month = 3;
    params.day = 5;
    params.separator = '.';
    params.monthLeadingZero = TRUE;
    params.dayLeadingZero = TRUE;
    params.fourDigitYear = TRUE;
    params.kinds[0] = DT_DAY;
    params.kinds[1] = DT_MONTH;
    params.kinds[2] = DT_YEAR;
    return params;
}

void UseDateEdit(Host& host) {
    int changes = 0;
    HWND edit = host.Add(VORN_DATEEDIT_CLASS, "", WS_TABSTOP | VDTS_SUNKEN | VDTS_CALENDAR,
                         {460, 60, 570, 86});
    host.OnCommand(edit, EN_CHANGE, [&] { ++changes; });
    const DtDate leapDay = {2, 29, 2000};
    DtDate date = {};
    dtSetDate(edit, &leapDay);
    // A hundred years, 24 of them leap years, and 59 days.
    Expect("days from 1 January 1900", dtGetDate(edit, &date), 36583);
    ExpectSame("the date is that set", date, leapDay);

    DtEditParams params = DayMonthYear();
    std::array<char, 32> text = {};
    dtSetEditParams(edit, &params);
    ExpectText("date as text", dtGetDateString(edit, text.data()), "05.03.2007");
    params = {};
    params.size = sizeof params;
    dtGetEditParams(edit, &params);
    Expect("year of the record", params.year, 2007);
    Expect("month of the record", params.month, 3);
    Expect("day of the record", params.day, 5);
    Expect("the layout is to be kept", static_cast<LONG>(params.keepLayout), TRUE);
    Expect("separator", params.separator, '.');
    Expect("what stands last", static_cast<LONG>(params.kinds[2]), DT_YEAR);

    Expect("changes by functions", changes, 0);
    SetFocus(edit);
    SendMessageA(edit, WM_KEYDOWN, VK_UP, 0); // steps what stands first
    Expect("day after the key", dtGetDay(edit), 6);
    Expect("changes of the date", changes, 1);
    DestroyWindow(edit);
}

// Two seconds to midnight, in a format of 12 hours.
TmEditParams LateInTheEvening() {
    TmEditParams params = {};
    params.setTime = TRUE;
    params.time = {23, 59, 58};
    params.separator = '.';
    params.leadingZero = TRUE;
    params.showSeconds = TRUE;
    std::strcpy(params.amText, "morning");
    std::strcpy(params.pmText, "evening");
    return params;
}

void UseTimeEdit(Host& host) {
    int changes = 0;
    HWND edit = host.Add(VORN_TIMEEDIT_CLASS, "", WS_TABSTOP | VTMS_SUNKEN | VTMS_SECONDS,
                         {350, 14, 500, 40});
    host.OnCommand(edit, EN_CHANGE, [&] { ++changes; });
    const TmEditParams params = LateInTheEvening();
    TmEditParams kept = {};
    std::array<char, 64> text = {};
    tmSetEditParams(edit, &params);
    ExpectText("time as text", tmGetTimeString(edit, text.data()), "11.59.58 evening");
    tmGetEditParams(edit, &kept);
    ExpectSame("time and format are those set", kept, params);

    const TmTime afternoon = {14, 5, 9};
    TmTime time = {};
    tmSetTime(edit, &afternoon);
    Expect("hour", static_cast<LONG>(tmGetHour(edit)), 14);
    Expect("minute", static_cast<LONG>(tmGetMinute(edit)), 5);
    Expect("second", static_cast<LONG>(tmGetSecond(edit)), 9);
    tmGetTime(edit, &time);
    ExpectSame("the time is that set", time, afternoon);
    Expect("changes by functions", changes, 0);
    SetFocus(edit);
    SendMessageA(edit, WM_KEYDOWN, VK_UP, 0); // steps the hour
    Expect("hour after the key", static_cast<LONG>(tmGetHour(edit)), 15);
    Expect("changes of the time", changes, 1);
    DestroyWindow(edit);
}

// One item at the top, and two below it.
void UseOutlineList(Host& host) {
    int selections = 0;
    HWND list = host.Add(VORN_HIERLIST_CLASS, "", WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY,
                         {10, 100, 340, 500});
    host.OnCommand(list, LBN_SELCHANGE, [&] { ++selections; });
    HOLBITEM fruit = olbAddChildStringEx(list, nullptr, "Fruit");
    HOLBITEM pear = olbAddChildStringEx(list, fruit, "Pear");
    const OLBINSERTION insertion = {fruit, 0, "Apple"};
    auto* apple = reinterpret_cast<HOLBITEM>(
        SendMessageA(list, OLBM_INSERTSTRINGEX, 0, reinterpret_cast<LPARAM>(&insertion)));
    Expect("apples are fruit", olbQueryParentEx(list, apple) == fruit, TRUE);
    Expect("fruit is at the top", olbQueryParentEx(list, fruit) == nullptr, TRUE);
    olbCloseItem(list, olbHandleToIndex(fruit)); // only then it knows its children by number
    Expect("pears stand behind apples", olbGetChildHandleEx(fruit, 1) == pear, TRUE);
    Expect("there are no plums", olbFindStringEx(list, fruit, -1, "Plum", TRUE) == OLB_NOITEM,
           TRUE);
    std::array<char, 20> text = {};
    Expect("length of the text", olbGetTextEx(list, apple, text.data()), 5);
    ExpectText("text of the item", text.data(), "Apple");
    // As wide as a pointer.
    olbSetItemDataEx(list, pear, reinterpret_cast<LONG_PTR>(&host));
    Expect("the item has its data",
           olbGetItemDataEx(list, pear) == reinterpret_cast<LONG_PTR>(&host), TRUE);

    Expect("items", olbGetCount(list), 3);
    Expect("rows of the closed list", olbGetVisibleCount(list), 1);
    olbOpenItem(list, olbHandleToIndex(fruit));
    Expect("rows of the open list", olbGetVisibleCount(list), 3);
    Expect("row of the pear", olbHandleToIndex(pear), 2);
    Expect("the item of that row", olbIndexToHandle(list, 2) == pear, TRUE);
    Expect("selections by functions", selections, 0);
    RECT place = {};
    Expect("the row is in view", olbGetItemRect(list, 2, &place), 1);
    Click(list, place.right - 1, (place.top + place.bottom) / 2);
    Expect("the click selected the pear", olbGetCurSelEx(list) == pear, TRUE);
    Expect("selections", selections, 1);
    DestroyWindow(list);
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
    UseNumericEdit(host);
    UseDateEdit(host);
    UseTimeEdit(host);
    UseOutlineList(host);
    std::printf("%s\n", failures == 0 ? "All is as expected." : "Not all is as expected.");
    return failures == 0 ? 0 : 1;
}
