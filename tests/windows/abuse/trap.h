// Host calls that are counted while an operation runs; in the one of a number something happens.
#pragma once

#include "tests/windows/abuse/subjects.h"

#include <functional>
#include <optional>

namespace vorn::test {

struct Trap {
    std::function<void(HWND control, HWND called)> act;
    std::function<bool(HWND control, UINT message)> isCall;
    LRESULT answer = 0; // of the call; 0: what the window itself answers, if it is still there
    std::optional<LRESULT> answerToKeys; // the parent's, in all other calls
    bool inParts = false; // calls of the windows that the control is made of count too
};

// Creates a control of the class, runs the operation and acts in the call of this number, from 0
// on. Whether there was one.
bool RunTrapped(Stage& stage, const Subject& subject, DWORD style, const Operation& operation,
                const Trap& trap, int number);

// The same in the calls of the creation.
bool CreateTrapped(Stage& stage, const Subject& subject, DWORD style, const Trap& trap, int number);

// Runs with 0, 1, 2, ... until that answers false, and checks each time that nothing is left of
// what the DLL got from the system. Returns how often it answered true.
int RunThrough(const std::function<bool(int number)>& run);

} // namespace vorn::test
