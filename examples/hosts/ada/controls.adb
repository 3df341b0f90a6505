with Ada.Containers.Vectors;
with Interfaces; use type Interfaces.Integer_32; use type Interfaces.Unsigned_16;
use type Interfaces.Unsigned_32;
with System;     use type System.Address;
with System.Storage_Elements; use System.Storage_Elements;
with VORN32;

package body Controls is

   type Notification is record
      Control : HWND;
      Code    : WORD;
   end record;

   package Notification_Lists is new Ada.Containers.Vectors (Positive, Notification);

   Notifications : Notification_Lists.Vector;
   Host          : HWND := No_Window;
   Last_Id       : WPARAM := 100;
   Ignored_Bool  : BOOL;

   function Low_Word (Value : WPARAM) return WORD is (WORD (Value and 16#FFFF#));
   function High_Word (Value : WPARAM) return WORD is (WORD (Value / 2 ** 16 and 16#FFFF#));

   function Handle (Value : LPARAM) return HWND is
     (To_Address (Integer_Address'Mod (Value)));

   function Pack (Low, High : int) return LPARAM is
     (LPARAM (Low) + LPARAM (High) * 2 ** 16);

   function Procedure_Of_Host
     (Window : HWND; Message : UINT; W : WPARAM; L : LPARAM) return LRESULT
     with Convention => Stdcall;

   function Procedure_Of_Host
     (Window : HWND; Message : UINT; W : WPARAM; L : LPARAM) return LRESULT
   is
      Dial          : HWND;
      Ignored_Place : LONG;
   begin
      case Message is
         when WM_COMMAND =>
            Notifications.Append ((Handle (L), High_Word (W)));
            return 0;
         when WM_VSCROLL =>
            if Low_Word (W) = SB_LINEDOWN then  --  of the key "+"
               Steps := Steps + 1;
               Dial := Handle (L);
               Ignored_Place := VORN32.SetDialPos (Dial, VORN32.GetDialPos (Dial) + 1, 1);
            end if;
            return 0;
         when others =>
            return DefWindowProcA (Window, Message, W, L);
      end case;
   end Procedure_Of_Host;

   function Create
     (Class, Caption : String; Style : DWORD; X, Y, Width, Height : int; Identifier : WPARAM)
      return HWND
   is
      Class_Text   : constant String := Class & ASCII.NUL;
      Caption_Text : constant String := Caption & ASCII.NUL;
   begin
      return Window : constant HWND := CreateWindowExA
        (0, Class_Text'Address, Caption_Text'Address, Style, X, Y, Width, Height, Host,
         Identifier, System.Null_Address, System.Null_Address)
      do
         if Window = No_Window then
            raise Program_Error with "no window of the class " & Class;
         end if;
      end return;
   end Create;

   procedure Create_Host is
      Name  : constant String := "AdaHost" & ASCII.NUL;
      Class : aliased constant WNDCLASSA :=
        (Procedure_Of => Procedure_Of_Host'Access, Class_Name => Name'Address, others => <>);
      Ignored_Atom : constant WORD := RegisterClassA (Class'Access);
   begin
      Host := Create ("AdaHost", "Controls in Ada", WS_OVERLAPPEDWINDOW, 20, 20, 920, 560, 0);
      Ignored_Bool := ShowWindow (Host, SW_SHOW);
   end Create_Host;

   procedure Destroy_Host is
   begin
      Ignored_Bool := DestroyWindow (Host);
   end Destroy_Host;

   function Add
     (Class : String; Style : DWORD; X, Y, Width, Height : int) return HWND is
   begin
      Last_Id := Last_Id + 1;
      return Create
        (Class, "Ada", DWORD'Mod (WS_CHILD + WS_VISIBLE) + Style, X, Y, Width, Height, Last_Id);
   end Add;

   procedure Click (Window : HWND; X, Y : int) is
      Ignored_Result : LRESULT;
   begin
      Ignored_Result := SendMessageA (Window, WM_LBUTTONDOWN, MK_LBUTTON, Pack (X, Y));
      Ignored_Result := SendMessageA (Window, WM_LBUTTONUP, 0, Pack (X, Y));
   end Click;

   function Told (Control : HWND; Code : WORD) return Integer is
      Count : Integer := 0;
   begin
      for Each of Notifications loop
         if Each = (Control, Code) then
            Count := Count + 1;
         end if;
      end loop;
      return Count;
   end Told;

end Controls;
