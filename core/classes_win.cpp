#include "core/classes_win.h"

#include "core/attach.h"
#include "core/paint_win.h"

#include <vorn32.h>

namespace vorn {
namespace {

HINSTANCE module = nullptr;
Library library = {&names, false};
ATOM atoms[kControlClasses] = {};

WNDPROC ProcedureOf(ControlClass id) {
    switch (id) {
    case ControlClass::Button:
        return VORNButtonWinFn;
    case ControlClass::NumEdit:
        return VORNNumEditWinFn;
    case ControlClass::DateEdit:
        return VORNDateEditWinFn;
    case ControlClass::Calendar:
        return VORNCalendarWinFn;
    case ControlClass::TimeEdit:
        return VORNTimeEditWinFn;
    case ControlClass::FontSelect:
        return VORNFontSelectWinFn;
    case ControlClass::Dial:
        return VORNDialWinFn;
    case ControlClass::Udlr:
        return VORNUDLRWinFn;
    case ControlClass::PercentBar:
        return VORNPctBarWinFn;
    case ControlClass::HierList:
        return VORNHierListWinFn;
    case ControlClass::ComboBox:
        return VORNCBFunction;
    }
    return DefWindowProcA;
}

int LoadModuleString(void* /*context*/, unsigned id, char* buffer, int size) {
    return LoadStringA(module, id, buffer, size);
}

void* ArrowCursor(void* /*context*/) {
    return LoadCursorA(nullptr, IDC_ARROW);
}

void* StockBrush(void* /*context*/, ClassBrush brush) {
    return brush == ClassBrush::LightGray ? GetStockObject(LTGRAY_BRUSH) : nullptr;
}

bool RegisterModuleClass(void* /*context*/, const ClassDescription& description, void* cursor,
                         void* brush) {
    WNDCLASSA record{};
    record.style = description.style;
    record.lpfnWndProc = ProcedureOf(description.id);
    record.cbWndExtra = description.extraBytes;
    record.hInstance = module;
    record.hCursor = static_cast<HCURSOR>(cursor);
    record.hbrBackground = static_cast<HBRUSH>(brush);
    record.lpszClassName = description.name;
    const ATOM atom = RegisterClassA(&record);
    atoms[Index(description.id)] = atom;
    return atom != 0;
}

void UnregisterModuleClass(void* /*context*/, const ClassDescription& description) {
    UnregisterClassA(description.name, module);
}

void WriteDebugOutput(void* /*context*/, const char* text) {
    OutputDebugStringA(text);
}

constexpr PlatformServices kPlatform = {
    nullptr,          LoadModuleString,    ArrowCursor,
    StockBrush,       RegisterModuleClass, UnregisterModuleClass,
    WriteDebugOutput,
};

} // namespace

bool AttachModule(HINSTANCE newModule) {
    if (!library.registered) {
        module = newModule;
    }
    return Attach(library, kPlatform);
}

void DetachModule() {
    Detach(library, kPlatform);
    FreeKeptPixels();
}

HINSTANCE Module() {
    return module;
}

ATOM ClassAtom(ControlClass id) {
    return atoms[Index(id)];
}

} // namespace vorn
