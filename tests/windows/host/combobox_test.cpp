// What the combo box has beyond the system's: it knows where the focus came from.
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/host_window.h"
#include "tests/windows/support/objects.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace {

using vorn::test::HostWindow;
using vorn::test::Message;
using vorn::test::PumpMessages;

constexpr char kProperty[] = "VORNComboBoxProp";

LRESULT LowHalf(HWND window) {
    return static_cast<LRESULT>(reinterpret_cast<UINT_PTR>(window) & 0xFFFF);
}

class ComboBox : public testing::Test {
protected:
    HostWindow host;

    HWND Create(DWORD style = CBS_DROPDOWN) {
        return host.Create(VORN_COMBOBOX_CLASS, style, 10, 10, 150, 150);
    }

    HWND CreateButton() { return host.Create("BUTTON", WS_TABSTOP, 200, 10, 50, 20); }

    static LRESULT Previous(HWND combo) { return SendMessageA(combo, VCBM_GETPREVFOCUS, 0, 0); }

    static HWND EditOf(HWND combo) {
        COMBOBOXINFO info{};
        info.cbSize = sizeof info;
        GetComboBoxInfo(combo, &info);
        return info.hwndItem;
    }
};

TEST_F(ComboBox, AnswersItsMessageByItsNumber) {
    EXPECT_EQ(VCBM_GETPREVFOCUS, 1024);
}

TEST_F(ComboBox, HasNoPreviousFocusBeforeItsFirst) {
    for (const DWORD style : {CBS_SIMPLE, CBS_DROPDOWN, CBS_DROPDOWNLIST}) {
        EXPECT_EQ(Previous(Create(style)), 0) << style;
    }
}

TEST_F(ComboBox, RemembersWhereTheFocusCameFrom) {
    HWND combo = Create(CBS_DROPDOWNLIST);
    HWND first = CreateButton();
    HWND second = CreateButton();
    SetFocus(first);
    SetFocus(combo);
    EXPECT_EQ(Previous(combo), LowHalf(first));
    SetFocus(second);
    EXPECT_EQ(Previous(combo), LowHalf(first)) << "until it gets the focus again";
    SetFocus(combo);
    EXPECT_EQ(Previous(combo), LowHalf(second));
}

TEST_F(ComboBox, EachRemembersForItself) {
    HWND one = Create(CBS_DROPDOWNLIST);
    HWND other = Create(CBS_DROPDOWNLIST);
    HWND button = CreateButton();
    SetFocus(button);
    SetFocus(one);
    SetFocus(other);
    EXPECT_EQ(Previous(one), LowHalf(button));
    EXPECT_EQ(Previous(other), LowHalf(one));
}

TEST_F(ComboBox, ItsOwnEditFieldCountsToo) {
    HWND combo = Create(CBS_DROPDOWN);
    HWND button = CreateButton();
    SetFocus(button);
    SetFocus(combo);
    ASSERT_EQ(GetFocus(), EditOf(combo)) << "the combo box hands the focus on";
    EXPECT_EQ(Previous(combo), LowHalf(button));
    SetFocus(combo);
    EXPECT_EQ(Previous(combo), LowHalf(EditOf(combo)));
}

TEST_F(ComboBox, AnswersTheLow16BitsOfTheHandle) {
    HWND combo = Create();
    SendMessageA(combo, WM_SETFOCUS, 0xABCD1234u, 0);
    EXPECT_EQ(Previous(combo), 0x1234);
    SendMessageA(combo, WM_SETFOCUS, 0x7FFF0000u, 0);
    EXPECT_EQ(Previous(combo), 0);
    SendMessageA(combo, WM_SETFOCUS, static_cast<WPARAM>(-1), 0);
    EXPECT_EQ(Previous(combo), 0xFFFF) << "without a sign";
    SendMessageA(combo, WM_SETFOCUS, 0, 0);
    EXPECT_EQ(Previous(combo), 0) << "no window lost the focus";
}

TEST_F(ComboBox, RemembersBeforeTheHostHearsOfTheFocus) {
    HWND combo = Create(CBS_DROPDOWNLIST);
    HWND button = CreateButton();
    LRESULT heard = -1;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_COMMAND && HIWORD(message.wParam) == CBN_SETFOCUS) {
            heard = Previous(combo);
        }
        return std::nullopt;
    };
    SetFocus(button);
    SetFocus(combo);
    EXPECT_EQ(heard, LowHalf(button));
}

// The system asks for its extra bytes at offset 0, and ours begin there.
TEST_F(ComboBox, HasTheExtraBytesThatTheSystemAsksFor) {
    WNDCLASSA system{};
    WNDCLASSA ours{};
    ASSERT_TRUE(GetClassInfoA(nullptr, "COMBOBOX", &system));
    ASSERT_TRUE(GetClassInfoA(nullptr, VORN_COMBOBOX_CLASS, &ours));
    EXPECT_GT(system.cbWndExtra, 0);
    EXPECT_GE(ours.cbWndExtra, system.cbWndExtra);
    EXPECT_EQ(ours.cbWndExtra, 16 + static_cast<int>(sizeof(void*)) - 4);
    EXPECT_EQ(ours.cbClsExtra, 0);
}

TEST_F(ComboBox, HoldsItsRecordByAPropertyUnlocked) {
    HWND combo = Create();
    HANDLE memory = GetPropA(combo, kProperty);
    ASSERT_NE(memory, nullptr);
    EXPECT_EQ(GlobalFlags(memory) & GMEM_LOCKCOUNT, 0u);
    EXPECT_GE(GlobalSize(memory), 2 * sizeof(void*));

    WNDCLASSA system{};
    GetClassInfoA(nullptr, "COMBOBOX", &system);
    HWND button = CreateButton();
    SendMessageA(combo, WM_SETFOCUS, reinterpret_cast<WPARAM>(button), 0);
    const auto* fields = static_cast<void* const*>(GlobalLock(memory));
    EXPECT_EQ(fields[0], reinterpret_cast<void*>(system.lpfnWndProc));
    EXPECT_EQ(fields[1], button);
    GlobalUnlock(memory);
    EXPECT_EQ(GlobalFlags(memory) & GMEM_LOCKCOUNT, 0u);
}

TEST_F(ComboBox, KeepsItsRecordUntilTheSystemHasEnded) {
    HWND combo =
        host.Create(VORN_COMBOBOX_CLASS, CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED, 10, 10, 150, 150);
    SendMessageA(combo, CB_ADDSTRING, 0, 1);
    SendMessageA(combo, CB_ADDSTRING, 0, 2);
    SendMessageA(combo, WM_SETFOCUS, 0x4321, 0);
    std::vector<LRESULT> answers;
    bool ending = false;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_DELETEITEM && ending) {
            answers.push_back(Previous(combo));
        }
        return std::nullopt;
    };
    ending = true;
    HANDLE memory = GetPropA(combo, kProperty);
    DestroyWindow(combo);
    EXPECT_EQ(answers, (std::vector<LRESULT>{0x4321, 0x4321})) << "both items are told to go";
    EXPECT_EQ(GlobalFlags(memory), GMEM_INVALID_HANDLE) << "and then the record is freed";
}

// Takes the property away, as nobody should.
HWND LoseRecord(HWND combo) {
    GlobalFree(RemovePropA(combo, kProperty));
    return combo;
}

TEST_F(ComboBox, WorksWithoutItsRecord) {
    HWND combo = LoseRecord(Create(CBS_DROPDOWNLIST));
    HWND button = CreateButton();
    SetFocus(button);
    SetFocus(combo);
    EXPECT_EQ(Previous(combo), 0);
    EXPECT_EQ(SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("one")), 0);
    EXPECT_EQ(SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("two")), 1);
    EXPECT_EQ(SendMessageA(combo, CB_GETCOUNT, 0, 0), 2);
    host.TakeNotifications();
    SendMessageA(combo, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(SendMessageA(combo, CB_GETCURSEL, 0, 0), 0);
    EXPECT_FALSE(host.TakeNotifications().empty());
    EXPECT_TRUE(DestroyWindow(combo));
}

TEST_F(ComboBox, BearsAPropertyThatIsNoBlock) {
    HWND combo = LoseRecord(Create(CBS_DROPDOWNLIST));
    SetPropA(combo, kProperty, reinterpret_cast<HANDLE>(static_cast<INT_PTR>(3)));
    EXPECT_EQ(Previous(combo), 0);
    SetFocus(combo);
    EXPECT_EQ(SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("one")), 0);
    EXPECT_TRUE(DestroyWindow(combo));
}

TEST_F(ComboBox, ProcedureBearsOtherWindows) {
    EXPECT_EQ(VORNCBFunction(nullptr, VCBM_GETPREVFOCUS, 0, 0), 0);
    EXPECT_EQ(VORNCBFunction(vorn::test::DestroyedWindow(), VCBM_GETPREVFOCUS, 0, 0), 0);
    HWND foreign = vorn::test::CreateForeignWindow();
    EXPECT_EQ(VORNCBFunction(foreign, VCBM_GETPREVFOCUS, 0, 0), 0);
    EXPECT_EQ(GetPropA(foreign, kProperty), nullptr);
    DestroyWindow(foreign);
    EXPECT_EQ(VORNCBFunction(nullptr, WM_SETFOCUS, 5, 0), 0);
    EXPECT_EQ(VORNCBFunction(nullptr, CB_GETCOUNT, 0, 0), 0);
    EXPECT_EQ(VORNCBFunction(nullptr, WM_NCDESTROY, 0, 0), 0);
}

TEST_F(ComboBox, WorksInAClassOfTheHostsOwn) {
    WNDCLASSA ours{};
    GetClassInfoA(nullptr, VORN_COMBOBOX_CLASS, &ours);
    ours.lpszClassName = "HostsOwnCombo";
    ours.hInstance = GetModuleHandleA(nullptr);
    ours.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
    ASSERT_NE(RegisterClassA(&ours), 0);
    HWND combo = host.Create("HostsOwnCombo", CBS_DROPDOWNLIST, 0, 0, 100, 100);
    ASSERT_NE(combo, nullptr);
    HWND button = CreateButton();
    SetFocus(button);
    SetFocus(combo);
    EXPECT_EQ(Previous(combo), LowHalf(button));
    DestroyWindow(combo);
    EXPECT_TRUE(UnregisterClassA("HostsOwnCombo", GetModuleHandleA(nullptr)));
}

TEST_F(ComboBox, MayBeDestroyedInAnyNotification) {
    for (const int code : {CBN_SETFOCUS, CBN_DROPDOWN, CBN_SELCHANGE, CBN_KILLFOCUS}) {
        HWND combo = Create(CBS_DROPDOWNLIST);
        SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("one"));
        host.answer = [&](const Message& message) -> std::optional<LRESULT> {
            if (message.message == WM_COMMAND && HIWORD(message.wParam) == code) {
                DestroyWindow(combo);
            }
            return std::nullopt;
        };
        SetFocus(combo);
        if (IsWindow(combo)) {
            SendMessageA(combo, WM_KEYDOWN, VK_DOWN, 1);
        }
        if (IsWindow(combo)) {
            SendMessageA(combo, CB_SHOWDROPDOWN, TRUE, 0);
        }
        if (IsWindow(combo)) {
            SetFocus(host.window());
        }
        host.answer = nullptr;
        PumpMessages();
        EXPECT_FALSE(IsWindow(combo)) << code;
    }
}

TEST_F(ComboBox, LeavesNoObjectsBehind) {
    EXPECT_EQ(vorn::test::ObjectsLeftBy([&] {
                  HWND combo = Create(CBS_DROPDOWN | CBS_SORT);
                  SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("one"));
                  SetFocus(combo);
                  DestroyWindow(combo);
              }),
              "");
}

} // namespace
