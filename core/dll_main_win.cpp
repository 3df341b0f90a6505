// Where the loader enters the library.
#include "core/classes_win.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID /*reserved*/) {
    switch (reason) {
    case DLL_PROCESS_ATTACH:
        return vorn::AttachModule(module) ? TRUE : FALSE;
    case DLL_PROCESS_DETACH:
        vorn::DetachModule();
        return TRUE;
    default:
        return TRUE;
    }
}
