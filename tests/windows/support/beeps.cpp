#include "tests/windows/support/beeps.h"

#include "tests/windows/support/import_table.h"

#include <cstring>
#include <utility>

namespace vorn::test {
namespace {

int beeps = 0;
bool others = false;

BOOL WINAPI Count(UINT type) {
    ++beeps;
    others = others || type != MB_ICONHAND;
    return TRUE;
}

} // namespace

CountedBeeps::CountedBeeps() {
    ForEachImport(GetModuleHandleA("VORN32.dll"), [this](const char* name, void** entry) {
        if (std::strcmp(name, "MessageBeep") == 0) {
            entry_ = entry;
            function_ = *entry;
            ReplaceImport(entry, reinterpret_cast<void*>(Count));
        }
    });
    Take();
}

CountedBeeps::~CountedBeeps() {
    if (entry_ != nullptr) {
        ReplaceImport(entry_, function_);
    }
}

int CountedBeeps::Take() {
    const int taken = std::exchange(beeps, 0);
    return std::exchange(others, false) ? -1 : taken;
}

} // namespace vorn::test
