// The numeric edit's spin buttons.
#include "numeric/number_spin.h"
#include "tests/support/number_editor.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace vorn::numeric {

static void PrintTo(const SpinAction& action, std::ostream* out) {
    *out << "{kind " << static_cast<int>(action.kind) << ", " << action.timer << "}";
}

namespace {

using SpinList = std::vector<SpinAction>;
using Spin = SpinActionKind;

struct Buttons {
    SpinState state;

    SpinList Do(const SpinEvent& event) {
        const SpinActions actions = Step(state, event);
        return {actions.begin(), actions.end()};
    }
    SpinList Press(SpinButton button) { return Do({SpinEventKind::Press, button}); }
    SpinList Tick(std::uint32_t timer) {
        return Do({SpinEventKind::Timer, SpinButton::None, timer});
    }
    SpinList End() { return Do({SpinEventKind::End}); }
};

const SpinList kPressed = {{Spin::BeginPress},
                           {Spin::StartTimer, 1},
                           {Spin::TakeFocus},
                           {Spin::Redraw},
                           {Spin::AskAndStep}};

TEST(NumberSpin, APressStepsAndWaits) {
    for (const SpinButton button : {SpinButton::Up, SpinButton::Down}) {
        Buttons buttons;
        EXPECT_EQ(buttons.Press(button), kPressed);
        EXPECT_EQ(buttons.state.pressed, button);
        EXPECT_EQ(buttons.state.timer, 1);
        EXPECT_EQ(buttons.state.repeatCount, 0);
    }
}

TEST(NumberSpin, TheDelayTurnsIntoTheRepeat) {
    Buttons buttons;
    buttons.Press(SpinButton::Up);
    EXPECT_EQ(buttons.Tick(1), (SpinList{{Spin::KillTimer, 1}, {Spin::StartTimer, 2}}))
        << "without a step";
    EXPECT_EQ(buttons.state.timer, 2);
    EXPECT_EQ(buttons.state.repeatCount, 1);
    EXPECT_EQ(buttons.Tick(2), (SpinList{{Spin::AskAndStep}}));
    EXPECT_EQ(buttons.Tick(2), (SpinList{{Spin::AskAndStep}}));
    EXPECT_EQ(buttons.state.repeatCount, 1);
}

TEST(NumberSpin, AReleaseEndsThePress) {
    Buttons buttons;
    buttons.Press(SpinButton::Down);
    EXPECT_EQ(buttons.End(), (SpinList{{Spin::KillTimer, 1}, {Spin::EndPress}, {Spin::Redraw}}));
    EXPECT_EQ(buttons.state.pressed, SpinButton::None);
    buttons.Press(SpinButton::Up);
    buttons.Tick(1);
    EXPECT_EQ(buttons.End(), (SpinList{{Spin::KillTimer, 2}, {Spin::EndPress}, {Spin::Redraw}}));
    EXPECT_EQ(buttons.End(), SpinList{}) << "there is no press any more";
}

TEST(NumberSpin, LateTicksDoNothing) {
    Buttons buttons;
    EXPECT_EQ(buttons.Tick(1), SpinList{});
    EXPECT_EQ(buttons.Tick(2), SpinList{});
    buttons.Press(SpinButton::Up);
    EXPECT_EQ(buttons.Tick(2), SpinList{});
    buttons.Tick(1);
    EXPECT_EQ(buttons.Tick(1), SpinList{});
    buttons.End();
    EXPECT_EQ(buttons.Tick(2), SpinList{});
}

TEST(NumberSpin, OthersTimersArePassedOn) {
    Buttons buttons;
    EXPECT_EQ(buttons.Tick(3), (SpinList{{Spin::PassOn}}));
    EXPECT_EQ(buttons.Tick(0), (SpinList{{Spin::PassOn}}));
}

TEST(NumberSpin, ASecondPressStopsTheFirstOnesTimer) {
    Buttons buttons;
    buttons.Press(SpinButton::Up);
    buttons.Tick(1);
    SpinList expected = {{Spin::KillTimer, 2}};
    expected.insert(expected.end(), kPressed.begin(), kPressed.end());
    EXPECT_EQ(buttons.Press(SpinButton::Down), expected);
    EXPECT_EQ(buttons.state.pressed, SpinButton::Down);
    EXPECT_EQ(buttons.state.repeatCount, 0);
}

TEST(NumberSpin, WhatAPressHadInMindIsOffOnceItEnded) {
    Buttons buttons;
    const SpinList actions = buttons.Press(SpinButton::Up);
    for (const SpinAction& action : actions) {
        EXPECT_FALSE(IsStale(buttons.state, action));
    }
    buttons.End();
    for (const SpinAction& action : actions) {
        EXPECT_EQ(IsStale(buttons.state, action), action.kind != Spin::Redraw);
    }
    EXPECT_FALSE(IsStale(buttons.state, {Spin::KillTimer, 1}));
    EXPECT_FALSE(IsStale(buttons.state, {Spin::EndPress}));
}

// 20 pixels high: 20 * 5 / 8 = 12 wide, so from x 88 on; half the height is 10, which is up's.
TEST(NumberSpin, ButtonsAreFoundByPoint) {
    const Rect client = {0, 0, 100, 20};
    EXPECT_EQ(SpinButtonAt(client, {87, 5}), SpinButton::None);
    EXPECT_EQ(SpinButtonAt(client, {88, 0}), SpinButton::Up);
    EXPECT_EQ(SpinButtonAt(client, {99, 10}), SpinButton::Up);
    EXPECT_EQ(SpinButtonAt(client, {99, 11}), SpinButton::Down);
    EXPECT_EQ(SpinButtonAt(client, {88, 19}), SpinButton::Down);
    EXPECT_EQ(SpinButtonAt(client, {99, 20}), SpinButton::None);
    EXPECT_EQ(SpinButtonAt(client, {100, 5}), SpinButton::None);
    EXPECT_EQ(SpinButtonAt({0, 0, 100, 21}, {87, 5}), SpinButton::Up) << "21 * 5 / 8 is 13";
    EXPECT_EQ(SpinButtonAt({0, 0, 0, 0}, {0, 0}), SpinButton::None);
}

List Stepped(Editor& editor, bool up) {
    return AsList(StepByMouse(editor.entry, up));
}

TEST(NumberStep, IsAlwaysOne) {
    Editor editor("12.25", kFloating, 2);
    EXPECT_EQ(Stepped(editor, true), kStepped);
    EXPECT_EQ(editor.Shown(), "13.25|");
    EXPECT_EQ(editor.entry.modified, 1);
    EXPECT_EQ(Stepped(editor, false), kStepped);
    EXPECT_EQ(editor.Shown(), "12.25|");
}

TEST(NumberStep, NullStepsFromZero) {
    Editor up("");
    EXPECT_EQ(Stepped(up, true), kStepped);
    EXPECT_EQ(up.Shown(), "1|");
    EXPECT_FALSE(up.IsNull());
    Editor down("");
    Stepped(down, false);
    EXPECT_EQ(down.Shown(), "-1|");
}

TEST(NumberStep, TellsAtTheLimitToo) {
    Editor editor("10");
    editor.SetRange(0, 10);
    EXPECT_EQ(Stepped(editor, true), kStepped);
    EXPECT_EQ(editor.Shown(), "10|");
    Stepped(editor, false);
    EXPECT_EQ(editor.Shown(), "9|");
    Editor zero("0");
    zero.SetRange(0, 10);
    EXPECT_EQ(Stepped(zero, false), kStepped);
    EXPECT_EQ(zero.Shown(), "0|");
    Editor half("9.5", kFloating, 1);
    half.SetRange(0, 10);
    Stepped(half, true);
    EXPECT_EQ(half.Shown(), "9.5|") << "10.5 is beyond the limit";
}

// Each button minds the limit on its side alone.
TEST(NumberStep, StartsFromTheClampedValue) {
    Editor editor("250");
    editor.SetRange(0, 100);
    Stepped(editor, false);
    EXPECT_EQ(editor.Shown(), "99|");
    Editor null("");
    null.SetRange(5, 10);
    Stepped(null, true);
    EXPECT_EQ(null.Shown(), "1|") << "null is 0";
    Stepped(null, true);
    EXPECT_EQ(null.Shown(), "6|") << "1 is read as 5";
}

TEST(NumberStep, MakesTheTextAnew) {
    const struct {
        std::uint32_t kind;
        std::uint16_t digits;
        const char* before;
        const char* shown;
    } cases[] = {
        {kGeneral, 0, "2.7", "3|"},          {kGeneral, 2, "2.719", "3.72|"},
        {kFloating, 2, "7", "8.00|"},        {kFloatingUnpadded, 2, "7", "8.00|"},
        {kInteger, 2, "2.9", "3|"},          {kIntegerGroupedParentheses, 0, "-5", "-4|"},
        {kGeneral, 0, "-1", "0|"},           {kGeneral, 2, "-0.5", "0.50|"},
        {kFloating, 1, "1e20", "1.0e+020|"}, {kGeneral, 0, "abc", "1|"},
    };
    for (const auto& [kind, digits, before, shown] : cases) {
        Editor editor(before, kind, digits);
        Stepped(editor, true);
        EXPECT_EQ(editor.Shown(), shown) << kind << ": " << before;
    }
    Editor digits("2.9", kFloating, 2);
    digits.Settings().displayStyle = kDigitDisplay;
    Stepped(digits, true);
    EXPECT_EQ(digits.Shown(), "3|");
}

TEST(NumberStep, ATextThatReachesTheLimitIsCut) {
    Editor editor("998");
    SetTextLimit(editor.entry, 4);
    EXPECT_EQ(Stepped(editor, true), kStepped);
    EXPECT_EQ(editor.Shown(), "999|");
    EXPECT_EQ(Stepped(editor, true), (List{{Notify, 0x500}}) + kStepped) << "1000 has four";
    EXPECT_EQ(editor.Shown(), "100|");
    EXPECT_EQ(editor.Press(38), kStepped + kAfter) << "101";
    Editor decimals("1", kFloating, 100);
    EXPECT_EQ(Stepped(decimals, true), (List{{Notify, 0x500}}) + kStepped);
    EXPECT_EQ(decimals.Text(), "2." + std::string(60, '0')) << "62 characters";
    SetTextLimit(editor.entry, 1);
    Stepped(editor, true);
    EXPECT_EQ(editor.Text(), "") << "there is room for nothing";
    EXPECT_EQ(editor.Settings().isNull, 0) << "and yet it is a number";
}

TEST(NumberStep, ShowsTheTextFromItsStart) {
    Editor editor("123456");
    editor.entry.caret.firstVisible = 3;
    Stepped(editor, true);
    EXPECT_EQ(editor.entry.caret.firstVisible, 0);
}

} // namespace
} // namespace vorn::numeric
