// The numeric edit's window procedure.
#include "numeric/numedit_win.h"

#include "core/edit/edit_caret_win.h"
#include "core/edit/edit_messages_win.h"
#include "core/edit/edit_slices_win.h"
#include "core/profile_win.h"
#include "core/text.h"
#include "core/window_win.h"
#include "numeric/number_clipboard.h"
#include "numeric/number_format.h"
#include "numeric/numedit_input_win.h"
#include "numeric/numedit_messages_win.h"

#include <vorn32/numedit.h>

namespace vorn::numeric {
namespace {

constexpr WORD kSpinPicture = 700;

// What a change of the system's edit answers.
static_assert(VNMM_OKTOCHANGE == edit::kAskOkToChange && VNMM_CHANGED == edit::kTellChanged);
static_assert(VNMS_DIGITS == edit::kStyleDigits && VNMS_CELLS == edit::kStyleCells &&
              VNMS_READONLY == edit::kStyleReadOnly && VNMS_NUMBER == kNumberDisplayBit &&
              (VNMS_DIGITS | VNMS_CELLS) == kBitmapDisplayBits);
static_assert(VNMN_TEXTCUT == kTextCut && kNumberTextSize == edit::kShownTextSize);

constexpr std::uint32_t kNumberDisplay = 1;

void WriteText(const edit::EditBody& body, edit::TextBuffer& buffer) {
    CopyText(buffer, edit::RecordIn<Record>(body).entry.text);
}

// The text is formatted for as long as it is not edited.
void WriteShown(const edit::EditBody& body, edit::TextBuffer& buffer) {
    const NumberEntry& entry = edit::RecordIn<Record>(body).entry;
    if (body.focused && entry.settings.isNull == 0) {
        CopyText(buffer, entry.text);
        return;
    }
    char text[kNumberTextSize];
    CopyText(text, entry.text);
    FormatNumber(entry.settings, text, 0, buffer);
}

void WriteCopied(const edit::EditBody& body, edit::TextBuffer& buffer) {
    CopyNumberText(buffer, edit::RecordIn<Record>(body).entry);
}

bool IsNull(const edit::EditBody& body) {
    return edit::RecordIn<Record>(body).entry.settings.isNull != 0;
}

void KeepCaret(edit::EditBody& body) {
    KeepCaretInText(edit::RecordIn<Record>(body).entry);
}

edit::Actions ClearSelected(edit::EditBody& body) {
    edit::Actions actions;
    ClearSelection(actions, edit::RecordIn<Record>(body).entry);
    return actions;
}

edit::Actions TakeText(edit::EditBody& body, const char* text) {
    edit::Actions actions;
    PasteText(actions, edit::RecordIn<Record>(body).entry, text);
    return actions;
}

std::uint32_t AlignmentOf(DWORD style) {
    const DWORD bits = style & (VNMS_CENTER | VNMS_RIGHT);
    return bits == VNMS_CENTER || bits == VNMS_RIGHT ? bits : 0;
}

LRESULT OnCreate(HWND window, WPARAM wParam, LPARAM lParam) {
    if (DefWindowProcA(window, WM_NCCREATE, wParam, lParam) == 0) {
        return 0;
    }
    Record* record = AttachRecord<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    const DWORD style = StyleOf(window);
    record->caret = &record->entry.caret;
    record->modified = &record->entry.modified;
    record->rightPartShown = (style & VNMS_SPIN) != 0;
    record->alignment = AlignmentOf(style);
    InitEdit(*record, style, kNumberKind);
    const bool asNumber = record->displayStyle == 0 && (style & VNMS_NUMBER) != 0;
    TakeNumberDisplay(*record, asNumber ? kNumberDisplay : record->displayStyle);
    LoadSpinPicture(*record);
    LoadRegionalSettings(record->entry.settings, kUserProfile);
    // A template may name an ordinal in place of a text.
    const auto* create = reinterpret_cast<const CREATESTRUCTA*>(lParam);
    const char* text =
        create == nullptr || IS_INTRESOURCE(create->lpszName) ? nullptr : create->lpszName;
    StoreCreationText(record->entry, text);
    return 1;
}

void OnDestroy(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    ReleaseEdit(*record);
    DeleteObject(record->spinPicture);
    DetachRecord<Record>(window);
}

LRESULT OnSetText(HWND window, const char* text) {
    if (RecordOf<Record>(window) == nullptr || !IsOkToChange(kNumberKind, window)) {
        return FALSE;
    }
    PerformEdit(kNumberKind, window, SetText(RecordOf<Record>(window)->entry, text));
    return TRUE;
}

// Unlike other edits, this one grows only in height, and no more than the font needs.
LRESULT OnSetFont(HWND window, HFONT font, bool redraw) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    TakeFont(*record, font);
    const std::int32_t missing = record->figures.height - Height(ClientRect(window));
    if (missing > 0) {
        RECT rect{};
        GetWindowRect(window, &rect);
        SetWindowPos(window, nullptr, 0, 0, rect.right - rect.left,
                     rect.bottom - rect.top + missing, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (redraw) {
        Redraw(window);
    }
    RenewCaret(kNumberKind, window);
    return 0;
}

LRESULT OnSettingsChanged(HWND window, const char* section) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr &&
        ReloadRegionalSettings(record->entry.settings, kUserProfile, section) != 0) {
        KeepPoint(record->entry);
        Redraw(window);
        PlaceCaret(kNumberKind, window, edit::Told::No);
    }
    return 0;
}

LRESULT OnSystemColors(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        LoadSpinPicture(*record);
        Redraw(window);
    }
    return 0;
}

// Messages of the system's edit that not all edits have.
bool AnswerNumberMessage(HWND window, UINT message, WPARAM wParam, LRESULT& result) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return false;
    }
    result = 0;
    switch (message) {
    case EM_LIMITTEXT:
        SetTextLimit(record->entry, static_cast<std::uint32_t>(wParam));
        return true;
    case EM_GETFIRSTVISIBLELINE:
        result = record->entry.caret.firstVisible;
        return true;
    default:
        return false;
    }
}

// Input; answers false for what is to be passed on.
bool AnswerInput(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        OnPress(window, wParam, lParam);
        return true;
    case WM_MOUSEMOVE:
        OnDrag(window, lParam);
        return false;
    case WM_LBUTTONUP:
        EndSpin(window);
        return false;
    case WM_CAPTURECHANGED:
        if (NewCaptureOwner(window, lParam) != CaptureOwner::Self) {
            EndSpin(window);
        }
        return false;
    case WM_TIMER:
        return !OnTimer(window, wParam);
    case WM_KEYDOWN:
        return !OnKeyDown(window, wParam);
    case WM_CHAR:
        return !OnCharacter(window, wParam);
    default:
        return false;
    }
}

} // namespace

constinit const edit::EditKind kNumberKind = {
    .bodyOf = edit::BodyOf<Record>,
    .writeText = WriteText,
    .isNull = IsNull,
    .enterFocus = KeepCaret,
    .leaveFocus = KeepCaret,
    .followCaret = KeepCaret,
    .clearSelection = ClearSelected,
    .takeText = TakeText,
    .paintRightPart = PaintSpinButtons,
    .compactness = {1, kSpinEighths},
    .borderBits = {{{VNMS_LINE, kBorderLine},
                    {VNMS_RAISED, kBorderRaised},
                    {VNMS_SUNKEN, kBorderSunken}}},
    .writeShown = WriteShown,
    .writeCopied = WriteCopied,
    .cell = {12, 22},
    .tellsScrolling = false,
    .growsSameBorder = false,
    .tellsFocusLossFirst = false,
    .beepsRefusedMessages = true,
};

void TakeNumberDisplay(Record& record, std::uint32_t displayStyle) {
    record.displayStyle = displayStyle;
    record.entry.settings.displayStyle = static_cast<std::uint16_t>(displayStyle);
}

void LoadSpinPicture(Record& record) {
    DeleteObject(record.spinPicture);
    record.spinPicture = edit::LoadButtonPicture(kSpinPicture);
}

} // namespace vorn::numeric

using namespace vorn;
using namespace vorn::numeric;

extern "C" LRESULT CALLBACK VORNNumEditWinFn(HWND window, UINT message, WPARAM wParam,
                                             LPARAM lParam) {
    switch (message) {
    case WM_NCCREATE:
        return OnCreate(window, wParam, lParam);
    case WM_CREATE:
        return DefWindowProcA(window, message, wParam, lParam) != 0 ? -1 : 0;
    case WM_NCDESTROY:
        OnDestroy(window);
        return DefWindowProcA(window, message, wParam, lParam);
    case WM_PAINT:
        return PaintWindow<Record>(window, Draw);
    case WM_SETTEXT:
        return OnSetText(window, reinterpret_cast<const char*>(lParam));
    case WM_SETFONT:
        return OnSetFont(window, reinterpret_cast<HFONT>(wParam), lParam != 0);
    case WM_WININICHANGE:
        return OnSettingsChanged(window, reinterpret_cast<const char*>(lParam));
    case WM_SYSCOLORCHANGE:
        return OnSystemColors(window);
    default:
        break;
    }
    LRESULT result = 0;
    if (AnswerInput(window, message, wParam, lParam) ||
        AnswerNumberMessage(window, message, wParam, result) ||
        AnswerEditMessage(kNumberKind, {window, message, wParam, lParam}, result) ||
        AnswerOwnMessage(window, message, wParam, lParam, result)) {
        return result;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}
