// A host of date edits.
#pragma once

#include "tests/windows/support/edit_host.h"

#include <ostream>
#include <utility>
#include <vorn32.h>

namespace vorn::test {

struct Numbers {
    int month;
    int day;
    int year;

    friend bool operator==(const Numbers&, const Numbers&) = default;
};

inline void PrintTo(const Numbers& date, std::ostream* out) {
    *out << date.month << "/" << date.day << "/" << date.year;
}

// M/d/yyyy, M/d/yy and dd.MM.yyyy.
enum class Form { MonthFirst, TwoDigits, DayFirst };

class DateEditHost : public EditHost {
protected:
    // Of 5 March 2007; in this form whatever the user's settings are. Nothing is noted yet.
    HWND Create(DWORD style = 0, Form form = Form::MonthFirst, int width = 120, int height = 24) {
        HWND edit = CreateEdit(VORN_DATEEDIT_CLASS, style, width, height);
        const bool dayFirst = form == Form::DayFirst;
        DtEditParams params{};
        params.size = sizeof params;
        params.setDate = 1;
        params.year = 2007;
        params.month = 3;
        params.day = 5;
        params.separator = dayFirst ? '.' : '/';
        params.monthLeadingZero = params.dayLeadingZero = dayFirst;
        params.fourDigitYear = form != Form::TwoDigits;
        params.kinds[0] = dayFirst ? DT_DAY : DT_MONTH;
        params.kinds[1] = dayFirst ? DT_MONTH : DT_DAY;
        params.kinds[2] = DT_YEAR;
        const LRESULT answer = std::exchange(allowed, 1);
        dtSetEditParams(edit, &params);
        allowed = answer;
        TakeEvents();
        return edit;
    }

    HWND CreateFocused(DWORD style = 0, Form form = Form::MonthFirst, int width = 120,
                       int height = 24) {
        HWND edit = Create(style, form, width, height);
        SetFocus(edit);
        TakeEvents();
        return edit;
    }

    static Numbers DateOf(HWND edit) {
        DtDate date{};
        dtGetDate(edit, &date);
        return {date.month, date.day, date.year};
    }

    static std::string ValueOf(HWND edit) {
        char text[32] = "?";
        return dtGetDateString(edit, text);
    }

    static BOOL SetDate(HWND edit, WORD month, WORD day, WORD year) {
        const DtDate date = {month, day, year};
        return dtSetDate(edit, &date);
    }
};

} // namespace vorn::test
