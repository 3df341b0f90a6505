// A window with all controls of VORN32, by nothing but system calls. It does to each control what a user
// or a program would do, prints what it is told and reads back, and ends with 0 when that is as expected.
//
// Built anywhere, without a C compiler, and run with VORN32.dll of the same architecture beside it:
//
//	GOOS=windows GOARCH=386 go build      (bin/VORN32.dll)
//	GOOS=windows GOARCH=amd64 go build    (bin64/VORN32.dll)
package main

import (
	"fmt"
	"os"
	"runtime"
	"syscall"
	"unsafe"
)

// Who told, and what.
type notification struct {
	control HWND
	code    WORD
}

var (
	failures int
	told     = map[notification]int{} // how often
	steps    int                      // of the dial, towards the maximum
)

func init() {
	// A window belongs to the thread that created it.
	runtime.LockOSThread()
}

func expect[T comparable](what string, actual, expected T) {
	note := ""
	if actual != expected {
		note = fmt.Sprintf(", not %v as expected", expected)
		failures++
	}
	fmt.Printf("%s: %v%s\n", what, actual, note)
}

func expectTrue(what string, holds bool) {
	expect(what, holds, true)
}

func windowProc(window HWND, message uint32, wParam uintptr, lParam uintptr) uintptr {
	switch message {
	case WM_COMMAND:
		told[notification{HWND(lParam), hiWord(wParam)}]++
		return 0
	case WM_VSCROLL:
		if loWord(wParam) == SB_LINEDOWN { // of the key "+": towards the maximum
			steps++
			dial := HWND(lParam)
			SetDialPos(dial, GetDialPos(dial)+1, 1)
		}
		return 0
	}
	result, _, _ := procDefWindowProc.Call(uintptr(window), uintptr(message), wParam, lParam)
	return result
}

func createHost() HWND {
	class := wndClass{
		procedure:  syscall.NewCallback(windowProc),
		background: COLOR_3DFACE + 1,
		className:  text("GoHost"),
	}
	registerClass(&class)
	return createWindow("GoHost", "Controls in Go", WS_OVERLAPPEDWINDOW, 20, 20, 920, 560, 0, 0)
}

func add(host HWND, class string, style uint32, x, y, width, height, id int) HWND {
	return createWindow(class, "Go", WS_CHILD|WS_VISIBLE|style, x, y, width, height, host, id)
}

func click(window HWND, x, y int) {
	sendMessage(window, WM_LBUTTONDOWN, MK_LBUTTON, makeLParam(x, y))
	sendMessage(window, WM_LBUTTONUP, 0, makeLParam(x, y))
}

func useButton(host HWND) HWND {
	button := add(host, VORN_BUTTON_CLASS, WS_TABSTOP|VBTS_PICTURE, 10, 10, 120, 34, 101)
	btnSetPicture(button, 12)
	click(button, 10, 10)
	expect("clicks of the button", told[notification{button, VBTN_CLICKED}], 1)
	return button
}

func useBar(host HWND) {
	bar := add(host, VORN_PERCENTBAR_CLASS, VPBS_SUNKEN|VPBS_PERCENT, 140, 14, 200, 26, 102)
	pbSetLimit(bar, 200)
	pbSetProgress(bar, 250)
	expect("limit of the percent bar", int(pbGetLimit(bar)), 200)
	expect("progress, at most the limit", int(pbGetProgress(bar)), 200)
	pbSetProgress(bar, -5)
	expect("progress below 0", int(pbGetProgress(bar)), -5)
}

func useDial(host HWND) {
	dial := add(host, VORN_DIAL_CLASS, WS_TABSTOP, 580, 10, 80, 80, 103)
	var minimum, maximum LONG
	SetDialRange(dial, -3, 10, 1)
	SetDialPos(dial, 4, 1)
	sendMessage(dial, WM_CHAR, '+', 1)
	GetDialRange(dial, &minimum, &maximum)
	expect("minimum of the dial", int(minimum), -3)
	expect("maximum of the dial", int(maximum), 10)
	expect("steps of the dial", steps, 1)
	expect("position of the dial", int(GetDialPos(dial)), 5)
}

func useCalendar(host HWND) {
	calendar := add(host, VORN_CALENDAR_CLASS, 0, 10, 100, 650, 400, 104)
	var date VORNCALENDARDATE
	sendMessage(calendar, VCALM_SETDATE, 2000, makeLParam(2, 29))
	day := sendPointer(calendar, VCALM_GETDATE, 0, unsafe.Pointer(&date))
	// A hundred years, 24 of them leap years, and 59 days after 1 January 1900, which is 693597.
	expect("day number of 29 February 2000", int(day), 730180)
	expect("month", int(date.month), 2)
	expect("day", int(date.day), 29)
	expect("year", int(date.year), 2000)
	expect("weekday, a Tuesday", int(date.weekday), 2)
	expect("leap year", int(date.leapYear), 1)
	sendMessage(calendar, WM_LBUTTONDBLCLK, MK_LBUTTON, makeLParam(1, 1))
	expect("double clicks on the calendar", told[notification{calendar, VCALN_DBLCLK}], 1)
}

func useComboBox(host HWND, button HWND) {
	combo := add(host, VORN_COMBOBOX_CLASS, WS_TABSTOP|CBS_DROPDOWNLIST, 350, 14, 180, 126, 105)
	var buffer [20]byte
	sendPointer(combo, CB_ADDSTRING, 0, unsafe.Pointer(text("Apple")))
	sendPointer(combo, CB_ADDSTRING, 0, unsafe.Pointer(text("Pear")))
	sendMessage(combo, CB_SETCURSEL, 1, 0)
	sendPointer(combo, CB_GETLBTEXT, 1, unsafe.Pointer(&buffer))
	expect("text of the combo box", textIn(buffer[:]), "Pear")
	procSetFocus.Call(uintptr(button))
	procSetFocus.Call(uintptr(combo))
	expect("focuses of the combo box", told[notification{combo, CBN_SETFOCUS}], 1)
	expectTrue("the focus came from the button",
		sendMessage(combo, VCBM_GETPREVFOCUS, 0, 0) == uintptr(loWord(uintptr(button))))
}

func useFontSelector(host HWND) {
	selector := add(host, VORN_FONTSELECT_CLASS, WS_TABSTOP, 10, 60, 330, 30, 106)
	var family [LF_FACESIZE]byte
	expect("index of 24 points", int(fsSetFontPointSize(selector, 24)), 10)
	expect("points", int(fsGetFontPointSize(selector)), 24)
	fsGetFontFamily(selector, &family[0], LF_FACESIZE)
	expectTrue("the font has a family", family[0] > ' ')
}

func usePad(host HWND) {
	pad := add(host, VORN_UDLR_CLASS, 0, 540, 10, 29, 29, 107)
	click(pad, 14, 4)
	expect("steps up of the spin pad", told[notification{pad, VUDN_UP}], 1)
}

// Functions notify of nothing, a text that is set does.
func useNumericEdit(host HWND) {
	edit := add(host, VORN_NUMEDIT_CLASS, WS_TABSTOP|VNMS_SUNKEN|VNMS_SPIN, 350, 60, 100, 26, 108)
	params := NmEditParams{formatKind: NM_FLOATING_GROUPED, rangeCheck: 1, decimalDigits: 2,
		minValue: -1000.5, maxValue: 5000.25, thousandChar: '\'', decimalChar: ',', leadingZero: 1}
	var kept NmEditParams
	nmSetEditParams(edit, &params)
	nmGetEditParams(edit, &kept)
	expect("format and range", kept, params)

	var buffer [64]byte
	number := 1234.5
	nmSetDouble(edit, &number)
	number = 0
	nmGetDouble(edit, &number)
	expect("number", number, 1234.5)
	nmGetLastGoodNumber(edit, &buffer[0])
	expect("number as text", textIn(buffer[:]), "1234,50")
	nmSetInteger(edit, -321)
	expect("integer", nmGetInteger(edit), -321)
	number = 100000
	nmSetDouble(edit, &number)
	nmGetDouble(edit, &number)
	expect("number, at most the maximum", number, 5000.25)
	expect("changes by functions", told[notification{edit, EN_CHANGE}], 0)
	sendPointer(edit, WM_SETTEXT, 0, unsafe.Pointer(text("7.25")))
	nmGetDouble(edit, &number)
	expect("number of the text", number, 7.25)
	expect("changes of the number", told[notification{edit, EN_CHANGE}], 1)
}

func useDateEdit(host HWND) {
	edit := add(host, VORN_DATEEDIT_CLASS, WS_TABSTOP|VDTS_SUNKEN|VDTS_CALENDAR, 460, 60, 110, 26, 109)
	leapDay := DtDate{month: 2, day: 29, year: 2000}
	var date DtDate
	dtSetDate(edit, &leapDay)
	// A hundred years, 24 of them leap years, and 59 days.
	expect("days from 1 January 1900", dtGetDate(edit, &date), 36583)
	expect("date", date, leapDay)

	var buffer [32]byte
	params := DtEditParams{setDate: 1, year: 2007, month: 3, day: 5, separator: '.',
		monthLeadingZero: 1, dayLeadingZero: 1, fourDigitYear: 1,
		kinds: [3]DWORD{DT_DAY, DT_MONTH, DT_YEAR}}
	params.size = DWORD(unsafe.Sizeof(params))
	dtSetEditParams(edit, &params)
	sendPointer(edit, VDTM_GETDATESTRING, 0, unsafe.Pointer(&buffer))
	expect("date as text", textIn(buffer[:]), "05.03.2007")
	kept := DtEditParams{size: params.size}
	dtGetEditParams(edit, &kept)
	// Changes the date alone when it is handed back: these are not filled.
	params.keepLayout = 1
	params.dayLeadingZero = 0
	params.fourDigitYear = 0
	expect("date and layout", kept, params)

	expect("changes by functions", told[notification{edit, EN_CHANGE}], 0)
	procSetFocus.Call(uintptr(edit))
	sendMessage(edit, WM_KEYDOWN, VK_UP, 0) // steps what stands first
	expect("day after the key", dtGetDay(edit), 6)
	expect("changes of the date", told[notification{edit, EN_CHANGE}], 1)
}

func useTimeEdit(host HWND) {
	edit := add(host, VORN_TIMEEDIT_CLASS, WS_TABSTOP|VTMS_SUNKEN|VTMS_SECONDS, 680, 14, 150, 26, 110)
	var buffer [64]byte
	params := TmEditParams{setTime: 1, time: TmTime{hour: 23, minute: 59, second: 58},
		separator: '.', leadingZero: 1, showSeconds: 1}
	copy(params.amText[:], "morning")
	copy(params.pmText[:], "evening")
	tmSetEditParams(edit, &params)
	sendPointer(edit, VTMM_GETTIMESTRING, 0, unsafe.Pointer(&buffer))
	expect("time as text", textIn(buffer[:]), "11.59.58 evening")
	var kept TmEditParams
	tmGetEditParams(edit, &kept)
	expect("time and format", kept, params)

	afternoon := TmTime{hour: 14, minute: 5, second: 9}
	var time TmTime
	tmSetTime(edit, &afternoon)
	expect("hour", tmGetHour(edit), 14)
	expect("minute", tmGetMinute(edit), 5)
	expect("second", tmGetSecond(edit), 9)
	tmGetTime(edit, &time)
	expect("time", time, afternoon)
	expect("changes by functions", told[notification{edit, EN_CHANGE}], 0)
	procSetFocus.Call(uintptr(edit))
	sendMessage(edit, WM_KEYDOWN, VK_UP, 0) // steps the hour
	expect("hour after the key", tmGetHour(edit), 15)
	expect("changes of the time", told[notification{edit, EN_CHANGE}], 1)
}

// One item at the top, and two below it.
func useOutlineList(host HWND) {
	list := add(host, VORN_HIERLIST_CLASS, WS_TABSTOP|WS_VSCROLL|LBS_NOTIFY, 680, 100, 200, 400, 111)
	fruit := olbAddChildStringEx(list, 0, text("Fruit"))
	pear := olbAddChildStringEx(list, fruit, text("Pear"))
	insertion := OLBINSERTION{parent: fruit, position: 0, text: text("Apple")}
	apple := HOLBITEM(sendPointer(list, OLBM_INSERTSTRINGEX, 0, unsafe.Pointer(&insertion)))
	expect("parent of the apple", olbQueryParentEx(list, apple), fruit)
	expect("parent of the fruit", olbQueryParentEx(list, fruit), 0)
	olbCloseItem(list, olbHandleToIndex(fruit)) // only then it knows its children by number
	expect("what stands behind the apple", olbGetChildHandleEx(fruit, 1), pear)
	expect("there are no plums", olbFindStringEx(list, fruit, -1, text("Plum"), 1), OLB_NOITEM)
	var buffer [20]byte
	expect("length of the text", olbGetTextEx(list, apple, &buffer[0]), 5)
	expect("text of the item", textIn(buffer[:]), "Apple")
	const data = LONG_PTR(^uintptr(0) / 3) // as wide as a pointer
	olbSetItemDataEx(list, pear, data)
	expect("data of the item", olbGetItemDataEx(list, pear), data)

	expect("items", olbGetCount(list), 3)
	expect("rows of the closed list", olbGetVisibleCount(list), 1)
	olbOpenItem(list, olbHandleToIndex(fruit))
	expect("rows of the open list", olbGetVisibleCount(list), 3)
	expect("row of the pear", olbHandleToIndex(pear), 2)
	expect("the item of that row", olbIndexToHandle(list, 2), pear)
	expect("selections by functions", told[notification{list, LBN_SELCHANGE}], 0)
	var place RECT
	expect("the row is in view", olbGetItemRect(list, 2, &place), 1)
	click(list, int(place.right)-1, int(place.top+place.bottom)/2)
	expect("what the click selected", olbGetCurSelEx(list), pear)
	expect("selections", told[notification{list, LBN_SELCHANGE}], 1)
}

func main() {
	// Without it the library would not be loaded, and its classes not be known.
	expectTrue("the library has a version", GetLongVersion() != 0)
	host := createHost()
	procShowWindow.Call(uintptr(host), SW_SHOW)
	button := useButton(host)
	useBar(host)
	useDial(host)
	useCalendar(host)
	useComboBox(host, button)
	useFontSelector(host)
	usePad(host)
	useNumericEdit(host)
	useDateEdit(host)
	useTimeEdit(host)
	useOutlineList(host)
	procDestroyWindow.Call(uintptr(host))
	if failures > 0 {
		fmt.Println("Not all is as expected.")
		os.Exit(1)
	}
	fmt.Println("All is as expected.")
}
