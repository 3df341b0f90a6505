--  What this host uses of VORN32.dll, under the names of its headers.

with Win32; use Win32;

package VORN32 is

   VORN_BUTTON_CLASS     : constant String := "VORNButton32";
   VORN_PERCENTBAR_CLASS : constant String := "VORNPercentBar32";
   VORN_DIAL_CLASS       : constant String := "VORNDial32";
   VORN_CALENDAR_CLASS   : constant String := "VORNCalendar32";
   VORN_COMBOBOX_CLASS   : constant String := "VORNComboBox32";
   VORN_FONTSELECT_CLASS : constant String := "VORNFontSelect32";
   VORN_UDLR_CLASS       : constant String := "VORNUDLR32";

   VBTS_PICTURE : constant := 16#0004#;
   VPBS_SUNKEN  : constant := 16#01#;
   VPBS_PERCENT : constant := 16#20#;

   VBTN_CLICKED : constant := 0;
   VCALN_DBLCLK : constant := 16#0101#;
   VUDN_UP      : constant := 100;

   VCALM_SETDATE     : constant := WM_USER + 200;
   VCALM_GETDATE     : constant := WM_USER + 201;
   VCBM_GETPREVFOCUS : constant := WM_USER + 0;

   type VORNCALENDARDATE is record
      month    : WORD;
      day      : WORD;
      year     : WORD;
      weekday  : WORD;
      leapYear : WORD;
   end record with Convention => C;

   function GetLongVersion return DWORD
     with Import, Convention => Stdcall, External_Name => "GetLongVersion";

   function btnSetPicture (window : HWND; index : UINT) return BOOL
     with Import, Convention => Stdcall, External_Name => "btnSetPicture";

   function pbSetLimit (window : HWND; limit : LONG) return BOOL
     with Import, Convention => Stdcall, External_Name => "pbSetLimit";

   function pbGetLimit (window : HWND) return LONG
     with Import, Convention => Stdcall, External_Name => "pbGetLimit";

   function pbSetProgress (window : HWND; progress : LONG) return BOOL
     with Import, Convention => Stdcall, External_Name => "pbSetProgress";

   function pbGetProgress (window : HWND) return LONG
     with Import, Convention => Stdcall, External_Name => "pbGetProgress";

   function SetDialRange
     (window : HWND; minimum : LONG; maximum : LONG; redraw : BOOL) return BOOL
     with Import, Convention => Stdcall, External_Name => "SetDialRange";

   function GetDialRange
     (window : HWND; minimum : access LONG; maximum : access LONG) return BOOL
     with Import, Convention => Stdcall, External_Name => "GetDialRange";

   function SetDialPos (window : HWND; position : LONG; redraw : BOOL) return LONG
     with Import, Convention => Stdcall, External_Name => "SetDialPos";

   function GetDialPos (window : HWND) return LONG
     with Import, Convention => Stdcall, External_Name => "GetDialPos";

   function fsSetFontPointSize (window : HWND; points : LONG) return LONG
     with Import, Convention => Stdcall, External_Name => "fsSetFontPointSize";

   function fsGetFontPointSize (window : HWND) return LONG
     with Import, Convention => Stdcall, External_Name => "fsGetFontPointSize";

   procedure fsGetFontFamily (window : HWND; buffer : LPSTR; size : int)
     with Import, Convention => Stdcall, External_Name => "fsGetFontFamily";

end VORN32;
