#include "tests/windows/support/list_session.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace vorn::test {
namespace {

constexpr int kId = 77;
constexpr int kWidth = 160;
constexpr int kRowHeight = 20;
constexpr int kRowsInView = 5;
constexpr int kMostRows = 40;
constexpr BYTE kHeld = 0x80;
constexpr BYTE kNotHeld = 0;

template <class... Parts>
std::string Line(const Parts&... parts) {
    std::ostringstream line;
    int index = 0;
    ((line << (index++ == 0 ? "" : " ") << parts), ...);
    return line.str();
}

std::string Narrow(const wchar_t* text) {
    std::array<char, 200> narrow{};
    WideCharToMultiByte(CP_ACP, 0, text, -1, narrow.data(), static_cast<int>(narrow.size()),
                        nullptr, nullptr);
    return narrow.data();
}

// While it lives the thread's keyboard has these modifiers held.
class HeldKeys {
public:
    explicit HeldKeys(WPARAM modifiers) {
        GetKeyboardState(before_.data());
        std::array<BYTE, 256> held = before_;
        held[VK_SHIFT] = (modifiers & MK_SHIFT) != 0 ? kHeld : kNotHeld;
        held[VK_CONTROL] = (modifiers & MK_CONTROL) != 0 ? kHeld : kNotHeld;
        SetKeyboardState(held.data());
    }
    ~HeldKeys() { SetKeyboardState(before_.data()); }
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

private:
    std::array<BYTE, 256> before_{};
};

std::string NameOfModifiers(WPARAM modifiers) {
    return std::string((modifiers & MK_SHIFT) != 0 ? "Shift+" : "") +
           ((modifiers & MK_CONTROL) != 0 ? "Control+" : "");
}

} // namespace

ListSession::ListSession(const char* className, DWORD style) : style_(style) {
    host_.answer = [this](const Message& message) { return Answer(message); };
    SetFocus(host_.window());
    list_ = host_.Create(className, style, 10, 10, kWidth, kRowsInView * kRowHeight, kId);
    if ((style & LBS_OWNERDRAWVARIABLE) == 0) {
        SendMessageW(list_, LB_SETITEMHEIGHT, 0, kRowHeight);
    }
    PumpMessages();
    news_.clear();
}

std::optional<LRESULT> ListSession::Answer(const Message& message) {
    switch (message.message) {
    case WM_COMMAND:
        news_ += Line(", notified", static_cast<SHORT>(HIWORD(message.wParam)));
        return std::nullopt;
    case WM_MEASUREITEM: {
        auto& item = *reinterpret_cast<MEASUREITEMSTRUCT*>(message.lParam);
        news_ += Line(", measure", item.CtlType, item.CtlID, static_cast<SHORT>(item.itemID));
        item.itemHeight = kRowHeight;
        return TRUE;
    }
    case WM_COMPAREITEM: {
        const auto& items = *reinterpret_cast<const COMPAREITEMSTRUCT*>(message.lParam);
        return items.itemData1 < items.itemData2 ? -1 : items.itemData1 > items.itemData2 ? 1 : 0;
    }
    case WM_DELETEITEM: {
        const auto& item = *reinterpret_cast<const DELETEITEMSTRUCT*>(message.lParam);
        news_ += Line(", deleted", item.CtlType, item.CtlID, item.itemID, item.itemData);
        return TRUE;
    }
    case WM_DRAWITEM:
        return TRUE;
    default:
        return std::nullopt;
    }
}

// ---- Steps ----

void ListSession::Fill(const std::vector<const wchar_t*>& texts) {
    std::string answers;
    SendMessageW(list_, WM_SETREDRAW, FALSE, 0);
    for (const wchar_t* text : texts) {
        answers += Line("", SendMessageW(list_, LB_ADDSTRING, 0, ToData(text)));
    }
    SendMessageW(list_, WM_SETREDRAW, TRUE, 0);
    RedrawWindow(list_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    WriteDown("filled", answers);
}

void ListSession::Do(const char* name, UINT message, WPARAM wParam, LPARAM lParam) {
    SendMessageW(list_, message, wParam, lParam);
    WriteDown(Line(name, static_cast<int>(wParam), lParam), "");
}

void ListSession::Send(const char* name, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT answer = SendMessageW(list_, message, wParam, lParam);
    WriteDown(Line(name, static_cast<int>(wParam), lParam), Line(answer));
}

void ListSession::SendText(const char* name, UINT message, int number, const wchar_t* text) {
    const LRESULT answer = SendMessageW(list_, message, static_cast<WPARAM>(number), ToData(text));
    WriteDown(Line(name, number, Narrow(text)), Line(answer));
}

void ListSession::SendForText(const char* name, UINT message, int row) {
    std::array<wchar_t, 200> text{};
    const LRESULT answer = SendMessageW(list_, message, static_cast<WPARAM>(row),
                                        reinterpret_cast<LPARAM>(text.data()));
    WriteDown(Line(name, row), Line(answer, Narrow(text.data())));
}

void ListSession::SendForRect(const char* name, UINT message, int row) {
    RECT rect{};
    const LRESULT answer =
        SendMessageW(list_, message, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
    WriteDown(Line(name, row), Line(answer, rect.left, rect.top, rect.right, rect.bottom));
}

void ListSession::SendForRows(const char* name, UINT message, int most) {
    std::array<int, kMostRows> rows{};
    rows.fill(-7); // what is not written to
    const LRESULT answer = SendMessageW(list_, message, static_cast<WPARAM>(most),
                                        reinterpret_cast<LPARAM>(rows.data()));
    std::string written;
    for (const int row : rows) {
        written += row != -7 ? Line("", row) : "";
    }
    WriteDown(Line(name, most), Line(answer) + written);
}

void ListSession::Key(const char* name, int key, WPARAM modifiers) {
    const HeldKeys held(modifiers);
    SendMessageW(list_, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    SendMessageW(list_, WM_KEYUP, static_cast<WPARAM>(key), static_cast<LPARAM>(0xC0000001));
    WriteDown(NameOfModifiers(modifiers) + name, "");
}

void ListSession::Type(wchar_t character) {
    SendMessageW(list_, WM_CHAR, character, 1);
    const wchar_t text[] = {character, L'\0'};
    WriteDown(Line("type", Narrow(text)), "");
}

void ListSession::Click(int row, WPARAM modifiers) {
    const HeldKeys held(modifiers);
    const LPARAM point = MAKELPARAM(30, row * kRowHeight + 5);
    SendMessageW(list_, WM_LBUTTONDOWN, MK_LBUTTON | modifiers, point);
    SendMessageW(list_, WM_LBUTTONUP, modifiers, point);
    WriteDown(NameOfModifiers(modifiers) + Line("click", row), "");
}

void ListSession::DoubleClick(int row) {
    const LPARAM point = MAKELPARAM(30, row * kRowHeight + 5);
    SendMessageW(list_, WM_LBUTTONDBLCLK, MK_LBUTTON, point);
    SendMessageW(list_, WM_LBUTTONUP, 0, point);
    WriteDown(Line("double click", row), "");
}

void ListSession::TakeFocus(bool take) {
    SetFocus(take ? list_ : host_.window());
    WriteDown(take ? "take the focus" : "leave the focus", "");
}

void ListSession::Note(const char* name, LRESULT answer) {
    WriteDown(name, Line(answer));
}

void ListSession::WithoutCaret(const std::function<void()>& steps) {
    writesCaret_ = false;
    steps();
    writesCaret_ = true;
}

// ---- Writing down ----

void ListSession::WriteDown(const std::string& step, const std::string& answer) {
    outcomes_.push_back({step, answer + news_, Contents(), View()});
    news_.clear();
}

LRESULT ListSession::Ask(UINT message, int row) const {
    return SendMessageW(list_, message, static_cast<WPARAM>(row), 0);
}

std::string ListSession::Contents() const {
    std::string items;
    const auto count = static_cast<int>(Ask(LB_GETCOUNT));
    for (int row = 0; row < std::min(count, kMostRows); ++row) {
        std::array<wchar_t, 200> text{};
        if (HasTexts()) {
            SendMessageW(list_, LB_GETTEXT, static_cast<WPARAM>(row),
                         reinterpret_cast<LPARAM>(text.data()));
        }
        items +=
            Line(Narrow(text.data()) + ":", Ask(LB_GETITEMDATA, row), Ask(LB_GETITEMHEIGHT, row)) +
            "; ";
    }
    return Line(count, "items", items);
}

std::string ListSession::View() const {
    std::string selected;
    const auto count = static_cast<int>(Ask(LB_GETCOUNT));
    for (int row = 0; row < count; ++row) {
        selected += Ask(LB_GETSEL, row) > 0 ? Line("", row) : "";
    }
    const std::string caret = writesCaret_ ? Line(", caret", Ask(LB_GETCARETINDEX)) : "";
    return Line("selected" + selected + caret + ", top", Ask(LB_GETTOPINDEX));
}

bool ListSession::HasTexts() const {
    return (style_ & LBS_HASSTRINGS) != 0 ||
           (style_ & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) == 0;
}

// Without texts an item is its data, which must not be an address that differs.
LPARAM ListSession::ToData(const wchar_t* text) const {
    return HasTexts() ? reinterpret_cast<LPARAM>(text) : static_cast<LPARAM>(text[0]);
}

std::vector<Outcome> HoldListSession(const char* className, DWORD style,
                                     const std::function<void(ListSession&)>& script) {
    ListSession session(className,
                        style | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_USETABSTOPS | WS_VSCROLL);
    script(session);
    return session.outcomes();
}

const std::vector<DWORD> kSelectionStyles = {0, LBS_MULTIPLESEL, LBS_EXTENDEDSEL,
                                             LBS_MULTIPLESEL | LBS_EXTENDEDSEL};

std::vector<DWORD> AllListStyles() {
    std::vector<DWORD> styles;
    for (const DWORD selection : kSelectionStyles) {
        for (const DWORD items :
             {DWORD{0}, DWORD{LBS_SORT}, DWORD{LBS_OWNERDRAWFIXED | LBS_HASSTRINGS},
              DWORD{LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_SORT}, DWORD{LBS_OWNERDRAWFIXED},
              DWORD{LBS_OWNERDRAWFIXED | LBS_SORT}, DWORD{LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS},
              DWORD{LBS_OWNERDRAWVARIABLE | LBS_SORT}}) {
            styles.push_back(selection | items);
        }
    }
    return styles;
}

} // namespace vorn::test
