#include "tests/windows/support/abuse.h"

#include "tests/windows/support/host_window.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <random>

namespace vorn::test {
namespace {

constexpr char kForeignClass[] = "VornTestForeign";
constexpr int kForeignExtra = 48;

constexpr UINT kPopUpSystemMenu = 0x0313; // the platform's own, which its headers leave unnamed
constexpr UINT kControlColor = 0x0019;

// Messages that carry addresses.
constexpr std::array kWithAddresses = {
    WM_CREATE,         WM_SETTEXT,      WM_GETTEXT,          WM_GETMINMAXINFO,
    WM_DRAWITEM,       WM_MEASUREITEM,  WM_DELETEITEM,       WM_COMPAREITEM,
    WM_COPYDATA,       WM_NOTIFY,       WM_WINDOWPOSCHANGED, WM_WINDOWPOSCHANGING,
    WM_HELP,           WM_STYLECHANGED, WM_STYLECHANGING,    WM_NCCREATE,
    WM_NCCALCSIZE,     WM_SIZING,       WM_MOVING,           WM_DEVICECHANGE,
    WM_MDICREATE,      WM_MDIGETACTIVE, WM_WININICHANGE,     WM_DEVMODECHANGE,
    WM_POWERBROADCAST, WM_NEXTMENU,     WM_GETDLGCODE,       WM_ASKCBFORMATNAME,
    WM_IME_CONTROL,    WM_IME_REQUEST,
};

// Messages that the default procedure answers with a modal loop.
constexpr std::array kModal = {UINT{WM_SYSCOMMAND}, UINT{WM_NCLBUTTONDOWN}, UINT{WM_NCRBUTTONDOWN},
                               kPopUpSystemMenu};

bool IsLeftOut(UINT message) {
    return std::find(kWithAddresses.begin(), kWithAddresses.end(), message) !=
               kWithAddresses.end() ||
           std::find(kModal.begin(), kModal.end(), message) != kModal.end();
}

// The handle of a device context is not a random one: where the system takes one for a metafile's,
// it follows it without a look.
bool CarriesContext(UINT message) {
    return message == WM_PAINT || message == WM_ERASEBKGND || message == WM_ICONERASEBKGND ||
           message == WM_PRINT || message == WM_PRINTCLIENT || message == kControlColor ||
           (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC);
}

} // namespace

HWND CreateForeignWindow() {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = DefWindowProcA;
    windowClass.cbWndExtra = kForeignExtra;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.lpszClassName = kForeignClass;
    RegisterClassA(&windowClass);
    HWND window = CreateWindowExA(0, kForeignClass, "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                  windowClass.hInstance, nullptr);
    for (int offset = 0; offset + 4 <= kForeignExtra; offset += 4) {
        SetWindowLongA(window, offset, 0x5A5A5A5A);
    }
    return window;
}

HWND DestroyedWindow() {
    HWND window = CreateForeignWindow();
    DestroyWindow(window);
    return window;
}

void ChooseRandomMessages(const std::function<void(UINT, WPARAM, LPARAM)>& send, std::uint32_t seed,
                          int count, const std::vector<UINT>& leftOut) {
    std::mt19937 random(seed);
    const std::array<LPARAM, 8> edges = {
        0, 1, -1, 100, 0x7FFFFFFF, static_cast<LONG>(0x80000000), 0x00050005, 0x7FFF7FFF};
    const auto edge = [&] { return edges[random() % edges.size()]; };
    const auto parameter = [&] {
        return random() % 2 == 0 ? edge() : static_cast<LPARAM>(static_cast<LONG>(random()));
    };
    for (int sent = 0; sent < count;) {
        const UINT message = random() % (WM_USER + 513);
        if (IsLeftOut(message) ||
            std::find(leftOut.begin(), leftOut.end(), message) != leftOut.end()) {
            continue;
        }
        const LPARAM first = CarriesContext(message) ? edge() : parameter();
        send(message, static_cast<WPARAM>(first), parameter());
        if (++sent % 1000 == 0) {
            PumpMessages();
        }
    }
}

void SendRandomMessagesTo(HWND window, std::uint32_t seed, int count,
                          const std::vector<UINT>& leftOut) {
    const auto send = [window](UINT message, WPARAM wParam, LPARAM lParam) {
        SendMessageA(window, message, wParam, lParam);
    };
    ChooseRandomMessages(send, seed, count, leftOut);
}

void SendRandomMessages(const std::function<HWND()>& create, std::uint32_t seed, int count,
                        const std::vector<UINT>& leftOut) {
    std::printf("random messages with seed %u\n", seed);
    HWND window = nullptr;
    const auto send = [&](UINT message, WPARAM wParam, LPARAM lParam) {
        if (!IsWindow(window)) {
            window = create();
            ASSERT_NE(window, nullptr) << "nothing to send messages to";
        }
        SendMessageA(window, message, wParam, lParam);
    };
    ChooseRandomMessages(send, seed, count, leftOut);
    if (IsWindow(window)) {
        DestroyWindow(window);
    }
}

} // namespace vorn::test
