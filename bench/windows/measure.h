// Measuring: ours beside theirs in one process, interleaved, several rounds, medians.
#pragma once

#include <windows.h>
#include <functional>

namespace bench {

// Prints one row: microseconds a call of ours and of theirs, and ours / theirs. The two take turns,
// `calls` calls at a time.
void Compare(const char* what, int calls, const std::function<void()>& ours,
             const std::function<void()>& theirs);

// The same one call a round, with something to be done before each that is not counted.
void CompareAfter(const char* what, int rounds, const std::function<void()>& prepareOurs,
                  const std::function<void()>& ours, const std::function<void()>& prepareTheirs,
                  const std::function<void()>& theirs);

// Prints one row: microseconds a call of ours, where there is nothing to set beside it.
void Measure(const char* what, int calls, const std::function<void()>& ours);

// Prints one row of the cost an item at 1,000, 10,000 and 100,000 items, relative to the first.
// `run` does the whole job for a number of items.
void Growth(const char* what, const std::function<void(int items)>& run);

// Prints one row: the memory that the process has more of after filling ours and theirs, in bytes
// an item, and ours / theirs. Neither may free what it made.
void CompareBytes(const char* what, int items, const std::function<void()>& ours,
                  const std::function<void()>& theirs);

// A visible top-level window to put controls on.
HWND Host();

// A control on the host.
HWND Create(const char* className, DWORD style, int width = 200, int height = 20);

// An exported function of VORN32.dll; the program ends when there is none.
FARPROC Exported(const char* name);

// The same with its type.
template <class Function>
Function* Ours(const char* name) {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(Exported(name)));
}

// What each control measures.
void MeasureLoading();
void MeasureButton();
void MeasureDial();
void MeasureCalendar();
void MeasureDateEdit();
void MeasureNumEdit();
void MeasurePercentBar();
void MeasureUdlr();
void MeasureFontSelect();
void MeasureOutline();
void MeasureTimeEdit();
void MeasureHierList();
void MeasureOutlineItems();

} // namespace bench
