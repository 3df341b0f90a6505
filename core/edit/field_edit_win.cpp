#include "core/edit/field_edit_win.h"

#include "core/edit/edit_caret_win.h"
#include "core/window_win.h"

namespace vorn::edit {
namespace {

bool IsDown(int key) {
    return GetKeyState(key) < 0;
}

LRESULT PassOn(const EditMessage& message) {
    return DefWindowProcA(message.window, message.message, message.wParam, message.lParam);
}

LRESULT AskAndRun(const FieldEdit& edit, const EditMessage& message, const Key& key) {
    const bool allowed = IsOkToChange(edit.kind, message.window);
    EditBody* body = edit.kind.bodyOf(message.window);
    if (body == nullptr) {
        return 0;
    }
    const bool passOn = PerformEdit(edit.kind, message.window, edit.runKey(*body, key, allowed));
    return passOn ? PassOn(message) : 0;
}

} // namespace

LRESULT PressFieldKey(const FieldEdit& edit, const EditMessage& message) {
    const EditBody* body = edit.kind.bodyOf(message.window);
    if (body == nullptr) {
        return PassOn(message);
    }
    const Key key = {static_cast<std::uint32_t>(message.wParam), IsDown(VK_CONTROL),
                     IsDown(VK_MENU), IsDown(VK_SHIFT)};
    const KeyRoute route = RouteKey(key, body->readOnly);
    switch (route) {
    case KeyRoute::PassOn:
        return PassOn(message);
    case KeyRoute::FocusNext:
    case KeyRoute::FocusPrevious:
        FocusTabItem(message.window, route == KeyRoute::FocusPrevious);
        return 0;
    case KeyRoute::Refuse:
        MessageBeep(MB_ICONHAND);
        return 0;
    case KeyRoute::Ask:
        break;
    }
    return AskAndRun(edit, message, key);
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
