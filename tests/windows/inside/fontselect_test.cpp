// The font selector's record: what it owns, and creations that fail at any step.
#include "core/memory.h"
#include "fontselect/fontselect_win.h"
#include "tests/windows/support/font_select.h"
#include "tests/windows/support/objects.h"

#include <cstring>
#include <set>

namespace vorn {
namespace {

using fontselect::FamilyAt;
using fontselect::Record;
using test::FontSelectTest;

// An image of bitmap 355 or 356 as the resource has it.
BITMAP Describe(HBITMAP bitmap) {
    BITMAP description{};
    GetObjectA(bitmap, sizeof description, &description);
    return description;
}

class FontSelectRecord : public FontSelectTest {
protected:
    void SetUp() override { before_ = BlockCount(); }
    void TearDown() override {
        FailAllocationsAfter(-1);
        EXPECT_EQ(BlockCount(), before_) << "a block stayed behind";
    }

private:
    std::uint32_t before_ = 0;
};

TEST_F(FontSelectRecord, OwnsWhatItShould) {
    HWND control = Create();
    const Record owned = *RecordOf<Record>(control);
    EXPECT_EQ(owned.dialog, DialogOf(control));
    EXPECT_EQ(owned.font, GetStockObject(SYSTEM_FONT));
    for (HBITMAP mark : {owned.trueTypeMark, owned.plainMark}) {
        EXPECT_EQ(Describe(mark).bmWidth, 16);
        EXPECT_EQ(Describe(mark).bmHeight, 12);
    }
    EXPECT_NE(owned.trueTypeMark, owned.plainMark);
    LOGBRUSH brush{};
    GetObjectA(owned.fieldBrush, sizeof brush, &brush);
    EXPECT_EQ(brush.lbStyle, UINT{BS_SOLID});
    EXPECT_EQ(brush.lbColor, GetSysColor(COLOR_WINDOW));

    DestroyWindow(control);
    EXPECT_FALSE(IsWindow(owned.dialog));
    EXPECT_EQ(GetObjectType(owned.trueTypeMark), 0u);
    EXPECT_EQ(GetObjectType(owned.plainMark), 0u);
    EXPECT_EQ(GetObjectType(owned.fieldBrush), 0u);
}

TEST_F(FontSelectRecord, KeepsTheColorsOfAllSlots) {
    HWND control = Create();
    const auto colors = [control] { return RecordOf<Record>(control)->state.colors; };
    EXPECT_EQ(static_cast<LONG>(colors().field), -6);
    EXPECT_EQ(static_cast<LONG>(colors().text), -9);
    EXPECT_EQ(static_cast<LONG>(colors().background), -16);
    fsSetColor(control, 2, 1);
    fsSetColor(control, 4, 2);
    fsSetColor(control, 8, 3);
    EXPECT_EQ(colors().field, 1u);
    EXPECT_EQ(colors().text, 2u);
    EXPECT_EQ(colors().background, 3u);
    SendMessageA(control, VFSM_SETFIELDCOLOR, 0, 4);
    SendMessageA(control, VFSM_SETBACKGROUNDCOLOR, 0, 5);
    SendMessageA(control, VFSM_SETTEXTCOLOR, 0, 6);
    EXPECT_EQ(colors().field, 4u);
    EXPECT_EQ(colors().background, 5u);
    EXPECT_EQ(colors().text, 6u);
    DestroyWindow(control);
}

// Families whose outlines are drawn have the flag, those of bitmaps have not.
int CALLBACK CompareFlag(const LOGFONTA* font, const TEXTMETRICA* metrics, DWORD fontType,
                         LPARAM context) {
    auto& next = *reinterpret_cast<std::pair<const Record*, std::uint32_t>*>(context);
    const fontselect::Family* family = FamilyAt(next.first->families, next.second++);
    EXPECT_NE(family, nullptr);
    if (family != nullptr) {
        EXPECT_STREQ(family->name, font->lfFaceName);
        EXPECT_EQ(family->trueType, metrics->tmPitchAndFamily & 4u) << font->lfFaceName;
        EXPECT_EQ(family->trueType != 0, (fontType & TRUETYPE_FONTTYPE) != 0) << font->lfFaceName;
    }
    return 1;
}

TEST_F(FontSelectRecord, KnowsWhichFamiliesAreTrueType) {
    HWND control = Create();
    std::pair<const Record*, std::uint32_t> next = {RecordOf<Record>(control), 0};
    HDC context = GetDC(control);
    EnumFontFamiliesA(context, nullptr, CompareFlag, reinterpret_cast<LPARAM>(&next));
    ReleaseDC(control, context);
    EXPECT_EQ(next.second, next.first->families.count);
    std::set<std::uint32_t> flags;
    for (std::uint32_t i = 0; i < next.second; ++i) {
        flags.insert(FamilyAt(next.first->families, i)->trueType);
    }
    EXPECT_EQ(flags, (std::set<std::uint32_t>{0, 4})) << "else one kind is not tested";
    DestroyWindow(control);
}

TEST_F(FontSelectRecord, WithoutMemoryForItThereIsNoControl) {
    FailAllocationsAfter(0);
    EXPECT_EQ(Create(), nullptr);
    EXPECT_EQ(test::ObjectsLeftBy([&] { Create(); }), "");
}

TEST_F(FontSelectRecord, WithoutMemoryForFamiliesThereAreNoLists) {
    FailAllocationsAfter(1);
    HWND control = Create();
    ASSERT_NE(control, nullptr) << "-1 is not a refusal";
    EXPECT_NE(RecordOf<Record>(control), nullptr);
    EXPECT_EQ(DialogOf(control), nullptr);
    EXPECT_EQ(FamilyOf(control), " ");
    EXPECT_EQ(fsGetFontPointSize(control), 10);
    EXPECT_EQ(fsSetFontFamily(control, "Arial"), -1);
    EXPECT_EQ(fsSetFontPointSize(control, 10), -1);
    EXPECT_TRUE(fsSetColor(control, 8, RGB(1, 2, 3)));
    SendMessageA(control, WM_SIZE, 0, MAKELPARAM(90, 20));
    SendMessageA(control, WM_FONTCHANGE, 0, 0);
    FailAllocationsAfter(-1);
    SendMessageA(control, WM_FONTCHANGE, 0, 0);
    EXPECT_TRUE(DestroyWindow(control));
}

// The answers themselves, asked of a window whose procedure is ours but whose creation is over.
TEST_F(FontSelectRecord, AnswersItsCreation) {
    HWND control = Create();
    SendMessageA(control, WM_DESTROY, 0, 0);
    CREATESTRUCTA create{};
    create.lpszName = "";
    const auto answer = [&] {
        return SendMessageA(control, WM_NCCREATE, 0, reinterpret_cast<LPARAM>(&create));
    };
    FailAllocationsAfter(0);
    EXPECT_EQ(answer(), 0);
    FailAllocationsAfter(1);
    EXPECT_EQ(answer(), -1);
    SendMessageA(control, WM_DESTROY, 0, 0);
    FailAllocationsAfter(-1);
    EXPECT_EQ(answer(), 1);
    DestroyWindow(control);
}

TEST_F(FontSelectRecord, AddsOnlyFamiliesThatItHasMemoryFor) {
    HWND control = Create();
    const LRESULT count = SendMessageA(Families(control), CB_GETCOUNT, 0, 0);
    FailAllocationsAfter(0);
    LOGFONTA font{};
    TEXTMETRICA metrics{};
    LRESULT added = 0;
    for (int i = 0; i < 200; ++i) {
        wsprintfA(font.lfFaceName, "Zz %i", i);
        EXPECT_EQ(EnumFamCallBack(&font, &metrics, 0, reinterpret_cast<LPARAM>(control)), 1)
            << "it always goes on";
    }
    added = SendMessageA(Families(control), CB_GETCOUNT, 0, 0) - count;
    EXPECT_LT(added, 200);
    EXPECT_EQ(RecordOf<Record>(control)->families.count, static_cast<std::uint32_t>(count + added));
    DestroyWindow(control);
}

TEST_F(FontSelectRecord, HasNoFamiliesWhenMemoryEndsWithAFontChange) {
    HWND control = Create();
    FailAllocationsAfter(0);
    SendMessageA(control, WM_FONTCHANGE, 0, 0);
    EXPECT_EQ(SendMessageA(Families(control), CB_GETCOUNT, 0, 0), 0);
    EXPECT_EQ(FamilyOf(control), " ");
    FailAllocationsAfter(-1);
    SendMessageA(control, WM_FONTCHANGE, 0, 0);
    EXPECT_EQ(FamilyOf(control), TextOf(Families(control), 0)) << "as a new control";
    DestroyWindow(control);
}

// Refuses the window of a number among those that this thread creates.
int windowsUntilRefusal = -1;

LRESULT CALLBACK RefuseWindow(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND && windowsUntilRefusal >= 0 && windowsUntilRefusal-- == 0) {
        return 1;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// The control is window 0, the dialog 1, then each list with its own parts.
TEST_F(FontSelectRecord, ARefusedInnerWindowLeavesNothingBehind) {
    HHOOK hook = SetWindowsHookExA(WH_CBT, RefuseWindow, nullptr, GetCurrentThreadId());
    ASSERT_NE(hook, nullptr);
    const std::uint32_t before = BlockCount();
    int refusals = 0;
    for (int number = 0;; ++number) {
        windowsUntilRefusal = number;
        HWND control = Create();
        const bool refused = windowsUntilRefusal < 0;
        windowsUntilRefusal = -1;
        EXPECT_EQ(control == nullptr, number == 0) << number;
        if (control != nullptr) {
            fsGetFontPointSize(control);
            fsSetFontFamily(control, "Arial");
            SendMessageA(control, WM_SIZE, 0, MAKELPARAM(100, 20));
            DestroyWindow(control);
        }
        EXPECT_EQ(BlockCount(), before) << number;
        if (!refused) {
            break;
        }
        ++refusals;
    }
    EXPECT_GE(refusals, 4) << "the control, the dialog and its lists";
    UnhookWindowsHookEx(hook);
}

// Destroys the control while the window of a number is created.
int windowsUntilEnd = -1;
HWND selector = nullptr;

LRESULT CALLBACK EndSelector(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND && windowsUntilEnd >= 0) {
        if (selector == nullptr) {
            selector = reinterpret_cast<HWND>(wParam);
        } else if (windowsUntilEnd-- == 0) {
            DestroyWindow(selector);
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST_F(FontSelectRecord, MayBeDestroyedWhileItIsMade) {
    HHOOK hook = SetWindowsHookExA(WH_CBT, EndSelector, nullptr, GetCurrentThreadId());
    ASSERT_NE(hook, nullptr);
    const std::uint32_t before = BlockCount();
    int ends = 0;
    for (int number = 0;; ++number) {
        windowsUntilEnd = number;
        selector = nullptr;
        HWND control = Create();
        const bool ended = windowsUntilEnd < 0;
        windowsUntilEnd = -1;
        EXPECT_EQ(control == nullptr, ended) << number;
        if (control != nullptr) {
            DestroyWindow(control);
        }
        EXPECT_FALSE(IsWindow(selector));
        EXPECT_EQ(BlockCount(), before) << number;
        if (!ended) {
            break;
        }
        ++ends;
    }
    EXPECT_GE(ends, 3);
    UnhookWindowsHookEx(hook);
}

// A host's own procedure that refuses a message after ours has allowed it.
UINT refusedMessage = 0;

LRESULT CALLBACK RefuseMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = VORNFontSelectWinFn(window, message, wParam, lParam);
    if (message != refusedMessage) {
        return result;
    }
    EXPECT_NE(RecordOf<Record>(window), nullptr);
    return message == WM_NCCREATE ? 0 : -1;
}

TEST_F(FontSelectRecord, IsFreedWhenAHostRefusesTheWindow) {
    WNDCLASSA own{};
    GetClassInfoA(nullptr, VORN_FONTSELECT_CLASS, &own);
    own.lpfnWndProc = RefuseMessage;
    own.hInstance = GetModuleHandleA(nullptr);
    own.lpszClassName = "RefusedSelector";
    ASSERT_NE(RegisterClassA(&own), 0);
    const std::uint32_t before = BlockCount();
    for (const UINT message : {WM_NCCREATE, WM_CREATE}) {
        refusedMessage = message;
        EXPECT_EQ(host.Create("RefusedSelector", 0, 0, 0, 100, 30), nullptr);
        EXPECT_EQ(BlockCount(), before) << message;
    }
    UnregisterClassA("RefusedSelector", GetModuleHandleA(nullptr));
}

} // namespace
} // namespace vorn
