// What hosts read and write of a numeric edit.
#include "tests/windows/host/numedit_host.h"
#include "tests/windows/support/abuse.h"

#include <clocale>
#include <cstring>

namespace {

using vorn::test::DestroyedWindow;
using vorn::test::Events;
using vorn::test::NumEditHost;

class NumEditValue : public NumEditHost {};

template <class Number>
LPARAM AddressOf(Number& number) {
    return reinterpret_cast<LPARAM>(&number);
}

// The host still finds the number before, and what it sets then is overwritten.
TEST_F(NumEditValue, TellsThatATextIsCutBeforeItIsStored) {
    HWND edit = Create();
    Put(edit, "5");
    SendMessageA(edit, EM_LIMITTEXT, 4, 0);
    std::string found;
    host.answer = [&](const vorn::test::Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_COMMAND && HIWORD(message.wParam) == VNMN_TEXTCUT) {
            found = TextOf(edit);
            host.answer = nullptr;
            nmSetInteger(edit, 77);
        }
        return std::nullopt;
    };
    nmSetInteger(edit, 12345);
    EXPECT_EQ(found, "5");
    EXPECT_EQ(TextOf(edit), "123");
}

TEST_F(NumEditValue, IsReadByEveryFunction) {
    HWND edit = Create(NM_FLOATING, 2);
    Put(edit, "-2.9");
    EXPECT_EQ(nmGetShort(edit), -2);
    EXPECT_EQ(nmGetInteger(edit), -2);
    EXPECT_EQ(nmGetLongInteger(edit), -2);
    EXPECT_EQ(nmGetUnsignedShort(edit), 0xFFFFFFFEu);
    EXPECT_EQ(nmGetUnsignedInteger(edit), 0xFFFFFFFEu);
    EXPECT_EQ(nmGetUnsignedLong(edit), 0xFFFFFFFEu);
    float single = 0;
    EXPECT_EQ(nmGetFloat(edit, &single), &single);
    EXPECT_EQ(single, -2.9F);
    double number = 0;
    nmGetDouble(edit, &number);
    EXPECT_EQ(number, -2.9);
    number = 0;
    nmGetLongDouble(edit, &number);
    EXPECT_EQ(number, -2.9);
    EXPECT_EQ(LastGoodOf(edit), "-2.90");
    Put(edit, "70000");
    EXPECT_EQ(nmGetShort(edit), 70000) << "32 bits";
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_F(NumEditValue, IsReadByEveryMessage) {
    HWND edit = Create(NM_FLOATING, 2);
    Put(edit, "3000000000.5");
    EXPECT_EQ(SendMessageA(edit, VNMM_GETINTEGER, 0, 0), 2147483647);
    EXPECT_EQ(SendMessageA(edit, VNMM_GETLONGINTEGER, 0, 0), 2147483647);
    EXPECT_EQ(static_cast<DWORD>(SendMessageA(edit, VNMM_GETUNSIGNEDINTEGER, 0, 0)), 3000000000u);
    EXPECT_EQ(static_cast<DWORD>(SendMessageA(edit, VNMM_GETUNSIGNEDLONG, 0, 0)), 3000000000u);
    float single = 0;
    EXPECT_EQ(SendMessageA(edit, VNMM_GETFLOAT, 0, AddressOf(single)), AddressOf(single));
    EXPECT_EQ(single, 3000000000.5F);
    for (const UINT message : {VNMM_GETDOUBLE, VNMM_GETLONGDOUBLE, VNMM_GETVALUE}) {
        double number = 0;
        EXPECT_EQ(SendMessageA(edit, message, 0, AddressOf(number)), 0);
        EXPECT_EQ(number, 3000000000.5) << message;
        SendMessageA(edit, message, 0, 0);
    }
    char text[64] = "";
    EXPECT_NE(SendMessageA(edit, VNMM_GETLASTGOODNUMBER, 0, AddressOf(text)), 0);
    EXPECT_STREQ(text, "3000000000.50");
    EXPECT_EQ(SendMessageA(edit, VNMM_GETLASTGOODNUMBER, 0, 0), 0);
    DWORD size = 0;
    EXPECT_EQ(SendMessageA(edit, VNMM_GETVALUESIZE, 0, AddressOf(size)), 12);
    EXPECT_EQ(size, 8u);
    EXPECT_EQ(SendMessageA(edit, VNMM_GETVALUESIZE, 0, 0), 12);
    EXPECT_EQ(SendMessageA(edit, VNMM_QUERY, 1, 1), 0);
    EXPECT_EQ(SendMessageA(edit, VNMM_OKTOCHANGE, 0, 0), 1);
}

TEST_F(NumEditValue, IsReadWithinTheRange) {
    HWND edit = Create();
    Put(edit, "250");
    SetRange(edit, 0, 100);
    EXPECT_EQ(nmGetInteger(edit), 100);
    EXPECT_EQ(ValueOf(edit), 100);
    EXPECT_EQ(LastGoodOf(edit), "100");
    EXPECT_EQ(TextOf(edit), "250");
}

struct Writer {
    const char* name;
    void (*write)(HWND edit);
    const char* text; // as kind NM_FLOATING with two decimals
};

const double kNumber = 2.75;
const float kSingle = 2.75F;

const Writer kWriters[] = {
    {"short", [](HWND edit) { nmSetShort(edit, -7); }, "-7.00"},
    {"unsigned short", [](HWND edit) { nmSetUnsignedShort(edit, 65535); }, "65535.00"},
    {"integer", [](HWND edit) { nmSetInteger(edit, -2147483647 - 1); }, "-2147483648.00"},
    {"unsigned integer", [](HWND edit) { nmSetUnsignedInteger(edit, 3000000000u); },
     "3000000000.00"},
    {"long", [](HWND edit) { nmSetLongInteger(edit, 7); }, "7.00"},
    {"unsigned long", [](HWND edit) { nmSetUnsignedLong(edit, 4294967295u); }, "4294967295.00"},
    {"float", [](HWND edit) { nmSetFloat(edit, &kSingle); }, "2.75"},
    {"double", [](HWND edit) { nmSetDouble(edit, &kNumber); }, "2.75"},
    {"long double", [](HWND edit) { nmSetLongDouble(edit, &kNumber); }, "2.75"},
    {"message integer", [](HWND edit) { SendMessageA(edit, VNMM_SETINTEGER, WPARAM(-7), 0); },
     "-7.00"},
    {"message long", [](HWND edit) { SendMessageA(edit, VNMM_SETLONGINTEGER, 7, 0); }, "7.00"},
    {"message unsigned integer",
     [](HWND edit) { SendMessageA(edit, VNMM_SETUNSIGNEDINTEGER, 3000000000u, 0); },
     "3000000000.00"},
    {"message unsigned long",
     [](HWND edit) { SendMessageA(edit, VNMM_SETUNSIGNEDLONG, 3000000000u, 0); }, "3000000000.00"},
    {"message float", [](HWND edit) { SendMessageA(edit, VNMM_SETFLOAT, 0, AddressOf(kSingle)); },
     "2.75"},
    {"message double", [](HWND edit) { SendMessageA(edit, VNMM_SETDOUBLE, 0, AddressOf(kNumber)); },
     "2.75"},
    {"message long double",
     [](HWND edit) { SendMessageA(edit, VNMM_SETLONGDOUBLE, 0, AddressOf(kNumber)); }, "2.75"},
    {"message value", [](HWND edit) { SendMessageA(edit, VNMM_SETVALUE, 0, AddressOf(kNumber)); },
     "2.75"},
};

TEST_F(NumEditValue, IsWrittenByEveryFunctionAndMessage) {
    for (const Writer& writer : kWriters) {
        HWND edit = Create(NM_FLOATING, 2);
        SendMessageA(edit, EM_SETMODIFY, 1, 0);
        notesPaints = true;
        writer.write(edit);
        EXPECT_EQ(TextOf(edit), writer.text) << writer.name;
        EXPECT_EQ(TakeEvents(), (Events{"ask", "paint", "changed"})) << writer.name;
        notesPaints = false;
        EXPECT_FALSE(nmIsNull(edit));
        EXPECT_EQ(SendMessageA(edit, EM_GETMODIFY, 0, 0), 0);
        DestroyWindow(edit);
    }
}

TEST_F(NumEditValue, IsNotWrittenWithoutLeave) {
    for (const Writer& writer : kWriters) {
        HWND edit = Create(NM_FLOATING, 2);
        Put(edit, "1");
        allowed = 0;
        writer.write(edit);
        EXPECT_EQ(TextOf(edit), "1") << writer.name;
        EXPECT_EQ(TakeEvents(), Events{"ask"});
        allowed = 1;
    }
}

TEST_F(NumEditValue, TheFloatAnswersWhatTheHostDid) {
    HWND edit = Create();
    for (const LRESULT answer : {0, 1, 7}) {
        allowed = answer;
        EXPECT_EQ(nmSetFloat(edit, &kSingle), answer);
        EXPECT_EQ(SendMessageA(edit, VNMM_SETFLOAT, 0, AddressOf(kSingle)), answer);
    }
    EXPECT_EQ(nmSetFloat(edit, nullptr), 0);
}

TEST_F(NumEditValue, OfEachKindIsWrittenItsWay) {
    for (DWORD kind = 0; kind <= 9; ++kind) {
        HWND edit = Create(kind, 2);
        const bool padded = kind == 0 || (kind >= 5 && kind <= 8);
        nmSetInteger(edit, 7);
        EXPECT_EQ(TextOf(edit), padded ? "7.00" : "7") << kind;
        const double seven = 7;
        nmSetDouble(edit, &seven);
        EXPECT_EQ(TextOf(edit), padded ? "7.00" : "7") << kind;
        EXPECT_EQ(LastGoodOf(edit), padded || kind == 9 ? "7.00" : "7") << kind;
        DestroyWindow(edit);
    }
}

TEST_F(NumEditValue, IsWrittenWithinTheRange) {
    HWND edit = Create();
    SetRange(edit, 10, 5);
    nmSetInteger(edit, 7);
    EXPECT_EQ(TextOf(edit), "10") << "a minimum above the maximum wins";
    SetRange(edit, -100, 100);
    nmSetInteger(edit, 250);
    EXPECT_EQ(TextOf(edit), "100");
    nmSetUnsignedLong(edit, 250);
    EXPECT_EQ(TextOf(edit), "100");
}

TEST_F(NumEditValue, ThatReachesTheTextLimitIsCut) {
    HWND edit = Create();
    SendMessageA(edit, EM_LIMITTEXT, 4, 0);
    nmSetInteger(edit, 12345);
    EXPECT_EQ(TextOf(edit), "123");
    EXPECT_EQ(TakeEvents(), (Events{"ask", "code 1280", "changed"}));
    nmSetInteger(edit, 123);
    EXPECT_EQ(TextOf(edit), "123");
    EXPECT_EQ(TakeEvents(), (Events{"ask", "changed"}));
}

TEST_F(NumEditValue, IsWrittenWithTheCaretAtTheStart) {
    HWND edit = CreateFocused();
    Put(edit, "123456");
    Select(edit, 2, 4);
    nmSetInteger(edit, 99);
    EXPECT_EQ(SelectionOf(edit), "0-0");
    EXPECT_EQ(CaretAt(edit).x, 4);
}

// The decimal character of the host's C library has nothing to do with ours.
TEST_F(NumEditValue, DoesNotDependOnTheLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const char* german = std::setlocale(LC_ALL, "German_Germany.1252");
    if (german == nullptr) {
        german = std::setlocale(LC_ALL, "de-DE");
    }
    ASSERT_NE(german, nullptr);
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    HWND edit = CreateFocused(NM_FLOATING, 2);
    nmSetDouble(edit, &kNumber);
    EXPECT_EQ(TextOf(edit), "2.75");
    EXPECT_EQ(ValueOf(edit), 2.75);
    EXPECT_EQ(LastGoodOf(edit), "2.75");
    Select(edit, 0, -1);
    for (const char character : {'1', '.', '5'}) {
        SendMessageA(edit, WM_CHAR, static_cast<WPARAM>(character), 0);
    }
    EXPECT_EQ(ValueOf(edit), 1.5);
    std::setlocale(LC_ALL, before.c_str());
}

TEST_F(NumEditValue, OfWindowsThatAreNoneIsZero) {
    HWND foreign = vorn::test::CreateForeignWindow();
    for (HWND window : {static_cast<HWND>(nullptr), foreign, DestroyedWindow(), host.window()}) {
        EXPECT_EQ(nmGetShort(window), 0);
        EXPECT_EQ(nmGetInteger(window), 0);
        EXPECT_EQ(nmGetLongInteger(window), 0);
        EXPECT_EQ(nmGetUnsignedShort(window), 0u);
        EXPECT_EQ(nmGetUnsignedInteger(window), 0u);
        EXPECT_EQ(nmGetUnsignedLong(window), 0u);
        float single = 5;
        EXPECT_EQ(nmGetFloat(window, &single), &single);
        EXPECT_EQ(single, 0);
        double number = 5;
        nmGetDouble(window, &number);
        EXPECT_EQ(number, 0);
        number = 5;
        nmGetLongDouble(window, &number);
        EXPECT_EQ(number, 0);
        EXPECT_EQ(LastGoodOf(window), "none");
        EXPECT_EQ(nmSetFloat(window, &kSingle), 0);
        if (window != host.window()) {
            for (const Writer& writer : kWriters) {
                writer.write(window);
            }
        }
    }
    HWND edit = Create();
    EXPECT_EQ(nmGetFloat(edit, nullptr), nullptr);
    nmGetDouble(edit, nullptr);
    nmSetDouble(edit, nullptr);
    nmSetLongDouble(edit, nullptr);
    EXPECT_EQ(nmGetLastGoodNumber(edit, nullptr), 0);
    DestroyWindow(foreign);
}

} // namespace
