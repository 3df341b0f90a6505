#include "core/edit/field_edit_win.h"

#include "core/edit/edit_caret_win.h"
#include "core/edit/route_keys_win.h"
#include "core/window_win.h"

namespace vorn::edit {
namespace {

LRESULT PassOn(const EditMessage& message) {
    return DefWindowProcA(message.window, message.message, message.wParam, message.lParam);
}

// Returns whether the message is to be passed on.
bool AskAndRun(const FieldEdit& edit, HWND window, const Key& key) {
    const bool allowed = IsOkToChange(edit.kind, window);
    EditBody* body = edit.kind.bodyOf(window);
    return body != nullptr && PerformEdit(edit.kind, window, edit.runKey(*body, key, allowed));
}

} // namespace

LRESULT PressFieldKey(const FieldEdit& edit, const EditMessage& message) {
    const EditBody* body = edit.kind.bodyOf(message.window);
    if (body == nullptr) {
        return PassOn(message);
    }
    const Key key = KeyNow(message.wParam);
    const bool passOn = FollowRoute(message.window, RouteKey(key, body->readOnly),
                                    [&] { return AskAndRun(edit, message.window, key); });
    return passOn ? PassOn(message) : 0;
}

void PressFieldText(const FieldEdit& edit, HWND window, Point point, bool wholeField) {
    EditBody* body = edit.kind.bodyOf(window);
    if (body == nullptr) {
        return;
    }
    if (!body->focused) {
        SetFocus(window);
        return;
    }
    auto& caret = static_cast<FieldCaret&>(*body->caret);
    const std::uint16_t index = IndexAt(edit.kind, *body, point.x);
    const FieldMap map = edit.mapOf(*body);
    if (wholeField) {
        SelectField(caret, map, FieldAt(map, index));
    } else {
        PutCaret(caret, map, index);
    }
    Redraw(window);
    PlaceCaret(edit.kind, window, Told::Yes);
}

void FollowCaretWithField(FieldCaret& caret, const FieldMap& map) {
    caret.field = FieldAt(map, caret.index);
}

} // namespace vorn::edit
