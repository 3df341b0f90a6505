// Parents: notifying them, and asking whether they are the host application.
#include "core/window_win.h"
#include "tests/windows/support/host_window.h"

#include <gtest/gtest.h>
#include <string>

namespace vorn {
namespace {

using test::HostWindow;
using test::Message;

HWND CreateAncestor(const char* className, HWND parent) {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = DefWindowProcA;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.lpszClassName = className;
    RegisterClassA(&windowClass);
    return CreateWindowExA(0, className, "", parent == nullptr ? WS_POPUP : WS_CHILD, 0, 0, 100,
                           100, parent, nullptr, windowClass.hInstance, nullptr);
}

TEST(HostApp, IsAnAncestorOfTheClassWhateverTheCase) {
    for (const char* name : {"rwswnd", "RWSWND", "RwsWnd"}) {
        HWND top = CreateAncestor(name, nullptr);
        HWND middle = CreateAncestor("VornTestMiddle", top);
        HWND control = CreateAncestor("VornTestControl", middle);
        EXPECT_TRUE(IsInHostApp(control)) << name;
        EXPECT_TRUE(IsInHostApp(middle)) << name;
        DestroyWindow(top);
        UnregisterClassA(name, GetModuleHandleA(nullptr));
    }
}

TEST(HostApp, DoesNotCountTheWindowItself) {
    HWND top = CreateAncestor("VornTestMiddle", nullptr);
    HWND control = CreateAncestor("rwswnd", top);
    EXPECT_FALSE(IsInHostApp(control));
    DestroyWindow(top);
    UnregisterClassA("rwswnd", GetModuleHandleA(nullptr));
}

TEST(HostApp, NeedsTheWholeName) {
    HWND top = CreateAncestor("rwswnd2", nullptr);
    HWND control = CreateAncestor("VornTestControl", top);
    EXPECT_FALSE(IsInHostApp(control));
    DestroyWindow(top);
}

TEST(HostApp, MayHaveAVeryLongClassName) {
    HWND top = CreateAncestor(std::string(200, 'r').c_str(), nullptr);
    HWND control = CreateAncestor("VornTestControl", top);
    EXPECT_FALSE(IsInHostApp(control));
    DestroyWindow(top);
}

TEST(HostApp, IsAParentThatSaysSo) {
    HostWindow host;
    HWND control = host.Create("STATIC", 0, 0, 0, 10, 10);
    const struct {
        LRESULT answer;
        bool isHostApp;
    } cases[] = {{99, true}, {0, false}, {1, false}, {98, false}, {100, false}, {-1, false}};
    for (const auto& given : cases) {
        int asked = 0;
        host.answer = [&](const Message& message) -> std::optional<LRESULT> {
            if (message.message != 1444) {
                return std::nullopt;
            }
            ++asked;
            EXPECT_EQ(message.wParam, 0u);
            EXPECT_EQ(message.lParam, 0);
            return given.answer;
        };
        EXPECT_EQ(IsInHostApp(control), given.isHostApp) << given.answer;
        EXPECT_EQ(asked, 1);
    }
}

TEST(HostApp, OnlyTheImmediateParentIsAsked) {
    HostWindow host;
    HWND middle = host.Create("STATIC", 0, 0, 0, 10, 10);
    HWND control = CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 5, 5, middle, nullptr,
                                   GetModuleHandleA(nullptr), nullptr);
    host.answer = [](const Message& message) -> std::optional<LRESULT> {
        return message.message == 1444 ? std::optional<LRESULT>(99) : std::nullopt;
    };
    EXPECT_FALSE(IsInHostApp(control));
}

TEST(HostApp, IsNoneForATopLevelWindow) {
    HWND top = CreateAncestor("VornTestControl", nullptr);
    EXPECT_FALSE(IsInHostApp(top));
    EXPECT_FALSE(IsInHostApp(nullptr));
    DestroyWindow(top);
}

TEST(NotifyParent, CarriesIdentifierCodeAndWindow) {
    HostWindow host;
    HWND control = host.Create("STATIC", 0, 0, 0, 10, 10, 0x1234);
    Message received{};
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_COMMAND) {
            received = message;
        }
        return std::nullopt;
    };
    NotifyParent(control, 0xFFFE);
    EXPECT_EQ(LOWORD(received.wParam), 0x1234);
    EXPECT_EQ(HIWORD(received.wParam), 0xFFFE);
    EXPECT_EQ(reinterpret_cast<HWND>(received.lParam), control);
}

// A tab item beside a container, and one in a container within it.
class FocusInContainers : public testing::Test {
protected:
    HostWindow host;
    HWND outside = host.Create("EDIT", WS_TABSTOP, 0, 0, 50, 20);
    HWND outer = host.Create("STATIC", 0, 0, 30, 200, 100);
    HWND inner = Create("STATIC", outer);
    HWND inside = Create("EDIT", inner);

    static HWND Create(const char* className, HWND parent) {
        return CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 50, 20,
                               parent, nullptr, GetModuleHandleA(nullptr), nullptr);
    }
    static void MakeContainer(HWND window) {
        SetWindowLongA(window, GWL_EXSTYLE,
                       GetWindowLongA(window, GWL_EXSTYLE) | WS_EX_CONTROLPARENT);
        SetWindowLongA(window, GWL_STYLE, GetWindowLongA(window, GWL_STYLE) & ~WS_TABSTOP);
    }
    HWND FocusAfter(bool previous) {
        SetFocus(inside);
        FocusTabItem(inside, previous);
        return GetFocus();
    }
};

TEST_F(FocusInContainers, LeavesThemHoweverDeep) {
    MakeContainer(outer);
    MakeContainer(inner);
    EXPECT_EQ(FocusAfter(false), outside);
    EXPECT_EQ(FocusAfter(true), outside);
}

TEST_F(FocusInContainers, StaysInAParentThatIsNone) {
    EXPECT_EQ(FocusAfter(false), inside);
    MakeContainer(outer);
    EXPECT_EQ(FocusAfter(false), inside) << "its own parent is none";
    HWND sibling = Create("EDIT", inner);
    EXPECT_EQ(FocusAfter(false), sibling);
    EXPECT_EQ(FocusAfter(true), sibling);
}

TEST_F(FocusInContainers, EndsAtATopLevelWindowThatHasAnOwner) {
    HWND dialog =
        CreateWindowExA(WS_EX_CONTROLPARENT, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100,
                        host.window(), nullptr, GetModuleHandleA(nullptr), nullptr);
    inside = Create("EDIT", dialog);
    HWND sibling = Create("EDIT", dialog);
    EXPECT_EQ(FocusAfter(false), sibling);
    EXPECT_EQ(FocusAfter(true), sibling);
    DestroyWindow(dialog);
}

} // namespace
} // namespace vorn
