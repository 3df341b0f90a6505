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

void CompareItems(const char* what, TextOfItem textOf) {
    SideTable table;
    Outline outline;
    outline.callbacks = &kSideTableOnly;
    outline.context = &table;
    HWND tree = Create(WC_TREEVIEWA, TVS_HASBUTTONS | TVS_HASLINES, 200, 200);
    SendMessageA(tree, WM_SETREDRAW, FALSE, 0);
    CompareBytes(
        what, kItems,
        [&] {
            OlbItem* parent = AddChild(outline, nullptr, "");
            for (int i = 1; i < kItems; ++i) {
                AddChild(outline, parent, textOf(i));
            }
        },
        [&] {
            char empty[] = "";
            TVINSERTSTRUCTA insert{};
            insert.hInsertAfter = TVI_LAST;
            insert.item.mask = TVIF_TEXT;
            insert.item.pszText = empty;
            const auto parent = SendMessageA(tree, TVM_INSERTITEMA, 0, LPARAM(&insert));
            insert.hParent = reinterpret_cast<HTREEITEM>(parent);
            for (int i = 1; i < kItems; ++i) {
                insert.item.pszText = const_cast<char*>(textOf(i));
                SendMessageA(tree, TVM_INSERTITEMA, 0, LPARAM(&insert));
            }
        });
    DestroyWindow(tree);
    Destroy(outline);
    ClearTable(table);
}

} // namespace

void MeasureOutline() {
    CompareItems("outline list: memory an item without text / SysTreeView32", NoText);
    CompareItems("outline list: memory an item, texts of 11 / SysTreeView32", ShortText);
}

} // namespace bench
