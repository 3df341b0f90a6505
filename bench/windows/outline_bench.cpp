// The memory that an outline's items take, with their nodes and the side table, beside what the
// system's tree view takes for the same items. The outline is linked in and has the library's own
// blocks.
#include "bench/windows/measure.h"
#include "hierlist/outline.h"
#include "hierlist/sidetable.h"

#include <commctrl.h>
#include <cstdio>

namespace bench {
namespace {

using namespace vorn::hierlist;

constexpr int kItems = 100'000;

constexpr Callbacks kSideTableOnly = {
    .compareTexts = [](void*, const char* first,
                       const char* second) { return lstrcmpA(first, second); },
    .compareValues = [](void*, std::uintptr_t, std::uintptr_t, std::uint32_t) { return 0; },
    .measure = [](void*, const OlbItem*, std::uint32_t) { return std::uint16_t{0}; },
    .deleted = [](void*, std::uint32_t, std::uintptr_t) {},
    .errorSpace = [](void*) {},
    .rowsChanged = [](void*) {},
    .redraw = [](void*, Redraw, std::uint32_t) {},
    .deselected = [](void*, OlbItem*) {},
    .retired = [](void*, OlbItem*) {},
    .cleared = [](void* context) { ClearTable(*static_cast<SideTable*>(context)); },
    .recordItem =
        [](void* context, OlbItem* item, std::uintptr_t value) {
            return EnterItem(*static_cast<SideTable*>(context), item, value);
        },
    .forgetItem = [](void* context,
                     OlbItem* item) { return LeaveTable(*static_cast<SideTable*>(context), item); },
};

// Adds the items below one parent. `textOf` gives the text of each.
using TextOfItem = const char* (*)(int);

const char* NoText(int) {
    return "";
}

const char* ShortText(int item) {
    static char text[16];
    std::snprintf(text, sizeof text, "item %06d", item);
    return text;
}

// An outline and a tree view, which keep their items for as long as something is measured: memory
// that was given back to the heap would be used again, and not be seen to be taken.
struct Both {
    Both() {
        outline.callbacks = &kSideTableOnly;
        outline.context = &table;
        SendMessageA(tree, WM_SETREDRAW, FALSE, 0);
    }
    ~Both() {
        DestroyWindow(tree);
        Destroy(outline);
        ClearTable(table);
    }
    Both(const Both&) = delete;
    Both& operator=(const Both&) = delete;

    void FillOutline(TextOfItem textOf) {
        OlbItem* parent = AddChild(outline, nullptr, "");
        for (int i = 1; i < kItems; ++i) {
            AddChild(outline, parent, textOf(i));
        }
    }

    void FillTree(TextOfItem textOf) const {
        char empty[] = "";
        TVINSERTSTRUCTA insert{};
        insert.hInsertAfter = TVI_LAST;
        insert.item.mask = TVIF_TEXT;
        insert.item.pszText = empty;
        const LRESULT parent = SendMessageA(tree, TVM_INSERTITEMA, 0, LPARAM(&insert));
        insert.hParent = reinterpret_cast<HTREEITEM>(parent);
        for (int i = 1; i < kItems; ++i) {
            insert.item.pszText = const_cast<char*>(textOf(i));
            SendMessageA(tree, TVM_INSERTITEMA, 0, LPARAM(&insert));
        }
    }

    void Compare(const char* what, TextOfItem textOf) {
        CompareBytes(
            what, kItems, [&] { FillOutline(textOf); }, [&] { FillTree(textOf); });
    }

    SideTable table;
    Outline outline;
    HWND tree = Create(WC_TREEVIEWA, TVS_HASBUTTONS | TVS_HASLINES, 200, 200);
};

} // namespace

void MeasureOutline() {
    Both first;
    first.Compare("outline list: memory an item without text / SysTreeView32", NoText);
    Both second;
    second.Compare("outline list: memory an item, texts of 11 / SysTreeView32", ShortText);
}

} // namespace bench
