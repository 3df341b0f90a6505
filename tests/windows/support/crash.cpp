// A fault in our code ends the program. Left to itself the system may swallow one inside a window
// procedure that it called, and a test would pass that saw the control crash.
#include "tests/windows/support/crash.h"

#include <windows.h>
#include <cstdio>
#include <cstring>

namespace {

std::string deed = "nothing in particular";

constexpr UINT kFaultStatus = 3;

bool IsFault(DWORD code) {
    switch (code) {
    case EXCEPTION_ACCESS_VIOLATION:
    case EXCEPTION_ILLEGAL_INSTRUCTION:
    case EXCEPTION_PRIV_INSTRUCTION:
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
    case EXCEPTION_INT_OVERFLOW:
    case EXCEPTION_STACK_OVERFLOW:
    case EXCEPTION_BREAKPOINT:
        return true;
    default:
        return false;
    }
}

// The system probes bad addresses on purpose, in code of its own; ours, the C library's on our
// behalf and a jump to nowhere count.
bool IsInOurCode(const void* address, char (&name)[MAX_PATH]) {
    HMODULE module = nullptr;
    if (!GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            static_cast<LPCSTR>(address), &module)) {
        std::strcpy(name, "no module");
        return true;
    }
    GetModuleFileNameA(module, name, MAX_PATH);
    return module == GetModuleHandleA(nullptr) || module == GetModuleHandleA("VORN32.dll") ||
           module == GetModuleHandleA("msvcrt.dll");
}

LONG CALLBACK EndProgram(EXCEPTION_POINTERS* exception) {
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    char name[MAX_PATH] = "";
    if (!IsFault(record.ExceptionCode) || !IsInOurCode(record.ExceptionAddress, name)) {
        return EXCEPTION_CONTINUE_SEARCH;
    }
    std::printf("[  FAILED  ] fault 0x%08lx at %p in %s, doing %s\n", record.ExceptionCode,
                record.ExceptionAddress, name, deed.c_str());
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), kFaultStatus);
    return EXCEPTION_CONTINUE_SEARCH;
}

[[maybe_unused]] const PVOID handler = AddVectoredExceptionHandler(1, EndProgram);

} // namespace

void vorn::test::NoteDeed(const std::string& what) {
    deed = what;
}
