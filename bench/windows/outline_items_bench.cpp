// Filling, opening, closing and emptying an outline list, and finding an item by its first letter.
#include "bench/windows/measure.h"

#include <algorithm>
#include <array>
#include <commctrl.h>
#include <cstdio>
#include <random>
#include <string>
#include <vector>
#include <vorn32.h>

namespace bench {
namespace {

constexpr int kMany = 100'000;
constexpr int kSorted = 20'000;
constexpr int kBeside = 40; // rows that need the scroll bar whether the others are shown or not
constexpr int kWidth = 250;
constexpr int kHeight = 400;

constexpr int kRounds = 9;
constexpr int kFewRounds = 3; // for what takes theirs seconds

using Texts = std::vector<std::string>;

Texts NumberedTexts(int count) {
    Texts texts;
    std::array<char, 16> text{};
    for (int i = 0; i < count; ++i) {
        std::snprintf(text.data(), text.size(), "item %06d", i);
        texts.emplace_back(text.data());
    }
    return texts;
}

Texts ShuffledTexts(int count) {
    Texts texts = NumberedTexts(count);
    std::shuffle(texts.begin(), texts.end(), std::mt19937(4711));
    return texts;
}

LPARAM Address(const std::string& text) {
    return reinterpret_cast<LPARAM>(text.c_str());
}

HWND CreateAt(int place, const char* className, DWORD style) {
    return CreateWindowExA(0, className, "", WS_POPUP | WS_VISIBLE | style, place * kWidth, 0,
                           kWidth, kHeight, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
}

void SetDrawing(HWND window, bool on) {
    SendMessageA(window, WM_SETREDRAW, on ? TRUE : FALSE, 0);
    if (on) {
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
}

// Two windows side by side, ours and what it is compared with, for as long as that takes.
class Pair {
public:
    Pair(DWORD ourStyle, const char* theirClass, DWORD theirStyle)
        : ours(CreateAt(0, VORN_HIERLIST_CLASS, ourStyle)),
          theirs(CreateAt(1, theirClass, theirStyle)) {}
    ~Pair() {
        DestroyWindow(theirs);
        DestroyWindow(ours);
    }
    Pair(const Pair&) = delete;
    Pair& operator=(const Pair&) = delete;

    HWND ours;
    HWND theirs;
};

// ---- Lists ----

void AddAll(HWND list, const Texts& texts) {
    for (const std::string& text : texts) {
        SendMessageA(list, LB_ADDSTRING, 0, Address(text));
    }
}

// As hosts of the library do it, which need no message.
void AddOurs(HWND list, const Texts& texts) {
    static const auto add = Ours<decltype(olbAddString)>("olbAddString");
    for (const std::string& text : texts) {
        add(list, text.c_str());
    }
}

void Empty(HWND list) {
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
}

// Adding and emptying take turns, each with a time of its own.
void CompareFilling(const char* what, const Texts& texts, DWORD style,
                    void (*addOurs)(HWND, const Texts&)) {
    const Pair lists(WS_VSCROLL | style, "LISTBOX", WS_VSCROLL | LBS_HASSTRINGS | style);
    for (HWND list : {lists.ours, lists.theirs}) {
        SetDrawing(list, false);
    }
    CompareAfter(
        what, kRounds, [&] { Empty(lists.ours); }, [&] { addOurs(lists.ours, texts); },
        [&] { Empty(lists.theirs); }, [&] { AddAll(lists.theirs, texts); });
}

void CompareEmptying(const char* what, const Texts& texts) {
    const Pair lists(WS_VSCROLL, "LISTBOX", WS_VSCROLL | LBS_HASSTRINGS);
    for (HWND list : {lists.ours, lists.theirs}) {
        SetDrawing(list, false);
    }
    CompareAfter(
        what, kRounds, [&] { AddAll(lists.ours, texts); }, [&] { Empty(lists.ours); },
        [&] { AddAll(lists.theirs, texts); }, [&] { Empty(lists.theirs); });
}

// The only item that begins with the letter is the last, so that all are looked at.
void CompareTypeAhead(const Texts& texts) {
    const Pair lists(WS_VSCROLL, "LISTBOX", WS_VSCROLL | LBS_HASSTRINGS);
    for (HWND list : {lists.ours, lists.theirs}) {
        SetDrawing(list, false);
        AddAll(list, texts);
        AddAll(list, {"z"});
        SetDrawing(list, true);
    }
    const auto type = [](HWND list) {
        SendMessageA(list, LB_SETCURSEL, 0, 0);
        SendMessageA(list, WM_CHAR, 'z', 1);
        UpdateWindow(list);
    };
    Compare(
        "outline list: type-ahead over 100,000 and back / LISTBOX", 2, [&] { type(lists.ours); },
        [&] { type(lists.theirs); });
}

// ---- Trees ----

HTREEITEM Insert(HWND tree, HTREEITEM parent, const std::string& text) {
    TVINSERTSTRUCTA insert{};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = const_cast<char*>(text.c_str());
    return reinterpret_cast<HTREEITEM>(
        SendMessageA(tree, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert)));
}

struct Trees : Pair {
    Trees() : Pair(WS_VSCROLL, WC_TREEVIEWA, TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT) {
        Ours<decltype(olbShowLines)>("olbShowLines")(ours, TRUE);
        Ours<decltype(olbEnableMicroBitmaps)>("olbEnableMicroBitmaps")(ours, TRUE);
    }

    void FillOurs(const Texts& texts) const {
        static const auto add = Ours<decltype(olbAddChildStringEx)>("olbAddChildStringEx");
        HOLBITEM parent = add(ours, nullptr, "parent");
        for (const std::string& text : texts) {
            add(ours, parent, text.c_str());
        }
        AddOurs(ours, Texts(kBeside, "beside"));
    }

    void FillTheirs(const Texts& texts) {
        parent = Insert(theirs, TVI_ROOT, "parent");
        for (const std::string& text : texts) {
            Insert(theirs, parent, text);
        }
        for (int i = 0; i < kBeside; ++i) {
            Insert(theirs, TVI_ROOT, "beside");
        }
    }

    void Open(bool on) const {
        Ours<decltype(olbOpenItem)>(on ? "olbOpenItem" : "olbCloseItem")(ours, 0);
        UpdateWindow(ours);
    }

    void Expand(bool on) const {
        SendMessageA(theirs, TVM_EXPAND, on ? TVE_EXPAND : TVE_COLLAPSE,
                     reinterpret_cast<LPARAM>(parent));
        UpdateWindow(theirs);
    }

    void Draw(bool on) const {
        SetDrawing(ours, on);
        SetDrawing(theirs, on);
    }

    HTREEITEM parent = nullptr;
};

void CompareOpening(const Trees& trees, const char* opening, const char* closing) {
    CompareAfter(
        opening, kRounds, [&] { trees.Open(false); }, [&] { trees.Open(true); },
        [&] { trees.Expand(false); }, [&] { trees.Expand(true); });
    CompareAfter(
        closing, kRounds, [&] { trees.Open(true); }, [&] { trees.Open(false); },
        [&] { trees.Expand(true); }, [&] { trees.Expand(false); });
}

void CompareOpening(const Texts& texts) {
    Trees trees;
    trees.Draw(false);
    trees.FillOurs(texts);
    trees.FillTheirs(texts);
    CompareOpening(trees, "outline list: open 100,000, redraw off / SysTreeView32",
                   "outline list: close 100,000, redraw off / SysTreeView32");
    trees.Draw(true);
    CompareOpening(trees, "outline list: open 100,000 children, painted / SysTreeView32",
                   "outline list: close 100,000 children, painted / SysTreeView32");
}

void CompareTreeFilling(const Texts& texts) {
    Trees trees;
    trees.Draw(false);
    const auto fillTheirs = [&] {
        for (const std::string& text : texts) {
            Insert(trees.theirs, TVI_ROOT, text);
        }
    };
    const auto emptyTheirs = [&] {
        SendMessageA(trees.theirs, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
    };
    CompareAfter(
        "outline list: add 100,000, redraw off / SysTreeView32", kFewRounds,
        [&] { Empty(trees.ours); }, [&] { AddOurs(trees.ours, texts); }, emptyTheirs, fillTheirs);
    CompareAfter(
        "outline list: delete 100,000, redraw off / SysTreeView32", kFewRounds,
        [&] { AddAll(trees.ours, texts); }, [&] { Empty(trees.ours); }, fillTheirs, emptyTheirs);
}

} // namespace

void MeasureOutlineItems() {
    const Texts many = NumberedTexts(kMany);
    CompareFilling("outline list: add 100,000, redraw off / LISTBOX", many, 0, AddOurs);
    CompareFilling("outline list: add 100,000 by message, redraw off / LISTBOX", many, 0, AddAll);
    CompareFilling("outline list: add 20,000 sorted, redraw off / LISTBOX", ShuffledTexts(kSorted),
                   LBS_SORT, AddOurs);
    CompareEmptying("outline list: delete 100,000, redraw off / LISTBOX", many);
    CompareOpening(many);
    CompareTypeAhead(many);
    CompareTreeFilling(many);
}

} // namespace bench
