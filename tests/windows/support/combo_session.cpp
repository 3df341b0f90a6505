#include "tests/windows/support/combo_session.h"

#include <algorithm>

namespace vorn::test {
namespace {

constexpr int kId = 77;
constexpr RECT kPlace = {20, 20, 180, 200}; // room for the list included
constexpr LRESULT kLongestText = 60;

std::string TextOf(const RECT& rect) {
    std::ostringstream text;
    text << rect.left << ',' << rect.top << ',' << rect.right << ',' << rect.bottom;
    return text.str();
}

// Messages of the parent that say what happened, whatever the timing of paints.
bool IsAboutTheControl(UINT message) {
    switch (message) {
    case WM_COMMAND:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_PARENTNOTIFY:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        return true;
    default:
        return false;
    }
}

} // namespace

ComboSession::ComboSession(const char* className, DWORD style) : style_(style) {
    host_.answer = [this](const Message& message) { return Answer(message); };
    SetFocus(host_.window());
    combo_ = host_.Create(className, style, kPlace.left, kPlace.top, kPlace.right - kPlace.left,
                          kPlace.bottom - kPlace.top, kId);
    Write("created", combo_ != nullptr);
    PumpMessages();
}

std::optional<LRESULT> ComboSession::Answer(const Message& message) {
    if (IsAboutTheControl(message.message)) {
        Write("parent got", message.message, LOWORD(message.wParam), HIWORD(message.wParam));
    }
    switch (message.message) {
    case WM_COMMAND:
        codes_.push_back(HIWORD(message.wParam));
        Write("from", NameOf(reinterpret_cast<HWND>(message.lParam)));
        return std::nullopt;
    case WM_MEASUREITEM:
        return Measure(message);
    case WM_DRAWITEM:
        return Draw(message);
    case WM_COMPAREITEM:
        return Compare(message);
    case WM_DELETEITEM: {
        const auto& item = *reinterpret_cast<const DELETEITEMSTRUCT*>(message.lParam);
        Write("deleted", item.CtlType, item.CtlID, item.itemID, item.itemData,
              item.hwndItem == combo_);
        return TRUE;
    }
    default:
        return std::nullopt;
    }
}

LRESULT ComboSession::Measure(const Message& message) {
    auto& item = *reinterpret_cast<MEASUREITEMSTRUCT*>(message.lParam);
    Write("measure", item.CtlType, item.CtlID, item.itemID);
    item.itemHeight = item.itemID == static_cast<UINT>(-1) ? 18 : 14 + item.itemID % 3;
    return TRUE;
}

LRESULT ComboSession::Draw(const Message& message) {
    const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(message.lParam);
    if (drawing_) {
        Write("draw", item.CtlType, item.CtlID, item.itemID, item.itemAction, item.itemState,
              TextOf(item.rcItem), item.hwndItem == combo_);
    }
    SetDCBrushColor(item.hDC, RGB(40 * (item.itemID % 6), 90, 200));
    FillRect(item.hDC, &item.rcItem, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    return TRUE;
}

// Items without texts are ordered by their data.
LRESULT ComboSession::Compare(const Message& message) {
    const auto& items = *reinterpret_cast<const COMPAREITEMSTRUCT*>(message.lParam);
    Write("compare", items.CtlType, items.CtlID, items.itemID1, items.itemID2);
    if (items.itemData1 == items.itemData2) {
        return 0;
    }
    return items.itemData1 < items.itemData2 ? -1 : 1;
}

std::string ComboSession::NameOf(HWND window) const {
    if (window == combo_) {
        return "combo";
    }
    if (window == host_.window()) {
        return "parent";
    }
    char name[40] = "nobody";
    GetClassNameA(window, name, sizeof name);
    return name;
}

bool ComboSession::HasTexts() const {
    return (style_ & CBS_HASSTRINGS) != 0 ||
           (style_ & (CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE)) == 0;
}

LRESULT ComboSession::Send(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = SendMessageA(combo_, message, wParam, lParam);
    Write("answer", message, wParam, lParam, result);
    return result;
}

LRESULT ComboSession::SendText(UINT message, WPARAM wParam, const char* text) {
    // Without texts an item is its data, which must not be an address that differs.
    const LPARAM data = HasTexts() || message == WM_SETTEXT
                            ? reinterpret_cast<LPARAM>(text)
                            : static_cast<LPARAM>(static_cast<unsigned char>(text[0]));
    const LRESULT result = SendMessageA(combo_, message, wParam, data);
    Write("answer", message, wParam, text, result);
    return result;
}

void ComboSession::Key(int key) {
    PostMessageA(GetFocus(), WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    PostMessageA(GetFocus(), WM_KEYUP, static_cast<WPARAM>(key), static_cast<LPARAM>(0xC0000001));
    PumpMessages();
    Write("key", key, "focus", NameOf(GetFocus()));
    WriteState();
}

void ComboSession::Type(const std::string& text) {
    for (const char letter : text) {
        PostMessageA(GetFocus(), WM_CHAR, static_cast<WPARAM>(letter), 1);
        PumpMessages();
    }
    Write("typed", text);
    WriteState();
}

void ComboSession::Click(int x, int y) {
    const LPARAM point = MAKELPARAM(x, y);
    SendMessageA(combo_, WM_LBUTTONDOWN, MK_LBUTTON, point);
    SendMessageA(combo_, WM_LBUTTONUP, 0, point);
    PumpMessages();
    Write("click", x, y, "focus", NameOf(GetFocus()));
    WriteState();
}

void ComboSession::ClickItem(int index) {
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    GetComboBoxInfo(combo_, &info);
    RECT item{};
    SendMessageA(info.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(&item));
    const LPARAM point = MAKELPARAM(item.left + 3, item.top + 3);
    SendMessageA(info.hwndList, WM_MOUSEMOVE, 0, point);
    SendMessageA(info.hwndList, WM_LBUTTONDOWN, MK_LBUTTON, point);
    SendMessageA(info.hwndList, WM_LBUTTONUP, 0, point);
    PumpMessages();
    Write("click item", index, TextOf(item), "focus", NameOf(GetFocus()));
    WriteState();
}

void ComboSession::WriteState() {
    std::ostringstream state;
    for (const UINT message :
         {CB_GETCOUNT, CB_GETCURSEL, CB_GETEDITSEL, CB_GETDROPPEDSTATE, CB_GETTOPINDEX,
          CB_GETEXTENDEDUI, CB_GETDROPPEDWIDTH, CB_GETHORIZONTALEXTENT, CB_GETLOCALE,
          WM_GETTEXTLENGTH, WM_GETDLGCODE}) {
        state << SendMessageA(combo_, message, 0, 0) << ' ';
    }
    char text[kLongestText] = "";
    GetWindowTextA(combo_, text, sizeof text);
    state << '"' << text << "\" ";
    const LRESULT count = SendMessageA(combo_, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        const auto index = static_cast<WPARAM>(i);
        state << SendMessageA(combo_, CB_GETITEMDATA, index, 0) << ':'
              << SendMessageA(combo_, CB_GETITEMHEIGHT, index, 0) << ':';
        if (HasTexts() && SendMessageA(combo_, CB_GETLBTEXTLEN, index, 0) < kLongestText) {
            SendMessageA(combo_, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text));
            state << text;
        }
        state << ' ';
    }
    RECT window{};
    RECT dropped{};
    GetWindowRect(combo_, &window);
    SendMessageA(combo_, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    state << SendMessageA(combo_, CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(&info)) << ' '
          << SendMessageA(combo_, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1), 0);
    Write("state", state.str(), TextOf(window), TextOf(dropped), TextOf(info.rcItem),
          TextOf(info.rcButton), info.stateButton, NameOf(info.hwndCombo), NameOf(info.hwndItem),
          NameOf(info.hwndList), GetWindowLongA(combo_, GWL_STYLE),
          GetWindowLongA(combo_, GWL_EXSTYLE));
}

void ComboSession::Paint() {
    PumpMessages();
    drawing_ = true;
    RedrawWindow(combo_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    drawing_ = false;
    pictures_.push_back(PixelsOf(combo_));
}

void ComboSession::Destroy() {
    Write("destroyed", DestroyWindow(combo_));
    PumpMessages();
}

int ComboSession::Notified(int code) const {
    return static_cast<int>(std::count(codes_.begin(), codes_.end(), code));
}

} // namespace vorn::test
