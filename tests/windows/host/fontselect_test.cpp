// The font selector's choices: what its functions and messages set and tell.
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/font_select.h"

#include <algorithm>

namespace {

using vorn::test::FontSelectTest;

class FontSelect : public FontSelectTest {
protected:
    static int PixelsPerInch() {
        HDC context = GetDC(nullptr);
        const int pixels = GetDeviceCaps(context, LOGPIXELSY);
        ReleaseDC(nullptr, context);
        return pixels;
    }
};

TEST_F(FontSelect, HasTheDocumentedMessageNumbers) {
    const UINT messages[] = {
        VFSM_GETBACKGROUNDCOLOR, VFSM_SETFONTFAMILY,      VFSM_SETFONTSIZE,
        VFSM_GETFONTFAMILY,      VFSM_GETFONTSIZE,        VFSM_SETFONTCOMMANDCODE,
        VFSM_SETSIZECOMMANDCODE, VFSM_GETFONTPOINTSIZE,   VFSM_SETFONTPOINTSIZE,
        VFSM_SETFIELDCOLOR,      VFSM_SETBACKGROUNDCOLOR, VFSM_SETITEMHEIGHT,
        VFSM_SETTEXTCOLOR};
    UINT expected = 1024;
    for (const UINT message : messages) {
        EXPECT_EQ(message, expected++);
    }
    EXPECT_EQ(expected, 1037u);
}

TEST_F(FontSelect, ListsTheFamiliesThatTheSystemNames) {
    HWND control = Create();
    std::vector<std::string> expected = SystemFamilies();
    std::vector<std::string> listed = TextsOf(Families(control));
    ASSERT_GT(expected.size(), 3u);
    std::sort(expected.begin(), expected.end());
    std::sort(listed.begin(), listed.end());
    EXPECT_EQ(listed, expected);
}

// Sorted as the system sorts, each with its number in the order in which the system names them.
TEST_F(FontSelect, SortsTheFamiliesAsAnyListDoes) {
    HWND control = Create();
    const std::vector<std::string> names = SystemFamilies();
    HWND sorted =
        host.Create("COMBOBOX", CBS_DROPDOWNLIST | CBS_SORT | WS_VSCROLL, 0, 100, 100, 99);
    for (const std::string& name : names) {
        SendMessageA(sorted, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
    }
    EXPECT_EQ(TextsOf(Families(control)), TextsOf(sorted));
    for (std::size_t place = 0; place < names.size(); ++place) {
        const LRESULT index = SendMessageA(Families(control), CB_GETITEMDATA, place, 0);
        ASSERT_GE(index, 0);
        ASSERT_LT(index, static_cast<LRESULT>(names.size()));
        EXPECT_EQ(names[static_cast<std::size_t>(index)],
                  TextOf(Families(control), static_cast<LRESULT>(place)));
    }
}

TEST_F(FontSelect, ListsSixteenSizesInNumericOrder) {
    HWND sizes = Sizes(Create());
    EXPECT_EQ(TextsOf(sizes),
              (std::vector<std::string>{"  8", "  9", " 10", " 11", " 12", " 14", " 16", " 18",
                                        " 20", " 22", " 24", " 26", " 28", " 36", " 48", " 72"}));
    const LRESULT points[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72};
    for (WPARAM i = 0; i < 16; ++i) {
        EXPECT_EQ(SendMessageA(sizes, CB_GETITEMDATA, i, 0), points[i]);
    }
}

TEST_F(FontSelect, StartsWithTheFirstFamilyAndTenPoints) {
    HWND control = Create();
    EXPECT_EQ(Selected(Families(control)), 0);
    EXPECT_EQ(FamilyOf(control), TextOf(Families(control), 0));
    EXPECT_EQ(Selected(Sizes(control)), 2);
    EXPECT_EQ(fsGetFontPointSize(control), 10);
}

TEST_F(FontSelect, FindsAFamilyByItsBeginningWhateverTheCase) {
    HWND control = Create();
    const std::vector<std::string> names = TextsOf(Families(control));
    const auto arial = std::find(names.begin(), names.end(), "Arial");
    ASSERT_NE(arial, names.end());
    EXPECT_EQ(fsSetFontFamily(control, "aRIAl"), arial - names.begin());
    EXPECT_EQ(FamilyOf(control), "Arial");
    EXPECT_EQ(Selected(Families(control)), arial - names.begin());

    const auto courier = std::find_if(names.begin(), names.end(), [](const std::string& name) {
        return name.compare(0, 4, "Cour") == 0;
    });
    ASSERT_NE(courier, names.end());
    EXPECT_EQ(fsSetFontFamily(control, "cour"), courier - names.begin());
    EXPECT_EQ(FamilyOf(control), *courier);
}

TEST_F(FontSelect, KeepsItsFamilyWhenThereIsNoSuchOne) {
    HWND control = Create();
    fsSetFontFamily(control, "Arial");
    EXPECT_EQ(fsSetFontFamily(control, "No such family"), -1);
    EXPECT_EQ(FamilyOf(control), "Arial");
    EXPECT_EQ(fsSetFontFamily(control, std::string(300, 'A').c_str()), -1);
    EXPECT_EQ(fsSetFontFamily(control, nullptr), -1);
    EXPECT_EQ(FamilyOf(control), "Arial");
}

TEST_F(FontSelect, CutsTheFamilysNameToTheBuffer) {
    HWND control = Create();
    fsSetFontFamily(control, "Arial");
    const struct {
        int size;
        std::string expected;
    } cases[] = {{0, "......"},
                 {1, std::string("\0.....", 6)},
                 {2, std::string("A\0....", 6)},
                 {5, std::string("Aria\0.", 6)},
                 {6, std::string("Arial\0", 6)},
                 {-1, "......"}};
    for (const auto& given : cases) {
        std::string buffer(6, '.');
        fsGetFontFamily(control, buffer.data(), given.size);
        EXPECT_EQ(buffer, given.expected) << given.size;
    }
    fsGetFontFamily(control, nullptr, 10);
}

TEST_F(FontSelect, NamesASpaceWithoutAChoice) {
    HWND control = Create();
    SendMessageA(Families(control), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    EXPECT_EQ(FamilyOf(control), " ");
    char buffer[] = "..";
    fsGetFontFamily(control, buffer, 1);
    EXPECT_EQ(buffer[0], '\0');
    fsGetFontFamily(control, buffer, 2);
    EXPECT_STREQ(buffer, " ");
}

TEST_F(FontSelect, ChoosesSizesByPoints) {
    HWND control = Create();
    const struct {
        LONG points;
        LONG index;
        LONG chosen;
    } cases[] = {{11, 3, 11},  {34, 12, 28}, {30, 13, 36},      {13, 5, 14},
                 {72, 15, 72}, {73, 15, 72}, {1000000, 15, 72}, {8, 0, 8},
                 {7, 0, 8},    {-100, 0, 8}, {0, 0, 8}};
    for (const auto& given : cases) {
        EXPECT_EQ(fsSetFontPointSize(control, given.points), given.index) << given.points;
        EXPECT_EQ(fsGetFontPointSize(control), given.chosen) << given.points;
        EXPECT_EQ(Selected(Sizes(control)), given.index);
    }
}

TEST_F(FontSelect, IsTenPointsWithoutAChoice) {
    HWND control = Create();
    SendMessageA(Sizes(control), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    EXPECT_EQ(fsGetFontPointSize(control), 10);
    EXPECT_EQ(fsGetFontSize(control), -(PixelsPerInch() * 10 / 72));
}

TEST_F(FontSelect, TellsTheLogicalHeight) {
    ASSERT_EQ(PixelsPerInch(), 96);
    HWND control = Create();
    EXPECT_EQ(fsGetFontSize(control), -13);
    fsSetFontPointSize(control, 8);
    EXPECT_EQ(fsGetFontSize(control), -10);
    fsSetFontPointSize(control, 72);
    EXPECT_EQ(fsGetFontSize(control), -96);
}

TEST_F(FontSelect, ChoosesSizesByCharacterHeight) {
    ASSERT_EQ(PixelsPerInch(), 96);
    HWND control = Create();
    fsSetFontPointSize(control, 72);
    EXPECT_EQ(fsSetFontSize(control, -13), 2); // 10.25 points
    EXPECT_EQ(fsGetFontPointSize(control), 10);
    EXPECT_EQ(fsSetFontSize(control, -45), 12); // 34.25 points: 28 is farther than 36
    EXPECT_EQ(fsGetFontPointSize(control), 28);
    EXPECT_EQ(fsSetFontSize(control, 0), 0) << "no height is the smallest size";
    EXPECT_EQ(fsSetFontSize(control, -2147483647 - 1), 15);
}

// The internal leading of a bold font of this cell height.
LONG LeadingOf(const char* family, int cellHeight) {
    HFONT font = CreateFontA(cellHeight, 0, 0, 0, 700, 0, 0, 0, 0, 0, 0, 0, 0, family);
    HDC context = GetDC(nullptr);
    HGDIOBJ previous = SelectObject(context, font);
    TEXTMETRICA metrics{};
    GetTextMetricsA(context, &metrics);
    SelectObject(context, previous);
    ReleaseDC(nullptr, context);
    DeleteObject(font);
    return metrics.tmInternalLeading;
}

// The size that a control with these points chose: checked natively, so one may be asked.
LONG SizeFor(HWND control, LONG points) {
    fsSetFontPointSize(control, points);
    return fsGetFontPointSize(control);
}

TEST_F(FontSelect, ChoosesSizesByTheCellHeightOfTheFamilyInBold) {
    ASSERT_EQ(PixelsPerInch(), 96);
    HWND control = Create();
    for (const char* family : {"Arial", "Times New Roman", "Courier New"}) {
        ASSERT_GE(fsSetFontFamily(control, family), 0);
        const std::string name = FamilyOf(control);
        for (const int height : {1, 12, 16, 20, 37, 41, 60, 90, 200}) {
            const LONG leading = LeadingOf(name.c_str(), height);
            const LONG expected = SizeFor(control, ((height - leading) * 72 + 48) / 96);
            fsSetFontPointSize(control, 9);
            fsSetFontSize(control, height);
            EXPECT_EQ(fsGetFontPointSize(control), expected) << name << " " << height;
        }
    }
    EXPECT_GT(LeadingOf("Arial", 60), 0) << "else cell and character heights are the same";
}

// The family counts: 16 pixels of one are more points than 16 of another.
TEST_F(FontSelect, CountsArialsLeadingWithoutAChoice) {
    HWND control = Create();
    int differences = 0;
    for (int height = 10; height < 100; ++height) {
        SendMessageA(Families(control), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
        fsSetFontSize(control, height);
        const LONG without = fsGetFontPointSize(control);
        fsSetFontFamily(control, "Arial");
        fsSetFontSize(control, height);
        EXPECT_EQ(fsGetFontPointSize(control), without) << height;
        fsSetFontFamily(control, "Courier New");
        fsSetFontSize(control, height);
        differences += fsGetFontPointSize(control) != without;
    }
    EXPECT_GT(differences, 0) << "else this test could not tell the families apart";
}

TEST_F(FontSelect, BearsHugeHeights) {
    HWND control = Create();
    EXPECT_GE(fsSetFontSize(control, 30000), 0);
    EXPECT_GE(fsSetFontSize(control, 2147483647), 0);
    EXPECT_GE(fsSetFontSize(control, -30000), 0);
    EXPECT_EQ(fsGetFontPointSize(control), 72);
}

TEST_F(FontSelect, AnswersItsMessagesAsItsFunctions) {
    HWND control = Create();
    const LRESULT arial =
        SendMessageA(control, VFSM_SETFONTFAMILY, 0, reinterpret_cast<LPARAM>("Arial"));
    EXPECT_GE(arial, 0);
    EXPECT_EQ(arial, Selected(Families(control)));
    EXPECT_EQ(SendMessageA(control, VFSM_SETFONTFAMILY, 0, reinterpret_cast<LPARAM>("No such")),
              -1);
    char buffer[] = "......";
    SendMessageA(control, VFSM_GETFONTFAMILY, 4, reinterpret_cast<LPARAM>(buffer));
    EXPECT_STREQ(buffer, "Ari");
    EXPECT_EQ(buffer[4], '.');
    EXPECT_EQ(SendMessageA(control, VFSM_SETFONTPOINTSIZE, 34, 0), 12);
    EXPECT_EQ(SendMessageA(control, VFSM_GETFONTPOINTSIZE, 0, 0), 28);
    EXPECT_EQ(SendMessageA(control, VFSM_GETFONTSIZE, 0, 0), -37); // 96 x 28 / 72 = 37.3
    EXPECT_EQ(SendMessageA(control, VFSM_SETFONTSIZE, static_cast<WPARAM>(-13), 0), 2);
    EXPECT_EQ(fsGetFontPointSize(control), 10);
}

TEST_F(FontSelect, TellsItsBackgroundColor) {
    HWND control = Create();
    const auto background = [&] {
        return static_cast<COLORREF>(SendMessageA(control, VFSM_GETBACKGROUNDCOLOR, 0, 0));
    };
    EXPECT_EQ(background(), GetSysColor(COLOR_BTNFACE));
    EXPECT_TRUE(fsSetColor(control, VORN_COLOR_BACKGROUND, RGB(1, 2, 3)));
    EXPECT_EQ(background(), RGB(1, 2, 3));
    for (const int slot : {VORN_COLOR_FACE, VORN_COLOR_TEXT, 0, 1, 16, 99, -1}) {
        EXPECT_TRUE(fsSetColor(control, slot, RGB(9, 9, 9))) << "redrawn all the same";
        EXPECT_EQ(background(), RGB(1, 2, 3)) << slot;
    }
    fsSetColor(control, VORN_COLOR_BACKGROUND, VORN_SYSCOLOR(COLOR_HIGHLIGHT));
    EXPECT_EQ(background(), GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_TRUE(SendMessageA(control, VFSM_SETBACKGROUNDCOLOR, 0, RGB(4, 5, 6)));
    EXPECT_TRUE(SendMessageA(control, VFSM_SETFIELDCOLOR, 0, RGB(7, 7, 7)));
    EXPECT_TRUE(SendMessageA(control, VFSM_SETTEXTCOLOR, 0, RGB(8, 8, 8)));
    EXPECT_EQ(background(), RGB(4, 5, 6));
}

void ExpectFunctionsAnswerWithoutAControl(HWND window) {
    EXPECT_EQ(fsSetFontFamily(window, "Arial"), 0);
    EXPECT_EQ(fsSetFontFamily(window, nullptr), 0);
    EXPECT_EQ(fsSetFontPointSize(window, 12), 0);
    EXPECT_EQ(fsSetFontSize(window, -12), 0);
    EXPECT_EQ(fsSetFontSize(window, 12), 0);
    EXPECT_EQ(fsGetFontPointSize(window), 10);
    EXPECT_EQ(fsGetFontSize(window), -13);
    EXPECT_EQ(fsSetColor(window, 8, 0), 0);
    EXPECT_EQ(fsSetItemHeight(window, 20), 0);
    fsSetFontCommandCode(window, 1);
    fsSetSizeCommandCode(window, 1);
    char name[] = "....";
    fsGetFontFamily(window, name, sizeof name);
    EXPECT_STREQ(name, " ");
}

TEST_F(FontSelect, FunctionsBearOtherWindows) {
    ExpectFunctionsAnswerWithoutAControl(nullptr);
    ExpectFunctionsAnswerWithoutAControl(vorn::test::DestroyedWindow());
    ExpectFunctionsAnswerWithoutAControl(reinterpret_cast<HWND>(static_cast<INT_PTR>(-1)));
    ExpectFunctionsAnswerWithoutAControl(GetDesktopWindow());
    HWND foreign = vorn::test::CreateForeignWindow();
    ExpectFunctionsAnswerWithoutAControl(foreign);
    DestroyWindow(foreign);
    ExpectFunctionsAnswerWithoutAControl(host.Create(VORN_PERCENTBAR_CLASS, 0, 0, 0, 50, 50));
    ExpectFunctionsAnswerWithoutAControl(Families(Create()));
}

TEST_F(FontSelect, LivesOnWithoutItsRecord) {
    HWND control = Create();
    SendMessageA(control, WM_DESTROY, 0, 0);
    ExpectFunctionsAnswerWithoutAControl(control);
    EXPECT_EQ(static_cast<COLORREF>(SendMessageA(control, VFSM_GETBACKGROUNDCOLOR, 0, 0)),
              GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(DialogOf(control), nullptr) << "the lists are gone with the record";
    EXPECT_EQ(SendMessageA(control, WM_GETFONT, 0, 0), 0);
    SendMessageA(control, WM_SETFONT, 0, TRUE);
    SendMessageA(control, WM_SIZE, 0, MAKELPARAM(100, 20));
    SendMessageA(control, WM_FONTCHANGE, 0, 0);
    SendMessageA(control, WM_COMMAND, MAKEWPARAM(228, CBN_SELCHANGE), 0);
    SendMessageA(control, WM_LBUTTONDOWN, 0, 0);
    InvalidateRect(control, nullptr, TRUE);
    UpdateWindow(control);
    EXPECT_FALSE(GetUpdateRect(control, nullptr, FALSE));
    SendMessageA(control, WM_DESTROY, 0, 0);
    EXPECT_TRUE(DestroyWindow(control));
}

} // namespace
