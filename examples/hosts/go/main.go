// A window with the controls of VORN32, by nothing but system calls. It does to each control what a user
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

func expect(what string, actual, expected int) {
	note := ""
	if actual != expected {
		note = fmt.Sprintf(", not %d as expected", expected)
		failures++
	}
	fmt.Printf("%s: %d%s\n", what, actual, note)
}

func expectTrue(what string, holds bool) {
	actual := 0
	if holds {
		actual = 1
	}
	expect(what, actual, 1)
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
	return createWindow("GoHost", "Controls in Go", WS_OVERLAPPEDWINDOW, 20, 20, 700, 560, 0, 0)
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
	length := sendPointer(combo, CB_GETLBTEXT, 1, unsafe.Pointer(&buffer))
	expectTrue("text of the combo box is Pear", string(buffer[:length]) == "Pear")
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
	procDestroyWindow.Call(uintptr(host))
	if failures > 0 {
		fmt.Println("Not all is as expected.")
		os.Exit(1)
	}
	fmt.Println("All is as expected.")
}
