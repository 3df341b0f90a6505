// The messages that go with the numeric edit's exported functions.
#pragma once

#include "core/platform_win.h"

namespace vorn::numeric {

// Answers such a message; false for any other. Host code may run.
bool AnswerOwnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);

} // namespace vorn::numeric
