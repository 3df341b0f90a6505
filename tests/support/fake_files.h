// A file system made of what a test says.
#pragma once

#include "hierlist/directory.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace vorn::hierlist::test {

struct FakeDrive {
    std::uint32_t type = 1; // no such root
    std::string label = {};
    std::uint32_t networkError = 0;
    std::string networkName = {};
};

struct FakeFile {
    std::string name = {};
    std::uint32_t attributes = 0;
    bool isLink = false;
};

class FakeFiles {
public:
    std::map<char, FakeDrive> drives;                     // by upper-case letter
    std::map<std::string, std::vector<FakeFile>> matches; // by pattern
    char current = 'C';
    std::vector<std::string> asked; // of which patterns, and of which network drives
    int openSearches = 0;

    FileSystem System() {
        return {this,      DriveType, VolumeName, NetworkName, CurrentDrive,
                FindFirst, FindNext,  FindEnd,    ToLower};
    }

private:
    struct Search {
        FakeFiles* files;
        std::vector<FakeFile> left; // the next one last
    };

    static FakeFiles& Of(void* context) { return *static_cast<FakeFiles*>(context); }

    static const FakeDrive& DriveAt(void* context, const char* root) {
        static const FakeDrive kNone;
        const auto& drives = Of(context).drives;
        const auto found = drives.find(root[0]);
        return found != drives.end() ? found->second : kNone;
    }
    static void Give(std::span<char> buffer, const std::string& text) {
        const std::size_t length = std::min(text.size(), buffer.size() - 1);
        std::copy_n(text.begin(), length, buffer.begin());
        buffer[length] = '\0';
    }

    static std::uint32_t DriveType(void* context, const char* root) {
        return std::string(root + 1) == ":\\" ? DriveAt(context, root).type : 0;
    }
    static void VolumeName(void* context, const char* root, char* name, std::uint32_t size) {
        Give({name, size}, DriveAt(context, root).label);
    }
    static std::uint32_t NetworkName(void* context, const char* device, char* name,
                                     std::uint32_t size) {
        Of(context).asked.emplace_back(device);
        const char root[] = {static_cast<char>(device[0] - 'a' + 'A'), '\0'};
        const FakeDrive& drive = DriveAt(context, root);
        if (drive.networkError == 0) {
            Give({name, size}, drive.networkName);
        }
        return drive.networkError;
    }
    static char CurrentDrive(void* context) { return Of(context).current; }

    static void* FindFirst(void* context, const char* pattern, FileEntry& entry) {
        FakeFiles& files = Of(context);
        files.asked.emplace_back(pattern);
        const auto found = files.matches.find(pattern);
        if (found == files.matches.end() || found->second.empty()) {
            return nullptr;
        }
        auto* search = new Search{&files, {found->second.rbegin(), found->second.rend()}};
        ++files.openSearches;
        FindNext(context, search, entry);
        return search;
    }
    static bool FindNext(void* /*context*/, void* handle, FileEntry& entry) {
        auto& left = static_cast<Search*>(handle)->left;
        if (left.empty()) {
            return false;
        }
        Give(entry.name, left.back().name);
        entry.attributes = left.back().attributes;
        entry.isLink = left.back().isLink;
        left.pop_back();
        return true;
    }
    static void FindEnd(void* context, void* handle) {
        --Of(context).openSearches;
        delete static_cast<Search*>(handle);
    }
    static void ToLower(void* /*context*/, char* text) {
        std::transform(text, text + std::strlen(text), text, [](char character) {
            const bool upper = character >= 'A' && character <= 'Z';
            return upper ? static_cast<char>(character - 'A' + 'a') : character;
        });
    }
};

} // namespace vorn::hierlist::test
