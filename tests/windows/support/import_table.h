// The functions that a module calls in others, which a test can put its own in place of.
#pragma once

#include <windows.h>
#include <functional>

namespace vorn::test {

// Calls `act` with the name and the entry of each function that a module imports by its name.
void ForEachImport(HMODULE module, const std::function<void(const char* name, void** entry)>& act);

// Puts another function into an entry.
void ReplaceImport(void** entry, void* function);

} // namespace vorn::test
