#include "core/edit/edit_messages_win.h"

#include "core/edit/edit_border_win.h"
#include "core/edit/edit_caret_win.h"
#include "core/edit/edit_clipboard_win.h"
#include "core/text.h"
#include "core/window_win.h"

#include <algorithm>
#include <cstring>

namespace vorn::edit {
namespace {

// Arrows, characters and EM_SETSEL are the edit's, and a bit that hosts have always been given.
constexpr LRESULT kDialogCode = 0x8189;

struct ShownCopy {
    TextBuffer text;
    std::size_t length;

    ShownCopy(const EditKind& kind, const EditBody& body) {
        kind.writeText(body, text);
        length = std::strlen(text);
    }
};

LRESULT OnGetSelection(const TextCaret& caret, const EditMessage& message) {
    auto* start = reinterpret_cast<DWORD*>(message.wParam);
    auto* end = reinterpret_cast<DWORD*>(message.lParam);
    if (start != nullptr) {
        *start = caret.selectionStart;
    }
    if (end != nullptr) {
        *end = caret.selectionEnd;
    }
    return MAKELRESULT(caret.selectionStart, caret.selectionEnd);
}

void OnSetSelection(const EditKind& kind, EditBody& body, const EditMessage& message) {
    const ShownCopy shown(kind, body);
    SelectAsAsked(*body.caret, static_cast<std::uint32_t>(message.wParam),
                  static_cast<std::uint32_t>(message.lParam),
                  static_cast<std::int32_t>(shown.length));
    kind.followCaret(body);
    Repaint(message.window);
    PlaceCaret(kind, message.window, Told::No);
}

// Without a terminator, as the system's edit gives a line; its size stands in the buffer.
LRESULT OnGetLine(const EditKind& kind, const EditBody& body, void* buffer) {
    if (buffer == nullptr) {
        return 0;
    }
    WORD size = 0;
    std::memcpy(&size, buffer, sizeof size);
    const ShownCopy shown(kind, body);
    const std::size_t count = std::min<std::size_t>(size, shown.length);
    std::memcpy(buffer, shown.text, count);
    return static_cast<LRESULT>(count);
}

LRESULT OnSetReadOnly(const EditKind& kind, const EditMessage& message) {
    kind.bodyOf(message.window)->readOnly = message.wParam != 0;
    ChangeStyle(message.window, kStyleReadOnly, message.wParam != 0 ? kStyleReadOnly : 0);
    Redraw(message.window);
    return TRUE;
}

// Whether a change that a message asks for may be made; runs host code.
bool MayChangeByMessage(const EditKind& kind, HWND window) {
    const bool allowed = IsOkToChange(kind, window);
    if (!allowed && kind.beepsRefusedMessages) {
        MessageBeep(MB_ICONHAND);
    }
    return allowed;
}

// The same for what a user's menu sends.
bool MayEditByMessage(const EditKind& kind, HWND window) {
    if (!kind.bodyOf(window)->readOnly) {
        return MayChangeByMessage(kind, window);
    }
    if (kind.beepsRefusedMessages) {
        MessageBeep(MB_ICONHAND);
    }
    return false;
}

// An empty text clears the selection. As with the system's edit, a read-only one takes it.
void OnReplaceSelection(const EditKind& kind, const EditMessage& message) {
    const auto* text = reinterpret_cast<const char*>(message.lParam);
    const bool clears = text == nullptr || *text == '\0';
    if (clears && !HasSelection(*kind.bodyOf(message.window)->caret)) {
        return;
    }
    if (!MayChangeByMessage(kind, message.window)) {
        return;
    }
    EditBody& body = *kind.bodyOf(message.window);
    PerformEdit(kind, message.window,
                clears ? kind.clearSelection(body) : kind.takeText(body, text));
}

bool AnswerSelectionMessage(const EditKind& kind, EditBody& body, const EditMessage& message,
                            LRESULT& result) {
    result = 0;
    switch (message.message) {
    case EM_GETSEL:
        result = OnGetSelection(*body.caret, message);
        return true;
    case EM_SETSEL:
        OnSetSelection(kind, body, message);
        return true;
    case EM_REPLACESEL:
        OnReplaceSelection(kind, message);
        return true;
    case WM_COPY:
        CopyToClipboard(kind, message.window);
        return true;
    case WM_CUT:
        CutByMessage(kind, message.window);
        return true;
    case WM_PASTE:
        PasteByMessage(kind, message.window);
        return true;
    case WM_CLEAR:
        ClearByMessage(kind, message.window);
        return true;
    default:
        return false;
    }
}

bool AnswerTextMessage(const EditKind& kind, EditBody& body, const EditMessage& message,
                       LRESULT& result) {
    result = 0;
    switch (message.message) {
    case WM_GETTEXT:
        result = static_cast<LRESULT>(CopyOut(reinterpret_cast<char*>(message.lParam),
                                              message.wParam, ShownCopy(kind, body).text));
        return true;
    case WM_GETTEXTLENGTH:
    case EM_LINELENGTH:
        result = static_cast<LRESULT>(ShownCopy(kind, body).length);
        return true;
    case EM_GETLINE:
        result = OnGetLine(kind, body, reinterpret_cast<void*>(message.lParam));
        return true;
    case EM_GETLINECOUNT:
        result = 1;
        return true;
    case EM_GETMODIFY:
        result = *body.modified;
        return true;
    case EM_SETMODIFY:
        *body.modified = static_cast<std::int32_t>(message.wParam);
        return true;
    case EM_GETRECT:
        if (message.lParam != 0) {
            *reinterpret_cast<RECT*>(message.lParam) =
                ToPlatform(TextAreaOf(message.window, body, kind));
        }
        return true;
    case EM_SETREADONLY:
        result = OnSetReadOnly(kind, message);
        return true;
    default:
        return AnswerSelectionMessage(kind, body, message, result);
    }
}

// The mouse, but for presses.
bool AnswerMouseMessage(const EditKind& kind, const EditMessage& message, LRESULT& result) {
    result = 0;
    switch (message.message) {
    case WM_MOUSEMOVE:
        ShowCursorAt(kind, message.window, PointOf(message.lParam));
        return true;
    case WM_LBUTTONUP:
        EndPress(kind, message.window);
        return true;
    case WM_CAPTURECHANGED:
        if (NewCaptureOwner(message.window, message.lParam) != CaptureOwner::Self) {
            EndPress(kind, message.window);
        }
        return true;
    default:
        return false;
    }
}

LRESULT OnEnable(EditBody& body, const EditMessage& message) {
    body.disabled = message.wParam == 0;
    Redraw(message.window);
    return 0;
}

LRESULT OnSize(const EditKind& kind, HWND window) {
    InvalidateRect(window, nullptr, FALSE);
    PlaceCaret(kind, window, Told::No);
    return 0;
}

LRESULT FontAnswer(const EditBody& body) {
    return body.font == OrSystemFont(nullptr) ? 0 : reinterpret_cast<LRESULT>(body.font);
}

} // namespace

bool AnswerEditMessage(const EditKind& kind, const EditMessage& message, LRESULT& result) {
    EditBody* body = kind.bodyOf(message.window);
    if (body == nullptr) {
        return false;
    }
    result = 0;
    switch (message.message) {
    case WM_NCCALCSIZE:
        ShrinkToClient(*body, message.lParam);
        return true;
    case WM_NCPAINT:
        PaintBorder(message.window, *body);
        return true;
    case WM_ERASEBKGND:
        result = 1; // every paint covers all of it
        return true;
    case WM_SIZE:
        result = OnSize(kind, message.window);
        return true;
    case WM_SETFOCUS:
        GainFocus(kind, message.window);
        return true;
    case WM_KILLFOCUS:
        LoseFocus(kind, message.window);
        return true;
    case WM_ENABLE:
        result = OnEnable(*body, message);
        return true;
    case WM_SETFONT:
        SetEditFont(kind, message.window, reinterpret_cast<HFONT>(message.wParam),
                    message.lParam != 0);
        return true;
    case WM_GETFONT:
        result = FontAnswer(*body);
        return true;
    case WM_GETDLGCODE:
        result = kDialogCode;
        return true;
    default:
        return AnswerMouseMessage(kind, message, result) ||
               AnswerTextMessage(kind, *body, message, result);
    }
}

void ClearByMessage(const EditKind& kind, HWND window) {
    const EditBody* body = kind.bodyOf(window);
    if (body != nullptr && HasSelection(*body->caret) && MayEditByMessage(kind, window)) {
        PerformEdit(kind, window, kind.clearSelection(*kind.bodyOf(window)));
    }
}

void CutByMessage(const EditKind& kind, HWND window) {
    const EditBody* body = kind.bodyOf(window);
    if (body != nullptr && HasSelection(*body->caret) && CopyToClipboard(kind, window)) {
        ClearByMessage(kind, window);
    }
}

void PasteByMessage(const EditKind& kind, HWND window) {
    if (kind.bodyOf(window) != nullptr && MayEditByMessage(kind, window)) {
        PasteFromClipboard(kind, window);
    }
}

} // namespace vorn::edit
