// A host of time edits.
#pragma once

#include "tests/windows/support/edit_host.h"
#include "tests/windows/support/input.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vorn32.h>

inline bool operator==(const TmTime& first, const TmTime& second) {
    return first.hour == second.hour && first.minute == second.minute &&
           first.second == second.second;
}

inline void PrintTo(const TmTime& time, std::ostream* out) {
    *out << time.hour << ":" << time.minute << ":" << time.second;
}

namespace vorn::test {

class TimeEditTest : public testing::Test {
protected:
    EditHost edits;
    RegionalSettings regional;

    TimeEditTest() { Use12Hours(); }

    // The user's form; edits that there are have to be told.
    void Use12Hours() { UseForm("0", "AM", "PM"); }
    void Use24Hours() { UseForm("1", "AM", "PM"); }
    void UseForm(const char* form, const char* am, const char* pm) {
        regional.Set("iTime", form);
        regional.Set("iTLZero", "0");
        regional.Set("s1159", am);
        regional.Set("s2359", pm);
        regional.Set("sTime", ":");
    }

    HWND Create(DWORD style = VTMS_SECONDS, int width = 200, int height = 24) {
        return edits.Create(VORN_TIMEEDIT_CLASS, style, width, height);
    }

    HWND CreateAt(WORD hour, WORD minute, WORD second, DWORD style = VTMS_SECONDS) {
        HWND edit = Create(style);
        Set(edit, hour, minute, second);
        edits.Take();
        return edit;
    }

    HWND CreateFocused(WORD hour, WORD minute, WORD second, DWORD style = VTMS_SECONDS) {
        HWND edit = CreateAt(hour, minute, second, style);
        SetFocus(edit);
        PumpMessages();
        edits.Take();
        return edit;
    }

    static void Set(HWND edit, WORD hour, WORD minute, WORD second) {
        const TmTime time = {hour, minute, second};
        EXPECT_EQ(tmSetTime(edit, &time), 1);
    }

    static TmTime TimeOf(HWND edit) {
        TmTime time = {99, 99, 99};
        EXPECT_EQ(tmGetTime(edit, &time), 1);
        return time;
    }

    static std::string TextOf(HWND edit) {
        char text[64];
        GetWindowTextA(edit, text, sizeof text);
        return text;
    }

    // Start and end of the selection.
    static std::pair<DWORD, DWORD> SelectionOf(HWND edit) {
        DWORD start = 99;
        DWORD end = 99;
        SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                     reinterpret_cast<LPARAM>(&end));
        return {start, end};
    }

    // What a subclassing host that refuses hears and what the edit then still holds.
    template <class Run>
    Heard Refused(Run run) {
        edits.allow = false;
        const Heard heard = edits.HeardBy(run);
        edits.allow = true;
        return heard;
    }
};

} // namespace vorn::test
