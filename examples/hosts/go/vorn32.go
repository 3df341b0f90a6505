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
	VORN_NUMEDIT_CLASS    = "VORNNumEdit32"
	VORN_DATEEDIT_CLASS   = "VORNDateEdit32"
	VORN_TIMEEDIT_CLASS   = "VORNTimeEdit32"
	VORN_HIERLIST_CLASS   = "VORNHierList32"

	VBTS_PICTURE  = 0x0004
	VPBS_SUNKEN   = 0x01
	VPBS_PERCENT  = 0x20
	VNMS_SPIN     = 0x0004
	VNMS_SUNKEN   = 0x1000
	VDTS_CALENDAR = 0x0004
	VDTS_SUNKEN   = 0x1000
	VTMS_SECONDS  = 0x0040
	VTMS_SUNKEN   = 0x2000

	VBTN_CLICKED = 0
	VCALN_DBLCLK = 0x0101
	VUDN_UP      = 100

	VCALM_SETDATE       = WM_USER + 200
	VCALM_GETDATE       = WM_USER + 201
	VCBM_GETPREVFOCUS   = WM_USER + 0
	VDTM_GETDATESTRING  = WM_USER + 153
	VTMM_GETTIMESTRING  = WM_USER + 153
	OLBM_INSERTSTRINGEX = WM_USER + 343

	NM_FLOATING_GROUPED = 6

	DT_DAY   = 1
	DT_MONTH = 2
	DT_YEAR  = 3

	OLB_NOITEM = ^HOLBITEM(0)
)

// An item of an outline list.
type HOLBITEM uintptr

type VORNCALENDARDATE struct {
	month    WORD
	day      WORD
	year     WORD
	weekday  WORD
	leapYear WORD
}

// For amd64 Go adds four bytes, of which the library knows nothing: it reads and writes the fields.
type NmEditParams struct {
	formatKind    DWORD
	rangeCheck    DWORD
	decimalDigits DWORD
	reserved      DWORD
	minValue      float64
	maxValue      float64
	useRegional   DWORD
	thousandChar  WORD
	decimalChar   WORD
	leadingZero   DWORD
}

type DtDate struct {
	month WORD
	day   WORD
	year  WORD
}

type DtEditParams struct {
	size             DWORD
	setDate          DWORD
	year             WORD
	month            WORD
	day              WORD
	reserved1        WORD
	keepLayout       DWORD
	separator        WORD
	reserved2        WORD
	monthLeadingZero DWORD
	dayLeadingZero   DWORD
	fourDigitYear    DWORD
	kinds            [3]DWORD
}

type TmTime struct {
	hour   WORD
	minute WORD
	second WORD
}

// Go adds two bytes, of which the library knows nothing either.
type TmEditParams struct {
	setTime        DWORD
	time           TmTime
	reserved1      WORD
	keepFormat     DWORD
	separator      WORD
	reserved2      WORD
	leadingZero    DWORD
	twentyFourHour DWORD
	showSeconds    DWORD
	amText         [9]byte
	pmText         [9]byte
}

type OLBINSERTION struct {
	parent   HOLBITEM
	position WORD
	text     LPCSTR
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

func nmSetEditParams(window HWND, params *NmEditParams) LRESULT {
	result, _, _ := vorn32.NewProc("nmSetEditParams").Call(uintptr(window), uintptr(unsafe.Pointer(params)))
	return LRESULT(result)
}

func nmGetEditParams(window HWND, params *NmEditParams) {
	vorn32.NewProc("nmGetEditParams").Call(uintptr(window), uintptr(unsafe.Pointer(params)))
}

func nmSetDouble(window HWND, number *float64) {
	vorn32.NewProc("nmSetDouble").Call(uintptr(window), uintptr(unsafe.Pointer(number)))
}

func nmGetDouble(window HWND, number *float64) {
	vorn32.NewProc("nmGetDouble").Call(uintptr(window), uintptr(unsafe.Pointer(number)))
}

func nmSetInteger(window HWND, number LONG) {
	vorn32.NewProc("nmSetInteger").Call(uintptr(window), uintptr(number))
}

func nmGetInteger(window HWND) LONG {
	result, _, _ := vorn32.NewProc("nmGetInteger").Call(uintptr(window))
	return LONG(result)
}

func nmGetLastGoodNumber(window HWND, buffer *byte) BOOL {
	result, _, _ := vorn32.NewProc("nmGetLastGoodNumber").Call(uintptr(window), uintptr(unsafe.Pointer(buffer)))
	return BOOL(result)
}

func dtSetDate(window HWND, date *DtDate) BOOL {
	result, _, _ := vorn32.NewProc("dtSetDate").Call(uintptr(window), uintptr(unsafe.Pointer(date)))
	return BOOL(result)
}

func dtGetDate(window HWND, date *DtDate) LONG {
	result, _, _ := vorn32.NewProc("dtGetDate").Call(uintptr(window), uintptr(unsafe.Pointer(date)))
	return LONG(result)
}

func dtGetDay(window HWND) int32 {
	result, _, _ := vorn32.NewProc("dtGetDay").Call(uintptr(window))
	return int32(result)
}

func dtSetEditParams(window HWND, params *DtEditParams) {
	vorn32.NewProc("dtSetEditParams").Call(uintptr(window), uintptr(unsafe.Pointer(params)))
}

func dtGetEditParams(window HWND, params *DtEditParams) {
	vorn32.NewProc("dtGetEditParams").Call(uintptr(window), uintptr(unsafe.Pointer(params)))
}

func tmSetTime(window HWND, time *TmTime) BOOL {
	result, _, _ := vorn32.NewProc("tmSetTime").Call(uintptr(window), uintptr(unsafe.Pointer(time)))
	return BOOL(result)
}

func tmGetTime(window HWND, time *TmTime) BOOL {
	result, _, _ := vorn32.NewProc("tmGetTime").Call(uintptr(window), uintptr(unsafe.Pointer(time)))
	return BOOL(result)
}

func tmGetHour(window HWND) UINT {
	result, _, _ := vorn32.NewProc("tmGetHour").Call(uintptr(window))
	return UINT(result)
}

func tmGetMinute(window HWND) UINT {
	result, _, _ := vorn32.NewProc("tmGetMinute").Call(uintptr(window))
	return UINT(result)
}

func tmGetSecond(window HWND) UINT {
	result, _, _ := vorn32.NewProc("tmGetSecond").Call(uintptr(window))
	return UINT(result)
}

func tmSetEditParams(window HWND, params *TmEditParams) BOOL {
	result, _, _ := vorn32.NewProc("tmSetEditParams").Call(uintptr(window), uintptr(unsafe.Pointer(params)))
	return BOOL(result)
}

func tmGetEditParams(window HWND, params *TmEditParams) BOOL {
	result, _, _ := vorn32.NewProc("tmGetEditParams").Call(uintptr(window), uintptr(unsafe.Pointer(params)))
	return BOOL(result)
}

func olbAddChildStringEx(window HWND, parent HOLBITEM, text LPCSTR) HOLBITEM {
	result, _, _ := vorn32.NewProc("olbAddChildStringEx").Call(uintptr(window), uintptr(parent), uintptr(unsafe.Pointer(text)))
	return HOLBITEM(result)
}

func olbOpenItem(window HWND, row LONG) {
	vorn32.NewProc("olbOpenItem").Call(uintptr(window), uintptr(row))
}

func olbCloseItem(window HWND, row LONG) {
	vorn32.NewProc("olbCloseItem").Call(uintptr(window), uintptr(row))
}

func olbGetCount(window HWND) LONG {
	result, _, _ := vorn32.NewProc("olbGetCount").Call(uintptr(window))
	return LONG(result)
}

func olbGetVisibleCount(window HWND) LONG {
	result, _, _ := vorn32.NewProc("olbGetVisibleCount").Call(uintptr(window))
	return LONG(result)
}

func olbQueryParentEx(window HWND, item HOLBITEM) HOLBITEM {
	result, _, _ := vorn32.NewProc("olbQueryParentEx").Call(uintptr(window), uintptr(item))
	return HOLBITEM(result)
}

func olbGetChildHandleEx(parent HOLBITEM, child LONG) HOLBITEM {
	result, _, _ := vorn32.NewProc("olbGetChildHandleEx").Call(uintptr(parent), uintptr(child))
	return HOLBITEM(result)
}

func olbFindStringEx(window HWND, parent HOLBITEM, start LONG, text LPCSTR, exact BOOL) HOLBITEM {
	result, _, _ := vorn32.NewProc("olbFindStringEx").Call(uintptr(window), uintptr(parent), uintptr(start), uintptr(unsafe.Pointer(text)), uintptr(exact))
	return HOLBITEM(result)
}

func olbHandleToIndex(item HOLBITEM) LONG {
	result, _, _ := vorn32.NewProc("olbHandleToIndex").Call(uintptr(item))
	return LONG(result)
}

func olbIndexToHandle(window HWND, row LONG) HOLBITEM {
	result, _, _ := vorn32.NewProc("olbIndexToHandle").Call(uintptr(window), uintptr(row))
	return HOLBITEM(result)
}

func olbGetTextEx(window HWND, handle HOLBITEM, buffer LPSTR) LONG {
	result, _, _ := vorn32.NewProc("olbGetTextEx").Call(uintptr(window), uintptr(handle), uintptr(unsafe.Pointer(buffer)))
	return LONG(result)
}

func olbSetItemDataEx(window HWND, handle HOLBITEM, data LONG_PTR) LONG {
	result, _, _ := vorn32.NewProc("olbSetItemDataEx").Call(uintptr(window), uintptr(handle), uintptr(data))
	return LONG(result)
}

func olbGetItemDataEx(window HWND, handle HOLBITEM) LONG_PTR {
	result, _, _ := vorn32.NewProc("olbGetItemDataEx").Call(uintptr(window), uintptr(handle))
	return LONG_PTR(result)
}

func olbGetCurSelEx(window HWND) HOLBITEM {
	result, _, _ := vorn32.NewProc("olbGetCurSelEx").Call(uintptr(window))
	return HOLBITEM(result)
}

func olbGetItemRect(window HWND, row LONG, rect *RECT) LONG {
	result, _, _ := vorn32.NewProc("olbGetItemRect").Call(uintptr(window), uintptr(row), uintptr(unsafe.Pointer(rect)))
	return LONG(result)
}
