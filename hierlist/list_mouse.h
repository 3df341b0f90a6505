// What the mouse does: presses, double clicks, drags and the timer that carries a drag on outside.
#pragma once

#include "hierlist/select_at.h"

namespace vorn::hierlist {

struct PressEvent {
    Point point{};              // in client coordinates
    std::uint32_t row = kNoRow; // that the point is on
    std::uint32_t modifiers = 0;
    bool isDouble = false;
    bool isOnBox = false; // whether the point is on the row's open/close box
};

// The left button goes down; the list has taken the focus before. The row is selected, and its item
// opened or closed by a double click or by a click on its box.
Actions Press(Outline& outline, Input& input, const PressEvent& event);

// Opens or closes the item that was pressed, if it has children and is not locked. Runs host code.
void TogglePressed(Outline& outline, const Input& input);

// The pointer moves to a point, on a row or none. Only a move that takes a drag to another row does
// anything: in single selection the row is selected, in extended selection the range from the
// anchor is extended to it, in multiple selection it becomes the caret's.
Actions Move(Outline& outline, Input& input, Point point, std::uint32_t row);

Actions Release(Input& input);

// The capture has gone to somebody.
Actions CaptureChanged(Input& input, CaptureOwner owner);

// A timer ticks. While the pointer is above the client area a drag goes to the row above the top
// row, while it is below to the bottom row and from there on; beside the columns of a list that has
// several, left is above and right is below.
Actions Tick(Outline& outline, Input& input, const View& view, std::uint32_t timer, Point pointer,
             const Rect& client);

} // namespace vorn::hierlist
