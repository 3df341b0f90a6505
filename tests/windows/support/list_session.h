// A session with a list box of any class, held by a Unicode host and written down step by step, so
// that two classes can be compared.
#pragma once

#include "tests/windows/support/host_window.h"

#include <windows.h>
#include <string>
#include <vector>

namespace vorn::test {

// What one step of a session led to.
struct Outcome {
    std::string step;     // what was done, such as "LB_DELETESTRING 2"
    std::string answer;   // what the list answered, and what its parent was sent meanwhile
    std::string contents; // the items then
    std::string view;     // the selected rows, the caret and the first row in view then
};

class ListSession {
public:
    // Creates a list box of this class and style, in the same place and with rows of one height.
    ListSession(const char* className, DWORD style);

    HWND list() const { return list_; }

    // Adds texts, painted when all are there.
    void Fill(const std::vector<const wchar_t*>& texts);

    // Sends a message and writes down what it led to, but not the answer.
    void Do(const char* name, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

    // Sends a message, with a text, with numbers, or with room for what the list writes.
    void Send(const char* name, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    void SendText(const char* name, UINT message, int number, const wchar_t* text);
    void SendForText(const char* name, UINT message, int row);
    void SendForRect(const char* name, UINT message, int row);
    void SendForRows(const char* name, UINT message, int most);

    // A key with or without Shift and Control held, a character, and a click on a row.
    void Key(const char* name, int key, WPARAM modifiers = 0);
    void Type(wchar_t character);
    void Click(int row, WPARAM modifiers = 0);
    void DoubleClick(int row);
    void TakeFocus(bool take);

    // Writes an answer down that the test has got itself.
    void Note(const char* name, LRESULT answer);

    // Does steps without writing the caret down, where it is not what they are about.
    void WithoutCaret(const std::function<void()>& steps);

    const std::vector<Outcome>& outcomes() const { return outcomes_; }

private:
    std::optional<LRESULT> Answer(const Message& message);
    void WriteDown(const std::string& step, const std::string& answer);
    LRESULT Ask(UINT message, int row = 0) const;
    std::string Contents() const;
    std::string View() const;
    bool HasTexts() const;
    LPARAM ToData(const wchar_t* text) const;

    HostWindow host_;
    HWND list_ = nullptr;
    DWORD style_;
    bool writesCaret_ = true;
    std::string news_; // what the parent was sent since the last step
    std::vector<Outcome> outcomes_;
};

// Holds the session with a list box of this class and style; every one notifies, scrolls vertically
// and has tab stops.
std::vector<Outcome> HoldListSession(const char* className, DWORD style,
                                     const std::function<void(ListSession&)>& script);

// Single, multiple and extended selection.
extern const std::vector<DWORD> kSelectionStyles;

// Each with plain items, sorted ones, and ones that the parent draws, with and without texts.
std::vector<DWORD> AllListStyles();

} // namespace vorn::test
