package main

// What this host uses of VORN32.dll, under the names of its headers.

import (
	"syscall"
	"unsafe"
)

var vorn32 = syscall.NewLazyDLL("VORN32.dll")

const (
	VORN_BUTTON_CLASS     = "VORNButton32"
	VORN_PERCENTBAR_CLASS = "VORNPercentBar32"
	VORN_DIAL_CLASS       = "VORNDial32"
	VORN_CALENDAR_CLASS   = "VORNCalendar32"
	VORN_COMBOBOX_CLASS   = "VORNComboBox32"
	VORN_FONTSELECT_CLASS = "VORNFontSelect32"
	VORN_UDLR_CLASS       = "VORNUDLR32"

	VBTS_PICTURE = 0x0004
	VPBS_SUNKEN  = 0x01
	VPBS_PERCENT = 0x20

	VBTN_CLICKED = 0
	VCALN_DBLCLK = 0x0101
	VUDN_UP      = 100

	VCALM_SETDATE     = WM_USER + 200
	VCALM_GETDATE     = WM_USER + 201
	VCBM_GETPREVFOCUS = WM_USER + 0
)

type VORNCALENDARDATE struct {
	month    WORD
	day      WORD
	year     WORD
	weekday  WORD
	leapYear WORD
}

func GetLongVersion() DWORD {
	result, _, _ := vorn32.NewProc("GetLongVersion").Call()
	return DWORD(result)
}

func btnSetPicture(window HWND, index UINT) BOOL {
	result, _, _ := vorn32.NewProc("btnSetPicture").Call(uintptr(window), uintptr(index))
	return BOOL(result)
}

func pbSetLimit(window HWND, limit LONG) BOOL {
	result, _, _ := vorn32.NewProc("pbSetLimit").Call(uintptr(window), uintptr(limit))
	return BOOL(result)
}

func pbGetLimit(window HWND) LONG {
	result, _, _ := vorn32.NewProc("pbGetLimit").Call(uintptr(window))
	return LONG(result)
}

func pbSetProgress(window HWND, progress LONG) BOOL {
	result, _, _ := vorn32.NewProc("pbSetProgress").Call(uintptr(window), uintptr(progress))
	return BOOL(result)
}

func pbGetProgress(window HWND) LONG {
	result, _, _ := vorn32.NewProc("pbGetProgress").Call(uintptr(window))
	return LONG(result)
}

func SetDialRange(window HWND, minimum LONG, maximum LONG, redraw BOOL) BOOL {
	result, _, _ := vorn32.NewProc("SetDialRange").Call(uintptr(window), uintptr(minimum), uintptr(maximum), uintptr(redraw))
	return BOOL(result)
}

func GetDialRange(window HWND, minimum *LONG, maximum *LONG) BOOL {
	result, _, _ := vorn32.NewProc("GetDialRange").Call(uintptr(window), uintptr(unsafe.Pointer(minimum)), uintptr(unsafe.Pointer(maximum)))
	return BOOL(result)
}

func SetDialPos(window HWND, position LONG, redraw BOOL) LONG {
	result, _, _ := vorn32.NewProc("SetDialPos").Call(uintptr(window), uintptr(position), uintptr(redraw))
	return LONG(result)
}

func GetDialPos(window HWND) LONG {
	result, _, _ := vorn32.NewProc("GetDialPos").Call(uintptr(window))
	return LONG(result)
}

func fsSetFontPointSize(window HWND, points LONG) LONG {
	result, _, _ := vorn32.NewProc("fsSetFontPointSize").Call(uintptr(window), uintptr(points))
	return LONG(result)
}

func fsGetFontPointSize(window HWND) LONG {
	result, _, _ := vorn32.NewProc("fsGetFontPointSize").Call(uintptr(window))
	return LONG(result)
}

func fsGetFontFamily(window HWND, buffer LPSTR, size int32) {
	vorn32.NewProc("fsGetFontFamily").Call(uintptr(window), uintptr(unsafe.Pointer(buffer)), uintptr(size))
}
