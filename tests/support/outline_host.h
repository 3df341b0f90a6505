// An outline in a control that writes down what it is told, and short names for its parts.
#pragma once

#include "core/memory.h"
#include "hierlist/outline.h"

#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace vorn::hierlist::test {

// Each line of the log is one call: "measure b 1" (the item and the row, - for none), "compare 5 3
// at 2", "deleted 7 at -", "errorSpace", "rows", "redraw all", "redraw from 2", "redraw row 2",
// "deselected b", "retired b", "cleared", "record b 0", "forget b".
class TestHost {
public:
    Outline outline;
    std::vector<std::string> log;
    std::uint16_t answerToMeasure = 0;
    bool sideTableFull = false;
    std::vector<std::pair<OlbItem*, std::uintptr_t>> sideTable;

    // The host's own code, run in the callback whose name the line begins with.
    std::function<void(const std::string& line)> meanwhile;

    TestHost() {
        outline.callbacks = &kCallbacks;
        outline.context = this;
    }
    ~TestHost() { Destroy(outline); }
    TestHost(const TestHost&) = delete;
    TestHost& operator=(const TestHost&) = delete;

    OlbItem* Add(OlbItem* parent, const char* text, std::int16_t bitmapIndex = kDefaultPicture) {
        return AddChild(outline, parent, text, bitmapIndex);
    }
    OlbItem* Insert(OlbItem* parent, std::uint16_t position, const char* text) {
        return InsertChild(outline, parent, position, text);
    }
    // Values instead of texts, when the style says so.
    OlbItem* AddValue(OlbItem* parent, std::uintptr_t value) {
        return AddChild(outline, parent, reinterpret_cast<const char*>(value));
    }
    void OpenItem(OlbItem* item) { Open(outline, HandleToIndex(item)); }
    void CloseItem(OlbItem* item) { Close(outline, HandleToIndex(item)); }

    // The visible rows as "0a 1b 1c": level and text.
    std::string Rows() const {
        std::string rows;
        for (std::uint32_t row = 0; OlbItem* item = IndexToHandle(outline, row); ++row) {
            Append(rows, std::to_string(item->level) + NameOf(item));
        }
        return rows;
    }
    // The children by their links, and those in the detached run, as "a b c". Null is the top.
    std::string Links(const OlbItem* parent) const {
        std::string links;
        const OlbItem* child = (parent != nullptr ? parent : &outline.top)->firstChild;
        for (; child != nullptr; child = child->nextSibling) {
            Append(links, NameOf(child));
        }
        return links;
    }
    std::string Run(const OlbItem* parent) const {
        std::string run;
        for (std::uint32_t at = 0; OlbItem* child = DetachedChild(parent, at); ++at) {
            Append(run, NameOf(child));
        }
        return run;
    }

    std::vector<std::string> TakeLog() { return std::exchange(log, {}); }

    static std::string NameOf(const OlbItem* item) {
        const std::uintptr_t value = ValueOf(item);
        return value != 0 ? std::to_string(value) : TextOf(item);
    }

private:
    static void Append(std::string& list, const std::string& name) {
        list += (list.empty() ? "" : " ") + name;
    }
    static std::string At(std::uint32_t row) { return row == kNoRow ? "-" : std::to_string(row); }
    static void Note(void* context, const std::string& line) {
        auto* host = static_cast<TestHost*>(context);
        host->log.push_back(line);
        if (host->meanwhile) {
            const auto code = host->meanwhile; // which may replace itself
            code(line);
        }
    }

    static int CompareTexts(void* /*context*/, const char* first, const char* second) {
        return std::strcmp(first, second);
    }
    static int CompareValues(void* context, std::uintptr_t first, std::uintptr_t second,
                             std::uint32_t row) {
        Note(context,
             "compare " + std::to_string(first) + " " + std::to_string(second) + " at " + At(row));
        return first < second ? -1 : first > second ? 1 : 0;
    }
    static std::uint16_t Measure(void* context, const OlbItem* item, std::uint32_t row) {
        Note(context, "measure " + NameOf(item) + " " + At(row));
        return static_cast<TestHost*>(context)->answerToMeasure;
    }
    static void Deleted(void* context, std::uint32_t row, std::uintptr_t itemData) {
        Note(context, "deleted " + std::to_string(itemData) + " at " + At(row));
    }
    static void ErrorSpace(void* context) { Note(context, "errorSpace"); }
    static void RowsChanged(void* context) { Note(context, "rows"); }
    static void Redrawn(void* context, Redraw what, std::uint32_t row) {
        Note(context, what == Redraw::All
                          ? "redraw all"
                          : (what == Redraw::Row ? "redraw row " : "redraw from ") + At(row));
    }
    static void Deselected(void* context, OlbItem* item) {
        Note(context, "deselected " + NameOf(item));
    }
    static void Retired(void* context, OlbItem* item) { Note(context, "retired " + NameOf(item)); }
    static void Cleared(void* context) {
        static_cast<TestHost*>(context)->sideTable.clear();
        Note(context, "cleared");
    }
    static bool RecordItem(void* context, OlbItem* item, std::uintptr_t value) {
        auto* host = static_cast<TestHost*>(context);
        Note(context, "record " + NameOf(item) + " " + std::to_string(value));
        if (!host->sideTableFull) {
            host->sideTable.emplace_back(item, value);
        }
        return !host->sideTableFull;
    }
    static std::uintptr_t ForgetItem(void* context, OlbItem* item) {
        auto* host = static_cast<TestHost*>(context);
        Note(context, "forget " + NameOf(item));
        for (auto entry = host->sideTable.begin(); entry != host->sideTable.end(); ++entry) {
            if (entry->first == item) {
                const std::uintptr_t value = entry->second;
                host->sideTable.erase(entry);
                return value;
            }
        }
        return 0;
    }

    static constexpr Callbacks kCallbacks = {
        CompareTexts, CompareValues, Measure, Deleted, ErrorSpace, RowsChanged,
        Redrawn,      Deselected,    Retired, Cleared, RecordItem, ForgetItem,
    };
};

using Lines = std::vector<std::string>;

} // namespace vorn::hierlist::test
