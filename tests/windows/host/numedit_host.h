// A host of numeric edits.
#pragma once

#include "tests/windows/support/edit_host.h"

#include <string>
#include <utility>
#include <vorn32.h>

namespace vorn::test {

class NumEditHost : public EditHost {
protected:
    // Typing inserts, whatever tests before have done to the Insert key.
    NumEditHost() { SetOverwriting(false); }
    ~NumEditHost() override { SetOverwriting(false); }

    // The toggle state of the Insert key, without its message.
    static void SetOverwriting(bool on) {
        BYTE keys[256];
        GetKeyboardState(keys);
        keys[VK_INSERT] = on ? 1 : 0;
        SetKeyboardState(keys);
    }

    // Empty, of this format with "." and ",", whatever the user's settings are. Nothing is noted
    // yet.
    HWND Create(DWORD kind = NM_GENERAL, WORD digits = 0, DWORD style = 0, int width = 120,
                int height = 24) {
        HWND edit = CreateEdit(VORN_NUMEDIT_CLASS, style, width, height);
        NmEditParams params = Params(kind, digits);
        nmSetEditParams(edit, &params);
        TakeEvents();
        return edit;
    }

    HWND CreateFocused(DWORD kind = NM_GENERAL, WORD digits = 0, DWORD style = 0, int width = 120,
                       int height = 24) {
        HWND edit = Create(kind, digits, style, width, height);
        SetFocus(edit);
        TakeEvents();
        return edit;
    }

    static NmEditParams Params(DWORD kind, WORD digits) {
        NmEditParams params{};
        params.formatKind = kind;
        params.decimalDigits = digits;
        params.thousandChar = ',';
        params.decimalChar = '.';
        params.leadingZero = 1;
        return params;
    }

    static void SetRange(HWND edit, double lowest, double highest) {
        NmEditParams params{};
        nmGetEditParams(edit, &params);
        params.rangeCheck = 1;
        params.minValue = lowest;
        params.maxValue = highest;
        nmSetEditParams(edit, &params);
    }

    // A text, without a word to the host.
    void Put(HWND edit, const char* text) {
        const LRESULT answer = std::exchange(allowed, 1);
        const auto act = std::exchange(onEvent, nullptr);
        SetWindowTextA(edit, text);
        TakeEvents();
        allowed = answer;
        onEvent = act;
    }
    void PutAndSelectEnd(HWND edit, const char* text) {
        Put(edit, text);
        const auto length = static_cast<int>(std::string(text).size());
        Select(edit, length, length);
    }

    static std::string LastGoodOf(HWND edit) {
        char text[64] = "?";
        return nmGetLastGoodNumber(edit, text) != 0 ? text : "none";
    }
    static double ValueOf(HWND edit) {
        double value = -99;
        nmGetDouble(edit, &value);
        return value;
    }

    // Characters as a user types them on an American keyboard.
    static void TypeKeys(const char* characters) {
        for (; *characters != '\0'; ++characters) {
            switch (*characters) {
            case '.':
                PressKey(VK_OEM_PERIOD);
                break;
            case ',':
                PressKey(VK_OEM_COMMA);
                break;
            case '-':
                PressKey(VK_OEM_MINUS);
                break;
            case '+':
                PressShifted(VK_OEM_PLUS);
                break;
            case 'e':
                PressKey('E');
                break;
            default:
                PressKey(static_cast<WORD>(*characters));
                break;
            }
        }
    }
};

// What a change by the user tells, between the messages that a key brings.
inline Events ChangeEvents() {
    return {"changed", "EN_UPDATE", "EN_CHANGE"};
}

inline Events operator+(const Events& first, const Events& second) {
    Events both = first;
    both.insert(both.end(), second.begin(), second.end());
    return both;
}

} // namespace vorn::test
