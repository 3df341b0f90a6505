// Listing directories in the system's list box and in an outline list, side by side.
#include "tests/windows/support/folder.h"
#include "tests/windows/support/outline_list.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

using vorn::test::Folder;
using vorn::test::OutlineListTest;
using Texts = std::vector<std::string>;

class HierListListBoxDirectory : public OutlineListTest {
protected:
    HierListListBoxDirectory() {
        folder.AddFile("Plain.TXT");
        folder.AddFile("Other.TXT");
        folder.AddFolder("Folder");
        box = host.Create("LISTBOX", 0, 5, 6, 100, 100);
        outline = Create();
    }

    // The sorted texts that a list has after a message with the pattern of the whole folder.
    Texts Listed(HWND list, UINT attributes) const {
        SendMessageA(list, LB_RESETCONTENT, 0, 0);
        const std::string all = folder.path + "\\*.*";
        SendMessageA(list, LB_DIR, attributes, reinterpret_cast<LPARAM>(all.c_str()));
        return TextsOf(list);
    }
    static Texts TextsOf(HWND list) {
        Texts texts;
        const auto count = static_cast<int>(SendMessageA(list, LB_GETCOUNT, 0, 0));
        for (int row = 0; row < count; ++row) {
            char text[300] = "";
            SendMessageA(list, LB_GETTEXT, static_cast<WPARAM>(row),
                         reinterpret_cast<LPARAM>(text));
            texts.emplace_back(text);
        }
        std::sort(texts.begin(), texts.end());
        return texts;
    }
    static bool Has(const Texts& texts, const char* text) {
        return std::find(texts.begin(), texts.end(), text) != texts.end();
    }

    Folder folder;
    HWND box = nullptr;
    HWND outline = nullptr;
};

TEST_F(HierListListBoxDirectory, WithoutExclusiveAllIsListedWhateverTheAttributes) {
    EXPECT_EQ(Listed(box, 0), (Texts{"Other.TXT", "Plain.TXT"})) << "ordinary files";
    EXPECT_EQ(Listed(outline, 0), (Texts{"folder", "other.txt", "plain.txt"}));
    EXPECT_EQ(Listed(outline, DDL_HIDDEN), (Texts{"folder", "other.txt", "plain.txt"}));
}

TEST_F(HierListListBoxDirectory, FoldersHaveNoBracketsAndNoParent) {
    EXPECT_EQ(Listed(box, DDL_DIRECTORY | DDL_EXCLUSIVE), (Texts{"[..]", "[Folder]"}));
    EXPECT_EQ(Listed(outline, DDL_DIRECTORY | DDL_EXCLUSIVE), (Texts{"folder"}));
}

TEST_F(HierListListBoxDirectory, DrivesAreListedAlone) {
    const Texts inBox = Listed(box, DDL_DRIVES);
    EXPECT_TRUE(Has(inBox, "Plain.TXT") && Has(inBox, "[-c-]"));
    const Texts inOutline = Listed(outline, DDL_DRIVES);
    EXPECT_FALSE(inOutline.empty());
    for (const std::string& text : inOutline) {
        EXPECT_EQ(text.substr(1, 2), ":\\") << text;
    }
}

TEST_F(HierListListBoxDirectory, AFileIsAddedAsItIsNamedWhetherThereIsOneOrNot) {
    for (const char* name : {"\\Plain.TXT", "\\Missing.TXT"}) {
        const std::string path = folder.path + name;
        SendMessageA(outline, LB_RESETCONTENT, 0, 0);
        EXPECT_EQ(SendMessageA(outline, LB_ADDFILE, 0, reinterpret_cast<LPARAM>(path.c_str())), 0);
        EXPECT_EQ(TextsOf(outline), (Texts{path}));
    }
}

} // namespace
