// What a user hears of a control.
#pragma once

#include <windows.h>

namespace vorn::test {

// While it is there, the DLL's calls of MessageBeep are counted instead of heard; one at a time.
class CountedBeeps {
public:
    CountedBeeps();
    ~CountedBeeps();
    CountedBeeps(const CountedBeeps&) = delete;
    CountedBeeps& operator=(const CountedBeeps&) = delete;

    // The beeps since the last call, or -1 when one was not MB_ICONHAND.
    static int Take();

private:
    void** entry_ = nullptr;
    void* function_ = nullptr;
};

} // namespace vorn::test
