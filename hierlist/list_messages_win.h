// The messages by which hosts drive an outline list: its own and those of a list box.
#pragma once

#include "core/platform_win.h"

namespace vorn::hierlist {

// Both answer a message as its function does; false for any other message. Host code may run.
bool AnswerOwnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
bool AnswerListBoxMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);

} // namespace vorn::hierlist
