// A folder in the system's temporary one that is there as long as the test, and a drive that is it.
#pragma once

#include <windows.h>
#include <string>
#include <vector>

namespace vorn::test {

class Folder {
public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::string path; // without a backslash at its end

    void AddFile(const std::string& name, DWORD attributes = FILE_ATTRIBUTE_NORMAL);
    void AddFolder(const std::string& name);

    // By a whole path, which may be longer than the ANSI functions allow.
    static bool AddLongFile(const std::string& longPath);
    static bool AddLongFolder(const std::string& longPath);

    // Makes a link to the folder itself, the system's way or that of the system below it.
    bool AddLink(const std::string& name) const;

    // Takes all rights to read a folder in it away; whether that had an effect, which it has not
    // for users that may read everything.
    bool Forbid(const std::string& name) const;

    // The names that the system finds in it, in its order, in lower case.
    std::vector<std::string> NamesFound() const;

    // Deletes all that is in a folder.
    static void Clear(const std::string& root);
};

class FolderDrive {
public:
    explicit FolderDrive(const std::string& path);
    ~FolderDrive();
    FolderDrive(const FolderDrive&) = delete;
    FolderDrive& operator=(const FolderDrive&) = delete;

    LONG Number() const { return number_; } // 1 for A
    std::string Root() const;               // such as "q:\"

private:
    std::string path_;
    LONG number_ = 0;
};

} // namespace vorn::test
