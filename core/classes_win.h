// Registering the library's window classes with the platform.
#pragma once

#include "core/class_table.h"
#include "core/platform_win.h"

namespace vorn {

// Loads the names and registers the classes for this module; the answer is whether the module can
// be used.
bool AttachModule(HINSTANCE newModule);

// Undoes a successful AttachModule; does nothing after a failed one or none.
void DetachModule();

// The module that AttachModule was last called with: where the library's resources are.
HINSTANCE Module();

// The atom of a registered class.
ATOM ClassAtom(ControlClass id);

} // namespace vorn
