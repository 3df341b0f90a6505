#include "tests/windows/support/dialog.h"

#include "tests/windows/support/input.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <iterator>

namespace vorn::test {
namespace {

constexpr UINT_PTR kStepTimer = 1;
constexpr UINT kStepMilliseconds = 10;
constexpr int kMostTries = 300;

constexpr short kItemWidth = 60; // in dialog units
constexpr short kItemHeight = 14;

void SendButton(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

// A dialog template in memory: 16-bit words, items on 32-bit boundaries.
class Template {
public:
    explicit Template(const std::vector<DialogItem>& all) {
        std::vector<DialogItem> items; // the dialog's own
        std::copy_if(all.begin(), all.end(), std::back_inserter(items),
                     [](const DialogItem& item) { return item.container == 0; });
        const auto height = static_cast<short>((static_cast<short>(items.size()) + 1) * 16);
        AppendLong(DS_MODALFRAME | WS_POPUP | WS_VISIBLE);
        AppendLong(0); // no extended style
        words_.push_back(static_cast<WORD>(items.size()));
        AppendPlace(10, 10, kItemWidth + 20, height);
        words_.insert(words_.end(), 3, 0); // no menu, no class, no title
        for (std::size_t i = 0; i < items.size(); ++i) {
            AppendItem(items[i], static_cast<short>(4 + 16 * static_cast<short>(i)));
        }
    }
    LPCDLGTEMPLATEA get() const { return reinterpret_cast<LPCDLGTEMPLATEA>(words_.data()); }

private:
    void AppendLong(DWORD value) {
        words_.push_back(LOWORD(value));
        words_.push_back(HIWORD(value));
    }
    void AppendPlace(short x, short y, short width, short height) {
        for (const short value : {x, y, width, height}) {
            words_.push_back(static_cast<WORD>(value));
        }
    }
    void AppendItem(const DialogItem& item, short y) {
        if (words_.size() % 2 != 0) {
            words_.push_back(0);
        }
        AppendLong(item.style | WS_CHILD | WS_VISIBLE);
        AppendLong(item.extendedStyle);
        AppendPlace(4, y, kItemWidth, kItemHeight);
        words_.push_back(static_cast<WORD>(item.id));
        for (const char* letter = item.className; *letter != '\0'; ++letter) {
            words_.push_back(static_cast<WORD>(*letter));
        }
        words_.push_back(0);
        words_.push_back(0); // no text
        words_.push_back(0); // no creation data
    }

    std::vector<WORD> words_;
};

} // namespace

HWND ScriptedDialog::Item(HWND dialog, int id) const {
    for (const DialogItem& item : items_) {
        if (item.id == id && item.container != 0) {
            return GetDlgItem(GetDlgItem(dialog, item.container), id);
        }
    }
    return GetDlgItem(dialog, id);
}

// Side by side in their containers.
void ScriptedDialog::FillContainers(HWND dialog) const {
    int left = 0;
    for (const DialogItem& item : items_) {
        left = item.container == 0 ? 0 : left;
        if (item.container != 0) {
            CreateWindowExA(item.extendedStyle, item.className, "",
                            item.style | WS_CHILD | WS_VISIBLE, left, 0, 20, 20,
                            GetDlgItem(dialog, item.container), reinterpret_cast<HMENU>(item.id),
                            GetModuleHandleA(nullptr), nullptr);
            left += 20;
        }
    }
}

void ScriptedDialog::Do(std::function<void(HWND dialog)> act) {
    steps_.push_back([act = std::move(act)](HWND dialog, bool) {
        act(dialog);
        return true;
    });
}

void ScriptedDialog::PressKey(WORD key) {
    Do([key](HWND) { StrikeKey(key); });
}

void ScriptedDialog::PressShifted(WORD key) {
    Do([key](HWND) { StrikeKey(key, VK_SHIFT); });
}

void ScriptedDialog::Click(int item) {
    Do([this, item](HWND dialog) {
        RECT rect{};
        GetWindowRect(Item(dialog, item), &rect);
        SetCursorPos((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
        SendButton(MOUSEEVENTF_LEFTDOWN);
        SendButton(MOUSEEVENTF_LEFTUP);
    });
}

void ScriptedDialog::Expect(const std::string& what,
                            std::function<std::vector<int>(HWND dialog)> get,
                            std::vector<int> expected) {
    steps_.push_back([=](HWND dialog, bool lastTry) {
        const std::vector<int> found = get(dialog);
        if (lastTry) {
            EXPECT_EQ(found, expected) << what;
        }
        return found == expected;
    });
}

void ScriptedDialog::ExpectFocus(int item) {
    Expect("the focus", [](HWND) { return std::vector<int>{GetDlgCtrlID(GetFocus())}; }, {item});
}

void ScriptedDialog::ExpectDefaults(std::vector<int> items) {
    Expect(
        "the default buttons", [this](HWND dialog) { return Defaults(dialog); }, std::move(items));
}

void ScriptedDialog::ExpectCommands(std::vector<int> pairs) {
    Expect(
        "the commands", [this](HWND) { return commands_; }, std::move(pairs));
    Do([this](HWND) { commands_.clear(); });
}

std::vector<int> ScriptedDialog::Defaults(HWND dialog) const {
    std::vector<int> defaults;
    for (const DialogItem& item : items_) {
        const LRESULT code = SendMessageA(Item(dialog, item.id), WM_GETDLGCODE, 0, 0);
        if ((code & DLGC_DEFPUSHBUTTON) != 0) {
            defaults.push_back(item.id);
        }
    }
    return defaults;
}

void ScriptedDialog::GoOn(HWND dialog) {
    if (next_ == steps_.size()) {
        EndDialog(dialog, 1);
        return;
    }
    ++tries_;
    const bool lastTry = tries_ == kMostTries;
    if (steps_[next_](dialog, lastTry)) {
        ++next_;
        tries_ = 0;
    } else if (lastTry) {
        ADD_FAILURE() << "at step " << next_ << " of the script";
        EndDialog(dialog, 0);
    }
}

INT_PTR CALLBACK ScriptedDialog::Procedure(HWND dialog, UINT message, WPARAM wParam,
                                           LPARAM lParam) {
    auto* self = reinterpret_cast<ScriptedDialog*>(GetWindowLongPtrA(dialog, DWLP_USER));
    switch (message) {
    case WM_INITDIALOG:
        SetWindowLongPtrA(dialog, DWLP_USER, lParam);
        reinterpret_cast<ScriptedDialog*>(lParam)->FillContainers(dialog);
        SetTimer(dialog, kStepTimer, kStepMilliseconds, nullptr);
        return TRUE;
    case WM_TIMER:
        self->GoOn(dialog);
        return TRUE;
    case WM_COMMAND: {
        char name[20] = "";
        GetClassNameA(reinterpret_cast<HWND>(lParam), name, sizeof name);
        // Edits tell of every change of the focus.
        if (self != nullptr && std::strcmp(name, "Edit") != 0) {
            self->commands_.push_back(LOWORD(wParam));
            self->commands_.push_back(HIWORD(wParam));
        }
        return TRUE;
    }
    default:
        return FALSE;
    }
}

void ScriptedDialog::Run(HWND owner) {
    const Template dialog(items_);
    EXPECT_EQ(DialogBoxIndirectParamA(GetModuleHandleA(nullptr), dialog.get(), owner, Procedure,
                                      reinterpret_cast<LPARAM>(this)),
              1);
}

} // namespace vorn::test
