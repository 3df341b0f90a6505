#include "tests/windows/abuse/subjects.h"

#include "tests/windows/abuse/subject_operations.h"
#include "tests/windows/support/input.h"
#include "tests/windows/support/outline_messages.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vorn32.h>

namespace vorn::test {
namespace {

// What an edit's messages of the system's numbers carry.
const std::vector<UINT> kEditAddresses = {EM_GETSEL,     EM_GETRECT, EM_GETLINE,
                                          EM_REPLACESEL, EM_SETRECT, EM_GETTHUMB};

template <class Element>
std::vector<Element> With(std::vector<Element> first, const std::vector<Element>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

std::vector<Told> Commands(const std::vector<int>& codes) {
    std::vector<Told> told;
    told.reserve(codes.size());
    for (const int code : codes) {
        told.push_back({WM_COMMAND, code});
    }
    return told;
}

// Those of any edit, whose own messages have the same numbers, with codes and a message besides.
std::vector<Told> EditTells(const std::vector<int>& codes, UINT message = VDTM_CHANGED) {
    const std::vector<Told> usual = Commands({EN_SETFOCUS, EN_KILLFOCUS, EN_UPDATE, EN_CHANGE});
    return With(With(usual, Commands(codes)),
                {{VDTM_OKTOCHANGE, -1}, {VDTM_CHANGED, -1}, {message, -1}});
}

BOOL CALLBACK Collect(HWND window, LPARAM parts) {
    reinterpret_cast<std::vector<HWND>*>(parts)->push_back(window);
    return TRUE;
}

void Nothing(HWND) {}

void Press(HWND window, POINT point) {
    SendMouse(window, WM_LBUTTONDOWN, static_cast<int>(point.x), static_cast<int>(point.y));
}

Subject ButtonSubject() {
    const POINT press = {50, 15};
    return {
        VORN_BUTTON_CLASS,
        "btn",
        VORNButtonWinFn,
        {VBTS_NOTIFY | VBTS_AUTOREPEAT | VBTS_PICTURE | VBTS_DEFAULT,
         VBTS_NOTIFY | VBTS_TOGGLE | VBTS_SWATCH, VBTS_PICTUREONLY},
        {100, 30},
        press,
        {},
        Nothing,
        [press](HWND window) { Press(window, press); },
        ButtonOperations(),
        Commands({VBTN_CLICKED, VBTN_DOWN, VBTN_UP, VBTN_DISABLED, VBTN_SETFOCUS, VBTN_KILLFOCUS})};
}

Subject NumEditSubject() {
    return {VORN_NUMEDIT_CLASS,
            "nm",
            VORNNumEditWinFn,
            {VNMS_SPIN | VNMS_SUNKEN, VNMS_SPIN | VNMS_DIGITS | VNMS_LINE, VNMS_CELLS},
            {90, 24},
            {10, 10},
            With(kEditAddresses, {VNMM_GETEDITPARAMS, VNMM_SETEDITPARAMS, VNMM_GETLASTGOODNUMBER,
                                  VNMM_GETFLOAT, VNMM_GETDOUBLE, VNMM_GETLONGDOUBLE, VNMM_SETFLOAT,
                                  VNMM_SETDOUBLE, VNMM_SETLONGDOUBLE}),
            [](HWND window) { nmSetInteger(window, 1234); },
            [](HWND window) {
                Press(window, {84, 6});
            },
            NumEditOperations(),
            EditTells({VNMN_TEXTCUT}, WM_CTLCOLOREDIT)};
}

Subject DateEditSubject() {
    return {VORN_DATEEDIT_CLASS,
            "dt",
            VORNDateEditWinFn,
            {VDTS_CALENDAR | VDTS_SUNKEN, VDTS_DIGITS | VDTS_RAISED, VDTS_CELLS},
            {120, 24},
            {10, 10},
            With(kEditAddresses, {VDTM_GETEDITPARAMS, VDTM_SETEDITPARAMS, VDTM_GETDATE,
                                  VDTM_SETDATE, VDTM_GETDATESTRING, VDTM_SETDATESTRING,
                                  VDTM_SETMONTHLITERALS, VDTM_SETDAYLITERALS}),
            [](HWND window) { dtSetDateString(window, "3/5/2007"); },
            nullptr,
            DateEditOperations(),
            EditTells({EN_MAXTEXT, EN_HSCROLL})};
}

Subject TimeEditSubject() {
    return {VORN_TIMEEDIT_CLASS,
            "tm",
            VORNTimeEditWinFn,
            {VTMS_SECONDS | VTMS_RAISED, VTMS_DIGITS, VTMS_CELLS | VTMS_LINE},
            {100, 24},
            {10, 10},
            With(kEditAddresses, {VTMM_GETEDITPARAMS, VTMM_SETEDITPARAMS, VTMM_GETTIME,
                                  VTMM_SETTIME, VTMM_GETTIMESTRING, VTMM_SETTIMESTRING}),
            [](HWND window) { tmSetTimeString(window, "2:05:09 PM"); },
            [](HWND window) { tmStartClock(window); },
            TimeEditOperations(),
            EditTells({EN_MAXTEXT, EN_HSCROLL})};
}

Subject FontSelectSubject() {
    return {VORN_FONTSELECT_CLASS,
            "fs",
            VORNFontSelectWinFn,
            {WS_TABSTOP, WS_DISABLED},
            {240, 30},
            {10, 10},
            {VFSM_SETFONTFAMILY, VFSM_GETFONTFAMILY},
            Nothing,
            nullptr,
            FontSelectOperations(),
            With(Commands({VFSN_FONTCHANGE, VFSN_SIZECHANGE}), {{VORN_WM_IS_HOST_APP, -1}})};
}

Subject CalendarSubject() {
    return {VORN_CALENDAR_CLASS,
            "",
            VORNCalendarWinFn,
            {WS_TABSTOP, WS_BORDER},
            {602, 442},
            {20, 60},
            {VCALM_GETDATE},
            Nothing,
            nullptr,
            CalendarOperations(),
            Commands({VCALN_SELECT, VCALN_DBLCLK})};
}

Subject DialSubject() {
    return {VORN_DIAL_CLASS,
            "Dial",
            VORNDialWinFn,
            {WS_TABSTOP},
            {60, 60},
            {5, 55},
            {},
            [](HWND window) { SetDialPos(window, 50, TRUE); },
            [](HWND window) {
                Press(window, {5, 55});
            },
            DialOperations(),
            {{WM_VSCROLL, -1}}};
}

Subject UdlrSubject() {
    return {VORN_UDLR_CLASS,
            "",
            VORNUDLRWinFn,
            {WS_BORDER, 0},
            {31, 31},
            {15, 5},
            {},
            Nothing,
            [](HWND window) {
                Press(window, {15, 5});
            },
            UdlrOperations(),
            Commands({VUDN_UP, VUDN_RIGHT, VUDN_DOWN, VUDN_LEFT})};
}

Subject PercentBarSubject() {
    return {VORN_PERCENTBAR_CLASS,
            "pb",
            VORNPctBarWinFn,
            {VPBS_SUNKEN | VPBS_PERCENT | VPBS_SCALETEXT | VPBS_TICKMARKS, VPBS_LINE, 0},
            {120, 40},
            {10, 10},
            {},
            [](HWND window) { pbSetProgress(window, 40); },
            nullptr,
            PercentBarOperations(),
            {{WM_CTLCOLORDLG, -1}}};
}

Subject ListSubject() {
    const DWORD usual = LBS_NOTIFY | LBS_WANTKEYBOARDINPUT | WS_VSCROLL | WS_HSCROLL;
    return {VORN_HIERLIST_CLASS,
            "olb",
            VORNHierListWinFn,
            {usual | LBS_EXTENDEDSEL | LBS_OWNERDRAWVARIABLE | LBS_SORT,
             usual | OLBS_SUNKEN | LBS_HASSTRINGS, usual | LBS_MULTIPLESEL | LBS_OWNERDRAWFIXED,
             usual | LBS_MULTICOLUMN | LBS_EXTENDEDSEL | OLBS_RAISED},
            {120, 80},
            {60, 9},
            With(OutlineMessagesWithAddresses(), {OLBM_DIREX}), // which lists a whole drive
            FillList,
            [](HWND window) {
                Press(window, {60, 9});
                SendMouse(window, WM_MOUSEMOVE, 60, 300);
            },
            ListOperations(),
            With(Commands({LBN_SELCHANGE, LBN_DBLCLK, LBN_SETFOCUS, LBN_KILLFOCUS}),
                 {{WM_DRAWITEM, -1},
                  {WM_MEASUREITEM, -1},
                  {WM_COMPAREITEM, -1},
                  {WM_DELETEITEM, -1},
                  {WM_VKEYTOITEM, -1},
                  {WM_CHARTOITEM, -1},
                  {WM_CTLCOLORLISTBOX, -1}})};
}

// None is owner-drawn: the system's own list does not bear to lose its window as it asks for a
// height.
Subject ComboBoxSubject() {
    return {VORN_COMBOBOX_CLASS,
            "",
            VORNCBFunction,
            {CBS_DROPDOWN | WS_VSCROLL, CBS_SIMPLE, CBS_DROPDOWNLIST | CBS_SORT},
            {100, 120},
            {90, 8},
            {CB_ADDSTRING, CB_DIR, CB_FINDSTRING, CB_FINDSTRINGEXACT, CB_GETCOMBOBOXINFO,
             CB_GETDROPPEDCONTROLRECT, CB_GETEDITSEL, CB_GETLBTEXT, CB_INSERTSTRING,
             CB_SELECTSTRING, CB_INITSTORAGE, WM_MEASUREITEM},
            FillComboBox,
            nullptr,
            ComboBoxOperations(),
            Commands({CBN_DROPDOWN, CBN_CLOSEUP, CBN_SELCHANGE, CBN_SETFOCUS, CBN_KILLFOCUS})};
}

} // namespace

const std::vector<Subject>& Subjects() {
    static const std::vector<Subject> subjects = {
        ButtonSubject(),     NumEditSubject(),    DateEditSubject(), CalendarSubject(),
        TimeEditSubject(),   FontSelectSubject(), DialSubject(),     UdlrSubject(),
        PercentBarSubject(), ListSubject(),       ComboBoxSubject()};
    return subjects;
}

const Subject& SubjectOf(const char* className) {
    const auto found =
        std::find_if(Subjects().begin(), Subjects().end(), [className](const Subject& subject) {
            return std::string(subject.className) == className;
        });
    return *found;
}

std::vector<Operation> OperationsOf(const Subject& subject) {
    std::vector<Operation> operations = CommonOperations(subject.press);
    operations.insert(operations.end(), subject.operations.begin(), subject.operations.end());
    const std::vector<Operation> ends = Ends(subject.press);
    operations.insert(operations.end(), ends.begin(), ends.end());
    return operations;
}

std::vector<HWND> PartsOf(const Subject& subject, HWND control) {
    std::vector<HWND> parts = {control};
    if (subject.className != std::string(VORN_COMBOBOX_CLASS)) {
        EnumChildWindows(control, Collect, reinterpret_cast<LPARAM>(&parts));
    }
    return parts;
}

bool IsControls(UINT message) {
    const bool ofTheSystem = (message >= EM_GETSEL && message <= EM_GETIMESTATUS) ||
                             (message >= BM_GETCHECK && message <= BM_SETDONTCLICK) ||
                             (message >= CB_GETEDITSEL && message <= CB_MSGMAX) ||
                             (message >= LB_ADDSTRING && message <= LB_MSGMAX);
    return ofTheSystem || message >= WM_USER;
}

bool IsAsked(UINT message) {
    switch (message) {
    case WM_COMMAND:
    case WM_VSCROLL:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_COMPAREITEM:
    case WM_DELETEITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        return true;
    default:
        return (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) || message >= WM_USER;
    }
}

void ForEachSubject(const std::function<void(const Subject&)>& act) {
    for (const Subject& subject : Subjects()) {
        SCOPED_TRACE(subject.className);
        act(subject);
    }
}

// ---- The stage ----

Stage::~Stage() {
    Clear();
}

HostWindow& Stage::host() {
    if (host_ == nullptr || !IsWindow(host_->window())) {
        host_ = nullptr; // a window has gone before the next comes
        host_ = std::make_unique<HostWindow>();
    }
    if (!IsWindow(neighbour_)) {
        neighbour_ = host_->Create("EDIT", WS_TABSTOP, 10, 450, 80, 20, 1002);
    }
    return *host_;
}

HWND Stage::CreateEmpty(DWORD style) {
    Clear();
    return CreateHere(style);
}

HWND Stage::CreateHere(DWORD style) {
    control_ = host().Create(subject_.className, style, 5, 5, subject_.size.cx, subject_.size.cy);
#ifdef _WIN64
    // When a hook does its worst to a window that is not there yet, 64-bit Wine comes back from the
    // creation with other values in registers that calls preserve. So they are put back here.
    asm volatile(""
                 :
                 :
                 : "xmm6", "xmm7", "xmm8", "xmm9", "xmm10", "xmm11", "xmm12", "xmm13", "xmm14",
                   "xmm15");
#endif
    return control_;
}

HWND Stage::Create(DWORD style) {
    if (CreateEmpty(style) != nullptr) {
        subject_.fill(control_);
        UpdateWindow(control_);
        PumpMessages();
    }
    return control_;
}

void Stage::Clear() {
    if (host_ != nullptr) {
        host_->answer = nullptr;
    }
    if (IsWindow(control_)) {
        DestroyWindow(control_);
    }
    control_ = nullptr;
    ReleaseCapture();
    PumpMessages();
}

} // namespace vorn::test
