// Selecting in a list the plainest way: rows and selected items in plain lists, searched from end
// to end. And a list beside it, driven by the same choices and compared.
#pragma once

#include "tests/support/list_host.h"

#include <array>
#include <optional>

namespace vorn::hierlist::test {

using Items = std::vector<OlbItem*>;

inline std::optional<std::size_t> Place(const Items& items, const OlbItem* item) {
    const auto found = std::find(items.begin(), items.end(), item);
    if (item == nullptr || found == items.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - items.begin());
}

// Everything below an item, with its children's order; null is the outline.
inline void AppendBelow(const OlbItem* item, Items& items) {
    for (OlbItem* child = item->firstChild; child != nullptr; child = child->nextSibling) {
        items.push_back(child);
        AppendBelow(child, items);
    }
}

// Each rule answers whether a row became selected.
struct SelectionModel {
    Items rows;     // to be refreshed by the owner
    Items selected; // in the order of selecting
    OlbItem* anchor = nullptr;
    OlbItem* caret = nullptr;
    OlbItem* rangeEnd = nullptr;
    OlbItem* dragAt = nullptr;
    bool dragged = false;
    std::uint32_t pressModifiers = 0;
    std::uint32_t style = 0;

    bool IsIn(const OlbItem* item) const { return Place(selected, item).has_value(); }
    bool Put(OlbItem* item) {
        if (IsIn(item)) {
            return false;
        }
        selected.push_back(item);
        return true;
    }
    void Take(const OlbItem* item) { std::erase(selected, item); }

    // Whether a row lies from one row to another, in either order.
    bool IsBetween(std::size_t row, const OlbItem* one, const OlbItem* other) const {
        const std::size_t from = *Place(rows, one);
        const std::size_t to = *Place(rows, other);
        return (from <= row && row <= to) || (to <= row && row <= from);
    }

    bool Extend(OlbItem* item) {
        bool became = false;
        if (!Place(rows, rangeEnd)) {
            became = Put(item);
        } else {
            if (!Place(rows, anchor)) {
                anchor = rangeEnd;
            }
            for (std::size_t row = 0; row < rows.size(); ++row) {
                if (IsBetween(row, anchor, item)) {
                    became |= Put(rows[row]);
                } else if (IsBetween(row, anchor, rangeEnd)) {
                    Take(rows[row]);
                }
            }
        }
        rangeEnd = item;
        return became;
    }

    bool SelectAt(OlbItem* item, std::uint32_t modifiers) {
        caret = item;
        if ((style & kStyleExtendedSel) != 0) {
            if ((modifiers & kShift) != 0) {
                return Extend(item);
            }
            if ((modifiers & kControl) == 0) {
                if (selected.size() > 1 || anchor != item) {
                    selected.clear();
                }
            } else if (IsIn(item)) {
                Take(item);
                anchor = nullptr;
                return false;
            }
            anchor = item;
            return Put(item);
        }
        if ((style & kStyleMultipleSel) != 0) {
            if (IsIn(item)) {
                Take(item);
                return false;
            }
            anchor = item;
            return Put(item);
        }
        selected.clear();
        anchor = item;
        return Put(item);
    }

    bool GoTo(OlbItem* item, bool shift) {
        if ((style & kStyleMultipleSel) != 0) {
            caret = item;
            return false;
        }
        return SelectAt(item, shift ? kShift : 0);
    }

    bool Press(OlbItem* item, std::uint32_t modifiers) {
        dragAt = item;
        dragged = false;
        pressModifiers = modifiers;
        return item != nullptr && SelectAt(item, modifiers);
    }

    bool Drag(OlbItem* item) {
        if (item == nullptr || item == dragAt) {
            return false;
        }
        const bool first = !dragged;
        dragAt = item;
        dragged = true;
        if ((style & kStyleMultipleSel) != 0) {
            caret = item;
            return false;
        }
        if ((style & kStyleExtendedSel) == 0) {
            return SelectAt(item, 0);
        }
        if (!Place(rows, anchor) && (pressModifiers & kShift) == 0) {
            if ((pressModifiers & kControl) != 0) {
                caret = item;
                return false;
            }
            const bool became = SelectAt(item, 0);
            rangeEnd = item;
            return became;
        }
        if (first && (pressModifiers & kShift) == 0) {
            rangeEnd = anchor;
        }
        return SelectAt(item, kShift);
    }

    // Items that are hidden or moved away lose their selection, and the anchor with it.
    void Deselect(const Items& items) {
        for (const OlbItem* item : items) {
            if (IsIn(item)) {
                Take(item);
                anchor = anchor != item ? anchor : nullptr;
            }
        }
    }
    void Forget(const Items& items) {
        for (const OlbItem* item : items) {
            Take(item);
            for (OlbItem** mark : {&anchor, &caret, &rangeEnd, &dragAt}) {
                *mark = *mark != item ? *mark : nullptr;
            }
        }
    }
};

// `Source` has Below(bound), which answers a number below the bound.
template <class Source>
class ListPair {
public:
    ListPair(Source& choices, std::size_t mostItems) : source(choices), limit(mostItems) {
        Refresh();
    }

    // One operation on both. What it was is in `done`.
    void Step() {
        Refresh();
        const std::uint32_t kind = source.Below(100);
        if (kind < 20) {
            DoAdd();
        } else if (kind < 30) {
            DoFold();
        } else if (kind < 36) {
            DoDelete();
        } else if (kind < 40) {
            DoMove();
        } else if (kind < 41) {
            DoReset();
        } else if (kind < 44) {
            DoStyle();
        } else if (kind < 47) {
            done = "focus";
            list.Focus(source.Below(2) != 0);
        } else if (kind < 62) {
            DoClick();
        } else if (kind < 74) {
            DoKey();
        } else if (kind < 80) {
            DoType();
        } else if (kind < 86) {
            DoPress();
        } else if (kind < 96) {
            DoDrag();
        } else {
            DoSelectRow();
        }
        Refresh();
    }

    // The first difference, empty when there is none.
    std::string Fault() {
        if (!fault.empty()) {
            return fault;
        }
        CheckSelected();
        const Selection& selection = list.input.selection;
        Note(selection.anchor == model.anchor, "the anchor");
        Note(selection.caret == model.caret, "the caret");
        Note(selection.rangeEnd == model.rangeEnd, "the range end");
        Note(list.longest <= Actions{}.items.size(), "a step is too long");
        Items all;
        AppendBelow(&list.outline.top, all);
        for (const OlbItem* item : all) {
            const bool isCaret = item == model.caret && selection.hasFocus;
            Note(((item->flags & kFlagCaret) != 0) == isCaret, "the caret's mark");
            Note(((item->flags & kFlagSelected) != 0) == model.IsIn(item), "a selected flag");
        }
        for (const OlbItem* item : {list.input.pressed, list.input.dragAt}) {
            Note(item == nullptr || Place(all, item).has_value(), "the pressed item is gone");
        }
        return fault;
    }

    std::string done;

private:
    void Refresh() {
        model.rows.clear();
        for (std::uint32_t row = 0; OlbItem* item = list.At(row); ++row) {
            model.rows.push_back(item);
        }
        model.style = list.outline.style;
    }

    void Note(bool isRight, const char* what) {
        if (!isRight && fault.empty()) {
            fault = what;
        }
    }

    void CheckSelected() {
        const Selection& selection = list.input.selection;
        Note(selection.count == model.selected.size(), "the count");
        const OlbItem* previous = nullptr;
        const OlbItem* item = selection.first;
        for (const OlbItem* wanted : model.selected) {
            Note(item == wanted && item->prevSelected == previous, "the order of selecting");
            if (!fault.empty()) {
                return;
            }
            previous = item;
            item = item->nextSelected;
        }
        Note(item == nullptr && selection.last == previous, "the end of the selected items");
    }

    // A row as a number, now and then past the end; its item.
    std::uint32_t AnyRow() {
        return source.Below(static_cast<std::uint32_t>(model.rows.size()) + 1);
    }
    OlbItem* RowItem(std::uint32_t row) {
        return row < model.rows.size() ? model.rows[row] : nullptr;
    }
    OlbItem* AnyItem() {
        Items all;
        AppendBelow(&list.outline.top, all);
        return all.empty() ? nullptr : all[source.Below(static_cast<std::uint32_t>(all.size()))];
    }
    std::uint32_t AnyModifiers() {
        static constexpr std::uint32_t kChoices[] = {0, kShift, kControl, kShift | kControl};
        return kChoices[source.Below(4)];
    }

    // Whether the parent was told is compared at once.
    void Compare(const std::string& actions, bool became) {
        Note((actions.find("notify 1") != std::string::npos) == became, "the notification");
    }

    static Items WithBelow(OlbItem* item) {
        Items items = {item};
        AppendBelow(item, items);
        return items;
    }

    void DoAdd() {
        done = "add";
        Items all;
        AppendBelow(&list.outline.top, all);
        if (all.size() < limit) {
            OlbItem* parent = source.Below(3) != 0 ? AnyItem() : nullptr;
            const char text[] = {static_cast<char>('a' + source.Below(4)), '\0'};
            list.Add(parent, text);
        } else {
            DoDelete();
        }
    }
    void DoFold() {
        const std::uint32_t row = AnyRow();
        OlbItem* item = RowItem(row);
        if (item != nullptr && QueryOpen(item) != 0) {
            done = "close";
            Items below;
            AppendBelow(item, below);
            model.Deselect(below);
            list.CloseRow(row);
        } else {
            done = "open";
            list.OpenRow(row);
        }
    }
    void DoDelete() {
        OlbItem* item = AnyItem();
        if (item == nullptr) {
            return;
        }
        Items items = WithBelow(item);
        if (source.Below(2) != 0) {
            done = "delete";
            model.Forget(items);
            DeleteItem(list.outline, item);
        } else {
            done = "delete below";
            items.erase(items.begin());
            model.Forget(items);
            DeleteSubtree(list.outline, item);
        }
    }
    void DoMove() {
        done = "move";
        OlbItem* item = AnyItem();
        OlbItem* parent = AnyItem();
        // Positions under hidden parents and under closed ones are the outline's own oddity.
        if (item != nullptr && QueryVisible(parent) == 1 && QueryOpen(parent) == 1) {
            const Items items = WithBelow(item);
            if (!Place(items, parent)) {
                model.Deselect(items);
            }
            MoveItem(list.outline, item, parent, kAppend);
        }
    }
    void DoReset() {
        done = "reset";
        Items all;
        AppendBelow(&list.outline.top, all);
        model.Forget(all);
        Reset(list.outline);
    }
    void DoStyle() {
        done = "style";
        static constexpr std::uint32_t kModes[] = {0, kStyleMultipleSel, kStyleExtendedSel,
                                                   kStyleMultipleSel | kStyleExtendedSel};
        list.outline.style =
            kModes[source.Below(4)] | kStyleNotify | (source.Below(4) == 0 ? kStyleNoRedraw : 0);
    }
    void DoClick() {
        done = "click";
        const std::uint32_t row = AnyRow();
        const std::uint32_t modifiers = AnyModifiers();
        OlbItem* item = RowItem(row);
        const bool became = item != nullptr && model.SelectAt(item, modifiers);
        Compare(list.Click(row, modifiers), became);
    }
    // The row that keys start from.
    std::optional<std::size_t> CaretPlace() const {
        const OlbItem* item = model.caret;
        while (item != nullptr && !Place(model.rows, item)) {
            item = item->parent;
        }
        return Place(model.rows, item);
    }
    void DoKey() {
        done = "key";
        static constexpr std::uint32_t kKeys[] = {kKeyUp, kKeyDown, kKeyHome, kKeyEnd, kKeySpace};
        const std::uint32_t key = kKeys[source.Below(5)];
        const bool shift = source.Below(2) != 0;
        bool became = false;
        if (!model.rows.empty()) {
            const std::size_t last = model.rows.size() - 1;
            const std::size_t from = CaretPlace().value_or(0);
            const bool multiple = (model.style & kStyleMultipleSel) != 0;
            if (key == kKeySpace) {
                became = multiple && model.SelectAt(model.rows[from], 0);
            } else if (key == kKeyHome || key == kKeyEnd) {
                became = model.GoTo(model.rows[key == kKeyHome ? 0 : last], shift);
            } else if (key == kKeyUp ? from > 0 : from < last) {
                became = model.GoTo(model.rows[key == kKeyUp ? from - 1 : from + 1], shift);
            }
        }
        Compare(list.Key(key, shift ? kShift : 0), became);
    }
    void DoType() {
        done = "type";
        const char character = static_cast<char>('a' + source.Below(5));
        const auto place = CaretPlace();
        OlbItem* from = place ? model.rows[*place] : nullptr;
        OlbItem* owner =
            from != nullptr && from->parent != nullptr ? from->parent : &list.outline.top;
        Items order; // the siblings from the one behind the caret round to the caret itself
        for (OlbItem* item = owner->firstChild; item != nullptr; item = item->nextSibling) {
            order.push_back(item);
        }
        if (from != nullptr) {
            const auto offset = static_cast<std::ptrdiff_t>(*Place(order, from) + 1);
            std::rotate(order.begin(), order.begin() + offset, order.end());
        }
        const auto found = std::find_if(order.begin(), order.end(), [&](const OlbItem* item) {
            return TextOf(item)[0] == character;
        });
        const bool became = found != order.end() && model.SelectAt(*found, 0);
        Compare(list.Type(character), became);
    }
    void DoPress() {
        const std::uint32_t row = AnyRow();
        const std::uint32_t modifiers = AnyModifiers();
        if (source.Below(4) == 0) {
            done = "release";
            list.Release();
        } else if (!model.rows.empty()) {
            done = "press";
            const bool became = model.Press(RowItem(row), modifiers);
            Compare(list.Press(row, modifiers), became);
        }
    }
    void DoDrag() {
        done = "drag";
        const std::uint32_t row = AnyRow();
        const bool became = list.input.captured && model.Drag(RowItem(row));
        Compare(list.Drag(row), became);
    }
    void DoSelectRow() {
        done = "select row";
        const std::uint32_t row = AnyRow();
        const bool on = source.Below(2) != 0;
        OlbItem* item = RowItem(row);
        bool became = false;
        if (item != nullptr) {
            on ? static_cast<void>(became = model.Put(item)) : model.Take(item);
        }
        Compare(list.Do(SelectRow(list.outline, list.input, row, on, Tell::Parent)), became);
    }

    Source& source;
    std::size_t limit;
    ListHost list;
    SelectionModel model;
    std::string fault;
};

} // namespace vorn::hierlist::test
