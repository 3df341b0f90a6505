// What the pages of the three edits share.
#pragma once

#include "page.h"

namespace gallery {

// Two columns of edits, with their labels on the left.
constexpr int kLeft = 150;
constexpr int kSecondLeft = 470;
constexpr int kWidth = 130;
constexpr int kHeight = 24;

// A line at the lower edge that tells what an edit has said last.
void AddEventLine(HWND page, int id);

// The name of an edit's notification.
const char* NameOfEditCode(int code);

// The colours of a display of digits.
constexpr COLORREF kDisplayFace = RGB(0, 32, 0);
constexpr COLORREF kDisplayText = RGB(64, 255, 64);

} // namespace gallery
