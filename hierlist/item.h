// An outline: items in a tree, of which the visible ones are rows. The records, and what the
// outline asks and tells the control that it is in.
#pragma once

#include "hierlist/seqtree.h"

#include <cstdint>

namespace vorn::hierlist {

// Window style bits.
constexpr std::uint32_t kStyleSort = 0x2;
constexpr std::uint32_t kStyleNoRedraw = 0x4;
constexpr std::uint32_t kStyleOwnerDrawFixed = 0x10;
constexpr std::uint32_t kStyleOwnerDrawVariable = 0x20;
constexpr std::uint32_t kStyleOwnerDraw = kStyleOwnerDrawFixed | kStyleOwnerDrawVariable;
constexpr std::uint32_t kStyleHasStrings = 0x40;

constexpr std::uint16_t kFlagOpen = 1;
constexpr std::uint16_t kFlagSelected = 2;
constexpr std::uint16_t kFlagCaret = 4; // belongs to the input; no operation on the tree touches it
constexpr std::uint16_t kFlagLocked = 8;

constexpr std::int16_t kDefaultPicture = -1;
constexpr std::int16_t kSortFirst = -32768; // a picture index that also sorts ahead of all others

constexpr std::uint16_t kAppend = 65535;       // as a position among siblings
constexpr std::uint32_t kNoRow = 0xFFFFFFFF;   // no row, and "not found" among positions
constexpr std::int16_t kDeepestLevel = 0x7FFF; // deeper items have this level too

// What an item's `marks` tell beside its flags.
constexpr std::uint8_t kMarkInOrder = 1;     // its children are in the order that sorting gives
constexpr std::uint8_t kMarkOddChildren = 2; // not so: its children are linked in the order of the
                                             // detached run and then of the rows, all on one level
constexpr std::uint8_t kMarkTextOutside = 4; // the text has outgrown the record
constexpr std::uint8_t kMarkValue = 8;       // holds a value of the host's instead of a text
constexpr std::uint8_t kMarkDying = 16;      // taken out, to be freed; no operation takes it
constexpr std::uint8_t kMarkSortKey = 32;    // the text's sort key follows it
constexpr std::uint8_t kMarkData = 64;       // the host has set its data

// One row, or what becomes a row when its parents open. Its address is its handle: it never moves.
// The text follows in the same block, behind the item's node.
//
// childCount is what the host sees; of children that were inserted at a position under a hidden
// parent it knows nothing. The links know all children, and so do shownChildren and the run.
struct OlbItem {
    std::uint16_t flags = 0;
    std::int16_t level = 0;           // 0 at the top
    std::uint32_t sidePlace : 24 = 0; // in the side table, from 1 on; 0 when it is not there
    std::uint32_t marks : 8 = kMarkInOrder;
    OlbItem* parent = nullptr;
    OlbItem* firstChild = nullptr;
    OlbItem* lastChild = nullptr;
    OlbItem* nextSibling = nullptr;
    OlbItem* prevSibling = nullptr;
    OlbSeqNode* node = nullptr;        // in the visible sequence or in the parent's detached run
    OlbSeqNode* detachedRun = nullptr; // the children that are no rows
    void* bitmaps = nullptr;           // the item's own picture strip
    std::int16_t bitmapIndex = kDefaultPicture;
    std::uint16_t height = 0; // pixels, of rows of variable height
    std::uintptr_t itemData = 0;
    std::uint32_t childCount = 0;
    std::uint32_t shownChildren = 0; // all when open; when closed, those that closing did not count
    std::uint32_t unfoldedChildren = 0; // children that themselves have shown children
    std::uint32_t selectedChildren = 0;
    OlbItem* nextSelected = nullptr; // the neighbours in the order of selecting
    OlbItem* prevSelected = nullptr;
};
static_assert(sizeof(void*) != 4 || sizeof(OlbItem) == 72);

// What operations answer when there is no item to answer; as an argument refused like null.
inline OlbItem* NoItem() {
    return reinterpret_cast<OlbItem*>(~std::uintptr_t{0});
}

// Whether a handle may be used. That one was freed cannot be told.
inline bool IsItem(const OlbItem* item) {
    constexpr std::uintptr_t kLastNumber = 0xFFFF; // up to here it is a number and no address
    return reinterpret_cast<std::uintptr_t>(item) > kLastNumber && item != NoItem() &&
           (item->marks & kMarkDying) == 0;
}

// What the platform's comparison of texts is spared by, see Callbacks::sortKey; null without one.
const char* SortKeyOf(const OlbItem* item);

// The text, empty for an item that holds a value; the value, 0 for an item that holds a text.
const char* TextOf(const OlbItem* item);
std::uintptr_t ValueOf(const OlbItem* item);

// The host's data: what it has set, else the value that the item holds, or 0.
std::uintptr_t DataOf(const OlbItem* item);
void SetData(OlbItem* item, std::uintptr_t data);

enum class Redraw : std::uint8_t { All, FromRow, Row };

// What the outline asks and tells the control.
struct Callbacks {
    // The platform's comparison of two texts, and that of two values by the parent: below 0 when
    // the first is smaller. The row is that of the item with the second value.
    int (*compareTexts)(void* context, const char* first, const char* second);
    int (*compareValues)(void* context, std::uintptr_t first, std::uintptr_t second,
                         std::uint32_t row);

    // The parent's answer to how high a new row is, in pixels; kNoRow for an item that is hidden.
    std::uint16_t (*measure)(void* context, const OlbItem* item, std::uint32_t row);

    // Tells the parent that an item is gone. kNoRow: it was hidden, or went with its parent.
    void (*deleted)(void* context, std::uint32_t row, std::uintptr_t itemData);

    void (*errorSpace)(void* context); // tells the parent that memory ran out

    void (*rowsChanged)(void* context); // the columns and the scroll bars are to be reckoned anew
    void (*redraw)(void* context, Redraw what, std::uint32_t row);

    // Those from here on must not run code of the host and must not change the outline.

    // The item is no longer selected.
    void (*deselected)(void* context, OlbItem* item);
    // The item is about to be freed: nothing may refer to it any more.
    void (*retired)(void* context, OlbItem* item);
    // All items are about to be freed, without a word on each.
    void (*cleared)(void* context);
    // Enters an item in the side table; false when there is no memory. Takes it out again and
    // answers its value. Only called in compatibility mode.
    bool (*recordItem)(void* context, OlbItem* item, std::uintptr_t value);
    std::uintptr_t (*forgetItem)(void* context, OlbItem* item);

    // May be null. Writes bytes, none of them 0, and a 0 behind them, in which texts compare as
    // compareTexts has it; answers how many, or 0 for none: the text is too long for the room, or
    // the platform's order has changed since the first one.
    std::uint32_t (*sortKey)(void* context, const char* text, char* key,
                             std::uint32_t room) = nullptr;
};

class Watch;

struct Outline {
    std::uint32_t itemCount = 0;
    std::uint32_t visibleCount = 0; // what the host is told; SeqCount(visibleRoot) are there
    OlbSeqNode* visibleRoot = nullptr;
    // Stands in for the parent that top-level items do not have.
    OlbItem top = {.flags = kFlagOpen, .level = -1};
    std::uint32_t style = 0;
    std::uint16_t compatibilityMode = 1;
    bool autoOpen = false;
    char pathSeparator = '\\';
    const Callbacks* callbacks = nullptr;
    void* context = nullptr;  // for the callbacks
    Watch* watches = nullptr; // operations that wait for the host to return
};

} // namespace vorn::hierlist
