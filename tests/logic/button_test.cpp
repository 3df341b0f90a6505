// The picture button's values: record, style bits, colours, caption.
#include "controls/button/button.h"

#include <gtest/gtest.h>
#include <string>

namespace vorn::button {
namespace {

TEST(ButtonState, HasItsDefaults) {
    const State state;
    EXPECT_EQ(state.colors.swatch, 0x008000u);
    EXPECT_EQ(static_cast<std::int32_t>(state.colors.face), -16);
    EXPECT_EQ(static_cast<std::int32_t>(state.colors.text), -19);
    EXPECT_EQ(static_cast<std::int32_t>(state.colors.highlight), -21);
    EXPECT_EQ(static_cast<std::int32_t>(state.colors.shadow), -17);
    EXPECT_EQ(state.pictureIndex, 0u);
    EXPECT_EQ(state.flags, 1u);
    EXPECT_EQ(state.repeatTimer, 0u);
    EXPECT_EQ(CaptionLength(state), 0u);
}

TEST(ButtonState, IsEnabledUnlessCreatedDisabled) {
    EXPECT_EQ(StateFromStyle(0x50014607).flags, 1u);
    EXPECT_EQ(StateFromStyle(0x58014607).flags, 0u);
}

TEST(ButtonState, IsReportedInBits) {
    State state;
    const std::uint32_t reported[] = {0, 4, 8, 12};
    for (std::uint32_t other : {0u, 1u, 4u, 5u}) { // enabled and captured do not show
        state.flags = other;
        EXPECT_EQ(ReportedState(state), reported[0]);
        state.flags = other | 2;
        EXPECT_EQ(ReportedState(state), reported[1]);
        state.flags = other | 8;
        EXPECT_EQ(ReportedState(state), reported[2]);
        state.flags = other | 10;
        EXPECT_EQ(ReportedState(state), reported[3]);
    }
}

TEST(ButtonState, ColorSlotsHaveTheirNumbers) {
    const struct {
        std::int32_t slot;
        ColorCode Colors::*field;
    } slots[] = {{0, &Colors::highlight},
                 {1, &Colors::shadow},
                 {2, &Colors::face},
                 {4, &Colors::text},
                 {64, &Colors::swatch}};
    for (const auto& [slot, field] : slots) {
        Colors colors;
        SetColorSlot(colors, kColorSlots, slot, 0x00123456);
        for (const auto& other : slots) {
            EXPECT_EQ(colors.*other.field,
                      other.slot == slot ? ColorCode{0x00123456} : Colors{}.*other.field);
        }
    }
    for (const std::int32_t unknown : {-1, 3, 5, 8, 16, 63, 65}) {
        Colors colors;
        SetColorSlot(colors, kColorSlots, unknown, 0x00123456);
        for (const auto& other : slots) {
            EXPECT_EQ(colors.*other.field, Colors{}.*other.field) << unknown;
        }
    }
}

TEST(ButtonCaption, IsKeptUpTo255Characters) {
    State state;
    SetCaption(state, "Print");
    EXPECT_STREQ(state.caption.data(), "Print");
    SetCaption(state, std::string(300, 'x').c_str());
    EXPECT_EQ(state.caption.data(), std::string(255, 'x'));
    SetCaption(state, std::string(256, 'y').c_str());
    EXPECT_EQ(state.caption.data(), std::string(255, 'y'));
    SetCaption(state, std::string(255, 'z').c_str());
    EXPECT_EQ(state.caption.data(), std::string(255, 'z'));
    SetCaption(state, "No");
    EXPECT_STREQ(state.caption.data(), "No");
    EXPECT_EQ(CaptionLength(state), 2u);
    SetCaption(state, nullptr);
    EXPECT_STREQ(state.caption.data(), "");
}

// What is left of a buffer of '#' after the caption was copied to it.
std::string Copied(const State& state, std::size_t size, std::size_t result) {
    std::string buffer(12, '#');
    EXPECT_EQ(GetCaption(state, buffer.data(), size), result) << size;
    return buffer;
}

TEST(ButtonCaption, IsCopiedWithItsTerminatorBehindTheSize) {
    State state;
    SetCaption(state, "Cancel");
    using namespace std::string_literals;
    EXPECT_EQ(Copied(state, 0, 0), "\0###########"s);
    EXPECT_EQ(Copied(state, 1, 1), "C\0##########"s);
    EXPECT_EQ(Copied(state, 5, 5), "Cance\0######"s) << "six bytes for a size of five";
    EXPECT_EQ(Copied(state, 6, 6), "Cancel\0#####"s);
    EXPECT_EQ(Copied(state, 7, 6), "Cancel\0#####"s);
    EXPECT_EQ(Copied(state, 0xFFFFFFFF, 6), "Cancel\0#####"s);
    EXPECT_EQ(GetCaption(state, nullptr, 0), 0u);
    EXPECT_EQ(GetCaption(state, nullptr, 10), 0u);
}

TEST(ButtonCaption, OfFullLengthIsCopiedWhole) {
    State state;
    SetCaption(state, std::string(300, 'x').c_str());
    std::string buffer(300, '#');
    EXPECT_EQ(GetCaption(state, buffer.data(), 256), 255u);
    EXPECT_EQ(buffer, std::string(255, 'x') + '\0' + std::string(44, '#'));
}

TEST(ButtonStyle, DefaultBitChangesTheDialogCode) {
    EXPECT_EQ(DialogCode(0x0001), 0x2013u);
    EXPECT_EQ(DialogCode(0x0000), 0x2023u);
    EXPECT_EQ(DialogCode(0x5001460F), 0x2013u);
    EXPECT_EQ(DialogCode(0x5001460E), 0x2023u);
}

TEST(ButtonStyle, NewBitsReplaceRepeatToggleAndDefault) {
    EXPECT_EQ(StyleWithBits(0x5001, 0), 0x5000u);
    EXPECT_EQ(StyleWithBits(0x5000, 1), 0x5001u);
    EXPECT_EQ(StyleWithBits(0x50014605, 0), 0x50014004u);
    EXPECT_EQ(StyleWithBits(0x50014605, 1), 0x50014005u) << "the default look costs both";
    EXPECT_EQ(StyleWithBits(0x50014001, 0x0200), 0x50014200u);
    EXPECT_EQ(StyleWithBits(0x50014000, 0x0006), 0x50014006u) << "picture only can be added";
    EXPECT_EQ(StyleWithBits(0x0008, 0x88000000), 0x88000008u) << "any bit is added";
}

TEST(ButtonStyle, PictureOnlyKeepsItselfAndDefault) {
    EXPECT_EQ(StyleWithBits(0x50014607, 0x0200), 0x50014207u);
    EXPECT_EQ(StyleWithBits(0x50014607, 0), 0x50014007u);
    EXPECT_EQ(StyleWithBits(0x50014606, 1), 0x50014007u);
    EXPECT_EQ(StyleWithBits(0x50014605, 0x0200), 0x50014204u) << "not without the bit";
}

TEST(ButtonStyle, PictureAndSwatchTurnEachOtherOff) {
    EXPECT_EQ(StyleWithPicture(0x500A, true), 0x5006u);
    EXPECT_EQ(StyleWithPicture(0x500C, false), 0x5008u) << "off leaves the swatch";
    EXPECT_EQ(StyleWithPicture(0x5000, false), 0x5000u);
    EXPECT_EQ(StyleWithSwatch(0x5006, true), 0x500Au);
    EXPECT_EQ(StyleWithSwatch(0x500C, false), 0x5004u) << "off leaves the picture";
    EXPECT_EQ(StyleWithSwatch(0x5000, true), 0x5008u);
}

TEST(ButtonStyle, PictureOnlySelectsTheSmallStripAtCreation) {
    EXPECT_EQ(StripOfStyle(0x0004), 222);
    EXPECT_TRUE(HasHostAppPicture(0x0004));
    EXPECT_EQ(StripOfStyle(0x0006), 223);
    EXPECT_FALSE(HasHostAppPicture(0x0006));
    EXPECT_EQ(StripOfStyle(0x0002), 223);
    EXPECT_FALSE(HasHostAppPicture(0x0002));
}

} // namespace
} // namespace vorn::button
