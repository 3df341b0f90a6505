// The library as a whole: classes, version functions.
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <vorn32.h>

namespace {

struct ExpectedClass {
    const char* name;
    const char* procedure;
    UINT style;
    int extraBytes32;
    bool arrow;
};

constexpr UINT kUsual = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS | CS_GLOBALCLASS;

const std::vector<ExpectedClass>& ExpectedClasses() {
    static const std::vector<ExpectedClass> classes = {
        {VORN_BUTTON_CLASS, "VORNButtonWinFn", kUsual, 40, true},
        {VORN_NUMEDIT_CLASS, "VORNNumEditWinFn", kUsual, 12, false},
        {VORN_DATEEDIT_CLASS, "VORNDateEditWinFn", kUsual, 12, false},
        {VORN_TIMEEDIT_CLASS, "VORNTimeEditWinFn", kUsual, 12, false},
        {VORN_FONTSELECT_CLASS, "VORNFontSelectWinFn", kUsual, 12, true},
        {VORN_CALENDAR_CLASS, "VORNCalendarWinFn", kUsual, 12, true},
        {VORN_DIAL_CLASS, "VORNDialWinFn", kUsual, 12, true},
        {VORN_UDLR_CLASS, "VORNUDLRWinFn", kUsual, 10, true},
        {VORN_PERCENTBAR_CLASS, "VORNPctBarWinFn", kUsual, 32, true},
        {VORN_HIERLIST_CLASS, "VORNHierListWinFn", CS_DBLCLKS | CS_GLOBALCLASS, 4, true},
        {VORN_COMBOBOX_CLASS, "VORNCBFunction", kUsual, 16, true},
    };
    return classes;
}

WNDCLASSA QueryClass(const char* name) {
    WNDCLASSA found{};
    EXPECT_TRUE(GetClassInfoA(GetModuleHandleA("VORN32.DLL"), name, &found)) << name;
    return found;
}

TEST(Classes, HaveTheirStylesExtraBytesCursorsAndBrushes) {
    constexpr int kPointerGrowth = static_cast<int>(sizeof(void*)) - 4;
    for (const ExpectedClass& expected : ExpectedClasses()) {
        const WNDCLASSA found = QueryClass(expected.name);
        EXPECT_EQ(found.style, expected.style) << expected.name;
        EXPECT_EQ(found.cbClsExtra, 0) << expected.name;
        EXPECT_EQ(found.cbWndExtra, expected.extraBytes32 + kPointerGrowth) << expected.name;
        EXPECT_EQ(found.hCursor, expected.arrow ? LoadCursorA(nullptr, IDC_ARROW) : nullptr)
            << expected.name;
        EXPECT_EQ(found.hIcon, nullptr) << expected.name;
        EXPECT_EQ(found.lpszMenuName, nullptr) << expected.name;
        const HGDIOBJ brush = std::string(expected.name) == VORN_FONTSELECT_CLASS
                                  ? GetStockObject(LTGRAY_BRUSH)
                                  : nullptr;
        EXPECT_EQ(found.hbrBackground, brush) << expected.name;
    }
}

TEST(Classes, HaveTheExportedWindowProcedures) {
    HMODULE module = GetModuleHandleA("VORN32.DLL");
    for (const ExpectedClass& expected : ExpectedClasses()) {
        const auto exported = reinterpret_cast<INT_PTR>(GetProcAddress(module, expected.procedure));
        EXPECT_NE(exported, 0) << expected.procedure;
        EXPECT_EQ(reinterpret_cast<INT_PTR>(QueryClass(expected.name).lpfnWndProc), exported)
            << expected.name;
    }
}

TEST(Classes, MakeWindowsForAnyModuleOfTheProcess) {
    for (const ExpectedClass& expected : ExpectedClasses()) {
        HWND window = CreateWindowExA(0, expected.name, "", WS_POPUP, 0, 0, 50, 20, nullptr,
                                      nullptr, GetModuleHandleA(nullptr), nullptr);
        EXPECT_NE(window, nullptr) << expected.name;
        DestroyWindow(window);
    }
}

TEST(Strings, AreMonthsInitialsAndShortMonths) {
    const char* expected[] = {
        "January", "February", "March",    "April",   "May", "June", "July", "August", "September",
        "October", "November", "December", "SMTWTFS", "Jan", "Feb",  "Mar",  "Apr",    "May",
        "Jun",     "Jul",      "Aug",      "Sep",     "Oct", "Nov",  "Dec"};
    UINT id = 1;
    for (const char* text : expected) {
        char loaded[40] = "";
        LoadStringA(GetModuleHandleA("VORN32.DLL"), id++, loaded, sizeof loaded);
        EXPECT_STREQ(loaded, text);
    }
}

TEST(Version, IsPackedFromTheVersionResource) {
    HRSRC resource = FindResourceA(GetModuleHandleA("VORN32.DLL"), MAKEINTRESOURCEA(1),
                                   reinterpret_cast<LPCSTR>(RT_VERSION));
    ASSERT_NE(resource, nullptr);
    EXPECT_EQ(GetLongVersion(),
              DWORD{VORN_TEST_MAJOR} << 24 | DWORD{VORN_TEST_MINOR} << 16 | DWORD{VORN_TEST_PATCH});
    EXPECT_EQ(GetVORNVersion(), GetLongVersion() >> 16);
}

} // namespace
