--  What this host uses of Windows, under the names of its headers.

with Interfaces;
with System;

package Win32 is

   subtype HWND is System.Address;
   subtype BOOL is Interfaces.Integer_32;
   subtype UINT is Interfaces.Unsigned_32;
   subtype LONG is Interfaces.Integer_32;
   subtype int is Interfaces.Integer_32;
   subtype WORD is Interfaces.Unsigned_16;
   subtype DWORD is Interfaces.Unsigned_32;
   subtype double is Interfaces.IEEE_Float_64;
   subtype LPSTR is System.Address;
   subtype LPCSTR is System.Address;
   type WPARAM is mod 2 ** Standard'Address_Size;
   type LPARAM is range
     -(2 ** (Standard'Address_Size - 1)) .. 2 ** (Standard'Address_Size - 1) - 1;
   subtype LRESULT is LPARAM;
   subtype LONG_PTR is LPARAM;

   type DWORD_Array is array (Positive range <>) of DWORD;

   type RECT is record
      Left   : LONG := 0;
      Top    : LONG := 0;
      Right  : LONG := 0;
      Bottom : LONG := 0;
   end record with Convention => C;

   No_Window : constant HWND := System.Null_Address;

   WM_SETTEXT       : constant := 16#000C#;
   WM_KEYDOWN       : constant := 16#0100#;
   WM_CHAR          : constant := 16#0102#;
   WM_COMMAND       : constant := 16#0111#;
   WM_VSCROLL       : constant := 16#0115#;
   WM_LBUTTONDOWN   : constant := 16#0201#;
   WM_LBUTTONUP     : constant := 16#0202#;
   WM_LBUTTONDBLCLK : constant := 16#0203#;
   WM_USER          : constant := 16#0400#;
   CB_ADDSTRING     : constant := 16#0143#;
   CB_GETLBTEXT     : constant := 16#0148#;
   CB_SETCURSEL     : constant := 16#014E#;

   WS_OVERLAPPEDWINDOW : constant := 16#00CF0000#;
   WS_CHILD            : constant := 16#40000000#;
   WS_VISIBLE          : constant := 16#10000000#;
   WS_TABSTOP          : constant := 16#00010000#;
   WS_VSCROLL          : constant := 16#00200000#;
   CBS_DROPDOWNLIST    : constant := 16#0003#;
   LBS_NOTIFY          : constant := 16#0001#;

   CBN_SETFOCUS  : constant := 3;
   EN_CHANGE     : constant := 16#0300#;
   LBN_SELCHANGE : constant := 1;
   SB_LINEDOWN   : constant := 1;
   MK_LBUTTON    : constant := 1;
   VK_UP         : constant := 16#26#;
   SW_SHOW       : constant := 5;
   LF_FACESIZE   : constant := 32;
   COLOR_3DFACE  : constant := 15;

   type Window_Procedure is access function
     (Window : HWND; Message : UINT; W : WPARAM; L : LPARAM) return LRESULT
     with Convention => Stdcall;

   type WNDCLASSA is record
      Style        : UINT := 0;
      Procedure_Of : Window_Procedure;
      Class_Extra  : int := 0;
      Window_Extra : int := 0;
      Instance     : System.Address := System.Null_Address;
      Icon         : System.Address := System.Null_Address;
      Cursor       : System.Address := System.Null_Address;
      Background   : WPARAM := COLOR_3DFACE + 1;
      Menu_Name    : LPCSTR := System.Null_Address;
      Class_Name   : LPCSTR := System.Null_Address;
   end record with Convention => C;

   function RegisterClassA (Class : access constant WNDCLASSA) return WORD
     with Import, Convention => Stdcall, External_Name => "RegisterClassA";

   function CreateWindowExA
     (Extended_Style : DWORD; Class_Name : LPCSTR; Caption : LPCSTR; Style : DWORD;
      X, Y, Width, Height : int; Parent : HWND; Identifier : WPARAM;
      Instance, Parameter : System.Address) return HWND
     with Import, Convention => Stdcall, External_Name => "CreateWindowExA";

   function DefWindowProcA
     (Window : HWND; Message : UINT; W : WPARAM; L : LPARAM) return LRESULT
     with Import, Convention => Stdcall, External_Name => "DefWindowProcA";

   function SendMessageA
     (Window : HWND; Message : UINT; W : WPARAM; L : LPARAM) return LRESULT
     with Import, Convention => Stdcall, External_Name => "SendMessageA";

   --  The same, with an lParam that points to something of the host's.
   function SendMessageA
     (Window : HWND; Message : UINT; W : WPARAM; L : System.Address) return LRESULT
     with Import, Convention => Stdcall, External_Name => "SendMessageA";

   function ShowWindow (Window : HWND; Command : int) return BOOL
     with Import, Convention => Stdcall, External_Name => "ShowWindow";

   function SetFocus (Window : HWND) return HWND
     with Import, Convention => Stdcall, External_Name => "SetFocus";

   function DestroyWindow (Window : HWND) return BOOL
     with Import, Convention => Stdcall, External_Name => "DestroyWindow";

end Win32;
