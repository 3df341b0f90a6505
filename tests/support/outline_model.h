// An outline the plainest way: lists of lists, searched from end to end, recursion for depth. It
// follows the rules as they are told, not as the library does them.
#pragma once

#include "hierlist/item.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace vorn::hierlist::test {

struct ModelItem {
    OlbItem* real = nullptr;
    ModelItem* parent = nullptr;
    std::vector<ModelItem*> links; // its children in the order of their links
    std::vector<ModelItem*> run;   // those that are no rows
    std::string text;
    int level = 0;
    int childCount = 0;
    int bitmapIndex = -1;
    bool open = false;
    bool selected = false;
    bool locked = false;
    bool isRow = false;
};

using ModelItems = std::vector<ModelItem*>;

class Model {
public:
    static constexpr std::size_t kEnd = 65535;

    ModelItems rows;
    int itemCount = 0;
    int visibleCount = 0;
    bool sorted = false;
    bool autoOpen = false;
    ModelItem top; // the parent of those without one

    Model() {
        top.open = true;
        top.level = -1;
        top.isRow = true;
    }
    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;

    // Every item there is, in no order.
    const std::vector<std::unique_ptr<ModelItem>>& All() const { return all; }

    ModelItem* Add(ModelItem* parent, const std::string& text, int bitmapIndex) {
        ModelItem* item = New(text);
        item->bitmapIndex = bitmapIndex;
        const bool asRow = Prepare(parent, autoOpen);
        ModelItems siblings;
        for (ModelItem* sibling : InSequence(parent)) {
            if (sibling->isRow != asRow) {
                continue;
            }
            if (asRow && sibling->level <= parent->level) {
                break;
            }
            siblings.push_back(sibling);
        }
        std::size_t at = siblings.size();
        if (sorted) {
            at = 0;
            while (at < siblings.size() && !Before(item, siblings[at])) {
                ++at;
            }
        }
        item->level = parent->level + 1;
        if (at < siblings.size()) {
            LinkBefore(parent, siblings[at], item);
            Place(parent, item, asRow, RowOrPosition(siblings[at]));
        } else {
            LinkBehind(parent, at == 0 ? nullptr : siblings[at - 1], item);
            std::size_t place = parent->run.size();
            if (asRow) {
                place = at == 0 ? RowOf(parent) + 1 : EndOf(siblings[at - 1]);
            }
            Place(parent, item, asRow, place);
        }
        ++parent->childCount;
        return item;
    }

    ModelItem* Insert(ModelItem* parent, std::size_t position, const std::string& text) {
        ModelItem* item = New(text);
        PutAt(parent, position, item);
        return item;
    }

    ModelItem* InsertAtRow(std::size_t row, const std::string& text) {
        if (rows.empty()) {
            return Insert(&top, 0, text);
        }
        if (row >= rows.size()) {
            return Insert(rows.back()->parent, kEnd, text);
        }
        return Insert(rows[row]->parent, IndexAmong(rows[row]->parent->links, rows[row]), text);
    }

    void Open(std::size_t row) {
        if (row < rows.size() && CanOpen(rows[row])) {
            Unfold(rows[row]);
        }
    }

    void Close(std::size_t row) {
        if (row < rows.size() && rows[row]->open && rows[row]->childCount > 0) {
            CloseRow(rows[row]);
        }
    }

    void OpenAll(ModelItem* item) {
        if (!item->isRow) {
            return;
        }
        if (CanOpen(item)) {
            Unfold(item);
        }
        const ModelItems children = item->links;
        for (ModelItem* child : children) {
            OpenAll(child);
        }
    }

    void CloseAll() {
        for (ModelItem* item : top.links) {
            if (item->open && item->childCount > 0) {
                CloseRow(item);
            }
        }
    }

    void Delete(ModelItem* item) {
        Remove(item);
        DeleteBelow(item);
        Forget(item);
    }

    void DeleteSubtree(ModelItem* item) {
        Fold(item);
        DeleteBelow(item);
    }

    void Reset() {
        rows.clear();
        top.links.clear();
        top.childCount = 0;
        itemCount = 0;
        visibleCount = 0;
        all.clear();
    }

    bool MayMove(const ModelItem* item, const ModelItem* parent) const {
        return !IsBelow(parent, item) && parent != item;
    }

    void Move(ModelItem* item, ModelItem* parent, std::size_t position) {
        if (position != kEnd && item->parent == parent &&
            IndexAmong(parent->links, item) < position) {
            --position;
        }
        Remove(item);
        PutAt(parent, position, item);
        Relevel(item);
    }

    void MoveChildren(ModelItem* from, ModelItem* parent, std::size_t position) {
        const ModelItems children = from->links;
        for (ModelItem* child : children) {
            Move(child, parent, position);
            position += position != kEnd;
        }
    }

    ModelItem* Copy(ModelItem* item, ModelItem* parent, std::size_t position) {
        ModelItem* copy = CopyTree(item);
        PutAt(parent, position, copy);
        Relevel(copy);
        itemCount += SizeOf(copy) - 1;
        return copy;
    }

    // The last copy.
    ModelItem* CopyChildren(ModelItem* from, ModelItem* parent, std::size_t position) {
        ModelItems copies;
        for (ModelItem* child : from->links) {
            copies.push_back(CopyTree(child));
        }
        for (ModelItem* copy : copies) {
            PutAt(parent, position, copy);
            Relevel(copy);
            itemCount += SizeOf(copy) - 1;
            position += position != kEnd;
        }
        return copies.back();
    }

    ModelItem* Find(const ModelItem* parent, std::size_t start, const std::string& text,
                    bool exact) const {
        const ModelItems& sequence = parent == &top ? rows : parent->run;
        if (sequence.empty()) {
            return nullptr;
        }
        ModelItem* first = start + 1 < sequence.size() ? sequence[start + 1] : sequence[0];
        const ModelItems& siblings = first->parent->links;
        ModelItems order(siblings.begin() + Offset(IndexAmong(siblings, first)), siblings.end());
        const ModelItems& again = parent->links;
        order.insert(order.end(), again.begin(),
                     again.begin() + Offset(std::min(start + 1, again.size())));
        for (ModelItem* item : order) {
            if (exact ? item->text == text : item->text.substr(0, text.size()) == text) {
                return item;
            }
        }
        return nullptr;
    }

    std::string Path(const ModelItem* item) const {
        std::string path = item->text;
        for (item = item->parent; item != &top; item = item->parent) {
            const bool ends = !item->text.empty() && item->text.back() == '\\';
            path = item->text + (ends ? "" : "\\") + path;
        }
        return path.substr(0, 255);
    }

    bool Visible(const ModelItem* item) const {
        return item->parent == &top || (item->parent->open && Visible(item->parent));
    }

    static std::size_t IndexAmong(const ModelItems& items, const ModelItem* item) {
        return static_cast<std::size_t>(std::find(items.begin(), items.end(), item) -
                                        items.begin());
    }

    bool IsBelow(const ModelItem* item, const ModelItem* above) const {
        while (item != &top) {
            item = item->parent;
            if (item == above) {
                return true;
            }
        }
        return false;
    }

private:
    static std::ptrdiff_t Offset(std::size_t index) { return static_cast<std::ptrdiff_t>(index); }

    ModelItem* New(const std::string& text) {
        all.push_back(std::make_unique<ModelItem>());
        all.back()->text = text;
        return all.back().get();
    }

    void Forget(const ModelItem* item) {
        const auto found = std::find_if(all.begin(), all.end(),
                                        [item](const auto& owned) { return owned.get() == item; });
        std::swap(*found, all.back());
        all.pop_back();
    }

    static bool Before(const ModelItem* item, const ModelItem* other) {
        const bool ahead = item->bitmapIndex == -32768;
        const bool otherAhead = other->bitmapIndex == -32768;
        return ahead != otherAhead ? ahead : item->text < other->text;
    }

    // -1 for the top, so that its first child is at 0.
    std::size_t RowOf(const ModelItem* item) const {
        return item == &top ? std::size_t(0) - 1 : IndexAmong(rows, item);
    }

    std::size_t RowOrPosition(const ModelItem* item) const {
        return item->isRow ? RowOf(item) : IndexAmong(item->parent->run, item);
    }

    // Behind the last row that is below an item.
    std::size_t EndOf(const ModelItem* item) const {
        std::size_t row = RowOf(item) + 1;
        while (row < rows.size() && IsBelow(rows[row], item)) {
            ++row;
        }
        return row;
    }

    // The children: those that are rows in their order, or the run, or one after the other.
    ModelItems InSequence(const ModelItem* parent) const {
        ModelItems children = parent->run;
        for (ModelItem* row : rows) {
            if (row->parent == parent) {
                children.push_back(row);
            }
        }
        return children;
    }

    static bool CanOpen(const ModelItem* item) {
        return !item->open && !item->locked && item->childCount > 0;
    }

    void Unfold(ModelItem* item) {
        rows.insert(rows.begin() + Offset(RowOf(item) + 1), item->run.begin(), item->run.end());
        for (ModelItem* child : item->run) {
            child->isRow = true;
        }
        item->run.clear();
        item->open = true;
        visibleCount += item->childCount;
    }

    // Takes the first `count` rows that are children of an item into its run.
    void TakeRows(ModelItem* item, int count) {
        const ModelItems before = rows;
        rows.clear();
        for (ModelItem* row : before) {
            if (row->parent == item && count > 0) {
                --count;
                row->isRow = false;
                item->run.push_back(row);
            } else {
                rows.push_back(row);
            }
        }
    }

    void Uncount(ModelItem* item) {
        if (item->open) {
            visibleCount = std::max(0, visibleCount - item->childCount);
            item->open = false;
        }
    }

    void FoldChildren(ModelItem* item) {
        for (ModelItem* child : item->links) {
            child->selected = false;
            Fold(child);
        }
    }

    // Everything below an item goes into the runs, what closing would leave behind too.
    void Fold(ModelItem* item) {
        if (!item->isRow) {
            for (ModelItem* child : item->links) {
                child->selected = false;
            }
            return;
        }
        FoldChildren(item);
        TakeRows(item, static_cast<int>(item->links.size()));
        Uncount(item);
    }

    void CloseRow(ModelItem* item) {
        FoldChildren(item);
        TakeRows(item, item->childCount);
        Uncount(item);
    }

    bool Prepare(ModelItem* parent, bool mayOpen) {
        if (!parent->isRow) {
            return false;
        }
        if (!parent->open && (parent->locked || !mayOpen)) {
            return false;
        }
        if (!parent->open && !parent->links.empty()) {
            Unfold(parent);
        }
        return true;
    }

    static void LinkBefore(ModelItem* parent, const ModelItem* follower, ModelItem* item) {
        item->parent = parent;
        parent->links.insert(parent->links.begin() + Offset(IndexAmong(parent->links, follower)),
                             item);
    }

    static void LinkBehind(ModelItem* parent, const ModelItem* sibling, ModelItem* item) {
        item->parent = parent;
        const std::size_t at = sibling == nullptr ? 0 : IndexAmong(parent->links, sibling) + 1;
        parent->links.insert(parent->links.begin() + Offset(at), item);
    }

    // The item's node among the rows or in the run.
    void Place(ModelItem* parent, ModelItem* item, bool asRow, std::size_t at) {
        ++itemCount;
        item->isRow = asRow;
        if (asRow) {
            rows.insert(rows.begin() + Offset(at), item);
            ++visibleCount;
            parent->open = true;
        } else {
            parent->run.insert(parent->run.begin() + Offset(at), item);
        }
    }

    void PutHidden(ModelItem* parent, std::size_t position, ModelItem* item) {
        if (position == kEnd) {
            LinkBehind(parent, nullptr, item);
            Place(parent, item, false, parent->run.size());
            ++parent->childCount;
            item->level = 0;
            return;
        }
        position = std::min(position, parent->run.size());
        LinkBehind(parent, position == 0 ? nullptr : parent->run[position - 1], item);
        Place(parent, item, false, position);
        item->level = parent->level + 1;
    }

    void PutAt(ModelItem* parent, std::size_t position, ModelItem* item) {
        if (!parent->isRow) {
            PutHidden(parent, position, item);
            return;
        }
        const bool asRow = Prepare(parent, true);
        ModelItem* follower = position < parent->links.size() ? parent->links[position] : nullptr;
        std::size_t at = asRow ? EndOf(parent) : parent->run.size();
        if (follower != nullptr && follower->isRow == asRow) {
            at = RowOrPosition(follower);
        }
        if (follower != nullptr) {
            LinkBefore(parent, follower, item);
        } else {
            LinkBehind(parent, parent->links.empty() ? nullptr : parent->links.back(), item);
        }
        Place(parent, item, asRow, at);
        item->level = parent->level + 1;
        ++parent->childCount;
    }

    void Remove(ModelItem* item) {
        item->selected = false;
        Fold(item);
        ModelItem* parent = item->parent;
        ModelItems& sequence = item->isRow ? rows : parent->run;
        sequence.erase(sequence.begin() + Offset(RowOrPosition(item)));
        if (item->isRow) {
            visibleCount = std::max(0, visibleCount - 1);
        }
        parent->links.erase(parent->links.begin() + Offset(IndexAmong(parent->links, item)));
        parent->childCount = std::max(0, parent->childCount - 1);
        itemCount = std::max(0, itemCount - 1);
        if (parent->links.empty()) {
            parent->childCount = 0;
            parent->open = parent == &top;
        }
        item->isRow = false;
    }

    // Of an item that is folded.
    void DeleteBelow(ModelItem* item) {
        itemCount = std::max(0, itemCount - item->childCount);
        for (ModelItem* child : item->links) {
            DeleteBelow(child);
            Forget(child);
        }
        item->links.clear();
        item->run.clear();
        item->childCount = 0;
        item->open = false;
    }

    static void Relevel(ModelItem* item) {
        for (ModelItem* child : item->links) {
            child->level = item->level + 1;
            Relevel(child);
        }
    }

    static int SizeOf(const ModelItem* item) {
        int size = 1;
        for (const ModelItem* child : item->links) {
            size += SizeOf(child);
        }
        return size;
    }

    ModelItem* CopyTree(const ModelItem* item) {
        ModelItem* copy = New(item->text);
        copy->bitmapIndex = item->bitmapIndex;
        copy->locked = item->locked;
        for (const ModelItem* child : item->links) {
            ModelItem* below = CopyTree(child);
            below->parent = copy;
            copy->links.push_back(below);
            copy->run.push_back(below);
            ++copy->childCount;
        }
        return copy;
    }

    std::vector<std::unique_ptr<ModelItem>> all;
};

} // namespace vorn::hierlist::test
