// Fills an outline from the file system: with drives, with the entries that match a pattern,
// or with all folders and files of a drive. Every text is in lower case.
#pragma once

#include "hierlist/file_kind.h"
#include "hierlist/item.h"

#include <cstdint>

namespace vorn::hierlist {

constexpr std::size_t kFileNameSize = 260; // the platform's longest name, terminated

struct FileEntry {
    char name[kFileNameSize] = "";
    std::uint32_t attributes = 0; // bits of file_kind.h; others are ignored
    bool isLink = false;          // a folder that stands for one elsewhere
};

// What a listing asks of the platform. Nothing in it runs code of the host.
struct FileSystem {
    void* context;

    // How the platform numbers what a root such as "C:\" is.
    std::uint32_t (*driveType)(void* context, const char* root);
    // The label of a drive, cut to the size; empty when it has none or does not tell.
    void (*volumeName)(void* context, const char* root, char* name, std::uint32_t size);
    // What a drive such as "c:" is connected to; the platform's error, 0 for none.
    std::uint32_t (*networkName)(void* context, const char* device, char* name, std::uint32_t size);
    // The letter of the current drive, 'A' to 'Z'; 0 when it has none.
    char (*currentDrive)(void* context);

    // The entries that match, in the platform's order. Null when there is none at all.
    void* (*findFirst)(void* context, const char* pattern, FileEntry& entry);
    bool (*findNext)(void* context, void* search, FileEntry& entry);
    void (*findEnd)(void* context, void* search);

    // Lower case as the user's language has it, in place.
    void (*toLower)(void* context, char* text);
};

// What is asked for, beside attributes of files, which count only for an exclusive listing.
constexpr std::uint32_t kListDrives = 0x4000;
constexpr std::uint32_t kListExclusive = 0x8000; // only what shares an attribute with those asked

// All add at the top level and answer the item added last, or the root of the drive. NoItem() when
// nothing was added, when memory ran out or a host refused on the way, and for a list that holds
// values instead of texts: it has no place for names.

OlbItem* ListDrives(Outline& outline, const FileSystem& files);

OlbItem* ListFiles(Outline& outline, const FileSystem& files, std::uint32_t attributes,
                   const char* pattern);

// A drive of all its folders: 1 is A, 0 the current one. A folder is listed but not entered when it
// is a link, which might lead back, or when what is in it would have a path of 256 characters.
OlbItem* ListDriveTree(Outline& outline, const FileSystem& files, std::uint32_t attributes,
                       std::uint32_t drive);

} // namespace vorn::hierlist
