#include "core/edit/edit_caret_win.h"

#include "core/edit/edit_clipboard_win.h"
#include "core/window_win.h"

namespace vorn::edit {
namespace {

void RepaintRect(HWND window, const RECT* rect) {
    InvalidateRect(window, rect, FALSE);
    UpdateWindow(window);
}

void NotifyLeftScroll(HWND window) {
    const WPARAM id = MAKEWPARAM(GetDlgCtrlID(window), 0);
    const auto half = static_cast<WORD>(reinterpret_cast<UINT_PTR>(window));
    SendMessageA(GetParent(window), WM_COMMAND, id, MAKELPARAM(half, kHScroll));
}

void MakeCaret(HWND window, EditBody& body) {
    CreateCaret(window, nullptr, kCaretWidth, TextHeightOf(body.displayStyle, body.figures));
    body.caretHidden = false;
}

// A host may have given the focus, and with it the caret, to another window.
bool OwnsCaret(HWND window) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(GetCurrentThreadId(), &info) != 0 && info.hwndCaret == window;
}

void ShowCaretAgain(HWND window, EditBody& body) {
    if (body.caretHidden) {
        body.caretHidden = false;
        ShowCaret(window);
    }
}

// A repaint that follows shows it.
void ScrollText(const EditKind& kind, HWND window) {
    EditBody* body = kind.bodyOf(window);
    if (body != nullptr && body->focused) {
        ScrollToCaret(*body->caret, ShownEdit(kind, *body).shown(),
                      TextAreaOf(window, *body, kind).right);
    }
}

} // namespace

void PlaceCaret(const EditKind& kind, HWND window, Told told) {
    EditBody* body = kind.bodyOf(window);
    if (body == nullptr || !body->focused) {
        return;
    }
    const Rect area = TextAreaOf(window, *body, kind);
    const ShownEdit edit(kind, *body);
    const bool scrolled = ScrollToCaret(*body->caret, edit.shown(), area.right);
    const bool beyond = IsCaretBeyond(*body->caret, edit.shown(), area.right);
    SetCaretPos(CaretX(*body->caret, edit.shown()),
                TextTop(area, TextHeightOf(body->displayStyle, body->figures)));
    if (scrolled) {
        RepaintText(kind, window);
    }
    if (!kind.tellsScrolling) {
        return;
    }
    if (told == Told::Yes && scrolled && kind.bodyOf(window) != nullptr) {
        NotifyParent(window, kHScroll);
    }
    if (told == Told::Yes && beyond && kind.bodyOf(window) != nullptr) {
        NotifyParent(window, kMaxText);
    }
}

void RenewCaret(const EditKind& kind, HWND window) {
    EditBody* body = kind.bodyOf(window);
    if (body == nullptr || !body->focused) {
        return;
    }
    const bool hidden = body->caretHidden;
    MakeCaret(window, *body);
    body->caretHidden = hidden;
    if (!hidden) {
        ShowCaret(window);
    }
    PlaceCaret(kind, window, Told::No);
}

void Repaint(HWND window) {
    RepaintRect(window, nullptr);
}

void RepaintText(const EditKind& kind, HWND window) {
    const EditBody* body = kind.bodyOf(window);
    if (body != nullptr) {
        const RECT area = ToPlatform(TextAreaOf(window, *body, kind));
        RepaintRect(window, &area);
    }
}

void GainFocus(const EditKind& kind, HWND window) {
    EditBody* body = kind.bodyOf(window);
    if (body == nullptr) {
        return;
    }
    body->focused = true;
    kind.enterFocus(*body);
    MakeCaret(window, *body);
    PlaceCaret(kind, window, Told::No);
    ShowCaret(window);
    Redraw(window);
    if (kind.bodyOf(window) != nullptr) {
        NotifyParent(window, kSetFocus);
    }
}

void LoseFocus(const EditKind& kind, HWND window) {
    EditBody* body = kind.bodyOf(window);
    if (body == nullptr) {
        return;
    }
    body->focused = false;
    kind.leaveFocus(*body);
    if (kind.tellsFocusLossFirst) {
        NotifyParent(window, kKillFocus);
    }
    body = kind.bodyOf(window);
    // A host may have given the focus back.
    if (body != nullptr && !body->focused) {
        if (OwnsCaret(window)) {
            DestroyCaret();
        }
        body->caretHidden = false;
        Redraw(window);
    }
    if (!kind.tellsFocusLossFirst && kind.bodyOf(window) != nullptr) {
        NotifyParent(window, kKillFocus);
    }
}

void BeginPress(const EditKind& kind, HWND window) {
    SetCapture(window);
    EditBody* body = kind.bodyOf(window);
    if (body == nullptr) {
        return;
    }
    body->captured = true;
    if (body->focused && !body->caretHidden) {
        body->caretHidden = true;
        HideCaret(window);
    }
}

void EndPress(const EditKind& kind, HWND window) {
    EditBody* body = kind.bodyOf(window);
    if (body == nullptr || !body->captured) {
        return;
    }
    body->captured = false;
    ShowCaretAgain(window, *body);
    if (GetCapture() == window) {
        ReleaseCapture();
    }
}

std::uint16_t IndexAt(const EditKind& kind, EditBody& body, std::int32_t x) {
    const ShownEdit edit(kind, body);
    return CaretFromX(*body.caret, edit.shown(), x);
}

void ShowCursorAt(const EditKind& kind, HWND window, Point point) {
    const EditBody* body = kind.bodyOf(window);
    if (body != nullptr) {
        const bool overButton = Contains(RightPartOf(window, *body, kind), point);
        SetCursor(LoadCursorA(nullptr, body->readOnly || overButton ? IDC_ARROW : IDC_IBEAM));
    }
}

bool IsOkToChange(const EditKind& kind, HWND window) {
    return SendMessageA(window, kAskOkToChange, 0, 0) != 0 && kind.bodyOf(window) != nullptr;
}

bool PerformEdit(const EditKind& kind, HWND window, const Actions& actions) {
    bool passOn = false;
    for (const Action& action : actions) {
        if (kind.bodyOf(window) == nullptr) {
            return false;
        }
        switch (action.kind) {
        case ActionKind::Beep:
            MessageBeep(MB_ICONHAND);
            break;
        case ActionKind::Notify:
            NotifyParent(window, static_cast<WORD>(action.code));
            break;
        case ActionKind::NotifyLeftScroll:
            NotifyLeftScroll(window);
            break;
        case ActionKind::SendChanged:
            SendMessageA(window, kTellChanged, 0, 0);
            break;
        case ActionKind::PostChanged:
            PostMessageA(window, kTellChanged, 0, 0);
            break;
        case ActionKind::Repaint:
            Repaint(window);
            break;
        case ActionKind::RepaintText:
            RepaintText(kind, window);
            break;
        case ActionKind::Scroll:
            ScrollText(kind, window);
            break;
        case ActionKind::PlaceCaret:
            PlaceCaret(kind, window, Told::Yes);
            break;
        case ActionKind::PassOn:
            passOn = true;
            break;
        case ActionKind::Copy:
            CopyToClipboard(kind, window);
            break;
        case ActionKind::Cut:
            CutToClipboard(kind, window);
            break;
        case ActionKind::Paste:
            PasteFromClipboard(kind, window);
            break;
        }
    }
    return passOn;
}

} // namespace vorn::edit
