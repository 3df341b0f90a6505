package main

// What this host uses of Windows, under the names of its headers.

import (
	"bytes"
	"syscall"
	"unsafe"
)

type (
	HWND     uintptr
	BOOL     int32
	UINT     uint32
	LONG     int32
	WORD     uint16
	DWORD    uint32
	WPARAM   uintptr
	LPARAM   uintptr
	LRESULT  int
	LONG_PTR int
	LPSTR    *byte
	LPCSTR   *byte
)

type RECT struct {
	left   LONG
	top    LONG
	right  LONG
	bottom LONG
}

const (
	WM_SETTEXT       = 0x000C
	WM_KEYDOWN       = 0x0100
	WM_CHAR          = 0x0102
	WM_COMMAND       = 0x0111
	WM_VSCROLL       = 0x0115
	WM_LBUTTONDOWN   = 0x0201
	WM_LBUTTONUP     = 0x0202
	WM_LBUTTONDBLCLK = 0x0203
	WM_USER          = 0x0400
	CB_ADDSTRING     = 0x0143
	CB_GETLBTEXT     = 0x0148
	CB_SETCURSEL     = 0x014E

	WS_OVERLAPPEDWINDOW = 0x00CF0000
	WS_CHILD            = 0x40000000
	WS_VISIBLE          = 0x10000000
	WS_TABSTOP          = 0x00010000
	WS_VSCROLL          = 0x00200000
	CBS_DROPDOWNLIST    = 0x0003
	LBS_NOTIFY          = 0x0001

	CBN_SETFOCUS  = 3
	EN_CHANGE     = 0x0300
	LBN_SELCHANGE = 1
	SB_LINEDOWN   = 1
	MK_LBUTTON    = 1
	VK_UP         = 0x26
	SW_SHOW       = 5
	LF_FACESIZE   = 32
	COLOR_3DFACE  = 15
)

type wndClass struct {
	style       UINT
	procedure   uintptr
	classExtra  int32
	windowExtra int32
	instance    uintptr
	icon        uintptr
	cursor      uintptr
	background  uintptr
	menuName    LPSTR
	className   LPSTR
}

var (
	user32 = syscall.NewLazyDLL("user32.dll")

	procCreateWindowEx = user32.NewProc("CreateWindowExA")
	procDefWindowProc  = user32.NewProc("DefWindowProcA")
	procDestroyWindow  = user32.NewProc("DestroyWindow")
	procRegisterClass  = user32.NewProc("RegisterClassA")
	procSendMessage    = user32.NewProc("SendMessageA")
	procSetFocus       = user32.NewProc("SetFocus")
	procShowWindow     = user32.NewProc("ShowWindow")
)

// Windows wants its texts terminated by a zero.
func text(s string) *byte {
	pointer, err := syscall.BytePtrFromString(s)
	if err != nil {
		panic(err)
	}
	return pointer
}

// What stands in a buffer in front of the zero.
func textIn(buffer []byte) string {
	before, _, _ := bytes.Cut(buffer, []byte{0})
	return string(before)
}

func registerClass(class *wndClass) {
	procRegisterClass.Call(uintptr(unsafe.Pointer(class)))
}

func createWindow(class string, caption string, style uint32, x, y, width, height int, parent HWND, id int) HWND {
	window, _, err := procCreateWindowEx.Call(0, uintptr(unsafe.Pointer(text(class))),
		uintptr(unsafe.Pointer(text(caption))), uintptr(style), uintptr(x), uintptr(y),
		uintptr(width), uintptr(height), uintptr(parent), uintptr(id), 0, 0)
	if window == 0 {
		panic(err)
	}
	return HWND(window)
}

func sendMessage(window HWND, message uint32, wParam WPARAM, lParam LPARAM) uintptr {
	result, _, _ := procSendMessage.Call(uintptr(window), uintptr(message), uintptr(wParam), uintptr(lParam))
	return result
}

// Sends a message whose lParam points to something of the host's.
func sendPointer(window HWND, message uint32, wParam WPARAM, pointer unsafe.Pointer) uintptr {
	result, _, _ := procSendMessage.Call(uintptr(window), uintptr(message), uintptr(wParam), uintptr(pointer))
	return result
}

func loWord(value uintptr) WORD { return WORD(value) }
func hiWord(value uintptr) WORD { return WORD(value >> 16) }

func makeLParam(low, high int) LPARAM { return LPARAM(uint16(low)) | LPARAM(uint16(high))<<16 }
