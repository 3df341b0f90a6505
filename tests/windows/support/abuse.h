// What every control must bear.
#pragma once

#include <windows.h>
#include <cstdint>
#include <functional>
#include <vector>

namespace vorn::test {

// A window that is none of the library's: of a class of its own with extra bytes full of
// nonsense that would be taken for a record.
HWND CreateForeignWindow();

// A handle of a window that is gone.
HWND DestroyedWindow();

// Sends this many random messages from WM_NULL to WM_USER + 512 with random parameters to the
// window, which is created again when it is gone. Messages whose parameters are addresses and those
// that begin a modal loop are left out, those of the control's own as the caller tells. The seed is
// printed.
void SendRandomMessages(const std::function<HWND()>& create, std::uint32_t seed, int count,
                        const std::vector<UINT>& leftOut = {});

// The same messages to one window, which may go meanwhile, and to whatever takes them.
void SendRandomMessagesTo(HWND window, std::uint32_t seed, int count,
                          const std::vector<UINT>& leftOut = {});
void ChooseRandomMessages(const std::function<void(UINT, WPARAM, LPARAM)>& send, std::uint32_t seed,
                          int count, const std::vector<UINT>& leftOut = {});

} // namespace vorn::test
