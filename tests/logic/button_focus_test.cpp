// The picture button's part in moving the focus and the default look, and being enabled.
#include "tests/support/button_steps.h"

#include <string>

namespace vorn::button {
namespace {

using enum ActionKind;

constexpr std::uint32_t kPlain = 0x50010000; // child, visible, tab stop
constexpr std::uint32_t kTelling = kPlain | 0x4000;

TEST(ButtonFocus, GainedTakesTheDefaultLookFromAButton) {
    Button button{kTelling};
    EXPECT_EQ(button.FocusFrom(true),
              (List{{StyleOther, 0, true}, {Notify, 6}, {StyleSelf, 1, true}}));
    EXPECT_EQ(button.state.flags, 9u);
}

TEST(ButtonFocus, GainedFromAnythingElseTakesTheDefaultLookAlone) {
    Button button{kTelling};
    EXPECT_EQ(button.FocusFrom(false), (List{{Notify, 6}, {StyleSelf, 1, true}}));
    button = {kPlain};
    EXPECT_EQ(button.FocusFrom(false), (List{{StyleSelf, 1, true}}));
    EXPECT_EQ(button.state.flags, 9u);
}

TEST(ButtonFocus, LostIsToldAndShown) {
    Button button{kTelling};
    button.FocusFrom(false);
    EXPECT_EQ(button.LoseFocus(false), (List{{Notify, 7}, {Redraw}}));
    EXPECT_EQ(button.state.flags, 1u);
    button = {kPlain};
    EXPECT_EQ(button.LoseFocus(false), List{{Redraw}});
}

TEST(ButtonFocus, LostHandsTheDefaultLookOverFirst) {
    Button button{kTelling};
    button.FocusFrom(false);
    EXPECT_EQ(button.LoseFocus(true),
              (List{{StyleSelf, 0, false}, {StyleOther, 1, true}, {Notify, 7}, {Redraw}}));
}

TEST(ButtonFocus, LostTakesAPressedButtonUpWithoutAClick) {
    Button button{kTelling};
    button.FocusFrom(false);
    button.KeyDown(32);
    EXPECT_EQ(
        button.LoseFocus(true),
        (List{{StyleSelf, 0, false}, {StyleOther, 1, true}, {Notify, 3}, {Notify, 7}, {Redraw}}));
    EXPECT_EQ(button.state.flags, 1u);
    EXPECT_EQ(button.KeyUp(32), List{});
}

TEST(ButtonFocus, LostLeavesAToggleButtonDown) {
    Button button{kTelling | 0x0400};
    button.SetDown(true);
    EXPECT_EQ(button.LoseFocus(false), (List{{Notify, 7}, {Redraw}}));
    EXPECT_EQ(button.state.flags, 3u);
}

TEST(ButtonFocus, LostDuringAPressKeepsTheCapture) {
    Button button{kTelling};
    button.Press(kInside);
    button.LoseFocus(false);
    EXPECT_EQ(button.state.flags, 5u);
    EXPECT_EQ(button.Move(kInside), (List{{Notify, 2}, {Redraw}}));
}

TEST(ButtonEnable, DisablingIsToldAndMarked) {
    Button button{kTelling};
    EXPECT_EQ(button.Enable(false), (List{{Notify, 4}, {MarkDisabled}, {Redraw}}));
    EXPECT_EQ(button.state.flags, 0u);
    EXPECT_EQ(button.Enable(true), (List{{MarkEnabled}, {Redraw}})) << "nothing is told";
    EXPECT_EQ(button.state.flags, 1u);
    button.style = kPlain;
    EXPECT_EQ(button.Enable(false), (List{{MarkDisabled}, {Redraw}}));
}

TEST(ButtonEnable, LeavesTheOtherFlags) {
    Button button{kTelling};
    button.FocusFrom(false);
    button.SetDown(true);
    button.Enable(false);
    EXPECT_EQ(button.state.flags, 10u);
    button.Enable(true);
    EXPECT_EQ(button.state.flags, 11u);
}

// Dialogs as strings: upper-case letters are buttons, lower-case ones other items, in tab order.
// A digit is a button that is no tab stop, where the focus can be nevertheless.
bool IsLetterOfButton(char item) {
    return (item >= 'A' && item <= 'Z') || (item >= '0' && item <= '9');
}

char TabItemBefore(const std::string& dialog, char item) {
    std::size_t at = dialog.find(item);
    for (std::size_t step = 0; step < dialog.size(); ++step) {
        at = (at + dialog.size() - 1) % dialog.size();
        if (dialog[at] < '0' || dialog[at] > '9') {
            return dialog[at];
        }
    }
    return '\0';
}

char Heir(const std::string& dialog, char self, bool toButton = false) {
    return DefaultHeir(self, toButton, IsLetterOfButton,
                       [&](char item) { return TabItemBefore(dialog, item); });
}

TEST(ButtonDefaultHeir, IsTheFirstOfTheRunThatEndsHere) {
    EXPECT_EQ(Heir("eABC", 'C'), 'A');
    EXPECT_EQ(Heir("eABC", 'B'), 'A');
    EXPECT_EQ(Heir("eABC", 'A'), 'A') << "it is that itself";
    EXPECT_EQ(Heir("eABfCD", 'D'), 'C') << "another item breaks the run";
    EXPECT_EQ(Heir("eABfC", 'C'), 'C');
    EXPECT_EQ(Heir("ABeCD", 'B'), 'C') << "the order goes round";
}

TEST(ButtonDefaultHeir, StaysWhenEveryItemIsAButton) {
    EXPECT_EQ(Heir("A", 'A'), 'A');
    EXPECT_EQ(Heir("AB", 'A'), 'A');
    EXPECT_EQ(Heir("AB", 'B'), 'B');
    for (const char self : std::string("ABCDEFGHIJK")) {
        EXPECT_EQ(Heir("ABCDEFGHIJK", self), self);
    }
}

TEST(ButtonDefaultHeir, StaysWhenTheFocusGoesToAButton) {
    EXPECT_EQ(Heir("eABC", 'C', true), 'C');
}

TEST(ButtonDefaultHeir, OfAButtonThatIsNoTabStopIsFoundToo) {
    EXPECT_EQ(Heir("eAB1C", '1'), 'A');
    EXPECT_EQ(Heir("e1", '1'), '1');
    EXPECT_EQ(Heir("eA1B", 'B'), 'A') << "passed by";
}

TEST(ButtonDefaultHeir, StaysWhenTheWalkNeverReturns) {
    for (const char* dialog : {"1A", "1AB", "A1BC", "ABCDEFGHIJKLM1", "1ABCDEFGHIJKLMNOPQ"}) {
        EXPECT_EQ(Heir(dialog, '1'), '1') << dialog;
    }
}

TEST(ButtonDefaultHeir, StaysInNoDialog) {
    EXPECT_EQ(Heir("1", '1'), '1') << "no item before";
}

TEST(ButtonDefaultHeir, StopsAtTheSecondReturn) {
    int asked = 0;
    const char heir = DefaultHeir(
        'C', false,
        [&](char) {
            ++asked;
            return true;
        },
        [](char item) { return item == 'A' ? 'C' : static_cast<char>(item - 1); });
    EXPECT_EQ(heir, 'C');
    EXPECT_EQ(asked, 7) << "at itself, and twice round three items";
}

TEST(ButtonDefaultHeir, StaysWhenItDeniesToBeAButton) {
    const char heir = DefaultHeir(
        'C', false, [](char item) { return item != 'C'; },
        [](char item) { return item == 'A' ? '\0' : static_cast<char>(item - 1); });
    EXPECT_EQ(heir, 'C');
}

} // namespace
} // namespace vorn::button
