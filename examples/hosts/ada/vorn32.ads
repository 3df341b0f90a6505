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
   VORN_NUMEDIT_CLASS    : constant String := "VORNNumEdit32";
   VORN_DATEEDIT_CLASS   : constant String := "VORNDateEdit32";
   VORN_TIMEEDIT_CLASS   : constant String := "VORNTimeEdit32";
   VORN_HIERLIST_CLASS   : constant String := "VORNHierList32";

   VBTS_PICTURE  : constant := 16#0004#;
   VPBS_SUNKEN   : constant := 16#01#;
   VPBS_PERCENT  : constant := 16#20#;
   VNMS_SPIN     : constant := 16#0004#;
   VNMS_SUNKEN   : constant := 16#1000#;
   VDTS_CALENDAR : constant := 16#0004#;
   VDTS_SUNKEN   : constant := 16#1000#;
   VTMS_SECONDS  : constant := 16#0040#;
   VTMS_SUNKEN   : constant := 16#2000#;

   VBTN_CLICKED : constant := 0;
   VCALN_DBLCLK : constant := 16#0101#;
   VUDN_UP      : constant := 100;

   VCALM_SETDATE       : constant := WM_USER + 200;
   VCALM_GETDATE       : constant := WM_USER + 201;
   VCBM_GETPREVFOCUS   : constant := WM_USER + 0;
   VDTM_GETDATESTRING  : constant := WM_USER + 153;
   VTMM_GETTIMESTRING  : constant := WM_USER + 153;
   OLBM_INSERTSTRINGEX : constant := WM_USER + 343;

   NM_FLOATING_GROUPED : constant := 6;

   DT_DAY   : constant := 1;
   DT_MONTH : constant := 2;
   DT_YEAR  : constant := 3;

   --  An item of an outline list.
   type HOLBITEM is mod 2 ** Standard'Address_Size;

   OLB_NOITEM : constant HOLBITEM := HOLBITEM'Last;

   type VORNCALENDARDATE is record
      month    : WORD;
      day      : WORD;
      year     : WORD;
      weekday  : WORD;
      leapYear : WORD;
   end record with Convention => C;

   type NmEditParams is record
      formatKind    : DWORD := 0;
      rangeCheck    : DWORD := 0;
      decimalDigits : DWORD := 0;
      reserved      : DWORD := 0;
      minValue      : double := 0.0;
      maxValue      : double := 0.0;
      useRegional   : DWORD := 0;
      thousandChar  : WORD := 0;
      decimalChar   : WORD := 0;
      leadingZero   : DWORD := 0;
   end record with Convention => C, Alignment => 4;

   type DtDate is record
      month : WORD := 0;
      day   : WORD := 0;
      year  : WORD := 0;
   end record with Convention => C;

   type DtEditParams is record
      size             : DWORD := 48;
      setDate          : DWORD := 0;
      year             : WORD := 0;
      month            : WORD := 0;
      day              : WORD := 0;
      reserved1        : WORD := 0;
      keepLayout       : DWORD := 0;
      separator        : WORD := 0;
      reserved2        : WORD := 0;
      monthLeadingZero : DWORD := 0;
      dayLeadingZero   : DWORD := 0;
      fourDigitYear    : DWORD := 0;
      kinds            : DWORD_Array (1 .. 3) := (others => 0);
   end record with Convention => C;

   type TmTime is record
      hour   : WORD := 0;
      minute : WORD := 0;
      second : WORD := 0;
   end record with Convention => C;

   type TmEditParams is record
      setTime        : DWORD := 0;
      time           : TmTime;
      reserved1      : WORD := 0;
      keepFormat     : DWORD := 0;
      separator      : WORD := 0;
      reserved2      : WORD := 0;
      leadingZero    : DWORD := 0;
      twentyFourHour : DWORD := 0;
      showSeconds    : DWORD := 0;
      amText         : String (1 .. 9) := (others => ASCII.NUL);
      pmText         : String (1 .. 9) := (others => ASCII.NUL);
   end record with Convention => C, Alignment => 1;

   type OLBINSERTION is record
      parent   : HOLBITEM;
      position : WORD;
      text     : LPCSTR;
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

   function nmSetEditParams (window : HWND; params : access constant NmEditParams) return LRESULT
     with Import, Convention => Stdcall, External_Name => "nmSetEditParams";

   procedure nmGetEditParams (window : HWND; params : access NmEditParams)
     with Import, Convention => Stdcall, External_Name => "nmGetEditParams";

   procedure nmSetDouble (window : HWND; number : access constant double)
     with Import, Convention => Stdcall, External_Name => "nmSetDouble";

   procedure nmGetDouble (window : HWND; number : access double)
     with Import, Convention => Stdcall, External_Name => "nmGetDouble";

   procedure nmSetInteger (window : HWND; number : LONG)
     with Import, Convention => Stdcall, External_Name => "nmSetInteger";

   function nmGetInteger (window : HWND) return LONG
     with Import, Convention => Stdcall, External_Name => "nmGetInteger";

   function nmGetLastGoodNumber (window : HWND; buffer : LPSTR) return BOOL
     with Import, Convention => Stdcall, External_Name => "nmGetLastGoodNumber";

   function dtSetDate (window : HWND; date : access constant DtDate) return BOOL
     with Import, Convention => Stdcall, External_Name => "dtSetDate";

   function dtGetDate (window : HWND; date : access DtDate) return LONG
     with Import, Convention => Stdcall, External_Name => "dtGetDate";

   function dtGetDay (window : HWND) return int
     with Import, Convention => Stdcall, External_Name => "dtGetDay";

   procedure dtSetEditParams (window : HWND; params : access constant DtEditParams)
     with Import, Convention => Stdcall, External_Name => "dtSetEditParams";

   procedure dtGetEditParams (window : HWND; params : access DtEditParams)
     with Import, Convention => Stdcall, External_Name => "dtGetEditParams";

   function tmSetTime (window : HWND; time : access constant TmTime) return BOOL
     with Import, Convention => Stdcall, External_Name => "tmSetTime";

   function tmGetTime (window : HWND; time : access TmTime) return BOOL
     with Import, Convention => Stdcall, External_Name => "tmGetTime";

   function tmGetHour (window : HWND) return UINT
     with Import, Convention => Stdcall, External_Name => "tmGetHour";

   function tmGetMinute (window : HWND) return UINT
     with Import, Convention => Stdcall, External_Name => "tmGetMinute";

   function tmGetSecond (window : HWND) return UINT
     with Import, Convention => Stdcall, External_Name => "tmGetSecond";

   function tmSetEditParams (window : HWND; params : access constant TmEditParams) return BOOL
     with Import, Convention => Stdcall, External_Name => "tmSetEditParams";

   function tmGetEditParams (window : HWND; params : access TmEditParams) return BOOL
     with Import, Convention => Stdcall, External_Name => "tmGetEditParams";

   function olbAddChildStringEx (window : HWND; parent : HOLBITEM; text : LPCSTR) return HOLBITEM
     with Import, Convention => Stdcall, External_Name => "olbAddChildStringEx";

   procedure olbOpenItem (window : HWND; row : LONG)
     with Import, Convention => Stdcall, External_Name => "olbOpenItem";

   procedure olbCloseItem (window : HWND; row : LONG)
     with Import, Convention => Stdcall, External_Name => "olbCloseItem";

   function olbGetCount (window : HWND) return LONG
     with Import, Convention => Stdcall, External_Name => "olbGetCount";

   function olbGetVisibleCount (window : HWND) return LONG
     with Import, Convention => Stdcall, External_Name => "olbGetVisibleCount";

   function olbQueryParentEx (window : HWND; item : HOLBITEM) return HOLBITEM
     with Import, Convention => Stdcall, External_Name => "olbQueryParentEx";

   function olbGetChildHandleEx (parent : HOLBITEM; child : LONG) return HOLBITEM
     with Import, Convention => Stdcall, External_Name => "olbGetChildHandleEx";

   function olbFindStringEx
     (window : HWND; parent : HOLBITEM; start : LONG; text : LPCSTR; exact : BOOL) return HOLBITEM
     with Import, Convention => Stdcall, External_Name => "olbFindStringEx";

   function olbHandleToIndex (item : HOLBITEM) return LONG
     with Import, Convention => Stdcall, External_Name => "olbHandleToIndex";

   function olbIndexToHandle (window : HWND; row : LONG) return HOLBITEM
     with Import, Convention => Stdcall, External_Name => "olbIndexToHandle";

   function olbGetTextEx (window : HWND; handle : HOLBITEM; buffer : LPSTR) return LONG
     with Import, Convention => Stdcall, External_Name => "olbGetTextEx";

   function olbSetItemDataEx (window : HWND; handle : HOLBITEM; data : LONG_PTR) return LONG
     with Import, Convention => Stdcall, External_Name => "olbSetItemDataEx";

   function olbGetItemDataEx (window : HWND; handle : HOLBITEM) return LONG_PTR
     with Import, Convention => Stdcall, External_Name => "olbGetItemDataEx";

   function olbGetCurSelEx (window : HWND) return HOLBITEM
     with Import, Convention => Stdcall, External_Name => "olbGetCurSelEx";

   function olbGetItemRect (window : HWND; row : LONG; place : access RECT) return LONG
     with Import, Convention => Stdcall, External_Name => "olbGetItemRect";

end VORN32;
