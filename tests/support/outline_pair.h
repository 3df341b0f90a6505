// An outline and the model of it, driven by the same choices and compared.
#pragma once

#include "hierlist/outline.h"
#include "tests/support/outline_model.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string>

namespace vorn::hierlist::test {

// Walks a sequence by its child links alone, notes the first thing that is wrong with its shape and
// compares it with what should be in it.
class SequenceCheck {
public:
    SequenceCheck(const ModelItems& shouldBe, std::string& noteTo)
        : expected(shouldBe), fault(noteTo) {}

    void Check(const OlbSeqNode* root) {
        if (root != nullptr) {
            Walk(root, 1);
        }
        if (at != expected.size()) {
            Note("a sequence is too short");
        } else if (last != nullptr && (last->hasRight != 0 || last->right != nullptr)) {
            Note("the last right thread");
        }
    }

private:
    struct Extent {
        std::uint32_t count;
        int height;
    };

    Extent Walk(const OlbSeqNode* node, int depth) {
        if (depth > kSeqMaxDepth) {
            Note("a sequence is too deep");
            return {0, 0};
        }
        Extent left{0, 0};
        Extent right{0, 0};
        if (node->hasLeft != 0) {
            left = Walk(node->left, depth + 1);
        } else if (node->left != last) {
            Note("a left thread");
        }
        if (last != nullptr && last->hasRight == 0 && last->right != node) {
            Note("a right thread");
        }
        last = node;
        if (at >= expected.size() || expected[at]->real != node->item) {
            Note("the order of a sequence");
        } else if (node->item->node != node) {
            Note("an item's node");
        } else if (HandleToIndex(node->item) != at) {
            Note("an item's position");
        }
        ++at;
        if (node->hasRight != 0) {
            right = Walk(node->right, depth + 1);
        }
        const int lean = left.height - right.height;
        const int height = 1 + std::max(left.height, right.height);
        if (node->leftCount != left.count || node->height != height || lean > 1 || lean < -1) {
            Note("the shape of a sequence");
        }
        return {left.count + 1 + right.count, height};
    }

    void Note(const char* what) {
        if (fault.empty()) {
            fault = what;
        }
    }

    const ModelItems& expected;
    std::string& fault;
    const OlbSeqNode* last = nullptr;
    std::size_t at = 0;
};

// `Source` has Below(bound), which answers a number below the bound.
template <class Source>
class OutlinePair {
public:
    OutlinePair(Source& choices, std::size_t mostItems) : source(choices), limit(mostItems) {
        outline.callbacks = &kCallbacks;
        outline.context = this;
        model.top.real = &outline.top;
    }
    ~OutlinePair() { Destroy(outline); }
    OutlinePair(const OutlinePair&) = delete;
    OutlinePair& operator=(const OutlinePair&) = delete;

    // One operation on both. What it was is in `done`.
    void Step() {
        const std::uint32_t kind = source.Below(100);
        if (model.All().size() >= limit) {
            kind < 5 ? DoReset() : kind < 30 ? DoDeleteSubtree() : DoDelete();
        } else if (kind < 17) {
            DoAdd();
        } else if (kind < 30) {
            DoInsert();
        } else if (kind < 33) {
            DoInsertAtRow();
        } else if (kind < 45) {
            DoOpenOrClose();
        } else if (kind < 47) {
            DoAllRows();
        } else if (kind < 48) {
            DoLeaveBehind();
        } else if (kind < 56) {
            DoDelete();
        } else if (kind < 58) {
            DoDeleteSubtree();
        } else if (kind < 70) {
            DoMove();
        } else if (kind < 74) {
            DoCopy();
        } else if (kind < 76) {
            DoChildren();
        } else if (kind < 82) {
            DoFind();
        } else if (kind < 92) {
            DoChange();
        } else {
            DoSetting();
        }
    }

    // The first difference, empty when there is none.
    std::string Fault() {
        if (!fault.empty()) {
            return fault;
        }
        if (outline.itemCount != static_cast<std::uint32_t>(model.itemCount)) {
            return "itemCount";
        }
        if (outline.visibleCount != static_cast<std::uint32_t>(model.visibleCount)) {
            return "visibleCount";
        }
        SequenceCheck(model.rows, fault).Check(outline.visibleRoot);
        if (IndexToHandle(outline, static_cast<std::uint32_t>(model.rows.size())) != nullptr) {
            Note("a row past the end");
        }
        for (const auto& item : model.All()) {
            CheckItem(*item);
        }
        CheckChildren(model.top);
        return fault;
    }

    std::string done;

private:
    void Note(const char* what) {
        if (fault.empty()) {
            fault = what;
        }
    }

    // ---- Choices ----

    ModelItem* AnyItem() {
        const auto& all = model.All();
        return all.empty() ? nullptr
                           : all[source.Below(static_cast<std::uint32_t>(all.size()))].get();
    }

    ModelItem* AnyParent() {
        ModelItem* item = source.Below(6) == 0 ? nullptr : AnyItem();
        return item != nullptr ? item : &model.top;
    }

    std::uint16_t AnyPosition() {
        const std::uint32_t choice = source.Below(8);
        return static_cast<std::uint16_t>(choice < 6 ? choice : choice == 6 ? 60000 : kAppend);
    }

    // From none to past the end.
    std::uint32_t AnyRow() {
        return source.Below(static_cast<std::uint32_t>(model.rows.size()) + 2) - 1;
    }

    std::string AnyText() {
        constexpr std::array<const char*, 8> kTexts = {"", "a", "b", "ab", "b\\", "a\\", "ba", "c"};
        return kTexts[source.Below(kTexts.size())];
    }

    std::int16_t AnyBitmapIndex() {
        return source.Below(4) == 0 ? kSortFirst : static_cast<std::int16_t>(source.Below(3) - 1);
    }

    OlbItem* Handle(const ModelItem* parent) const {
        return parent == &model.top ? nullptr : parent->real;
    }

    // ---- Operations ----

    void Created(OlbItem* real, ModelItem* item) {
        if (!IsItem(real)) {
            Note("no new item");
        } else {
            item->real = real;
        }
    }

    void DoAdd() {
        done = "add";
        ModelItem* parent = AnyParent();
        const std::string text = AnyText();
        const std::int16_t index = AnyBitmapIndex();
        Created(AddChild(outline, Handle(parent), text.c_str(), index),
                model.Add(parent, text, index));
    }

    void DoInsert() {
        done = "insert";
        ModelItem* parent = AnyParent();
        const std::string text = AnyText();
        const std::uint16_t position = AnyPosition();
        Created(InsertChild(outline, Handle(parent), position, text.c_str()),
                model.Insert(parent, position, text));
    }

    // What chance seldom brings about: a child that does not count, under a parent that is hidden,
    // and both opened and the parent closed again, so that a row stays below it.
    void DoLeaveBehind() {
        done = "leave behind";
        ModelItem* parent = AnyItem();
        if (parent == nullptr || parent->isRow || parent->links.empty()) {
            return;
        }
        Created(InsertChild(outline, parent->real, 0, "z"), model.Insert(parent, 0, "z"));
        hierlist::OpenAll(outline, nullptr);
        model.OpenAll(&model.top);
        const std::size_t row = Model::IndexAmong(model.rows, parent);
        hierlist::Close(outline, static_cast<std::uint32_t>(row));
        model.Close(row);
    }

    void DoInsertAtRow() {
        done = "insert at row";
        const std::uint32_t row = AnyRow();
        const std::string text = AnyText();
        Created(hierlist::InsertAtRow(outline, row, text.c_str()), model.InsertAtRow(row, text));
    }

    void DoOpenOrClose() {
        const std::uint32_t row = AnyRow();
        if (source.Below(3) != 0) {
            done = "open";
            hierlist::Open(outline, row);
            model.Open(row);
        } else {
            done = "close";
            hierlist::Close(outline, row);
            model.Close(row);
        }
    }

    void DoAllRows() {
        if (source.Below(3) == 0) {
            done = "close all";
            hierlist::CloseAll(outline);
            model.CloseAll();
            return;
        }
        done = "open all";
        ModelItem* item = AnyParent();
        hierlist::OpenAll(outline, Handle(item));
        model.OpenAll(item);
    }

    void DoDelete() {
        done = "delete";
        if (ModelItem* item = AnyItem()) {
            const std::uint32_t row =
                item->isRow ? static_cast<std::uint32_t>(Model::IndexAmong(model.rows, item))
                            : kNoRow;
            if (DeleteItem(outline, item->real) != row) {
                Note("the row of a deleted item");
            }
            model.Delete(item);
        }
    }

    void DoDeleteSubtree() {
        done = "delete subtree";
        if (ModelItem* item = AnyItem()) {
            const std::int32_t left = hierlist::DeleteSubtree(outline, item->real);
            model.DeleteSubtree(item);
            if (left != model.itemCount) {
                Note("the number of items left");
            }
        }
    }

    void DoReset() {
        done = "reset";
        hierlist::Reset(outline);
        model.Reset();
    }

    void DoMove() {
        done = "move";
        ModelItem* item = AnyItem();
        ModelItem* parent = AnyParent();
        const std::uint16_t position = AnyPosition();
        if (item == nullptr) {
            return;
        }
        const bool may = model.MayMove(item, parent);
        if (MoveItem(outline, item->real, Handle(parent), position) !=
            (may ? item->real : NoItem())) {
            Note("the answer of a move");
        }
        if (may) {
            model.Move(item, parent, position);
        }
    }

    // Notes the copies' handles, which are linked as the copies are.
    void Pair(ModelItem* item, OlbItem* real) {
        Created(real, item);
        const OlbItem* child = IsItem(real) ? real->firstChild : nullptr;
        for (ModelItem* below : item->links) {
            if (child == nullptr) {
                Note("the copies' links");
                return;
            }
            Pair(below, const_cast<OlbItem*>(child));
            child = child->nextSibling;
        }
    }

    void DoCopy() {
        done = "copy";
        ModelItem* item = AnyItem();
        ModelItem* parent = AnyParent();
        const std::uint16_t position = AnyPosition();
        if (item != nullptr) {
            OlbItem* real = CopyItem(outline, item->real, Handle(parent), position);
            Pair(model.Copy(item, parent, position), real);
        }
    }

    void DoChildren() {
        ModelItem* from = AnyItem();
        ModelItem* parent = AnyParent();
        const std::uint16_t position = AnyPosition();
        if (from == nullptr || from->links.empty() || from == parent) {
            return;
        }
        if (source.Below(2) == 0) {
            done = "move children";
            const bool may = model.MayMove(from, parent);
            OlbItem* last = from->links.back()->real;
            if (hierlist::MoveChildren(outline, from->real, Handle(parent), position) !=
                (may ? last : NoItem())) {
                Note("the answer of moving children");
            }
            if (may) {
                model.MoveChildren(from, parent, position);
            }
            return;
        }
        done = "copy children";
        const std::size_t count = from->links.size();
        OlbItem* last = hierlist::CopyChildren(outline, from->real, Handle(parent), position);
        if (!IsItem(last)) {
            Note("no copies");
            return;
        }
        model.CopyChildren(from, parent, position);
        // The model's newest items are the copies; they are where the outline has new ones.
        PairNewChildren(parent, count);
    }

    void PairNewChildren(ModelItem* parent, std::size_t count) {
        const OlbItem* real = parent->real->firstChild;
        for (ModelItem* child : parent->links) {
            if (child->real == nullptr && real != nullptr) {
                Pair(child, const_cast<OlbItem*>(real));
                --count;
            }
            real = real != nullptr ? real->nextSibling : nullptr;
        }
        if (count != 0) {
            Note("the number of copies");
        }
    }

    void DoFind() {
        done = "find";
        ModelItem* parent = AnyParent();
        const std::string text = AnyText();
        const bool exact = source.Below(2) == 0;
        const std::uint32_t start = source.Below(9) - 1;
        const ModelItem* found =
            model.Find(parent, start == kNoRow ? ~std::size_t{0} : start, text, exact);
        if (FindString(outline, Handle(parent), start, text.c_str(), exact) !=
            (found != nullptr ? found->real : NoItem())) {
            Note("what is found");
        }
        if (const ModelItem* item = AnyItem()) {
            char path[256];
            FullPath(outline, item->real, path);
            if (model.Path(item) != path) {
                Note("a path");
            }
        }
    }

    void DoChange() {
        ModelItem* item = AnyItem();
        if (item == nullptr) {
            return;
        }
        switch (source.Below(4)) {
        case 0:
            done = "lock";
            item->locked = source.Below(2) == 0;
            SetLocked(item->real, item->locked);
            break;
        case 1:
            done = "text";
            item->text = AnyText() + (source.Below(4) == 0 ? "longer than before" : "");
            SetText(outline, item->real, item->text.c_str());
            break;
        case 2:
            done = "picture";
            item->bitmapIndex = AnyBitmapIndex();
            SetBitmapIndex(outline, item->real, static_cast<std::int16_t>(item->bitmapIndex));
            break;
        default:
            done = "select";
            if (item->isRow) {
                item->selected = source.Below(3) != 0;
                SetSelected(outline, item->real, item->selected);
            }
            break;
        }
    }

    void DoSetting() {
        done = "setting";
        model.sorted = source.Below(3) != 0;
        model.autoOpen = source.Below(2) == 0;
        outline.style = model.sorted ? kStyleSort : 0;
        outline.autoOpen = model.autoOpen;
        outline.compatibilityMode = source.Below(2) == 0;
    }

    // ---- Comparing ----

    void CheckItem(const ModelItem& item) {
        const OlbItem& real = *item.real;
        const int flags = (item.open ? kFlagOpen : 0) | (item.selected ? kFlagSelected : 0) |
                          (item.locked ? kFlagLocked : 0);
        if (real.flags != flags) {
            Note("flags");
        }
        if (real.level != item.level || real.bitmapIndex != item.bitmapIndex) {
            Note("level or picture index");
        }
        if (item.text != TextOf(&real)) {
            Note("text");
        }
        if (real.parent != Handle(item.parent)) {
            Note("parent");
        }
        if (QueryVisible(&real) != (model.Visible(&item) ? 1 : 0)) {
            Note("visibility");
        }
        CheckChildren(item);
    }

    void CheckChildren(const ModelItem& item) {
        const OlbItem& real = *item.real;
        SequenceCheck(item.run, fault).Check(real.detachedRun);
        std::uint32_t shown = 0;
        std::uint32_t unfolded = 0;
        std::uint32_t selected = 0;
        const OlbItem* previous = nullptr;
        const OlbItem* link = real.firstChild;
        for (const ModelItem* child : item.links) {
            if (link != child->real || link->prevSibling != previous) {
                Note("links");
                return;
            }
            shown += child->isRow;
            unfolded += link->shownChildren != 0;
            selected += child->selected;
            previous = link;
            link = link->nextSibling;
        }
        if (link != nullptr || real.lastChild != previous) {
            Note("the end of the links");
        }
        if (real.childCount != static_cast<std::uint32_t>(item.childCount) ||
            real.shownChildren + SeqCount(real.detachedRun) != item.links.size()) {
            Note("the number of children");
        }
        if (real.shownChildren != shown || real.unfoldedChildren != unfolded ||
            real.selectedChildren != selected) {
            Note("the numbers of some children");
        }
    }

    static int CompareTexts(void* /*context*/, const char* first, const char* second) {
        return std::strcmp(first, second);
    }
    static int CompareValues(void* /*context*/, std::uintptr_t first, std::uintptr_t second,
                             std::uint32_t /*row*/) {
        return first < second ? -1 : first > second;
    }
    static std::uint16_t Measure(void* /*context*/, const OlbItem* /*item*/,
                                 std::uint32_t /*row*/) {
        return 1;
    }
    static void OnRow(void* /*context*/, std::uint32_t /*row*/, std::uintptr_t /*itemData*/) {}
    static void OnNothing(void* /*context*/) {}
    static void OnRedraw(void* /*context*/, Redraw /*what*/, std::uint32_t /*row*/) {}
    static void OnItem(void* /*context*/, OlbItem* /*item*/) {}
    static bool OnRecord(void* /*context*/, OlbItem* /*item*/, std::uintptr_t /*value*/) {
        return true;
    }
    static std::uintptr_t OnForget(void* /*context*/, OlbItem* /*item*/) { return 0; }

    static constexpr Callbacks kCallbacks = {
        CompareTexts, CompareValues, Measure, OnRow,     OnNothing, OnNothing,
        OnRedraw,     OnItem,        OnItem,  OnNothing, OnRecord,  OnForget,
    };

    Source& source;
    std::size_t limit;
    Outline outline;
    Model model;
    std::string fault;
};

} // namespace vorn::hierlist::test
