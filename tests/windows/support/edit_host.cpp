#include "tests/windows/support/edit_host.h"

#include "tests/windows/support/input.h"

#include <cstdio>
#include <cstring>

namespace vorn::test {
namespace {

constexpr UINT kAsk = 1183;
constexpr UINT kChanged = 1424;
constexpr char kHostProperty[] = "VornTestEditHost";
constexpr char kProcedureProperty[] = "VornTestEditProcedure";
constexpr char kMissing[] = "\x01";
constexpr char kSection[] = "intl";

std::string NameOf(WPARAM wParam) {
    switch (HIWORD(wParam)) {
    case EN_SETFOCUS:
        return "EN_SETFOCUS";
    case EN_KILLFOCUS:
        return "EN_KILLFOCUS";
    case EN_CHANGE:
        return "EN_CHANGE";
    case EN_UPDATE:
        return "EN_UPDATE";
    case EN_MAXTEXT:
        return "EN_MAXTEXT";
    case EN_HSCROLL:
        return "EN_HSCROLL";
    default:
        return "code " + std::to_string(HIWORD(wParam));
    }
}

void PressWith(WORD modifier, WORD key) {
    StrikeKey(key, modifier);
    PumpMessages();
}

} // namespace

EditHost::EditHost() {
    host.answer = [this](const Message& message) -> std::optional<LRESULT> {
        if (message.message != WM_COMMAND) {
            return std::nullopt;
        }
        const auto edit = reinterpret_cast<HWND>(message.lParam);
        if (IsWindow(edit)) {
            Note(edit, NameOf(message.wParam) +
                           (LOWORD(message.wParam) == GetDlgCtrlID(edit) ? "" : " of another"));
        } else {
            char text[64];
            std::snprintf(text, sizeof text, "%u %u %u %u", LOWORD(message.wParam),
                          HIWORD(message.wParam), LOWORD(message.lParam), HIWORD(message.lParam));
            Note(nullptr, text);
        }
        return 0;
    };
}

EditHost::~EditHost() {
    onEvent = nullptr;
    if (IsWindow(host.window())) {
        DestroyWindow(host.window());
    }
}

void EditHost::Note(HWND edit, const std::string& event) {
    events.push_back(event);
    if (onEvent) {
        const auto act = onEvent;
        act(edit, event);
    }
}

LRESULT CALLBACK EditHost::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = static_cast<EditHost*>(GetPropA(window, kHostProperty));
    const auto procedure = reinterpret_cast<WNDPROC>(GetPropA(window, kProcedureProperty));
    if (message == WM_NCDESTROY) {
        RemovePropA(window, kHostProperty);
        RemovePropA(window, kProcedureProperty);
    } else if (message == kAsk) {
        self->Note(window, "ask");
        return self->allowed;
    } else if (message == kChanged) {
        self->Note(window, "changed");
    } else if (message == WM_PAINT && self->notesPaints) {
        self->Note(window, "paint");
    }
    return CallWindowProcA(procedure, window, message, wParam, lParam);
}

HWND EditHost::CreateEdit(const char* className, DWORD style, int width, int height) {
    HWND edit = host.Create(className, style, 10, 10, width, height);
    if (edit != nullptr) {
        Watch(edit);
    }
    PumpMessages();
    return edit;
}

void EditHost::Watch(HWND edit) {
    SetPropA(edit, kHostProperty, this);
    SetPropA(edit, kProcedureProperty,
             reinterpret_cast<HANDLE>(GetWindowLongPtrA(edit, GWLP_WNDPROC)));
    SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
}

Events EditHost::TakeEvents() {
    PumpMessages();
    Events taken;
    taken.swap(events);
    return taken;
}

std::string EditHost::TextOf(HWND edit) {
    char text[64] = "";
    GetWindowTextA(edit, text, sizeof text);
    return text;
}

std::string EditHost::SelectionOf(HWND edit) {
    DWORD start = 99;
    DWORD end = 99;
    SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return std::to_string(start) + "-" + std::to_string(end);
}

POINT EditHost::CaretAt(HWND edit) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    return info.hwndCaret == edit ? POINT{info.rcCaret.left, info.rcCaret.top} : POINT{-1, -1};
}

SIZE EditHost::CaretSize(HWND edit) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    return info.hwndCaret == edit ? SIZE{info.rcCaret.right - info.rcCaret.left,
                                         info.rcCaret.bottom - info.rcCaret.top}
                                  : SIZE{-1, -1};
}

void EditHost::SetClipboard(const std::string& text) {
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    std::memcpy(GlobalLock(block), text.c_str(), text.size() + 1);
    GlobalUnlock(block);
    SetClipboardData(CF_TEXT, block);
    CloseClipboard();
}

std::string EditHost::ClipboardText() {
    EXPECT_TRUE(OpenClipboard(nullptr));
    HGLOBAL block = GetClipboardData(CF_TEXT);
    std::string text = block == nullptr ? "none" : static_cast<const char*>(GlobalLock(block));
    if (block != nullptr) {
        GlobalUnlock(block);
    }
    CloseClipboard();
    return text;
}

void EditHost::PressKey(WORD key) {
    PressWith(0, key);
}

void EditHost::PressShifted(WORD key) {
    PressWith(VK_SHIFT, key);
}

void EditHost::PressControlled(WORD key) {
    PressWith(VK_CONTROL, key);
}

void EditHost::Type(const char* digits) {
    for (; *digits != '\0'; ++digits) {
        PressKey(static_cast<WORD>(*digits));
    }
}

ChangedProfile::ChangedProfile(const char* key, const char* text) : key_(key) {
    char old[64] = "";
    GetProfileStringA(kSection, key, kMissing, old, sizeof old);
    old_ = old;
    existed_ = old_ != kMissing;
    WriteProfileStringA(kSection, key, text);
}

ChangedProfile::~ChangedProfile() {
    WriteProfileStringA(kSection, key_.c_str(), existed_ ? old_.c_str() : nullptr);
}

} // namespace vorn::test
