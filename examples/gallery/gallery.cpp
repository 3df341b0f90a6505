// The gallery: every control of VORN32 in one window.
//
//   gallery                          shows it
//   gallery --shot FILE [PAGE]       writes a bitmap of all pages, or of one, and ends
//   gallery --shot FILE popup        the same of the date edit's dialog
#include "page.h"
#include "shot.h"

#include <string>

namespace gallery {
namespace {

constexpr char kFrameClass[] = "VornGallery";
constexpr char kPageClass[] = "VornGalleryPage";
constexpr int kListWidth = 150;
constexpr int kListId = 1;
constexpr UINT_PTR kTickTimer = 1;
constexpr UINT kTickMilliseconds = 100;

HWND shownPage = nullptr;

LRESULT CALLBACK PageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto* page = reinterpret_cast<const Page*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    switch (message) {
    case WM_NCCREATE:
        SetWindowLongPtrA(window, GWLP_USERDATA,
                          reinterpret_cast<LONG_PTR>(
                              reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpCreateParams));
        break;
    case WM_CREATE:
        page->create(window);
        return 0;
    case WM_COMMAND:
        if (page->command != nullptr) {
            page->command(window, LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
        }
        return 0;
    case WM_VSCROLL:
        if (page->scroll != nullptr) {
            const auto position = static_cast<short>(HIWORD(wParam));
            page->scroll(window, LOWORD(wParam), position, reinterpret_cast<HWND>(lParam));
        }
        return 0;
    case WM_MEASUREITEM:
        if (page->measure != nullptr) {
            page->measure(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
        }
        return TRUE;
    case WM_DRAWITEM:
        if (page->draw != nullptr) {
            page->draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        }
        return TRUE;
    case WM_TIMER:
        if (page->tick != nullptr) {
            page->tick(window);
        }
        return 0;
    default:
        break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

HWND CreatePage(HWND parent, const Page& page, int x, DWORD style) {
    return CreateWindowExA(WS_EX_CONTROLPARENT, kPageClass, "", style | WS_VISIBLE, x, 0,
                           kPageWidth, kPageHeight, parent, nullptr, GetModuleHandleA(nullptr),
                           const_cast<Page*>(&page));
}

void Show(HWND frame, std::size_t index) {
    if (shownPage != nullptr) {
        DestroyWindow(shownPage);
    }
    shownPage = CreatePage(frame, *Pages()[index], kListWidth, WS_CHILD);
    SetTimer(shownPage, kTickTimer, kTickMilliseconds, nullptr);
}

void CreateList(HWND frame) {
    HWND list =
        Add(frame, "LISTBOX", "", LBS_NOTIFY | WS_TABSTOP | WS_VSCROLL | LBS_NOINTEGRALHEIGHT,
            {0, 0, kListWidth, kPageHeight}, kListId);
    for (const Page* page : Pages()) {
        SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(page->title));
    }
    SendMessageA(list, LB_SETCURSEL, 0, 0);
}

LRESULT CALLBACK FrameProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        CreateList(window);
        Show(window, 0);
        return 0;
    case WM_COMMAND:
        if (LOWORD(wParam) == kListId && HIWORD(wParam) == LBN_SELCHANGE) {
            const LRESULT selected =
                SendMessageA(reinterpret_cast<HWND>(lParam), LB_GETCURSEL, 0, 0);
            if (selected != LB_ERR) {
                Show(window, static_cast<std::size_t>(selected));
            }
        }
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

void RegisterClasses() {
    WNDCLASSA windowClass{};
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    windowClass.lpfnWndProc = FrameProc;
    windowClass.lpszClassName = kFrameClass;
    RegisterClassA(&windowClass);
    windowClass.lpfnWndProc = PageProc;
    windowClass.lpszClassName = kPageClass;
    RegisterClassA(&windowClass);
}

int RunGallery(int show) {
    RECT size = {0, 0, kListWidth + kPageWidth, kPageHeight};
    const DWORD style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
    AdjustWindowRect(&size, style, FALSE);
    HWND frame = CreateWindowExA(0, kFrameClass, "VORN32 gallery", style, CW_USEDEFAULT,
                                 CW_USEDEFAULT, size.right - size.left, size.bottom - size.top,
                                 nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    if (frame == nullptr) {
        return 1;
    }
    ShowWindow(frame, show);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (!IsDialogMessageA(frame, &message)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    }
    return 0;
}

// The dialog that a date edit drops down, without being modal. What it is given is in the date
// edit's extra bytes.
int WritePopupShot(const std::string& file) {
    HWND owner = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 200, 40, nullptr, nullptr,
                                 GetModuleHandleA(nullptr), nullptr);
    HWND dateEdit = Add(owner, VORN_DATEEDIT_CLASS, "", VDTS_CALENDAR, {0, 0, 160, 28});
    const DtDate date = {12, 25, 1995};
    dtSetDate(dateEdit, &date);
    constexpr int kRecordOffset = 8;
    constexpr WORD kDialog = 110;
    HWND dialog =
        CreateDialogParamA(GetModuleHandleA("VORN32.dll"), MAKEINTRESOURCEA(kDialog), owner,
                           CalendarProc, GetWindowLongPtrA(dateEdit, kRecordOffset));
    Shot shot;
    shot.Add(dialog);
    DestroyWindow(dialog);
    DestroyWindow(owner);
    return shot.Write(file) ? 0 : 1;
}

// The pages whose name was given, or all.
int WriteShot(const std::string& file, const std::string& name) {
    Shot shot;
    for (const Page* page : Pages()) {
        if (!name.empty() && name != page->name) {
            continue;
        }
        HWND window = CreatePage(nullptr, *page, 0, WS_POPUP);
        shot.Add(window);
        DestroyWindow(window);
    }
    return shot.Write(file) ? 0 : 1;
}

} // namespace
} // namespace gallery

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int show) {
    gallery::RegisterClasses();
    if (__argc >= 3 && std::string(__argv[1]) == "--shot") {
        const std::string page = __argc > 3 ? __argv[3] : "";
        return page == "popup" ? gallery::WritePopupShot(__argv[2])
                               : gallery::WriteShot(__argv[2], page);
    }
    return gallery::RunGallery(show);
}
