// What the DLL asks of the system: written down, so that nothing is left behind, failing when it is
// told to, and with memory that is fenced. Its import table is changed, so the DLL under
// test is the one that hosts get.
#pragma once

#include <windows.h>
#include <string>
#include <vector>

namespace vorn::test {

// What can be short.
enum class Supply {
    Memory,  // global memory and the heap's
    Drawing, // device contexts, bitmaps, brushes, pens, fonts and palettes
    Windows, // windows, dialogs, timers, carets, properties and the clipboard
};

inline constexpr Supply kSupplies[] = {Supply::Memory, Supply::Drawing, Supply::Windows};

const char* NameOf(Supply supply);

// From construction to destruction the DLL's imports are watched; one at a time.
class WatchedImports {
public:
    WatchedImports();
    ~WatchedImports();
    WatchedImports(const WatchedImports&) = delete;
    WatchedImports& operator=(const WatchedImports&) = delete;

    // Lets `count` more requests succeed and then `failures` fail; all after them succeed again.
    static void FailAfter(Supply supply, int count, int failures);
    // All succeed. Returns how many have failed.
    static int StopFailing();

    // What the DLL has got and not given back, a line each; empty when there is nothing but the one
    // bitmap that it keeps for its next paint. Windows count for as long as they are there.
    static std::string Left();

    // Forgets what is there now, such as what lives as long as the process.
    static void Forget();

    // What is watched although the DLL does not import it.
    static std::vector<std::string> Unused();
    // What the DLL imports under a name that sounds as if it gave something, and is not watched.
    const std::vector<std::string>& unwatched() const { return unwatched_; }

private:
    void ReplaceEntry(const char* name, void** entry);

    std::vector<std::string> unwatched_;
};

} // namespace vorn::test
