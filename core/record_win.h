// The record of a control: attached to its window from creation to destruction, fetched by every
// message and every exported function.
//
// A record type names its class: `static constexpr ControlClass kClass = ...;`. Host code runs in
// every message that a control sends; a control that used its record before must fetch it again.
#pragma once

#include "core/class_table.h"
#include "core/platform_win.h"

#include <cstdint>
#include <limits>
#include <new>
#include <type_traits>

namespace vorn {

// Stores a record for the window of this class, or takes it away when `record` is null.
void StoreRecord(HWND window, ControlClass id, void* record);

// The stored record; null when the window has none, is none, is another process's, or is neither of
// this class nor of one that a host built on its window procedure.
void* FetchRecord(HWND window, ControlClass id);

// A zeroed block of this size as the window's record. Null when the window has one already or there
// is no memory.
void* AllocRecord(HWND window, ControlClass id, std::uint16_t size);

// Takes the record away and releases its block; does nothing without one.
void FreeRecord(HWND window, ControlClass id);

template <class Record>
Record* RecordOf(HWND window) {
    return static_cast<Record*>(FetchRecord(window, Record::kClass));
}

// Gives the window a record in its initial state; null when it has one already or there is no
// memory.
template <class Record>
Record* AttachRecord(HWND window) {
    static_assert(sizeof(Record) <= std::numeric_limits<std::uint16_t>::max());
    static_assert(std::is_trivially_destructible_v<Record>);
    void* block = AllocRecord(window, Record::kClass, sizeof(Record));
    return block == nullptr ? nullptr : new (block) Record{};
}

template <class Record>
void DetachRecord(HWND window) {
    FreeRecord(window, Record::kClass);
}

} // namespace vorn
