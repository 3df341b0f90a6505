// The eleven classes as the victims of the same abuse: what each looks like, holds and does.
#pragma once

#include "tests/windows/support/host_window.h"

#include <windows.h>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vorn::test {

// Something that a host or a user does to a control, short so that it makes few host calls. The
// window may be gone before or while it runs.
struct Operation {
    std::string name;
    std::function<void(HWND)> run;
};

// A message of a control's, with a notification code or another number that must be in the high
// word of wParam; -1 where there is none.
struct Told {
    UINT message;
    int code;
};

struct Subject {
    const char* className;
    const char* prefix; // what the names of its functions begin with; empty when it has none
    WNDPROC procedure;
    std::vector<DWORD> styles; // the first makes it tell the most
    SIZE size;
    POINT press;                    // a client point where a press does something
    std::vector<UINT> addresses;    // its messages that carry addresses, or do what takes hours
    std::function<void(HWND)> fill; // gives it something to hold
    std::function<void(HWND)> startTimer;
    std::vector<Operation> operations; // besides those that every window has
    std::vector<Told> tells;           // what they make it tell its parent or itself
};

const std::vector<Subject>& Subjects();

// The subject of a class.
const Subject& SubjectOf(const char* className);

// The operations of every window, the class's own, then the ends.
std::vector<Operation> OperationsOf(const Subject& subject);

// The control, and the system's windows that it is made of. A combo box is the system's own, which
// is not to be confused.
std::vector<HWND> PartsOf(const Subject& subject, HWND control);

// Messages that controls get: the system's for buttons, edits, lists and combo boxes, and private
// ones.
bool IsControls(UINT message);

// What controls ask or tell a parent.
bool IsAsked(UINT message);

// Tells which class is at fault.
void ForEachSubject(const std::function<void(const Subject&)>& act);

// A host with one control and an edit beside it, made anew whenever it is gone.
class Stage {
public:
    explicit Stage(const Subject& subject) : subject_(subject) {}
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    // Creates the control with what it holds; null when it was refused.
    HWND Create(DWORD style);
    // Without what it holds.
    HWND CreateEmpty(DWORD style);
    // The same in the host as it is.
    HWND CreateHere(DWORD style);
    // Destroys the control, and with it what it left in the queue.
    void Clear();

    HostWindow& host();
    HWND control() const { return control_; }
    HWND neighbour() const { return neighbour_; }

private:
    const Subject& subject_;
    std::unique_ptr<HostWindow> host_;
    HWND control_ = nullptr;
    HWND neighbour_ = nullptr;
};

} // namespace vorn::test
