// Spin pads: one that moves a piece over a board, one that sets two numbers, a disabled one.
#include "page.h"

#include <algorithm>
#include <string>

namespace gallery {
namespace {

enum Id { kMover = 100, kPiece, kPlace, kTuner, kNumbers, kIdle };

constexpr RECT kBoard = {180, 30, 580, 290};
constexpr int kPieceSide = 20;
constexpr int kStep = 4;

int volume = 50;
int balance = 0;

void ShowPlace(HWND page, const RECT& piece) {
    const std::string text = "The piece is at " + std::to_string(piece.left - kBoard.left) + ", " +
                             std::to_string(piece.top - kBoard.top);
    SetDlgItemTextA(page, kPlace, text.c_str());
}

void ShowNumbers(HWND page) {
    const std::string text =
        "Volume " + std::to_string(volume) + ", balance " + std::to_string(balance);
    SetDlgItemTextA(page, kNumbers, text.c_str());
}

void Create(HWND page) {
    AddLabel(page, "Hold a part of the pad,", 20, 30, 150);
    AddLabel(page, "slide to another:", 20, 46, 150);
    Add(page, VORN_UDLR_CLASS, "", 0, {60, 80, 89, 109}, kMover);
    Add(page, "STATIC", "", SS_ETCHEDFRAME, kBoard);
    Add(page, "STATIC", "", SS_BLACKRECT, {370, 150, 370 + kPieceSide, 150 + kPieceSide}, kPiece);
    Add(page, "STATIC", "", SS_LEFT, {180, 296, 580, 312}, kPlace);
    ShowPlace(page, {370, 150, 0, 0});

    AddLabel(page, "With a border:", 20, 345, 150);
    Add(page, VORN_UDLR_CLASS, "", WS_BORDER, {180, 337, 211, 368}, kTuner);
    Add(page, "STATIC", "", SS_LEFT, {230, 345, 580, 361}, kNumbers);
    ShowNumbers(page);

    AddLabel(page, "Disabled:", 20, 395, 150);
    Add(page, VORN_UDLR_CLASS, "", WS_DISABLED, {180, 387, 209, 416}, kIdle);
}

void MovePiece(HWND page, int right, int down) {
    HWND piece = GetDlgItem(page, kPiece);
    RECT place{};
    GetWindowRect(piece, &place);
    MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&place), 2);
    place.left = std::clamp<LONG>(place.left + right * kStep, kBoard.left + 2,
                                  kBoard.right - kPieceSide - 2);
    place.top =
        std::clamp<LONG>(place.top + down * kStep, kBoard.top + 2, kBoard.bottom - kPieceSide - 2);
    SetWindowPos(piece, HWND_TOP, place.left, place.top, 0, 0, SWP_NOSIZE);
    ShowPlace(page, place);
}

void Command(HWND page, int id, int code, HWND /*control*/) {
    const int right = (code == VUDN_RIGHT) - (code == VUDN_LEFT);
    const int down = (code == VUDN_DOWN) - (code == VUDN_UP);
    if (id == kMover) {
        MovePiece(page, right, down);
    } else if (id == kTuner) {
        volume = std::clamp(volume - down, 0, 100);
        balance = std::clamp(balance + right, -50, 50);
        ShowNumbers(page);
    }
}

} // namespace

extern const Page kUdlrPage = {"udlr", "Spin pad", Create, Command, nullptr};

} // namespace gallery
