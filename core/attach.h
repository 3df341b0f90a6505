// Attaching the library to a process and detaching it: loading the names, registering the classes.
#pragma once

#include "core/class_table.h"
#include "core/names.h"

namespace vorn {

// What attaching needs of the platform. The functions are called with the record's context.
struct PlatformServices {
    void* context;

    // Loads at most size - 1 characters and a terminator. Returns the number of characters
    // loaded, 0 when there is no such string.
    int (*loadString)(void* context, unsigned id, char* buffer, int size);

    // The handle of the arrow cursor, and of the stock brush that a class names (null for none).
    void* (*arrowCursor)(void* context);
    void* (*stockBrush)(void* context, ClassBrush brush);

    bool (*registerClass)(void* context, const ClassDescription& description, void* cursor,
                          void* brush);
    void (*unregisterClass)(void* context, const ClassDescription& description);

    // Writes a line to the debugger's output.
    void (*debugOutput)(void* context, const char* text);
};

// One a process. `names` are the tables to fill.
struct Library {
    NameTables* names;
    bool registered; // all classes are registered
};

// Loads the names and registers the classes. Returns whether the library is usable: false as soon
// as a string is missing or a class is refused; the classes registered until then stay. A library
// that is already registered answers true and does nothing.
bool Attach(Library& library, const PlatformServices& platform);

// Unregisters the classes of a registered library; does nothing for any other.
void Detach(const Library& library, const PlatformServices& platform);

} // namespace vorn
