// A modal dialog run by the system's dialog manager, driven by a script.
#pragma once

#include <windows.h>
#include <functional>
#include <string>
#include <vector>

namespace vorn::test {

struct DialogItem {
    int id;
    const char* className;
    DWORD style; // beside those of a visible child
    DWORD extendedStyle = 0;
    int container = 0; // the item that it is a child of, which stands before it; 0: the dialog
};

// Items stand one below the other in their order, which is the tab order too where a container's
// items follow it.
class ScriptedDialog {
public:
    explicit ScriptedDialog(std::vector<DialogItem> items) : items_(std::move(items)) {}

    // The window of an item, in a container or not.
    HWND Item(HWND dialog, int id) const;

    // A step of the script.
    void Do(std::function<void(HWND dialog)> act);

    // Keys and clicks as a user makes them: the dialog's own loop gets what comes of them.
    void PressKey(WORD key);
    void PressShifted(WORD key);
    void Click(int item);

    // Waits for what `get` finds in the dialog to be as expected, and fails the test when it does
    // not become so.
    void Expect(const std::string& what, std::function<std::vector<int>(HWND dialog)> get,
                std::vector<int> expected);

    // What most expectations are about: the item with the focus, the items that look like the
    // default button, and what the items told by WM_COMMAND since the last look, as pairs of
    // identifier and code.
    void ExpectFocus(int item);
    void ExpectDefaults(std::vector<int> items);
    void ExpectCommands(std::vector<int> pairs);

    // Shows the dialog and goes through the script. Returns when it is through or has failed.
    void Run(HWND owner);

private:
    // A step answers whether it is through; it is asked again for a while when it is not.
    using Step = std::function<bool(HWND dialog, bool lastTry)>;

    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    void GoOn(HWND dialog);
    void FillContainers(HWND dialog) const;
    std::vector<int> Defaults(HWND dialog) const;

    std::vector<DialogItem> items_;
    std::vector<Step> steps_;
    std::vector<int> commands_;
    std::size_t next_ = 0;
    int tries_ = 0;
};

} // namespace vorn::test
