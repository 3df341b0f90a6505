#include "tests/windows/support/edit_host.h"

#include <map>

namespace vorn::test {
namespace {

constexpr char kHostProperty[] = "VornTestEditHost";
constexpr char kProcedureProperty[] = "VornTestEditProcedure";

constexpr UINT kAsk = WM_USER + 159;
constexpr UINT kChanged = WM_USER + 400;

std::string NameOf(int code) {
    const std::map<int, std::string> names = {
        {EN_SETFOCUS, "SETFOCUS"}, {EN_KILLFOCUS, "KILLFOCUS"}, {EN_UPDATE, "UPDATE"},
        {EN_CHANGE, "CHANGE"},     {EN_MAXTEXT, "MAXTEXT"},     {EN_HSCROLL, "HSCROLL"}};
    const auto found = names.find(code);
    return found == names.end() ? std::to_string(code) : found->second;
}

WNDPROC ProcedureOf(HWND window) {
    return reinterpret_cast<WNDPROC>(GetPropA(window, kProcedureProperty));
}

} // namespace

EditHost::EditHost() {
    host_.answer = [this](const Message& message) -> std::optional<LRESULT> {
        if (message.message != WM_COMMAND) {
            return std::nullopt;
        }
        if (message.wParam == kEditId) {
            // Its own form: the code stands over the low half of the window.
            const HWND edit = GetDlgItem(window(), kEditId);
            const auto half = static_cast<WORD>(reinterpret_cast<UINT_PTR>(edit));
            const bool isForm = message.lParam == MAKELPARAM(half, EN_HSCROLL);
            Hear(isForm ? "left HSCROLL" : "code 0", edit);
        } else if (LOWORD(message.wParam) == kEditId) {
            Hear(NameOf(HIWORD(message.wParam)), reinterpret_cast<HWND>(message.lParam));
        }
        return 0;
    };
}

HWND EditHost::Create(const char* className, DWORD style, int width, int height) {
    HWND edit = host_.Create(className, style, 20, 10, width, height, kEditId);
    if (edit == nullptr) {
        return nullptr;
    }
    SetPropA(edit, kHostProperty, this);
    const LONG_PTR before =
        SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
    SetPropA(edit, kProcedureProperty, reinterpret_cast<HANDLE>(before));
    return edit;
}

Heard EditHost::Take() {
    Heard taken;
    taken.swap(heard_);
    return taken;
}

void EditHost::Hear(const std::string& what, HWND edit) {
    heard_.push_back(what);
    if (onHearing) {
        onHearing(what, edit);
    }
}

LRESULT CALLBACK EditHost::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = static_cast<EditHost*>(GetPropA(window, kHostProperty));
    WNDPROC procedure = ProcedureOf(window);
    if (message == WM_NCDESTROY) {
        RemovePropA(window, kHostProperty);
        RemovePropA(window, kProcedureProperty);
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    } else if (self != nullptr && message == kAsk) {
        self->Hear("ask", window);
        return self->allow ? 1 : 0;
    } else if (self != nullptr && message == kChanged) {
        self->Hear("changed", window);
        if (ProcedureOf(window) == nullptr) {
            return 0; // destroyed meanwhile
        }
    }
    return CallWindowProcA(procedure, window, message, wParam, lParam);
}

} // namespace vorn::test
