// A host of an edit: what it asks and tells, to itself and to its parent, in order.
#pragma once

#include "tests/windows/support/host_window.h"
#include "tests/windows/support/regional.h"

#include <functional>
#include <string>
#include <vector>

namespace vorn::test {

using Heard = std::vector<std::string>;

constexpr int kEditId = 77;

class EditHost {
public:
    EditHost();

    HWND window() const { return host_.window(); }
    HostWindow& host() { return host_; }

    // A visible edit at (20, 10), subclassed so that it is heard.
    HWND Create(const char* className, DWORD style, int width, int height);

    // What was heard since the last call: "ask" and "changed" for the messages that the edit sends
    // itself, "SETFOCUS", "UPDATE" and so on for what it tells its parent.
    Heard Take();

    // The same of what something does, and of the messages that it leaves in the queue.
    template <class Run>
    Heard HeardBy(Run run) {
        Take();
        run();
        return Take();
    }
    template <class Run>
    Heard PostedBy(Run run) {
        run();
        Take();
        PumpMessages();
        return Take();
    }

    // The answer to "ask".
    bool allow = true;

    // Runs inside of everything that is heard.
    std::function<void(const std::string& what, HWND edit)> onHearing;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Hear(const std::string& what, HWND edit);

    HostWindow host_;
    Heard heard_;
};

} // namespace vorn::test
