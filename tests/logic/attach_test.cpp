// Attaching and detaching, against a platform that records what it is asked and can refuse.
#include "core/attach.h"

#include <cstring>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

namespace vorn {
namespace {

struct FakePlatform {
    std::vector<std::string> calls;
    std::map<unsigned, std::string> strings;
    unsigned missingString = 0;
    std::string refusedClass;

    FakePlatform() {
        for (unsigned id = 1; id <= 25; ++id) {
            strings[id] = "text " + std::to_string(id);
        }
    }

    static FakePlatform& Of(void* context) { return *static_cast<FakePlatform*>(context); }

    PlatformServices Services() {
        PlatformServices services{};
        services.context = this;
        services.loadString = [](void* context, unsigned id, char* buffer, int size) {
            FakePlatform& self = Of(context);
            self.calls.push_back("string " + std::to_string(id) + " into " + std::to_string(size));
            if (id == self.missingString) {
                return 0;
            }
            const std::string text = self.strings[id].substr(0, static_cast<std::size_t>(size) - 1);
            std::memcpy(buffer, text.c_str(), text.size() + 1);
            return static_cast<int>(text.size());
        };
        services.arrowCursor = [](void*) -> void* { return const_cast<char*>("arrow"); };
        services.stockBrush = [](void*, ClassBrush brush) -> void* {
            return const_cast<char*>(brush == ClassBrush::LightGray ? "gray" : "?");
        };
        services.registerClass = [](void* context, const ClassDescription& description,
                                    void* cursor, void* brush) {
            FakePlatform& self = Of(context);
            const char* none = "none";
            self.calls.push_back(std::string("register ") + description.name + " " +
                                 (cursor == nullptr ? none : static_cast<const char*>(cursor)) +
                                 " " + (brush == nullptr ? none : static_cast<const char*>(brush)));
            return self.refusedClass != description.name;
        };
        services.unregisterClass = [](void* context, const ClassDescription& description) {
            Of(context).calls.push_back(std::string("unregister ") + description.name);
        };
        services.debugOutput = [](void* context, const char* text) {
            Of(context).calls.push_back(std::string("debug ") + text);
        };
        return services;
    }
};

const std::vector<std::string> kStringCalls = {
    "string 1 into 15",  "string 14 into 4", "string 2 into 15",  "string 15 into 4",
    "string 3 into 15",  "string 16 into 4", "string 4 into 15",  "string 17 into 4",
    "string 5 into 15",  "string 18 into 4", "string 6 into 15",  "string 19 into 4",
    "string 7 into 15",  "string 20 into 4", "string 8 into 15",  "string 21 into 4",
    "string 9 into 15",  "string 22 into 4", "string 10 into 15", "string 23 into 4",
    "string 11 into 15", "string 24 into 4", "string 12 into 15", "string 25 into 4",
    "string 13 into 8",
};

const std::vector<std::string> kRegisterCalls = {
    "register VORNButton32 arrow none",     "register VORNNumEdit32 none none",
    "register VORNDateEdit32 none none",    "register VORNCalendar32 arrow none",
    "register VORNTimeEdit32 none none",    "register VORNFontSelect32 arrow gray",
    "register VORNDial32 arrow none",       "register VORNUDLR32 arrow none",
    "register VORNPercentBar32 arrow none", "register VORNHierList32 arrow none",
    "register VORNComboBox32 arrow none",
};

const std::vector<std::string> kUnregisterCalls = {
    "debug VORN32.DLL Unloading...\n", "unregister VORNButton32",     "unregister VORNNumEdit32",
    "unregister VORNDateEdit32",       "unregister VORNFontSelect32", "unregister VORNCalendar32",
    "unregister VORNDial32",           "unregister VORNUDLR32",       "unregister VORNPercentBar32",
    "unregister VORNComboBox32",       "unregister VORNTimeEdit32",   "unregister VORNHierList32",
};

// "Loading..." and then the first `strings` string calls and the first `classes` registrations.
std::vector<std::string> AttachCalls(std::size_t strings, std::size_t classes) {
    std::vector<std::string> calls = {"debug VORN32.DLL Loading...\n"};
    calls.insert(calls.end(), kStringCalls.begin(),
                 kStringCalls.begin() + static_cast<std::ptrdiff_t>(strings));
    calls.insert(calls.end(), kRegisterCalls.begin(),
                 kRegisterCalls.begin() + static_cast<std::ptrdiff_t>(classes));
    return calls;
}

class AttachTest : public testing::Test {
protected:
    FakePlatform platform;
    NameTables tables = PlaceholderNames();
    Library library = {&tables, false};
};

TEST_F(AttachTest, LoadsStringsThenRegistersClassesInOrder) {
    EXPECT_TRUE(Attach(library, platform.Services()));
    EXPECT_TRUE(library.registered);
    EXPECT_EQ(platform.calls, AttachCalls(25, 11));
}

TEST_F(AttachTest, FillsTheNameTables) {
    platform.strings[1] = "January";
    platform.strings[12] = "December";
    platform.strings[13] = "SMDMDFS";
    platform.strings[14] = "Jan";
    platform.strings[25] = "Dez";
    Attach(library, platform.Services());
    EXPECT_STREQ(tables.monthNames[0], "January");
    EXPECT_STREQ(tables.monthNames[11], "December");
    EXPECT_STREQ(tables.shortMonthNames[0], "Jan");
    EXPECT_STREQ(tables.shortMonthNames[11], "Dez");
    EXPECT_STREQ(tables.weekdayInitials, "SMDMDFS");
    for (std::size_t month = 0; month < kMonths; ++month) {
        EXPECT_EQ(tables.monthNames[month], tables.longMonths[month]);
        EXPECT_EQ(tables.shortMonthNames[month], tables.shortMonths[month]);
    }
}

TEST_F(AttachTest, CutsLongNamesAt14AndShortNamesAt3Characters) {
    platform.strings[9] = "abcdefghijklmnopq"; // 17 characters
    platform.strings[22] = "wxyz";
    platform.strings[13] = "123456789";
    Attach(library, platform.Services());
    EXPECT_STREQ(tables.monthNames[8], "abcdefghijklmn");
    EXPECT_STREQ(tables.shortMonthNames[8], "wxy");
    EXPECT_STREQ(tables.weekdayInitials, "1234567");
}

TEST_F(AttachTest, FailsAtEachMissingStringAndRegistersNothing) {
    for (std::size_t failing = 0; failing < kStringCalls.size(); ++failing) {
        FakePlatform missing;
        // "string 14 into 4"
        missing.missingString = static_cast<unsigned>(std::stoul(kStringCalls[failing].substr(7)));
        EXPECT_FALSE(Attach(library, missing.Services())) << kStringCalls[failing];
        EXPECT_FALSE(library.registered);
        EXPECT_EQ(missing.calls, AttachCalls(failing + 1, 0));
    }
}

TEST_F(AttachTest, FailsAtEachRefusedClassAndLeavesTheEarlierOnes) {
    for (std::size_t failing = 0; failing < kClassTable.size(); ++failing) {
        FakePlatform refusing;
        refusing.refusedClass = kClassTable[failing].name;
        EXPECT_FALSE(Attach(library, refusing.Services())) << refusing.refusedClass;
        EXPECT_FALSE(library.registered);
        EXPECT_EQ(refusing.calls, AttachCalls(25, failing + 1));
    }
}

TEST_F(AttachTest, SecondAttachDoesNothing) {
    Attach(library, platform.Services());
    platform.calls.clear();
    EXPECT_TRUE(Attach(library, platform.Services()));
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(AttachTest, AttachAfterAFailedOneStartsAgain) {
    platform.missingString = 13;
    Attach(library, platform.Services());
    platform.missingString = 0;
    platform.calls.clear();
    EXPECT_TRUE(Attach(library, platform.Services()));
    EXPECT_EQ(platform.calls, AttachCalls(25, 11));
}

TEST_F(AttachTest, DetachUnregistersInItsOwnOrder) {
    Attach(library, platform.Services());
    platform.calls.clear();
    Detach(library, platform.Services());
    EXPECT_EQ(platform.calls, kUnregisterCalls);
    EXPECT_TRUE(library.registered) << "the flag is not cleared";
}

TEST_F(AttachTest, DetachWithoutAttachDoesNothing) {
    Detach(library, platform.Services());
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(AttachTest, DetachAfterAFailedAttachDoesNothing) {
    platform.refusedClass = "VORNDial32";
    Attach(library, platform.Services());
    platform.calls.clear();
    Detach(library, platform.Services());
    EXPECT_TRUE(platform.calls.empty());
}

} // namespace
} // namespace vorn
