// A session with a combo box of any class, written down line by line, so that two classes can be
// compared.
#pragma once

#include "tests/windows/support/host_window.h"
#include "tests/windows/support/pixels.h"

#include <windows.h>
#include <sstream>
#include <string>
#include <vector>

namespace vorn::test {

class ComboSession {
public:
    // Creates a combo box of this class and style.
    ComboSession(const char* className, DWORD style);

    HWND combo() const { return combo_; }
    HWND parent() const { return host_.window(); }

    // Sends a message and writes its answer down.
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    LRESULT SendText(UINT message, WPARAM wParam, const char* text);

    // Posts a key to the window with the focus, handles it and writes down where that leads.
    void Key(int key);
    void Type(const std::string& text);

    // A click into the combo box, and one into its list.
    void Click(int x, int y);
    void ClickItem(int index);

    // Writes down everything that can be asked of the combo box; with all items, their texts too.
    void WriteState();

    // Repaints it and writes down what the host is asked to draw; keeps the picture.
    void Paint();

    // Ends the combo box.
    void Destroy();

    // What was written down: answers, and the messages that the parent got, in order.
    const std::vector<std::string>& lines() const { return lines_; }
    const std::vector<Pixels>& pictures() const { return pictures_; }

    // How often the parent got WM_COMMAND with this code.
    int Notified(int code) const;

private:
    std::optional<LRESULT> Answer(const Message& message);
    LRESULT Measure(const Message& message);
    LRESULT Draw(const Message& message);
    LRESULT Compare(const Message& message);
    std::string NameOf(HWND window) const;
    bool HasTexts() const;

    template <class... Parts>
    void Write(const Parts&... parts) {
        std::ostringstream line;
        ((line << parts << ' '), ...);
        lines_.push_back(line.str());
    }

    HostWindow host_;
    HWND combo_ = nullptr;
    DWORD style_;
    bool drawing_ = false;
    std::vector<std::string> lines_;
    std::vector<Pixels> pictures_;
    std::vector<int> codes_;
};

} // namespace vorn::test
