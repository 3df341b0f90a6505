#include "tests/windows/support/folder.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace vorn::test {
namespace {

std::wstring Wide(const std::string& text) {
    wchar_t wide[1024] = L"";
    MultiByteToWideChar(CP_ACP, 0, text.c_str(), -1, wide, 1024);
    return wide;
}

std::wstring LongPath(const std::string& text) {
    return L"\\\\?\\" + Wide(text);
}

bool Create(const std::wstring& path, DWORD attributes) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    CloseHandle(file);
    return SetFileAttributesW(path.c_str(), attributes) != 0;
}

// Wine makes and deletes no links itself, but runs what does: a tool of the system below it.
void RunBelow(const std::string& command, const std::string& folder) {
    std::string line = "Z:\\bin\\" + command;
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    const std::string tool = line.substr(0, line.find(' '));
    const BOOL started = CreateProcessA(tool.c_str(), line.data(), nullptr, nullptr, FALSE, 0,
                                        nullptr, folder.c_str(), &start, &process);
    // Of such a tool Wine answers no process, and as its thread whatever handle lay in its memory.
    if (started && process.hProcess != nullptr) {
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
}

// Waits until a path is there, or is gone; whether it came to that.
bool ComesTo(const std::string& path, bool there) {
    for (int tries = 0; tries < 200; ++tries) {
        if ((GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES) == there) {
            return true;
        }
        Sleep(20);
    }
    return false;
}

// Where Wine keeps its drives, each a link in a folder; empty on Windows.
std::string FolderOfDrives() {
    char prefix[MAX_PATH] = "";
    const DWORD length = GetEnvironmentVariableA("WINEPREFIX", prefix, sizeof prefix);
    return length == 0 || length >= sizeof prefix ? "" : "Z:" + std::string(prefix) + "/dosdevices";
}

bool IsDots(const std::wstring& name) {
    return name == L"." || name == L"..";
}

void RemoveLink(const std::wstring& path) {
    char narrow[MAX_PATH] = "";
    WideCharToMultiByte(CP_ACP, 0, path.c_str(), -1, narrow, MAX_PATH, nullptr, nullptr);
    const std::string link = std::string(narrow).substr(4); // without \\?\, which tools do not know
    const std::size_t end = link.rfind('\\');
    RunBelow("rm " + link.substr(end + 1), link.substr(0, end));
    ComesTo(link, false);
}

void RemoveAllIn(const std::wstring& root) {
    WIN32_FIND_DATAW found;
    HANDLE search = FindFirstFileW((root + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return;
    }
    do {
        const std::wstring path = root + L"\\" + found.cFileName;
        if (IsDots(found.cFileName)) {
            continue;
        }
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            DeleteFileW(path.c_str());
            continue;
        }
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
            RemoveAllIn(path);
        }
        if (RemoveDirectoryW(path.c_str()) == 0) {
            RemoveLink(path);
        }
    } while (FindNextFileW(search, &found) != 0);
    FindClose(search);
}

} // namespace

Folder::Folder() {
    char temporary[MAX_PATH] = "";
    GetTempPathA(sizeof temporary, temporary);
    static int number = 0;
    path = std::string(temporary) + "vorn" + std::to_string(GetCurrentProcessId()) + "-" +
           std::to_string(GetTickCount()) + "-" + std::to_string(++number);
    EXPECT_TRUE(CreateDirectoryA(path.c_str(), nullptr)) << path;
}

Folder::~Folder() {
    Clear(path);
    EXPECT_TRUE(RemoveDirectoryA(path.c_str())) << path;
}

void Folder::AddFile(const std::string& name, DWORD attributes) {
    EXPECT_TRUE(Create(Wide(path + "\\" + name), attributes)) << name;
}

void Folder::AddFolder(const std::string& name) {
    EXPECT_TRUE(CreateDirectoryA((path + "\\" + name).c_str(), nullptr)) << name;
}

bool Folder::AddLongFile(const std::string& longPath) {
    return Create(LongPath(longPath), FILE_ATTRIBUTE_NORMAL);
}

bool Folder::AddLongFolder(const std::string& longPath) {
    return CreateDirectoryW(LongPath(longPath).c_str(), nullptr) != 0;
}

bool Folder::AddLink(const std::string& name) const {
    const std::string link = path + "\\" + name;
    CreateSymbolicLinkA(link.c_str(), path.c_str(), SYMBOLIC_LINK_FLAG_DIRECTORY);
    if (GetFileAttributesA(link.c_str()) != INVALID_FILE_ATTRIBUTES) {
        return true;
    }
    const std::size_t end = link.rfind('\\');
    RunBelow("ln -s .. " + link.substr(end + 1), link.substr(0, end));
    return ComesTo(link, true);
}

bool Folder::Forbid(const std::string& name) const {
    const std::string closed = path + "\\" + name;
    SECURITY_DESCRIPTOR descriptor;
    ACL nobody;
    InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION);
    InitializeAcl(&nobody, sizeof nobody, ACL_REVISION);
    SetSecurityDescriptorDacl(&descriptor, TRUE, &nobody, FALSE);
    SetFileSecurityA(closed.c_str(), DACL_SECURITY_INFORMATION, &descriptor);
    WIN32_FIND_DATAA found;
    HANDLE search = FindFirstFileA((closed + "\\*.*").c_str(), &found);
    if (search != INVALID_HANDLE_VALUE) {
        FindClose(search);
    }
    return search == INVALID_HANDLE_VALUE;
}

std::vector<std::string> Folder::NamesFound() const {
    std::vector<std::string> names;
    WIN32_FIND_DATAA found;
    HANDLE search = FindFirstFileA((path + "\\*.*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return names;
    }
    do {
        CharLowerBuffA(found.cFileName, static_cast<DWORD>(lstrlenA(found.cFileName)));
        if (!IsDots(Wide(found.cFileName))) {
            names.emplace_back(found.cFileName);
        }
    } while (FindNextFileA(search, &found) != 0);
    FindClose(search);
    return names;
}

void Folder::Clear(const std::string& root) {
    RemoveAllIn(LongPath(root.back() == '\\' ? root.substr(0, root.size() - 1) : root));
}

FolderDrive::FolderDrive(const std::string& path) : path_(path) {
    const DWORD taken = GetLogicalDrives();
    for (number_ = 'y' - 'a'; number_ > 2 && (taken >> number_ & 1) != 0; --number_) {
    }
    ++number_;
    const std::string device = Root().substr(0, 2);
    if (FolderOfDrives().empty()) {
        EXPECT_TRUE(DefineDosDeviceA(0, device.c_str(), path_.c_str()));
    } else {
        std::string target = path_; // "c:" beside the new link is the drive that it is on
        CharLowerBuffA(target.data(), 1);
        std::ranges::replace(target, '\\', '/');
        RunBelow("ln -s " + target + " " + device, FolderOfDrives());
    }
    EXPECT_TRUE(ComesTo(Root(), true)) << Root();
}

FolderDrive::~FolderDrive() {
    const std::string device = Root().substr(0, 2);
    if (FolderOfDrives().empty()) {
        DefineDosDeviceA(DDD_REMOVE_DEFINITION, device.c_str(), path_.c_str());
    } else {
        RunBelow("rm " + device, FolderOfDrives());
        ComesTo(Root(), false);
    }
}

std::string FolderDrive::Root() const {
    return std::string(1, static_cast<char>('a' + number_ - 1)) + ":\\";
}

} // namespace vorn::test
