// Loading and unloading the DLL, and what it exports.
#include <windows.h>
#include <cstdint>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace {

constexpr const char* kClasses[] = {"VORNButton32",   "VORNNumEdit32",  "VORNDateEdit32",
                                    "VORNCalendar32", "VORNTimeEdit32", "VORNFontSelect32",
                                    "VORNDial32",     "VORNUDLR32",     "VORNPercentBar32",
                                    "VORNHierList32", "VORNComboBox32"};

int RegisteredClasses() {
    int count = 0;
    for (const char* name : kClasses) {
        HWND window = CreateWindowExA(0, name, "", WS_POPUP, 0, 0, 20, 20, nullptr, nullptr,
                                      GetModuleHandleA(nullptr), nullptr);
        count += window != nullptr;
        DestroyWindow(window);
    }
    return count;
}

TEST(Loading, RegistersTheClassesAndUnloadingUnregistersThem) {
    EXPECT_EQ(RegisteredClasses(), 0);
    for (int round = 0; round < 3; ++round) {
        HMODULE module = LoadLibraryA("VORN32.dll");
        ASSERT_NE(module, nullptr);
        EXPECT_EQ(RegisteredClasses(), 11);
        FreeLibrary(module);
        EXPECT_EQ(RegisteredClasses(), 0);
    }
}

// Takes away the library's classes, in whoever's name they are registered; the number of them.
int UnregisterAll() {
    int count = 0;
    for (const char* name : kClasses) {
        WNDCLASSA found{};
        if (GetClassInfoA(GetModuleHandleA(nullptr), name, &found) != 0) {
            count += UnregisterClassA(name, found.hInstance) != 0;
        }
    }
    return count;
}

TEST(Loading, IsRefusedWhenAClassIsTaken) {
    WNDCLASSA taken{};
    taken.style = CS_GLOBALCLASS;
    taken.lpfnWndProc = DefWindowProcA;
    taken.hInstance = GetModuleHandleA(nullptr);
    taken.lpszClassName = "VORNDial32";
    ASSERT_NE(RegisterClassA(&taken), 0);
    EXPECT_EQ(LoadLibraryA("VORN32.dll"), nullptr);
    EXPECT_EQ(UnregisterAll(), 1 + 6) << "ours and the six that come before it, which stay";
}

// Every name of the list is exported plain, and those marked so under their decorated name too.
TEST(Loading, ExportsEveryNameOfItsList) {
    HMODULE module = LoadLibraryA("VORN32.dll");
    ASSERT_NE(module, nullptr);
    std::ifstream list(VORN_TEST_EXPORTS);
    ASSERT_TRUE(list) << VORN_TEST_EXPORTS;
    int names = 0;
    for (std::string line; std::getline(list, line);) {
        if (line.empty() || line[0] == '#') {
            continue;
        }
        std::istringstream fields(line);
        std::string name, bytes, mark;
        fields >> name >> bytes >> mark;
        const FARPROC plain = GetProcAddress(module, name.c_str());
        EXPECT_NE(plain, nullptr) << name;
        if (mark == "decorated") {
            EXPECT_EQ(GetProcAddress(module, ("_" + name + "@" + bytes).c_str()), plain) << name;
        }
        ++names;
    }
    EXPECT_GE(names, 23);
    FreeLibrary(module);
}

// The section of a loaded module that an address lies in; null for none.
const IMAGE_SECTION_HEADER* SectionOf(HMODULE module, FARPROC function) {
    const auto* base = reinterpret_cast<const std::uint8_t*>(module);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_SECTION_HEADER* sections = IMAGE_FIRST_SECTION(headers);
    const auto offset = reinterpret_cast<UINT_PTR>(function) - reinterpret_cast<UINT_PTR>(base);
    for (WORD i = 0; i < headers->FileHeader.NumberOfSections; ++i) {
        if (offset >= sections[i].VirtualAddress &&
            offset - sections[i].VirtualAddress < sections[i].Misc.VirtualSize) {
            return &sections[i];
        }
    }
    return nullptr;
}

TEST(Loading, TheComboBoxProcedureHasACodeSectionOfItsOwn) {
    HMODULE module = LoadLibraryA("VORN32.dll");
    ASSERT_NE(module, nullptr);
    const IMAGE_SECTION_HEADER* comboBox =
        SectionOf(module, GetProcAddress(module, "VORNCBFunction"));
    ASSERT_NE(comboBox, nullptr);
    EXPECT_NE(comboBox->Characteristics & IMAGE_SCN_CNT_CODE, 0u);
    EXPECT_NE(comboBox->Characteristics & IMAGE_SCN_MEM_EXECUTE, 0u);
    EXPECT_EQ(comboBox->Characteristics & IMAGE_SCN_MEM_WRITE, 0u);
    for (const char* other : {"VORNPctBarWinFn", "VORNFontSelectWinFn", "pbSetLimit"}) {
        EXPECT_NE(SectionOf(module, GetProcAddress(module, other)), comboBox) << other;
    }
    FreeLibrary(module);
}

} // namespace
