// A host of time edits.
#pragma once

#include "tests/windows/support/edit_host.h"

#include <list>
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

class TimeEditTest : public EditHost {
protected:
    TimeEditTest() { Use12Hours(); }

    // One of the user's settings, null for none; as it was at the end of the test. Edits that there
    // are have to be told.
    void SetUser(const char* key, const char* text) { settings_.emplace_front(key, text); }

    void Use12Hours() { UseForm("0", "AM", "PM"); }
    void Use24Hours() { UseForm("1", "AM", "PM"); }
    void UseForm(const char* form, const char* am, const char* pm) {
        SetUser("iTime", form);
        SetUser("iTLZero", "0");
        SetUser("s1159", am);
        SetUser("s2359", pm);
        SetUser("sTime", ":");
    }

    HWND Create(DWORD style = VTMS_SECONDS, int width = 200, int height = 24) {
        return CreateEdit(VORN_TIMEEDIT_CLASS, style, width, height);
    }

    HWND CreateAt(WORD hour, WORD minute, WORD second, DWORD style = VTMS_SECONDS) {
        HWND edit = Create(style);
        Set(edit, hour, minute, second);
        TakeEvents();
        return edit;
    }

    HWND CreateFocused(WORD hour, WORD minute, WORD second, DWORD style = VTMS_SECONDS) {
        HWND edit = CreateAt(hour, minute, second, style);
        SetFocus(edit);
        TakeEvents();
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

    // What is heard while something runs, and of what it leaves in the queue.
    template <class Run>
    Events HeardBy(Run run) {
        TakeEvents();
        run();
        return TakeEvents();
    }

    // The same with a host that refuses.
    template <class Run>
    Events Refused(Run run) {
        allowed = 0;
        const Events heard = HeardBy(run);
        allowed = 1;
        return heard;
    }

private:
    std::list<ChangedProfile> settings_; // the latest first
};

} // namespace vorn::test
