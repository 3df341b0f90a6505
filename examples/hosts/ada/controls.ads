--  The host's window and its controls.

with Win32; use Win32;

package Controls is

   procedure Create_Host;
   procedure Destroy_Host;

   --  A control at a place of the host's window.
   function Add
     (Class : String; Style : DWORD; X, Y, Width, Height : int) return HWND;

   procedure Click (Window : HWND; X, Y : int);

   --  How often the control has told the host of this code, by WM_COMMAND.
   function Told (Control : HWND; Code : WORD) return Integer;

   --  Steps of the dial towards the maximum.
   Steps : Integer := 0;

   function Pack (Low, High : int) return LPARAM;

end Controls;
