// What the keys do.
#pragma once

#include "hierlist/select_at.h"

namespace vorn::hierlist {

// Virtual key codes.
constexpr std::uint32_t kKeyTab = 9;
constexpr std::uint32_t kKeySpace = 32;
constexpr std::uint32_t kKeyPageUp = 33;
constexpr std::uint32_t kKeyPageDown = 34;
constexpr std::uint32_t kKeyEnd = 35;
constexpr std::uint32_t kKeyHome = 36;
constexpr std::uint32_t kKeyLeft = 37;
constexpr std::uint32_t kKeyUp = 38;
constexpr std::uint32_t kKeyRight = 39;
constexpr std::uint32_t kKeyDown = 40;
constexpr std::uint32_t kKeyAdd = 107;
constexpr std::uint32_t kKeyPlus = 187;

// Whether a key is the list's at all; of no other one the parent is asked either.
constexpr bool IsListKey(std::uint32_t key) {
    return key >= kKeyTab && key <= kKeyPlus;
}

// The parent's answer to WM_VKEYTOITEM and WM_CHARTOITEM when the key or character is done with;
// others are rows, or below 0 none.
constexpr std::int32_t kAnswerHandled = -2;

// What the list does about an answer before it goes on with the key or character: a row becomes the
// caret's.
Actions TakeAnswer(Outline& outline, Input& input, std::int32_t answer);

// WM_KEYDOWN. Apart from Tab no key does anything in an empty list.
Actions KeyDown(Outline& outline, Input& input, const View& view, std::uint32_t key,
                std::uint32_t modifiers);

// What follows the scrolling of Page Up and Page Down; the top rows before and after it.
Actions Paged(Outline& outline, Input& input, std::uint32_t key, std::uint32_t modifiers,
              std::uint32_t topBefore, std::uint32_t topNow);

} // namespace vorn::hierlist
