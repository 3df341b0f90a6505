#include "hierlist/directory.h"

#include "core/text.h"
#include "hierlist/outline.h"
#include "hierlist/structure.h"

#include <cstring>

namespace vorn::hierlist {
namespace {

// Kinds of drives, as the platform numbers them.
constexpr std::uint32_t kRemovable = 2;
constexpr std::uint32_t kFixed = 3;
constexpr std::uint32_t kRemote = 4;
constexpr std::uint32_t kCdRom = 5;

constexpr std::uint32_t kNotConnected = 2250; // the platform's error
constexpr char kNotConnectedText[] = " Not connected";

constexpr char kEverything[] = "*.*";
constexpr std::size_t kVolumeNameSize = 80;
constexpr std::size_t kNetworkNameSize = 79;
constexpr std::size_t kDriveTextSize = 100;
constexpr std::size_t kPathSize = 256;

constexpr std::uint32_t kFileAttributes =
    kFileReadOnly | kFileHidden | kFileSystem | kFileDirectory | kFileArchive;

// ---- Drives ----

struct Drive {
    char text[kDriveTextSize] = "";
    std::int16_t picture = kDefaultPicture; // for a drive that is not listed
};

TextBuilder StartWithRoot(Drive& drive, const char* root) {
    TextBuilder text = StartText(drive.text);
    AppendText(text, root);
    return text;
}

void NameFixedDrive(Drive& drive, const FileSystem& files, const char* root) {
    char label[kVolumeNameSize] = "";
    files.volumeName(files.context, root, label, kVolumeNameSize);
    TextBuilder text = StartWithRoot(drive, root);
    Append(text, ' ');
    AppendText(text, label);
    drive.picture = kPictureFixed;
}

void NameNetworkDrive(Drive& drive, const FileSystem& files, const char* root, char letter) {
    const char device[] = {static_cast<char>(letter - 'A' + 'a'), ':', '\0'};
    char remote[kNetworkNameSize] = "";
    const std::uint32_t error = files.networkName(files.context, device, remote, kNetworkNameSize);
    if (error != 0 && error != kNotConnected) {
        return;
    }
    TextBuilder text = StartWithRoot(drive, root);
    if (error == 0) {
        Append(text, ' ');
        AppendText(text, remote);
    } else {
        AppendText(text, kNotConnectedText);
    }
    drive.picture = kPictureNetwork;
}

Drive DescribeDrive(const FileSystem& files, char letter) {
    const char root[] = {letter, ':', '\\', '\0'};
    Drive drive;
    switch (files.driveType(files.context, root)) {
    case kRemovable:
        StartWithRoot(drive, root);
        drive.picture = kPictureRemovable;
        break;
    case kFixed:
        NameFixedDrive(drive, files, root);
        break;
    case kRemote:
        NameNetworkDrive(drive, files, root, letter);
        break;
    case kCdRom:
        StartWithRoot(drive, root);
        drive.picture = kPictureCdRom;
        break;
    default:
        break;
    }
    files.toLower(files.context, drive.text);
    return drive;
}

// Sorted as an ordinary text: it gets its picture when it is in its place.
OlbItem* AddDrive(Outline& outline, const Drive& drive) {
    OlbItem* item = AddChild(outline, nullptr, drive.text);
    if (item == NoItem()) {
        return item;
    }
    const Watch watch(outline, item);
    SetBitmapIndex(outline, item, drive.picture);
    TellRedraw(outline, Redraw::Row, HandleToIndex(item));
    return watch.Item() != nullptr ? item : NoItem();
}

// ---- Files ----

// Goes through the entries that match, without the two that every folder has.
class Search {
public:
    Search(const FileSystem& ofFiles, const char* pattern) : files(ofFiles) {
        handle = files.findFirst(files.context, pattern, entry);
        found = handle != nullptr;
        SkipDots();
    }
    ~Search() {
        if (handle != nullptr) {
            files.findEnd(files.context, handle);
        }
    }
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    // Null behind the last one.
    const FileEntry* Found() const { return found ? &entry : nullptr; }

    void Next() {
        found = files.findNext(files.context, handle, entry);
        SkipDots();
    }

private:
    void SkipDots() {
        while (found && (std::strcmp(entry.name, ".") == 0 || std::strcmp(entry.name, "..") == 0)) {
            found = files.findNext(files.context, handle, entry);
        }
    }

    const FileSystem& files;
    FileEntry entry;
    void* handle = nullptr;
    bool found = false;
};

bool IsAskedFor(const FileEntry& entry, std::uint32_t asked) {
    return (asked & kListExclusive) == 0 || (entry.attributes & asked & kFileAttributes) != 0;
}

OlbItem* AddEntry(Outline& outline, const FileSystem& files, OlbItem* parent,
                  const FileEntry& entry) {
    char text[kFileNameSize];
    CopyText(text, entry.name);
    files.toLower(files.context, text);
    return AddChild(outline, parent, text, PictureOfFile(text, entry.attributes));
}

// A listing of a drive on its way down.
struct Descent {
    const FileSystem& files;
    std::uint32_t asked;
    char path[kPathSize]; // of what is listed, with the pattern at its end
};

// Makes the path that of a folder in it, or leaves it as it is when that would be too long.
bool Enter(Descent& descent, const char* folder) {
    const std::size_t end = std::strlen(descent.path) - std::strlen(kEverything);
    const std::size_t length = end + std::strlen(folder) + 1 + std::strlen(kEverything);
    if (length >= kPathSize) {
        return false;
    }
    TextBuilder path = {descent.path, end};
    AppendText(path, folder);
    Append(path, '\\');
    AppendText(path, kEverything);
    return true;
}

void Leave(Descent& descent, std::size_t length) {
    TextBuilder path = {descent.path, length - std::strlen(kEverything)};
    AppendText(path, kEverything);
}

// Lists the path below an item, each folder with what is in it; false when the rest of the listing
// is to fall away.
bool ListBelow(Outline& outline, Descent& descent, const Watch& parent) {
    for (Search search(descent.files, descent.path); search.Found() != nullptr; search.Next()) {
        const FileEntry& entry = *search.Found();
        if (!IsAskedFor(entry, descent.asked)) {
            continue;
        }
        OlbItem* item = AddEntry(outline, descent.files, parent.Item(), entry);
        if (item == NoItem() || parent.Item() == nullptr) {
            return false;
        }
        const bool isFolder = (entry.attributes & kFileDirectory) != 0 && !entry.isLink;
        const std::size_t length = std::strlen(descent.path);
        if (!isFolder || !Enter(descent, entry.name)) {
            continue;
        }
        const Watch folder(outline, item);
        if (!ListBelow(outline, descent, folder) || parent.Item() == nullptr) {
            return false;
        }
        Leave(descent, length);
    }
    return true;
}

} // namespace

OlbItem* ListDrives(Outline& outline, const FileSystem& files) {
    OlbItem* last = NoItem();
    if (HoldsValues(outline)) {
        return last;
    }
    const Watch watch(outline, nullptr);
    for (char letter = 'A'; letter <= 'Z' && !watch.Gone(); ++letter) {
        const Drive drive = DescribeDrive(files, letter);
        if (drive.picture == kDefaultPicture) {
            continue;
        }
        last = AddDrive(outline, drive);
        if (last == NoItem()) {
            return last;
        }
    }
    return last;
}

OlbItem* ListFiles(Outline& outline, const FileSystem& files, std::uint32_t attributes,
                   const char* pattern) {
    OlbItem* last = NoItem();
    if (HoldsValues(outline)) {
        return last;
    }
    for (Search search(files, pattern); search.Found() != nullptr; search.Next()) {
        if (!IsAskedFor(*search.Found(), attributes)) {
            continue;
        }
        last = AddEntry(outline, files, nullptr, *search.Found());
        if (last == NoItem()) {
            return last;
        }
    }
    return last;
}

OlbItem* ListDriveTree(Outline& outline, const FileSystem& files, std::uint32_t attributes,
                       std::uint32_t drive) {
    constexpr std::uint32_t kLetters = 26;
    const char letter = drive == 0          ? files.currentDrive(files.context)
                        : drive <= kLetters ? static_cast<char>('A' + drive - 1)
                                            : '\0';
    if (letter == '\0' || HoldsValues(outline)) {
        return NoItem();
    }
    const char root[] = {static_cast<char>(letter - 'A' + 'a'), ':', '\\', '\0'};
    OlbItem* item = AddChild(outline, nullptr, root, kPictureRoot);
    if (item == NoItem()) {
        return item;
    }
    Descent descent = {files, attributes | kFileDirectory, ""};
    TextBuilder path = StartText(descent.path);
    AppendText(path, root);
    AppendText(path, kEverything);
    const Watch watch(outline, item);
    ListBelow(outline, descent, watch);
    return watch.Item() != nullptr ? watch.Item() : NoItem();
}

} // namespace vorn::hierlist
