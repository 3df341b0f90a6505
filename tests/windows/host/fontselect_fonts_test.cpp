// Fonts that come and go while a font selector lives.
#include "tests/windows/support/font_select.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace {

using vorn::test::FontSelectTest;

// Replaces a text of the file, as bytes and in the two-byte letters of TrueType's names.
void ReplaceName(std::string& file, const std::string& from, const std::string& to) {
    for (const bool wide : {false, true}) {
        const auto spelled = [wide](const std::string& text) {
            std::string bytes;
            for (const char letter : text) {
                if (wide) {
                    bytes += '\0';
                }
                bytes += letter;
            }
            return bytes;
        };
        for (std::size_t at = 0; (at = file.find(spelled(from), at)) != std::string::npos;) {
            file.replace(at, spelled(to).size(), spelled(to));
        }
    }
}

// A font of a name that no other has, made of one of the system's, for as long as it lives.
class PassingFont {
public:
    explicit PassingFont(const std::string& name) {
        char folder[MAX_PATH] = "";
        GetWindowsDirectoryA(folder, sizeof folder);
        std::ifstream source(std::string(folder) + "\\Fonts\\tahoma.ttf", std::ios::binary);
        std::string bytes((std::istreambuf_iterator<char>(source)), {});
        EXPECT_GT(bytes.size(), 1000u) << "no font to make another of";
        ReplaceName(bytes, "Tahoma", name);
        char temporary[MAX_PATH] = "";
        GetTempPathA(sizeof temporary, temporary);
        path_ = std::string(temporary) + name + ".ttf";
        std::ofstream(path_, std::ios::binary) << bytes;
        EXPECT_GT(AddFontResourceExA(path_.c_str(), FR_PRIVATE, nullptr), 0);
    }
    ~PassingFont() {
        RemoveFontResourceExA(path_.c_str(), FR_PRIVATE, nullptr);
        DeleteFileA(path_.c_str());
    }
    PassingFont(const PassingFont&) = delete;
    PassingFont& operator=(const PassingFont&) = delete;

private:
    std::string path_;
};

class FontSelectFonts : public FontSelectTest {
protected:
    static bool Lists(HWND control, const std::string& name) {
        const std::vector<std::string> texts = TextsOf(Families(control));
        return std::find(texts.begin(), texts.end(), name) != texts.end();
    }

    static void ExpectTheSystemsFamilies(HWND control) {
        std::vector<std::string> expected = SystemFamilies();
        std::vector<std::string> listed = TextsOf(Families(control));
        std::sort(expected.begin(), expected.end());
        std::sort(listed.begin(), listed.end());
        EXPECT_EQ(listed, expected);
    }
};

TEST_F(FontSelectFonts, ListsAnAddedFontWhenToldOfTheChange) {
    HWND control = Create();
    fsSetFontFamily(control, "Arial");
    {
        const PassingFont font("Vornaa");
        EXPECT_FALSE(Lists(control, "Vornaa")) << "not told yet";
        EXPECT_EQ(SendMessageA(control, WM_FONTCHANGE, 0, 0), 0);
        EXPECT_TRUE(Lists(control, "Vornaa"));
        ExpectTheSystemsFamilies(control);
        EXPECT_EQ(FamilyOf(control), "Arial") << "the choice stays, at another place or not";
        EXPECT_EQ(TextOf(Families(control), Selected(Families(control))), "Arial");
    }
    SendMessageA(control, WM_FONTCHANGE, 0, 0);
    EXPECT_FALSE(Lists(control, "Vornaa"));
    ExpectTheSystemsFamilies(control);
    EXPECT_EQ(FamilyOf(control), "Arial");
}

TEST_F(FontSelectFonts, KeepsAChoiceThatMovesInTheList) {
    HWND control = Create();
    fsSetFontFamily(control, "Tahoma");
    const LRESULT place = Selected(Families(control));
    const PassingFont font("Aaaaaa");
    SendMessageA(control, WM_FONTCHANGE, 0, 0);
    EXPECT_EQ(FamilyOf(control), "Tahoma");
    EXPECT_GT(Selected(Families(control)), place);
}

TEST_F(FontSelectFonts, ChoosesTheFirstWhenTheChosenOneIsGone) {
    HWND control = Create();
    {
        const PassingFont font("Vornbb");
        SendMessageA(control, WM_FONTCHANGE, 0, 0);
        ASSERT_GE(fsSetFontFamily(control, "Vornbb"), 0);
        EXPECT_EQ(FamilyOf(control), "Vornbb");
        SendMessageA(control, WM_FONTCHANGE, 0, 0);
        EXPECT_EQ(FamilyOf(control), "Vornbb");
    }
    SendMessageA(control, WM_FONTCHANGE, 0, 0);
    EXPECT_EQ(Selected(Families(control)), 0);
    EXPECT_EQ(FamilyOf(control), TextOf(Families(control), 0));
}

TEST_F(FontSelectFonts, LeavesTheSizeAlone) {
    HWND control = Create();
    fsSetFontPointSize(control, 24);
    SendMessageA(control, WM_FONTCHANGE, 0, 0);
    EXPECT_EQ(fsGetFontPointSize(control), 24);
    EXPECT_EQ(SendMessageA(Sizes(control), CB_GETCOUNT, 0, 0), 16);
}

} // namespace
