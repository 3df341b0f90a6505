// The numeric edit's exported functions that read and write its value.
#include "core/edit/edit_caret_win.h"
#include "core/window_win.h"
#include "numeric/number_access.h"
#include "numeric/numedit_win.h"

#include <vorn32/numedit.h>

namespace vorn::numeric {
namespace {

double ValueIn(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? 0 : ValueOf(record->entry);
}

DWORD UnsignedIn(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? 0 : ReadUnsigned(record->entry);
}

void StoreValue(HWND window, double* number) {
    if (number != nullptr) {
        *number = ValueIn(window);
    }
}

// Writes the value when the host allows it. Returns the host's answer.
LRESULT AskAndWrite(HWND window, double value, Written as) {
    if (RecordOf<Record>(window) == nullptr) {
        return 0;
    }
    const LRESULT answer = SendMessageA(window, VNMM_OKTOCHANGE, 0, 0);
    Record* record = answer != 0 ? RecordOf<Record>(window) : nullptr;
    if (record != nullptr && IsCutWritten(record->entry, value, as)) {
        NotifyParent(window, kTextCut);
        record = RecordOf<Record>(window);
    }
    if (record != nullptr) {
        PerformEdit(kNumberKind, window, Write(record->entry, value, as));
    }
    return answer;
}

void WriteDouble(HWND window, const double* number) {
    if (number != nullptr) {
        AskAndWrite(window, *number, Written::Floating);
    }
}

} // namespace
} // namespace vorn::numeric

using namespace vorn;
using namespace vorn::numeric;

extern "C" LONG WINAPI nmGetInteger(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? 0 : ReadInteger(record->entry);
}

extern "C" LONG WINAPI nmGetShort(HWND window) {
    return nmGetInteger(window);
}

extern "C" LONG WINAPI nmGetLongInteger(HWND window) {
    return nmGetInteger(window);
}

extern "C" DWORD WINAPI nmGetUnsignedInteger(HWND window) {
    return UnsignedIn(window);
}

extern "C" DWORD WINAPI nmGetUnsignedShort(HWND window) {
    return UnsignedIn(window);
}

extern "C" DWORD WINAPI nmGetUnsignedLong(HWND window) {
    return UnsignedIn(window);
}

extern "C" float* WINAPI nmGetFloat(HWND window, float* number) {
    if (number != nullptr) {
        *number = static_cast<float>(ValueIn(window));
    }
    return number;
}

extern "C" void WINAPI nmGetDouble(HWND window, double* number) {
    StoreValue(window, number);
}

extern "C" void WINAPI nmGetLongDouble(HWND window, double* number) {
    StoreValue(window, number);
}

extern "C" BOOL WINAPI nmGetLastGoodNumber(HWND window, char* buffer) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr || buffer == nullptr) {
        return FALSE;
    }
    return ReadLastGoodNumber(record->entry,
                              std::span<char, kNumberTextSize>(buffer, kNumberTextSize));
}

extern "C" void WINAPI nmSetInteger(HWND window, LONG number) {
    AskAndWrite(window, number, Written::Integer);
}

extern "C" void WINAPI nmSetShort(HWND window, SHORT number) {
    nmSetInteger(window, number);
}

extern "C" void WINAPI nmSetLongInteger(HWND window, LONG number) {
    nmSetInteger(window, number);
}

extern "C" void WINAPI nmSetUnsignedInteger(HWND window, DWORD number) {
    AskAndWrite(window, number, Written::UnsignedInteger);
}

extern "C" void WINAPI nmSetUnsignedShort(HWND window, WORD number) {
    nmSetUnsignedInteger(window, number);
}

extern "C" void WINAPI nmSetUnsignedLong(HWND window, DWORD number) {
    AskAndWrite(window, number, Written::UnsignedLong);
}

extern "C" BOOL WINAPI nmSetFloat(HWND window, const float* number) {
    return number == nullptr ? FALSE
                             : static_cast<BOOL>(AskAndWrite(window, static_cast<double>(*number),
                                                             Written::Floating));
}

extern "C" void WINAPI nmSetDouble(HWND window, const double* number) {
    WriteDouble(window, number);
}

extern "C" void WINAPI nmSetLongDouble(HWND window, const double* number) {
    WriteDouble(window, number);
}
