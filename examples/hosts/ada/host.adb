--  A window with all controls of VORN32. It does to each control what a user or a program would do,
--  prints what it is told and reads back, and ends with 0 when that is as expected.
--
--  Built with GNAT for MinGW, and run with VORN32.dll of the same architecture beside it:
--
--     i686-w64-mingw32-gnatmake-posix host.adb -largs -static -L../../../lib -lVORN32
--     x86_64-w64-mingw32-gnatmake-posix host.adb -largs -static -L../../../lib64 -lVORN32

with Ada.Command_Line;
with Ada.Strings.Fixed; use Ada.Strings.Fixed;
with Ada.Text_IO; use Ada.Text_IO;
with Controls;    use Controls;
with Interfaces;  use type Interfaces.IEEE_Float_64; use type Interfaces.Integer_32;
use type Interfaces.Unsigned_32;
with System.Storage_Elements; use System.Storage_Elements;
with VORN32;      use VORN32;
with Win32;       use Win32;

procedure Host is

   Failures       : Natural := 0;
   Ignored_Result : LRESULT;
   Ignored_Bool   : BOOL;

   procedure Expect (What : String; Actual, Expected : Integer) is
   begin
      if Actual = Expected then
         Put_Line (What & ":" & Actual'Image);
      else
         Put_Line (What & ":" & Actual'Image & ", not" & Expected'Image & " as expected");
         Failures := Failures + 1;
      end if;
   end Expect;

   procedure Expect (What : String; Holds : Boolean) is
   begin
      Expect (What, Boolean'Pos (Holds), 1);
   end Expect;

   procedure Expect (What : String; Actual, Expected : String) is
   begin
      if Actual = Expected then
         Put_Line (What & ": " & Actual);
      else
         Put_Line (What & ": " & Actual & ", not " & Expected & " as expected");
         Failures := Failures + 1;
      end if;
   end Expect;

   --  What stands in a buffer in front of the NUL.
   function Text_In (Buffer : String) return String is
     (Buffer (Buffer'First .. Index (Buffer, "" & ASCII.NUL) - 1));

   procedure Use_Button (Button : HWND) is
   begin
      Ignored_Bool := btnSetPicture (Button, 12);
      Click (Button, 10, 10);
      Expect ("clicks of the button", Told (Button, VBTN_CLICKED), 1);
   end Use_Button;

   procedure Use_Bar is
      Bar : constant HWND :=
        Add (VORN_PERCENTBAR_CLASS, VPBS_SUNKEN + VPBS_PERCENT, 140, 14, 200, 26);
   begin
      Ignored_Bool := pbSetLimit (Bar, 200);
      Ignored_Bool := pbSetProgress (Bar, 250);
      Expect ("limit of the percent bar", Integer (pbGetLimit (Bar)), 200);
      Expect ("progress, at most the limit", Integer (pbGetProgress (Bar)), 200);
      Ignored_Bool := pbSetProgress (Bar, -5);
      Expect ("progress below 0", Integer (pbGetProgress (Bar)), -5);
   end Use_Bar;

   procedure Use_Dial is
      Dial     : constant HWND := Add (VORN_DIAL_CLASS, WS_TABSTOP, 580, 10, 80, 80);
      Minimum  : aliased LONG := -1;
      Maximum  : aliased LONG := -1;
      Previous : LONG;
   begin
      Ignored_Bool := SetDialRange (Dial, 0, 10, 1);
      Previous := SetDialPos (Dial, 4, 1);
      Expect ("position of the dial before", Integer (Previous), 0);
      Ignored_Result := SendMessageA (Dial, WM_CHAR, Character'Pos ('+'), LPARAM'(1));
      Ignored_Bool := GetDialRange (Dial, Minimum'Access, Maximum'Access);
      Expect ("minimum of the dial", Integer (Minimum), 0);
      Expect ("maximum of the dial", Integer (Maximum), 10);
      Expect ("steps of the dial", Steps, 1);
      Expect ("position of the dial", Integer (GetDialPos (Dial)), 5);
   end Use_Dial;

   procedure Use_Calendar is
      Calendar : constant HWND := Add (VORN_CALENDAR_CLASS, 0, 10, 100, 650, 400);
      Date     : aliased VORNCALENDARDATE;
      Day      : LRESULT;
   begin
      Ignored_Result := SendMessageA (Calendar, VCALM_SETDATE, 2000, Pack (2, 29));
      Day := SendMessageA (Calendar, VCALM_GETDATE, 0, Date'Address);
      --  A hundred years, 24 of them leap years, and 59 days after 1 January 1900, which is 693597.
      Expect ("day number of 29 February 2000", Integer (Day), 730180);
      Expect ("month", Integer (Date.month), 2);
      Expect ("day", Integer (Date.day), 29);
      Expect ("year", Integer (Date.year), 2000);
      Expect ("weekday, a Tuesday", Integer (Date.weekday), 2);
      Expect ("leap year", Integer (Date.leapYear), 1);
      Ignored_Result := SendMessageA (Calendar, WM_LBUTTONDBLCLK, MK_LBUTTON, Pack (1, 1));
      Expect ("double clicks on the calendar", Told (Calendar, VCALN_DBLCLK), 1);
   end Use_Calendar;

   procedure Use_Combo_Box (Button : HWND) is
      Combo    : constant HWND :=
        Add (VORN_COMBOBOX_CLASS, WS_TABSTOP + CBS_DROPDOWNLIST, 350, 14, 180, 126);
      Apple    : constant String := "Apple" & ASCII.NUL;
      Pear     : constant String := "Pear" & ASCII.NUL;
      Text     : String (1 .. 20) := (others => ASCII.NUL);
      Previous : HWND;
      Ignored_Window : HWND;
   begin
      Ignored_Result := SendMessageA (Combo, CB_ADDSTRING, 0, Apple'Address);
      Ignored_Result := SendMessageA (Combo, CB_ADDSTRING, 0, Pear'Address);
      Ignored_Result := SendMessageA (Combo, CB_SETCURSEL, 1, LPARAM'(0));
      Ignored_Result := SendMessageA (Combo, CB_GETLBTEXT, 1, Text'Address);
      Expect ("text of the combo box", Text_In (Text), "Pear");
      Ignored_Window := SetFocus (Button);
      Previous := SetFocus (Combo);
      Expect ("the button had the focus", To_Integer (Previous) = To_Integer (Button));
      Expect ("focuses of the combo box", Told (Combo, CBN_SETFOCUS), 1);
      Expect ("the focus came from the button",
              SendMessageA (Combo, VCBM_GETPREVFOCUS, 0, LPARAM'(0))
              = LRESULT (To_Integer (Button) mod 2 ** 16));
   end Use_Combo_Box;

   procedure Use_Font_Selector is
      Selector : constant HWND := Add (VORN_FONTSELECT_CLASS, WS_TABSTOP, 10, 60, 330, 30);
      Family   : String (1 .. LF_FACESIZE) := (others => ASCII.NUL);
   begin
      Expect ("index of 24 points", Integer (fsSetFontPointSize (Selector, 24)), 10);
      Expect ("points", Integer (fsGetFontPointSize (Selector)), 24);
      fsGetFontFamily (Selector, Family'Address, LF_FACESIZE);
      Expect ("the font has a family", Family (1) > ' ');
   end Use_Font_Selector;

   procedure Use_Pad is
      Pad : constant HWND := Add (VORN_UDLR_CLASS, 0, 540, 10, 29, 29);
   begin
      Click (Pad, 14, 4);
      Expect ("steps up of the spin pad", Told (Pad, VUDN_UP), 1);
   end Use_Pad;

   --  Functions notify of nothing, a text that is set does.
   procedure Use_Numeric_Edit is
      Edit   : constant HWND :=
        Add (VORN_NUMEDIT_CLASS, WS_TABSTOP + VNMS_SUNKEN + VNMS_SPIN, 350, 60, 100, 26);
      Params : aliased constant NmEditParams :=
        (formatKind => NM_FLOATING_GROUPED, rangeCheck => 1, decimalDigits => 2,
         minValue => -1000.5, maxValue => 5000.25, thousandChar => Character'Pos ('''),
         decimalChar => Character'Pos (','), leadingZero => 1, others => <>);
      Kept   : aliased NmEditParams;
      Number : aliased double := 1234.5;
      Text   : String (1 .. 64) := (others => ASCII.NUL);
      Typed  : constant String := "7.25" & ASCII.NUL;
   begin
      Ignored_Result := nmSetEditParams (Edit, Params'Access);
      nmGetEditParams (Edit, Kept'Access);
      Expect ("format and range are those set", Kept = Params);
      nmSetDouble (Edit, Number'Access);
      Number := 0.0;
      nmGetDouble (Edit, Number'Access);
      Expect ("the number is that set", Number = 1234.5);
      Ignored_Bool := nmGetLastGoodNumber (Edit, Text'Address);
      Expect ("number as text", Text_In (Text), "1234,50");
      nmSetInteger (Edit, -321);
      Expect ("integer", Integer (nmGetInteger (Edit)), -321);
      Number := 100_000.0;
      nmSetDouble (Edit, Number'Access);
      nmGetDouble (Edit, Number'Access);
      Expect ("the number is at most the maximum", Number = 5000.25);
      Expect ("changes by functions", Told (Edit, EN_CHANGE), 0);
      Ignored_Result := SendMessageA (Edit, WM_SETTEXT, 0, Typed'Address);
      nmGetDouble (Edit, Number'Access);
      Expect ("the number is that of the text", Number = 7.25);
      Expect ("changes of the number", Told (Edit, EN_CHANGE), 1);
   end Use_Numeric_Edit;

   procedure Use_Date_Edit is
      Edit     : constant HWND :=
        Add (VORN_DATEEDIT_CLASS, WS_TABSTOP + VDTS_SUNKEN + VDTS_CALENDAR, 460, 60, 110, 26);
      Leap_Day : aliased constant DtDate := (month => 2, day => 29, year => 2000);
      Date     : aliased DtDate;
      Params   : aliased DtEditParams :=
        (setDate => 1, year => 2007, month => 3, day => 5, separator => Character'Pos ('.'),
         monthLeadingZero => 1, dayLeadingZero => 1, fourDigitYear => 1,
         kinds => (DT_DAY, DT_MONTH, DT_YEAR), others => <>);
      Kept     : aliased DtEditParams;
      Text     : String (1 .. 32) := (others => ASCII.NUL);
      Ignored_Window : HWND;
   begin
      Ignored_Bool := dtSetDate (Edit, Leap_Day'Access);
      --  A hundred years, 24 of them leap years, and 59 days.
      Expect ("days from 1 January 1900", Integer (dtGetDate (Edit, Date'Access)), 36583);
      Expect ("the date is that set", Date = Leap_Day);
      dtSetEditParams (Edit, Params'Access);
      Ignored_Result := SendMessageA (Edit, VDTM_GETDATESTRING, 0, Text'Address);
      Expect ("date as text", Text_In (Text), "05.03.2007");
      dtGetEditParams (Edit, Kept'Access);
      --  Changes the date alone when it is handed back: these are not filled.
      Params.keepLayout := 1;
      Params.dayLeadingZero := 0;
      Params.fourDigitYear := 0;
      Expect ("date and layout are those set", Kept = Params);
      Expect ("changes by functions", Told (Edit, EN_CHANGE), 0);
      Ignored_Window := SetFocus (Edit);
      --  Steps what stands first.
      Ignored_Result := SendMessageA (Edit, WM_KEYDOWN, VK_UP, LPARAM'(0));
      Expect ("day after the key", Integer (dtGetDay (Edit)), 6);
      Expect ("changes of the date", Told (Edit, EN_CHANGE), 1);
   end Use_Date_Edit;

   procedure Use_Time_Edit is
      Edit      : constant HWND :=
        Add (VORN_TIMEEDIT_CLASS, WS_TABSTOP + VTMS_SUNKEN + VTMS_SECONDS, 680, 14, 150, 26);
      Params    : aliased constant TmEditParams :=
        (setTime => 1, time => (hour => 23, minute => 59, second => 58),
         separator => Character'Pos ('.'), leadingZero => 1, showSeconds => 1,
         amText => "morning" & ASCII.NUL & ASCII.NUL, pmText => "evening" & ASCII.NUL & ASCII.NUL,
         others => <>);
      Kept      : aliased TmEditParams;
      Afternoon : aliased constant TmTime := (hour => 14, minute => 5, second => 9);
      Time      : aliased TmTime;
      Text      : String (1 .. 64) := (others => ASCII.NUL);
      Ignored_Window : HWND;
   begin
      Ignored_Bool := tmSetEditParams (Edit, Params'Access);
      Ignored_Result := SendMessageA (Edit, VTMM_GETTIMESTRING, 0, Text'Address);
      Expect ("time as text", Text_In (Text), "11.59.58 evening");
      Ignored_Bool := tmGetEditParams (Edit, Kept'Access);
      Expect ("time and format are those set", Kept = Params);
      Ignored_Bool := tmSetTime (Edit, Afternoon'Access);
      Expect ("hour", Integer (tmGetHour (Edit)), 14);
      Expect ("minute", Integer (tmGetMinute (Edit)), 5);
      Expect ("second", Integer (tmGetSecond (Edit)), 9);
      Ignored_Bool := tmGetTime (Edit, Time'Access);
      Expect ("the time is that set", Time = Afternoon);
      Expect ("changes by functions", Told (Edit, EN_CHANGE), 0);
      Ignored_Window := SetFocus (Edit);
      --  Steps the hour.
      Ignored_Result := SendMessageA (Edit, WM_KEYDOWN, VK_UP, LPARAM'(0));
      Expect ("hour after the key", Integer (tmGetHour (Edit)), 15);
      Expect ("changes of the time", Told (Edit, EN_CHANGE), 1);
   end Use_Time_Edit;

   --  One item at the top, and two below it.
   procedure Use_Outline_List is
      List        : constant HWND :=
        Add (VORN_HIERLIST_CLASS, WS_TABSTOP + WS_VSCROLL + LBS_NOTIFY, 680, 100, 200, 400);
      Fruit_Text  : constant String := "Fruit" & ASCII.NUL;
      Apple_Text  : constant String := "Apple" & ASCII.NUL;
      Pear_Text   : constant String := "Pear" & ASCII.NUL;
      Plum_Text   : constant String := "Plum" & ASCII.NUL;
      Fruit       : constant HOLBITEM := olbAddChildStringEx (List, 0, Fruit_Text'Address);
      Pear        : constant HOLBITEM := olbAddChildStringEx (List, Fruit, Pear_Text'Address);
      Insertion   : constant OLBINSERTION :=
        (parent => Fruit, position => 0, text => Apple_Text'Address);
      Apple       : constant HOLBITEM := HOLBITEM'Mod
        (SendMessageA (List, OLBM_INSERTSTRINGEX, 0, Insertion'Address));
      Data        : constant LONG_PTR := LONG_PTR'Last / 3;  --  as wide as a pointer
      Place       : aliased RECT;
      Text        : String (1 .. 20) := (others => ASCII.NUL);
      Ignored_Row : LONG;
   begin
      Expect ("apples are fruit", olbQueryParentEx (List, Apple) = Fruit);
      Expect ("fruit is at the top", olbQueryParentEx (List, Fruit) = 0);
      olbCloseItem (List, olbHandleToIndex (Fruit));
      --  Only closed items know their children by number.
      Expect ("pears stand behind apples", olbGetChildHandleEx (Fruit, 1) = Pear);
      Expect ("there are no plums",
              olbFindStringEx (List, Fruit, -1, Plum_Text'Address, 1) = OLB_NOITEM);
      Expect ("length of the text", Integer (olbGetTextEx (List, Apple, Text'Address)), 5);
      Expect ("text of the item", Text_In (Text), "Apple");
      Ignored_Row := olbSetItemDataEx (List, Pear, Data);
      Expect ("the item has its data", olbGetItemDataEx (List, Pear) = Data);
      Expect ("items", Integer (olbGetCount (List)), 3);
      Expect ("rows of the closed list", Integer (olbGetVisibleCount (List)), 1);
      olbOpenItem (List, olbHandleToIndex (Fruit));
      Expect ("rows of the open list", Integer (olbGetVisibleCount (List)), 3);
      Expect ("row of the pear", Integer (olbHandleToIndex (Pear)), 2);
      Expect ("the item of that row", olbIndexToHandle (List, 2) = Pear);
      Expect ("selections by functions", Told (List, LBN_SELCHANGE), 0);
      Expect ("the row is in view", Integer (olbGetItemRect (List, 2, Place'Access)), 1);
      Click (List, Place.Right - 1, (Place.Top + Place.Bottom) / 2);
      Expect ("the click selected the pear", olbGetCurSelEx (List) = Pear);
      Expect ("selections", Told (List, LBN_SELCHANGE), 1);
   end Use_Outline_List;

   Button : HWND;

begin
   Expect ("the library has a version", GetLongVersion /= 0);
   Create_Host;
   Button := Add (VORN_BUTTON_CLASS, WS_TABSTOP + VBTS_PICTURE, 10, 10, 120, 34);
   Use_Button (Button);
   Use_Bar;
   Use_Dial;
   Use_Calendar;
   Use_Combo_Box (Button);
   Use_Font_Selector;
   Use_Pad;
   Use_Numeric_Edit;
   Use_Date_Edit;
   Use_Time_Edit;
   Use_Outline_List;
   Destroy_Host;
   if Failures > 0 then
      Put_Line ("Not all is as expected.");
      Ada.Command_Line.Set_Exit_Status (1);
   else
      Put_Line ("All is as expected.");
   end if;
end Host;
