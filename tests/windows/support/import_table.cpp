#include "tests/windows/support/import_table.h"

namespace vorn::test {
namespace {

template <class Type>
Type* At(HMODULE module, DWORD offset) {
    return reinterpret_cast<Type*>(reinterpret_cast<char*>(module) + offset);
}

} // namespace

void ForEachImport(HMODULE module, const std::function<void(const char* name, void** entry)>& act) {
    const auto* dos = At<IMAGE_DOS_HEADER>(module, 0);
    const auto* headers = At<IMAGE_NT_HEADERS>(module, static_cast<DWORD>(dos->e_lfanew));
    const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto* library = At<IMAGE_IMPORT_DESCRIPTOR>(module, directory.VirtualAddress);
         library->FirstThunk != 0; ++library) {
        const auto* names = At<IMAGE_THUNK_DATA>(module, library->OriginalFirstThunk);
        auto* entries = At<IMAGE_THUNK_DATA>(module, library->FirstThunk);
        for (int i = 0; names[i].u1.AddressOfData != 0; ++i) {
            if (!IMAGE_SNAP_BY_ORDINAL(names[i].u1.Ordinal)) {
                const auto* import =
                    At<IMAGE_IMPORT_BY_NAME>(module, static_cast<DWORD>(names[i].u1.AddressOfData));
                act(reinterpret_cast<const char*>(import->Name),
                    reinterpret_cast<void**>(&entries[i].u1.Function));
            }
        }
    }
}

void ReplaceImport(void** entry, void* function) {
    DWORD protection = 0;
    VirtualProtect(entry, sizeof *entry, PAGE_READWRITE, &protection);
    *entry = function;
    VirtualProtect(entry, sizeof *entry, protection, &protection);
}

} // namespace vorn::test
