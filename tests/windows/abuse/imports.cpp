#include "tests/windows/abuse/imports.h"

#include "tests/windows/abuse/fences.h"
#include "tests/windows/support/import_table.h"

#include <cstring>
#include <map>

namespace vorn::test {
namespace {

// ---- The book ----

std::map<void*, const char*> got; // what there is, with the function that gave it
std::map<HWND, const char*> windows;

Supply failing = Supply::Memory;
int untilFailure = -1; // requests that still succeed; negative: all
int failuresLeft = 0;
int failed = 0;

bool Fails(Supply supply) {
    if (untilFailure < 0 || supply != failing) {
        return false;
    }
    if (untilFailure > 0) {
        --untilFailure;
        return false;
    }
    if (failuresLeft == 0) {
        return false;
    }
    --failuresLeft;
    ++failed;
    return true;
}

template <class Make>
auto Get(Supply supply, const char* name, Make make) -> decltype(make()) {
    if (Fails(supply)) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    const auto made = make();
    if (made != nullptr) {
        got[made] = name;
    }
    return made;
}

void GiveBack(void* object, bool taken) {
    if (taken) {
        got.erase(object);
    }
}

// ---- Drawing ----

HDC WINAPI MakeContext(HDC like) {
    return Get(Supply::Drawing, "CreateCompatibleDC", [=] { return CreateCompatibleDC(like); });
}
HBITMAP WINAPI MakeBitmap(int width, int height, UINT planes, UINT depth, const void* bits) {
    return Get(Supply::Drawing, "CreateBitmap",
               [=] { return CreateBitmap(width, height, planes, depth, bits); });
}
HBITMAP WINAPI MakeCompatibleBitmap(HDC like, int width, int height) {
    return Get(Supply::Drawing, "CreateCompatibleBitmap",
               [=] { return CreateCompatibleBitmap(like, width, height); });
}
HBITMAP WINAPI MakeSection(HDC context, const BITMAPINFO* info, UINT usage, void** bits,
                           HANDLE section, DWORD offset) {
    return Get(Supply::Drawing, "CreateDIBSection",
               [=] { return CreateDIBSection(context, info, usage, bits, section, offset); });
}
HFONT WINAPI MakeFont(int height, int width, int escapement, int orientation, int weight,
                      DWORD italic, DWORD underline, DWORD strikeOut, DWORD charSet,
                      DWORD precision, DWORD clipping, DWORD quality, DWORD pitch, LPCSTR face) {
    return Get(Supply::Drawing, "CreateFontA", [=] {
        return CreateFontA(height, width, escapement, orientation, weight, italic, underline,
                           strikeOut, charSet, precision, clipping, quality, pitch, face);
    });
}
HFONT WINAPI MakeFontOf(const LOGFONTA* font) {
    return Get(Supply::Drawing, "CreateFontIndirectA", [=] { return CreateFontIndirectA(font); });
}
HPALETTE WINAPI MakePalette(const LOGPALETTE* palette) {
    return Get(Supply::Drawing, "CreatePalette", [=] { return CreatePalette(palette); });
}
HPEN WINAPI MakePen(int style, int width, COLORREF color) {
    return Get(Supply::Drawing, "CreatePen", [=] { return CreatePen(style, width, color); });
}
HPEN WINAPI MakeExtendedPen(DWORD style, DWORD width, const LOGBRUSH* brush, DWORD count,
                            const DWORD* lengths) {
    return Get(Supply::Drawing, "ExtCreatePen",
               [=] { return ExtCreatePen(style, width, brush, count, lengths); });
}
HBRUSH WINAPI MakeBrush(COLORREF color) {
    return Get(Supply::Drawing, "CreateSolidBrush", [=] { return CreateSolidBrush(color); });
}
HBITMAP WINAPI LoadABitmap(HINSTANCE module, LPCSTR name) {
    return Get(Supply::Drawing, "LoadBitmapA", [=] { return LoadBitmapA(module, name); });
}
HANDLE WINAPI LoadAnImage(HINSTANCE module, LPCSTR name, UINT type, int width, int height,
                          UINT flags) {
    return Get(Supply::Drawing, "LoadImageA",
               [=] { return LoadImageA(module, name, type, width, height, flags); });
}
HDC WINAPI GetAContext(HWND window) {
    return Get(Supply::Drawing, "GetDC", [=] { return GetDC(window); });
}
HDC WINAPI GetAWindowContext(HWND window) {
    return Get(Supply::Drawing, "GetWindowDC", [=] { return GetWindowDC(window); });
}
int WINAPI GiveContextBack(HWND window, HDC context) {
    // The system takes a window's context back by itself when the window ends.
    GiveBack(context, ReleaseDC(window, context) != 0 || !IsWindow(window));
    return 1;
}
// What cannot be painted counts as painted, or the system would ask for it without end.
HDC WINAPI BeginAPaint(HWND window, PAINTSTRUCT* paint) {
    if (Fails(Supply::Drawing)) {
        ZeroMemory(paint, sizeof *paint);
        ValidateRect(window, nullptr);
        return nullptr;
    }
    return BeginPaint(window, paint);
}
int WINAPI SaveAContext(HDC context) {
    return Fails(Supply::Drawing) ? 0 : SaveDC(context);
}
BOOL WINAPI EndObject(HGDIOBJ object) {
    const BOOL deleted = DeleteObject(object);
    GiveBack(object, deleted != FALSE);
    return deleted;
}
BOOL WINAPI EndContext(HDC context) {
    const BOOL deleted = DeleteDC(context);
    GiveBack(context, deleted != FALSE);
    return deleted;
}

// ---- Memory ----

// A block is its own handle. What it holds at first is nothing to rely on unless it was asked for
// with zeros.
constexpr int kAnything = 0xCD;

HGLOBAL WINAPI GetGlobal(UINT flags, SIZE_T size) {
    return Get(Supply::Memory, "GlobalAlloc", [=] {
        void* block = GetFenced(size);
        if (block != nullptr && (flags & GMEM_ZEROINIT) == 0) {
            std::memset(block, kAnything, size);
        }
        return block != nullptr ? block : GlobalAlloc(flags, size);
    });
}
HGLOBAL WINAPI EndGlobal(HGLOBAL memory) {
    GiveBack(memory, true);
    if (!IsFenced(memory)) {
        return GlobalFree(memory);
    }
    FreeFenced(memory);
    return nullptr;
}
void* WINAPI LockGlobal(HGLOBAL memory) {
    return IsFenced(memory) ? memory : GlobalLock(memory);
}
BOOL WINAPI UnlockGlobal(HGLOBAL memory) {
    return IsFenced(memory) ? FALSE : GlobalUnlock(memory);
}
SIZE_T WINAPI SizeOfGlobal(HGLOBAL memory) {
    return IsFenced(memory) ? FencedSize(memory) : GlobalSize(memory);
}
HGLOBAL WINAPI HandleOfGlobal(const void* block) {
    return IsFenced(block) ? const_cast<void*>(block) : GlobalHandle(block);
}
void* WINAPI GetHeap(HANDLE heap, DWORD flags, SIZE_T size) {
    return Get(Supply::Memory, "HeapAlloc", [=] { return HeapAlloc(heap, flags, size); });
}
BOOL WINAPI EndHeap(HANDLE heap, DWORD flags, void* memory) {
    const BOOL freed = HeapFree(heap, flags, memory);
    GiveBack(memory, freed != FALSE);
    return freed;
}

// ---- Windows ----

HWND Note(HWND window, const char* name) {
    if (window != nullptr) {
        windows[window] = name;
    }
    return window;
}

HWND WINAPI MakeWindow(DWORD extendedStyle, LPCSTR className, LPCSTR title, DWORD style, int x,
                       int y, int width, int height, HWND parent, HMENU menu, HINSTANCE module,
                       void* parameter) {
    return Fails(Supply::Windows)
               ? nullptr
               : Note(CreateWindowExA(extendedStyle, className, title, style, x, y, width, height,
                                      parent, menu, module, parameter),
                      "CreateWindowExA");
}
HWND WINAPI MakeDialog(HINSTANCE module, LPCSTR name, HWND parent, DLGPROC procedure,
                       LPARAM parameter) {
    return Fails(Supply::Windows)
               ? nullptr
               : Note(CreateDialogParamA(module, name, parent, procedure, parameter),
                      "CreateDialogParamA");
}
INT_PTR WINAPI RunDialog(HINSTANCE module, LPCSTR name, HWND parent, DLGPROC procedure,
                         LPARAM parameter) {
    return Fails(Supply::Windows) ? -1
                                  : DialogBoxParamA(module, name, parent, procedure, parameter);
}
UINT_PTR WINAPI StartTimer(HWND window, UINT_PTR timer, UINT period, TIMERPROC procedure) {
    return Fails(Supply::Windows) ? 0 : SetTimer(window, timer, period, procedure);
}
BOOL WINAPI MakeCaret(HWND window, HBITMAP bitmap, int width, int height) {
    return Fails(Supply::Windows) ? FALSE : CreateCaret(window, bitmap, width, height);
}
BOOL WINAPI StoreProp(HWND window, LPCSTR name, HANDLE value) {
    return Fails(Supply::Windows) ? FALSE : SetPropA(window, name, value);
}
BOOL WINAPI GetClipboard(HWND window) {
    return Fails(Supply::Windows) ? FALSE : OpenClipboard(window);
}
// The clipboard takes the system's own memory only.
HANDLE WINAPI FillClipboard(UINT format, HANDLE memory) {
    if (Fails(Supply::Windows)) {
        return nullptr;
    }
    if (!IsFenced(memory)) {
        HANDLE stored = SetClipboardData(format, memory);
        GiveBack(memory, stored != nullptr);
        return stored;
    }
    HGLOBAL copy = GlobalAlloc(GMEM_MOVEABLE, FencedSize(memory));
    std::memcpy(GlobalLock(copy), memory, FencedSize(memory));
    GlobalUnlock(copy);
    HANDLE stored = SetClipboardData(format, copy);
    if (stored == nullptr) {
        GlobalFree(copy);
    } else {
        EndGlobal(memory);
    }
    return stored;
}

// ---- The import table ----

struct Import {
    const char* name;
    void* replacement;
    void** entry = nullptr;
    void* original = nullptr;
};

template <class Function>
Import Replace(const char* name, Function* function) {
    return {name, reinterpret_cast<void*>(function)};
}

Import imports[] = {
    Replace("CreateCompatibleDC", MakeContext),
    Replace("CreateBitmap", MakeBitmap),
    Replace("CreateCompatibleBitmap", MakeCompatibleBitmap),
    Replace("CreateDIBSection", MakeSection),
    Replace("CreateFontA", MakeFont),
    Replace("CreateFontIndirectA", MakeFontOf),
    Replace("CreatePalette", MakePalette),
    Replace("CreatePen", MakePen),
    Replace("ExtCreatePen", MakeExtendedPen),
    Replace("CreateSolidBrush", MakeBrush),
    Replace("LoadBitmapA", LoadABitmap),
    Replace("LoadImageA", LoadAnImage),
    Replace("GetDC", GetAContext),
    Replace("GetWindowDC", GetAWindowContext),
    Replace("ReleaseDC", GiveContextBack),
    Replace("BeginPaint", BeginAPaint),
    Replace("SaveDC", SaveAContext),
    Replace("DeleteObject", EndObject),
    Replace("DeleteDC", EndContext),
    Replace("GlobalAlloc", GetGlobal),
    Replace("GlobalFree", EndGlobal),
    Replace("GlobalLock", LockGlobal),
    Replace("GlobalUnlock", UnlockGlobal),
    Replace("GlobalSize", SizeOfGlobal),
    Replace("GlobalHandle", HandleOfGlobal),
    Replace("HeapAlloc", GetHeap),
    Replace("HeapFree", EndHeap),
    Replace("CreateWindowExA", MakeWindow),
    Replace("CreateDialogParamA", MakeDialog),
    Replace("DialogBoxParamA", RunDialog),
    Replace("SetTimer", StartTimer),
    Replace("CreateCaret", MakeCaret),
    Replace("SetPropA", StoreProp),
    Replace("OpenClipboard", GetClipboard),
    Replace("SetClipboardData", FillClipboard),
};

// The library keeps one bitmap from one paint to the next. Only a second one stayed behind.
bool IsPixels(const char* giver) {
    return std::strcmp(giver, "CreateDIBSection") == 0;
}

bool SoundsLikeAGift(const std::string& name) {
    for (const char* part : {"Create", "Load", "Alloc", "GetDC", "GetWindowDC", "BeginPaint",
                             "DialogBox", "SetTimer", "SetProp"}) {
        if (name.find(part) != std::string::npos) {
            return true;
        }
    }
    return false;
}

} // namespace

const char* NameOf(Supply supply) {
    switch (supply) {
    case Supply::Memory:
        return "memory";
    case Supply::Drawing:
        return "drawing";
    default:
        return "windows";
    }
}

void WatchedImports::ReplaceEntry(const char* name, void** entry) {
    for (Import& import : imports) {
        if (std::strcmp(import.name, name) == 0) {
            import.entry = entry;
            import.original = *entry;
            ReplaceImport(entry, import.replacement);
            return;
        }
    }
    if (SoundsLikeAGift(name)) {
        unwatched_.emplace_back(name);
    }
}

WatchedImports::WatchedImports() {
    ForEachImport(GetModuleHandleA("VORN32.dll"),
                  [this](const char* name, void** entry) { ReplaceEntry(name, entry); });
}

WatchedImports::~WatchedImports() {
    StopFailing();
    got.clear();
    windows.clear();
    for (Import& import : imports) {
        if (import.entry != nullptr) {
            ReplaceImport(import.entry, import.original);
            import.entry = nullptr;
        }
    }
}

std::vector<std::string> WatchedImports::Unused() {
    std::vector<std::string> unused;
    for (const Import& import : imports) {
        if (import.entry == nullptr) {
            unused.emplace_back(import.name);
        }
    }
    return unused;
}

void WatchedImports::FailAfter(Supply supply, int count, int failures) {
    failing = supply;
    untilFailure = count;
    failuresLeft = failures;
    failed = 0;
}

int WatchedImports::StopFailing() {
    untilFailure = -1;
    return failed;
}

std::string WatchedImports::Left() {
    std::string left;
    int pixels = 0;
    for (const auto& [object, name] : got) {
        left += IsPixels(name) && ++pixels == 1 ? "" : std::string(name) + "\n";
    }
    for (const auto& [window, name] : windows) {
        left += IsWindow(window) ? std::string(name) + "\n" : "";
    }
    return left;
}

void WatchedImports::Forget() {
    int pixels = 0;
    std::erase_if(got, [&](const auto& entry) { return !IsPixels(entry.second) || ++pixels > 1; });
    windows.clear();
}

} // namespace vorn::test
