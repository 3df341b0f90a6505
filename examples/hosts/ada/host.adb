--  A window with the controls of VORN32. It does to each control what a user or a program would do,
--  prints what it is told and reads back, and ends with 0 when that is as expected.
--
--  Built with GNAT for MinGW, and run with VORN32.dll of the same architecture beside it:
--
--     i686-w64-mingw32-gnatmake-posix host.adb -largs -static -L../../../lib -lVORN32
--     x86_64-w64-mingw32-gnatmake-posix host.adb -largs -static -L../../../lib64 -lVORN32

with Ada.Command_Line;
with Ada.Text_IO; use Ada.Text_IO;
with Controls;    use Controls;
with Interfaces;  use type Interfaces.Integer_32; use type Interfaces.Unsigned_32;
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
      Length   : LRESULT;
      Previous : HWND;
      Ignored_Window : HWND;
   begin
      Ignored_Result := SendMessageA (Combo, CB_ADDSTRING, 0, Apple'Address);
      Ignored_Result := SendMessageA (Combo, CB_ADDSTRING, 0, Pear'Address);
      Ignored_Result := SendMessageA (Combo, CB_SETCURSEL, 1, LPARAM'(0));
      Length := SendMessageA (Combo, CB_GETLBTEXT, 1, Text'Address);
      Expect ("text of the combo box is Pear", Text (1 .. Natural (Length)) = "Pear");
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
   Destroy_Host;
   if Failures > 0 then
      Put_Line ("Not all is as expected.");
      Ada.Command_Line.Set_Exit_Status (1);
   else
      Put_Line ("All is as expected.");
   end if;
end Host;
