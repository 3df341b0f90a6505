// Picture buttons among system push buttons in dialogs that the system's dialog manager runs: who
// has the focus, who looks like the default button, and what Return does.
#include "tests/windows/support/dialog.h"
#include "tests/windows/support/host_window.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace {

using vorn::test::HostWindow;
using vorn::test::ScriptedDialog;

constexpr DWORD kTab = WS_TABSTOP;

// An edit, the dialog's default button, two picture buttons, a system button, another edit and a
// picture button of its own.
enum Id {
    kOk = 1,
    kEdit = 10,
    kFirst = 20,
    kSecond = 30,
    kSystem = 40,
    kNote = 50,
    kLast = 60,
    kBox = 70,
    kInBox = 80,
};

ScriptedDialog Mixed(DWORD pictureStyle = 0) {
    return ScriptedDialog({
        {kEdit, "EDIT", kTab},
        {kOk, "BUTTON", kTab | BS_DEFPUSHBUTTON},
        {kFirst, VORN_BUTTON_CLASS, kTab | pictureStyle},
        {kSecond, VORN_BUTTON_CLASS, kTab | pictureStyle},
        {kSystem, "BUTTON", kTab},
        {kNote, "EDIT", kTab},
        {kLast, VORN_BUTTON_CLASS, kTab | pictureStyle},
    });
}

void Focus(ScriptedDialog& dialog, int item) {
    dialog.Do([&dialog, item](HWND window) { SetFocus(dialog.Item(window, item)); });
    dialog.ExpectFocus(item);
}

class ButtonDialog : public testing::Test {
protected:
    HostWindow host;
};

TEST_F(ButtonDialog, TabGoesThroughAllOfThem) {
    ScriptedDialog dialog = Mixed();
    for (const int item : {kEdit, kOk, kFirst, kSecond, kSystem, kNote, kLast, kEdit}) {
        dialog.ExpectFocus(item);
        dialog.PressKey(VK_TAB);
    }
    Focus(dialog, kEdit);
    for (const int item : {kEdit, kLast, kNote, kSystem, kSecond, kFirst, kOk, kEdit}) {
        dialog.ExpectFocus(item);
        dialog.PressShifted(VK_TAB);
    }
    dialog.Run(host.window());
}

TEST_F(ButtonDialog, ArrowsOfAPictureButtonGoToTheTabItemsBesideIt) {
    ScriptedDialog dialog = Mixed();
    Focus(dialog, kFirst);
    dialog.PressKey(VK_RIGHT);
    dialog.ExpectFocus(kSecond);
    dialog.PressKey(VK_RIGHT);
    dialog.ExpectFocus(kSystem);
    Focus(dialog, kSecond);
    dialog.PressKey(VK_LEFT);
    dialog.ExpectFocus(kFirst);
    dialog.PressKey(VK_LEFT);
    dialog.ExpectFocus(kOk);
    Focus(dialog, kLast);
    dialog.PressKey(VK_LEFT);
    dialog.ExpectFocus(kNote);
    dialog.Run(host.window());
}

TEST_F(ButtonDialog, TheLookFollowsTheFocusAmongButtons) {
    ScriptedDialog dialog = Mixed();
    dialog.ExpectFocus(kEdit);
    dialog.ExpectDefaults({kOk});
    dialog.PressKey(VK_TAB);
    dialog.ExpectFocus(kOk);
    dialog.ExpectDefaults({kOk});
    dialog.PressKey(VK_TAB);
    dialog.ExpectFocus(kFirst);
    dialog.ExpectDefaults({kFirst}); // taken from the system button
    dialog.PressKey(VK_TAB);
    dialog.ExpectFocus(kSecond);
    dialog.ExpectDefaults({kSecond}); // taken from the picture button
    dialog.PressShifted(VK_TAB);
    dialog.ExpectFocus(kFirst);
    dialog.ExpectDefaults({kFirst});
    dialog.PressKey(VK_RIGHT);
    dialog.ExpectFocus(kSecond);
    dialog.ExpectDefaults({kSecond});
    dialog.Run(host.window());
}

TEST_F(ButtonDialog, TheLookPassesToTheFirstOfTheRunWhenTheFocusLeavesTheButtons) {
    ScriptedDialog dialog = Mixed();
    Focus(dialog, kOk);
    dialog.PressKey(VK_TAB);
    dialog.PressKey(VK_TAB);
    dialog.ExpectFocus(kSecond);
    dialog.ExpectDefaults({kSecond});
    dialog.Click(kNote);
    dialog.ExpectFocus(kNote);
    dialog.ExpectDefaults({kOk}); // kSecond, kFirst, kOk: then comes an edit
    dialog.Run(host.window());
}

TEST_F(ButtonDialog, TheFirstOfARunMayBeAPictureButton) {
    ScriptedDialog dialog({
        {kEdit, "EDIT", kTab},
        {kFirst, VORN_BUTTON_CLASS, kTab},
        {kSystem, "BUTTON", kTab},
        {kSecond, VORN_BUTTON_CLASS, kTab},
        {kNote, "EDIT", kTab},
    });
    Focus(dialog, kSystem);
    dialog.PressKey(VK_TAB);
    dialog.ExpectFocus(kSecond);
    dialog.ExpectDefaults({kSecond});
    dialog.PressKey(VK_TAB); // the button's own key
    dialog.ExpectFocus(kNote);
    dialog.ExpectDefaults({kFirst});
    dialog.Run(host.window());
}

TEST_F(ButtonDialog, AButtonThatIsItsOwnRunKeepsTheLook) {
    ScriptedDialog dialog = Mixed();
    Focus(dialog, kNote);
    dialog.PressKey(VK_TAB);
    dialog.ExpectFocus(kLast);
    dialog.ExpectDefaults({kLast});
    dialog.PressKey(VK_LEFT);
    dialog.ExpectFocus(kNote);
    dialog.ExpectDefaults({kLast});
    dialog.Run(host.window());
}

TEST_F(ButtonDialog, NothingChangesWhenEveryTabItemIsAButton) {
    ScriptedDialog dialog({
        {kOk, "BUTTON", kTab | BS_DEFPUSHBUTTON},
        {kFirst, VORN_BUTTON_CLASS, kTab},
        {kSecond, VORN_BUTTON_CLASS, kTab},
        {kNote, "EDIT", 0}, // no tab stop
    });
    dialog.ExpectFocus(kOk);
    dialog.PressKey(VK_TAB);
    dialog.PressKey(VK_TAB);
    dialog.ExpectFocus(kSecond);
    dialog.ExpectDefaults({kSecond});
    dialog.Click(kNote);
    dialog.ExpectFocus(kNote);
    dialog.ExpectDefaults({kSecond});
    dialog.Run(host.window());
}

TEST_F(ButtonDialog, ReturnOnAPictureButtonClicksItThroughTheDialogManager) {
    ScriptedDialog dialog = Mixed(VBTS_NOTIFY);
    Focus(dialog, kOk);
    dialog.PressKey(VK_TAB);
    dialog.ExpectFocus(kFirst);
    dialog.ExpectCommands({kFirst, VBTN_SETFOCUS});
    dialog.PressKey(VK_RETURN);
    dialog.ExpectCommands({kFirst, VBTN_CLICKED}); // the key never reaches the button
    dialog.PressKey(VK_TAB);
    dialog.ExpectCommands({kFirst, VBTN_KILLFOCUS, kSecond, VBTN_SETFOCUS});
    dialog.PressKey(VK_RETURN);
    dialog.ExpectCommands({kSecond, VBTN_CLICKED});
    dialog.Run(host.window());
}

TEST_F(ButtonDialog, SpacePressesAPictureButton) {
    ScriptedDialog dialog = Mixed(VBTS_NOTIFY);
    Focus(dialog, kFirst);
    dialog.ExpectCommands({kFirst, VBTN_SETFOCUS});
    dialog.PressKey(VK_SPACE);
    dialog.ExpectCommands({kFirst, VBTN_DOWN, kFirst, VBTN_UP, kFirst, VBTN_CLICKED});
    dialog.Run(host.window());
}

TEST_F(ButtonDialog, ReturnInAnEditClicksTheDialogsDefaultButton) {
    ScriptedDialog dialog({
        {kEdit, "EDIT", kTab},
        {kFirst, VORN_BUTTON_CLASS, kTab},
        {kSecond, VORN_BUTTON_CLASS, kTab | VBTS_DEFAULT},
    });
    dialog.ExpectFocus(kEdit);
    dialog.ExpectDefaults({kSecond});
    dialog.PressKey(VK_RETURN);
    dialog.ExpectCommands({kSecond, VBTN_CLICKED});
    dialog.Run(host.window());
}

TEST_F(ButtonDialog, AClickTakesFocusAndLook) {
    ScriptedDialog dialog = Mixed(VBTS_NOTIFY);
    Focus(dialog, kOk);
    dialog.Click(kFirst);
    dialog.ExpectFocus(kFirst);
    dialog.ExpectDefaults({kFirst});
    dialog.ExpectCommands(
        {kFirst, VBTN_SETFOCUS, kFirst, VBTN_DOWN, kFirst, VBTN_UP, kFirst, VBTN_CLICKED});
    dialog.Click(kSecond);
    dialog.ExpectFocus(kSecond);
    dialog.ExpectDefaults({kSecond});
    dialog.ExpectCommands({kFirst, VBTN_KILLFOCUS, kSecond, VBTN_SETFOCUS, kSecond, VBTN_DOWN,
                           kSecond, VBTN_UP, kSecond, VBTN_CLICKED});
    dialog.Click(kSystem);
    dialog.ExpectFocus(kSystem);
    dialog.ExpectCommands({kSecond, VBTN_KILLFOCUS, kSystem, BN_CLICKED});
    dialog.Run(host.window());
}

TEST_F(ButtonDialog, GainingTheFocusEndsToggleAndAutoRepeat) {
    ScriptedDialog dialog = Mixed(VBTS_TOGGLE | VBTS_AUTOREPEAT);
    const auto style = [](HWND window) {
        const LONG bits = GetWindowLongA(GetDlgItem(window, kFirst), GWL_STYLE);
        return std::vector<int>{static_cast<int>(bits & 0xFFFF)};
    };
    dialog.Expect("the style", style, {VBTS_TOGGLE | VBTS_AUTOREPEAT});
    Focus(dialog, kFirst);
    dialog.Expect("the style", style, {VBTS_DEFAULT});
    dialog.Run(host.window());
}

// A container in the dialog, whose items are part of the dialog's tab order.
constexpr vorn::test::DialogItem kContainer = {kBox, "STATIC", 0, WS_EX_CONTROLPARENT};

TEST_F(ButtonDialog, ARunReachesIntoAContainer) {
    ScriptedDialog dialog({
        {kEdit, "EDIT", kTab},
        kContainer,
        {kInBox, "EDIT", kTab, 0, kBox},
        {kFirst, VORN_BUTTON_CLASS, kTab, 0, kBox},
        {kSystem, "BUTTON", kTab, 0, kBox},
        {kSecond, VORN_BUTTON_CLASS, kTab},
        {kNote, "EDIT", kTab},
    });
    Focus(dialog, kSystem);
    dialog.PressKey(VK_TAB);
    dialog.ExpectFocus(kSecond);
    dialog.ExpectDefaults({kSecond});
    dialog.PressKey(VK_TAB);
    dialog.ExpectFocus(kNote);
    dialog.ExpectDefaults({kFirst}); // kSecond, kSystem, kFirst: then comes the edit in there
    dialog.Run(host.window());
}

TEST_F(ButtonDialog, ARunInAContainerIsOfItsItems) {
    ScriptedDialog dialog({
        {kOk, "BUTTON", kTab},
        kContainer,
        {kFirst, VORN_BUTTON_CLASS, kTab, 0, kBox},
        {kSystem, "BUTTON", kTab, 0, kBox},
        {kInBox, "EDIT", kTab, 0, kBox},
        {kSecond, VORN_BUTTON_CLASS, kTab, 0, kBox},
        {kNote, "EDIT", kTab},
    });
    Focus(dialog, kFirst);
    dialog.ExpectDefaults({kFirst});
    dialog.Click(kNote);
    dialog.ExpectFocus(kNote);
    dialog.ExpectDefaults({kSecond}); // kFirst, then round to kSecond: not kOk outside
    dialog.Run(host.window());
}

TEST_F(ButtonDialog, KeysOfAButtonInAContainerLeaveIt) {
    ScriptedDialog dialog({
        {kEdit, "EDIT", kTab},
        kContainer,
        {kFirst, VORN_BUTTON_CLASS, kTab, 0, kBox},
        {kSecond, VORN_BUTTON_CLASS, kTab, 0, kBox},
        {kNote, "EDIT", kTab},
    });
    for (const int item : {kEdit, kFirst, kSecond, kNote, kEdit}) {
        dialog.ExpectFocus(item);
        dialog.PressKey(VK_TAB);
    }
    dialog.ExpectFocus(kFirst);
    dialog.PressShifted(VK_TAB);
    dialog.ExpectFocus(kEdit);
    Focus(dialog, kSecond);
    dialog.PressKey(VK_RIGHT);
    dialog.ExpectFocus(kNote);
    Focus(dialog, kFirst);
    dialog.PressKey(VK_LEFT);
    dialog.ExpectFocus(kEdit);
    dialog.Run(host.window());
}

} // namespace
