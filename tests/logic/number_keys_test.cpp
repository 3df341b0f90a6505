// The keys of the numeric edit, deleting and the clipboard.
#include "numeric/number_clipboard.h"
#include "tests/support/number_editor.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

namespace vorn::numeric {
namespace {

constexpr std::uint32_t kBack = 8;
constexpr std::uint32_t kTab = 9;
constexpr std::uint32_t kEnd = 35;
constexpr std::uint32_t kHome = 36;
constexpr std::uint32_t kLeft = 37;
constexpr std::uint32_t kUp = 38;
constexpr std::uint32_t kRight = 39;
constexpr std::uint32_t kDown = 40;
constexpr std::uint32_t kInsert = 45;
constexpr std::uint32_t kDelete = 46;

const List kPassedOn = {{PassOn}};
const List kMoved = {{PlaceCaret}, {SendChanged}};
const List kMovedAndRepainted = {{Repaint}, {PlaceCaret}, {SendChanged}};
const List kRefused = {{Beep}, {SendChanged}};

TEST(NumberKeys, RouteByKeyAndKeysHeld) {
    using edit::KeyRoute;
    const struct {
        edit::Key key;
        KeyRoute route;
        KeyRoute readOnlyRoute;
    } cases[] = {
        {{kTab}, KeyRoute::FocusNext, KeyRoute::FocusNext},
        {{kTab, false, false, true}, KeyRoute::FocusPrevious, KeyRoute::FocusPrevious},
        {{kTab, true}, KeyRoute::Ask, KeyRoute::Refuse},
        {{kTab, false, true}, KeyRoute::PassOn, KeyRoute::Refuse},
        {{16}, KeyRoute::PassOn, KeyRoute::PassOn},
        {{17}, KeyRoute::PassOn, KeyRoute::PassOn},
        {{18}, KeyRoute::PassOn, KeyRoute::PassOn},
        {{20}, KeyRoute::PassOn, KeyRoute::PassOn},
        {{27}, KeyRoute::PassOn, KeyRoute::PassOn},
        {{144}, KeyRoute::PassOn, KeyRoute::PassOn},
        {{19}, KeyRoute::Ask, KeyRoute::Refuse},
        {{kLeft}, KeyRoute::Ask, KeyRoute::Refuse},
        {{kUp}, KeyRoute::Ask, KeyRoute::Refuse},
        {{kLeft, true}, KeyRoute::Ask, KeyRoute::Refuse},
        {{kLeft, false, true}, KeyRoute::PassOn, KeyRoute::Refuse},
        {{'7'}, KeyRoute::Ask, KeyRoute::Refuse},
    };
    for (const auto& [key, route, readOnlyRoute] : cases) {
        EXPECT_EQ(RouteNumberKey(key, false), route) << key.code;
        EXPECT_EQ(RouteNumberKey(key, true), readOnlyRoute) << key.code;
    }
}

TEST(NumberKeys, AreRefusedWithoutLeave) {
    for (const std::uint32_t code : {kBack, kLeft, kUp, kInsert, std::uint32_t{'7'}}) {
        Editor editor("12");
        EXPECT_EQ(editor.Run({code}, false), kBeeped) << code;
        EXPECT_EQ(editor.Shown(), "12|");
    }
}

TEST(NumberKeys, WithoutAUseArePassedOn) {
    Editor editor("12");
    for (const std::uint32_t code : {13U, 32U, 33U, 112U, std::uint32_t{'7'}, 103U, 189U}) {
        EXPECT_EQ(editor.Press(code), kPassedOn) << code;
        EXPECT_EQ(editor.PressShift(code), kPassedOn) << code;
        EXPECT_EQ(editor.PressControl(code), kPassedOn) << code;
    }
    for (const std::uint32_t code : {kBack, kUp, kDown}) {
        EXPECT_EQ(editor.PressShift(code), kPassedOn) << code;
    }
    for (const std::uint32_t code : {kBack, kUp, kDown, kLeft, kRight, kHome, kEnd, kTab}) {
        EXPECT_EQ(editor.PressControl(code), kPassedOn) << code;
    }
    EXPECT_EQ(editor.Shown(), "12|");
}

TEST(NumberKeys, InsertIsHandledAndChangesNothing) {
    Editor editor("12");
    EXPECT_EQ(editor.Press(kInsert), kAfter);
    EXPECT_EQ(editor.Shown(), "12|");
    EXPECT_EQ(editor.entry.modified, 0);
}

TEST(NumberKeys, MoveTheCaret) {
    Editor editor("123");
    EXPECT_EQ(editor.Press(kLeft), kMoved);
    EXPECT_EQ(editor.Shown(), "12|3");
    EXPECT_EQ(editor.Press(kHome), kMoved);
    EXPECT_EQ(editor.Shown(), "|123");
    EXPECT_EQ(editor.Press(kRight), kMoved);
    EXPECT_EQ(editor.Shown(), "1|23");
    EXPECT_EQ(editor.Press(kEnd), kMoved);
    EXPECT_EQ(editor.Shown(), "123|");
    EXPECT_EQ(editor.entry.modified, 0);
}

TEST(NumberKeys, NoMoveGoesBeyondTheText) {
    Editor editor("1");
    EXPECT_EQ(editor.Press(kRight), kRefused);
    EXPECT_EQ(editor.PressShift(kRight), kRefused);
    editor.Press(kHome);
    EXPECT_EQ(editor.Press(kLeft), kRefused);
    EXPECT_EQ(editor.PressShift(kLeft), kRefused);
    EXPECT_EQ(editor.Shown(), "|1");
    Editor null("");
    EXPECT_EQ(null.Press(kLeft), kRefused);
    EXPECT_EQ(null.Press(kRight), kRefused);
    EXPECT_EQ(null.Press(kHome), kMoved);
    EXPECT_EQ(null.Press(kEnd), kMoved);
}

TEST(NumberKeys, ShiftExtendsTheSelection) {
    Editor editor("1234");
    EXPECT_EQ(editor.PressShift(kLeft), kMovedAndRepainted);
    EXPECT_EQ(editor.Shown(), "123<|4>");
    EXPECT_EQ(editor.PressShift(kHome), kMovedAndRepainted);
    EXPECT_EQ(editor.Shown(), "<|1234>");
    EXPECT_EQ(editor.PressShift(kRight), kMovedAndRepainted);
    EXPECT_EQ(editor.Shown(), "1<|234>");
    EXPECT_EQ(editor.PressShift(kEnd), kMovedAndRepainted) << "nothing is left selected";
    EXPECT_EQ(editor.Shown(), "1234|");
}

TEST(NumberKeys, AMoveDropsTheSelection) {
    Editor editor("1234");
    editor.SelectText(1, 3);
    EXPECT_EQ(editor.Press(kLeft), kMovedAndRepainted);
    EXPECT_EQ(editor.Shown(), "12|34");
}

TEST(NumberKeys, UpAndDownStepByOne) {
    const List stepped = kStepped + kAfter;
    Editor editor("12.50", kFloating, 2);
    EXPECT_EQ(editor.Press(kUp), stepped);
    EXPECT_EQ(editor.Shown(), "13.50|");
    EXPECT_EQ(editor.Press(kDown), stepped);
    EXPECT_EQ(editor.Press(kDown), stepped);
    EXPECT_EQ(editor.Shown(), "11.50|");
    EXPECT_EQ(editor.entry.modified, 1);
}

TEST(NumberKeys, NoStepByKeyGoesBeyondTheLimitOrTellsSo) {
    Editor editor("10");
    editor.SetRange(0, 10);
    EXPECT_EQ(editor.Press(kUp), kNothing);
    EXPECT_EQ(editor.Shown(), "10|");
    EXPECT_EQ(editor.entry.modified, 0);
    Editor zero("0");
    zero.SetRange(0, 10);
    EXPECT_EQ(zero.Press(kDown), kNothing);
    Editor null("");
    null.SetRange(1, 10);
    EXPECT_EQ(null.Press(kDown), kNothing);
    EXPECT_TRUE(null.IsNull());
    EXPECT_EQ(null.Press(kUp), kStepped + kAfter);
    EXPECT_EQ(null.Shown(), "1|");
}

TEST(NumberDelete, BackspaceTakesTheCharacterBefore) {
    Editor editor("12.50", kFloating, 2);
    EXPECT_EQ(editor.Press(kBack), kChanged + kAfter);
    EXPECT_EQ(editor.Shown(), "12.5|") << "not padded again";
    editor.PutCaretAt(3);
    EXPECT_EQ(editor.Press(kBack), kChanged + kAfter);
    EXPECT_EQ(editor.Shown(), "12|5");
    EXPECT_EQ(editor.entry.modified, 1);
}

TEST(NumberDelete, DeleteTakesTheCharacterBehind) {
    Editor editor("12.5");
    editor.PutCaretAt(0);
    EXPECT_EQ(editor.Press(kDelete), kChanged + kAfter);
    EXPECT_EQ(editor.Shown(), "|2.5");
}

TEST(NumberDelete, TheSelectionGoesAsAWhole) {
    for (const std::uint32_t code : {kBack, kDelete}) {
        Editor editor("12345");
        editor.SelectText(1, 4);
        EXPECT_EQ(editor.Press(code), kChanged + kAfter);
        EXPECT_EQ(editor.Shown(), "1|5");
    }
}

TEST(NumberDelete, AnEmptiedTextIsNull) {
    for (const std::uint32_t code : {kBack, kDelete}) {
        Editor editor("123");
        editor.SelectText(0, 3);
        EXPECT_EQ(editor.Press(code), kChanged + kAfter);
        EXPECT_TRUE(editor.IsNull());
        EXPECT_EQ(editor.Shown(), "|");
    }
    Editor digit("7");
    digit.Press(kBack);
    EXPECT_TRUE(digit.IsNull());
}

TEST(NumberDelete, NothingIsBeyondTheEnds) {
    Editor editor("12");
    EXPECT_EQ(editor.Press(kDelete), kRefused);
    editor.PutCaretAt(0);
    EXPECT_EQ(editor.Press(kBack), kRefused);
    EXPECT_EQ(editor.Shown(), "|12");
    EXPECT_EQ(editor.entry.modified, 0);
}

// What could have been typed may be left; anything else may not.
TEST(NumberDelete, WhatStaysIsANumberOrBeginsOne) {
    const struct {
        const char* text;
        int caret;
        std::uint32_t key;
        const char* shown; // null when refused
    } cases[] = {
        {"-5", 2, kBack, "-|"},         {"-", 1, kBack, "|"},        {"1e-5", 4, kBack, "1e-|"},
        {"1e-", 3, kBack, "1e|"},       {"1e", 2, kBack, "1|"},      {"1e5", 1, kDelete, "1|5"},
        {".5", 1, kDelete, ".|"},       {"1e5", 1, kBack, "|e5"},    {"1e5", 0, kDelete, "|e5"},
        {"12e-5", 0, kDelete, "|2e-5"}, {"1e-5", 2, kBack, nullptr}, // 1-5
        {"x5", 2, kBack, nullptr},      {"x5", 1, kBack, "|5"},
    };
    for (const auto& [text, caret, key, shown] : cases) {
        Editor editor(text);
        editor.PutCaretAt(caret);
        const std::string before = editor.Shown();
        EXPECT_EQ(editor.Press(key), shown != nullptr ? kChanged + kAfter : kRefused) << before;
        EXPECT_EQ(editor.Shown(), shown != nullptr ? shown : before);
    }
}

TEST(NumberClipboard, KeysCopyCutAndPaste) {
    Editor editor("123");
    editor.SelectText(0, 2);
    EXPECT_EQ(editor.PressControl(kInsert), (List{{Copy}, {SendChanged}}));
    EXPECT_EQ(editor.PressControl('C'), (List{{Copy}, {SendChanged}}));
    EXPECT_EQ(editor.PressShift(kInsert), (List{{Paste}, {SendChanged}}));
    EXPECT_EQ(editor.PressControl('V'), (List{{Paste}, {SendChanged}}));
    EXPECT_EQ(editor.PressShift(kDelete), (List{{Cut}, {SendChanged}}));
    EXPECT_EQ(editor.PressControl('X'), (List{{Cut}, {SendChanged}}));
    EXPECT_EQ(editor.PressControl(kDelete), kRefused);
    editor.PutCaretAt(1);
    EXPECT_EQ(editor.PressShift(kDelete), kAfter) << "nothing is selected";
    EXPECT_EQ(editor.PressControl(kInsert), (List{{Copy}, {SendChanged}}));
}

std::string Copied(const NumberEntry& entry, std::size_t size = 64) {
    std::string buffer(size, 'x');
    CopyNumberText(buffer, entry);
    return buffer.c_str();
}

TEST(NumberClipboard, CopiesTheSelectionOrAll) {
    Editor editor("12.5");
    EXPECT_EQ(Copied(editor.entry), "12.5");
    editor.SelectText(1, 3);
    EXPECT_EQ(Copied(editor.entry), "2.");
    EXPECT_EQ(Copied(editor.entry, 2), "2") << "cut to the buffer";
    EXPECT_EQ(editor.Shown(), "1<2.|>5");
    Editor null("");
    EXPECT_EQ(Copied(null.entry), "");
}

TEST(NumberClipboard, CopiesWithTheUsersDecimalCharacter) {
    Editor editor("12.5");
    editor.Settings().decimalChar = ',';
    EXPECT_EQ(Copied(editor.entry), "12,5");
}

TEST(NumberClipboard, ClearRemovesTheSelection) {
    Editor editor("12.5");
    edit::Actions actions;
    ClearSelection(actions, editor.entry);
    EXPECT_EQ(AsList(actions), kNothing);
    editor.SelectText(2, 4);
    ClearSelection(actions, editor.entry);
    EXPECT_EQ(AsList(actions), kChanged);
    EXPECT_EQ(editor.Shown(), "12|");
}

List Pasted(Editor& editor, const char* text) {
    edit::Actions actions;
    PasteText(actions, editor.entry, text);
    return AsList(actions);
}

TEST(NumberPaste, PutsTheTextInAtTheCaret) {
    Editor editor("15");
    editor.PutCaretAt(1);
    EXPECT_EQ(Pasted(editor, "234"), kChanged);
    EXPECT_EQ(editor.Shown(), "1234|5");
    editor.SelectText(0, 5);
    EXPECT_EQ(Pasted(editor, "-7"), kChanged);
    EXPECT_EQ(editor.Shown(), "-7|");
    Editor null("");
    EXPECT_EQ(Pasted(null, "42"), kChanged);
    EXPECT_EQ(null.Shown(), "42|");
    EXPECT_FALSE(null.IsNull());
}

TEST(NumberPaste, TakesGroupingAndBlanksOut) {
    Editor editor("", kFloating, 2);
    EXPECT_EQ(Pasted(editor, " 1,234,567.89\r\n"), kChanged);
    EXPECT_EQ(editor.Text(), "1234567.89");
    Editor german("", kFloating, 2);
    german.Settings().decimalChar = ',';
    german.Settings().thousandChar = '.';
    EXPECT_EQ(Pasted(german, "1.234.567,89"), kChanged);
    EXPECT_EQ(german.Text(), "1234567.89");
}

TEST(NumberPaste, RefusesWhatIsNoNumber) {
    for (const char* text : {"", " ", "x", "1x", "-", "1e", "(5)", "1.2.3", "1e999", "0x10"}) {
        Editor editor("12", kFloating, 2);
        EXPECT_EQ(Pasted(editor, text), kBeeped) << text;
        EXPECT_EQ(editor.Shown(), "12|");
        EXPECT_EQ(editor.entry.modified, 0);
    }
}

TEST(NumberPaste, RefusesWhatTheRestMakesNoNumber) {
    Editor editor("1.5");
    EXPECT_EQ(Pasted(editor, "2.5"), kBeeped);
    EXPECT_EQ(Pasted(editor, "-2"), kBeeped);
    EXPECT_EQ(editor.Shown(), "1.5|");
}

TEST(NumberPaste, FollowsTheRulesOfTyping) {
    Editor range("");
    range.SetRange(0, 100);
    EXPECT_EQ(Pasted(range, "250"), kBeeped + kChanged);
    EXPECT_EQ(range.Text(), "100");
    Editor integer("", kInteger);
    EXPECT_EQ(Pasted(integer, "2.9"), kChanged);
    EXPECT_EQ(integer.Text(), "2");
    Editor limit("");
    SetTextLimit(limit.entry, 3);
    EXPECT_EQ(Pasted(limit, "1234"), kBeeped);
    EXPECT_EQ(Pasted(limit, "123"), kChanged);
    const std::string far(5000, '1');
    Editor buffer("");
    EXPECT_EQ(Pasted(buffer, far.c_str()), kBeeped);
}

} // namespace
} // namespace vorn::numeric
