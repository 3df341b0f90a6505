// A font selector under test, and what can be seen of its lists.
#pragma once

#include "tests/windows/support/host_window.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <vorn32.h>

namespace vorn::test {

constexpr int kFontSelectId = 4242;

class FontSelectTest : public testing::Test {
protected:
    HWND Create(DWORD style = 0, int width = 300, int height = 40) {
        return host.Create(VORN_FONTSELECT_CLASS, style, 10, 10, width, height, kFontSelectId);
    }

    static HWND DialogOf(HWND control) { return GetWindow(control, GW_CHILD); }
    static HWND Families(HWND control) { return GetDlgItem(DialogOf(control), 228); }
    static HWND Sizes(HWND control) { return GetDlgItem(DialogOf(control), 229); }

    static LRESULT Selected(HWND list) { return SendMessageA(list, CB_GETCURSEL, 0, 0); }

    static std::string TextOf(HWND list, LRESULT index) {
        char text[200] = "";
        SendMessageA(list, CB_GETLBTEXT, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(text));
        return text;
    }

    static std::vector<std::string> TextsOf(HWND list) {
        std::vector<std::string> texts;
        const LRESULT count = SendMessageA(list, CB_GETCOUNT, 0, 0);
        for (LRESULT i = 0; i < count; ++i) {
            texts.push_back(TextOf(list, i));
        }
        return texts;
    }

    static std::string FamilyOf(HWND control) {
        char name[100] = "";
        fsGetFontFamily(control, name, sizeof name);
        return name;
    }

    // The families as the system names them.
    static std::vector<std::string> SystemFamilies() {
        std::vector<std::string> names;
        HDC context = GetDC(nullptr);
        EnumFontFamiliesA(context, nullptr, AddName, reinterpret_cast<LPARAM>(&names));
        ReleaseDC(nullptr, context);
        return names;
    }

    HostWindow host;

private:
    static int CALLBACK AddName(const LOGFONTA* font, const TEXTMETRICA*, DWORD, LPARAM names) {
        reinterpret_cast<std::vector<std::string>*>(names)->push_back(font->lfFaceName);
        return 1;
    }
};

} // namespace vorn::test
