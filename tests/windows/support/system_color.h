// System colours while a test changes them.
#pragma once

#include <windows.h>

namespace vorn::test {

class ChangedSystemColor {
public:
    ChangedSystemColor(int index, COLORREF color) : index_(index), old_(GetSysColor(index)) {
        SetSysColors(1, &index_, &color);
    }
    ~ChangedSystemColor() { SetSysColors(1, &index_, &old_); }
    ChangedSystemColor(const ChangedSystemColor&) = delete;
    ChangedSystemColor& operator=(const ChangedSystemColor&) = delete;

private:
    INT index_;
    COLORREF old_;
};

} // namespace vorn::test
