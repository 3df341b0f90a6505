// Drives, files and whole trees of folders as items.
#include "tests/support/fake_files.h"
#include "tests/support/outline_host.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace vorn::hierlist {
namespace {

using test::FakeFiles;
using test::Lines;
using test::TestHost;

class Directory : public ::testing::Test {
protected:
    Directory() { host.outline.compatibilityMode = 0; }
    ~Directory() override { EXPECT_EQ(files.openSearches, 0); }

    OlbItem* List(std::uint32_t attributes, const char* pattern = "*.*") {
        return ListFiles(host.outline, files.System(), attributes, pattern);
    }
    OlbItem* Drives() { return ListDrives(host.outline, files.System()); }
    OlbItem* Tree(std::uint32_t drive, std::uint32_t attributes = 0) {
        return ListDriveTree(host.outline, files.System(), attributes, drive);
    }
    // The top-level items as "text=picture".
    Lines Pictures() const {
        Lines lines;
        for (std::uint32_t row = 0; OlbItem* item = IndexToHandle(host.outline, row); ++row) {
            lines.push_back(std::string(TextOf(item)) + "=" + std::to_string(item->bitmapIndex));
        }
        return lines;
    }

    TestHost host;
    FakeFiles files;
};

// ---- Kinds of files ----

TEST(FileKind, FollowsTheExtension) {
    const struct {
        const char* name;
        std::int16_t picture;
    } cases[] = {
        {"setup.exe", 4},  {"a.bat", 4},  {"a.com", 4},     {"a.vbx", 4},     {"a.ocx", 4},
        {"a.dll", 4},      {"a.txt", 8},  {"a.doc", 8},     {"a.wri", 8},     {"a.rtf", 8},
        {"readme.hlp", 9}, {"a.c", 2},    {"makefile", 2},  {"", 2},          {"a.", 2},
        {".exe", 4},       {"a.exe.", 2}, {"a.txt.exe", 4}, {"a.exe.zip", 2}, {"aexe", 2},
        {"a.exec", 2},     {"a.ex", 2},
    };
    for (const auto& [name, picture] : cases) {
        EXPECT_EQ(PictureOfFile(name, 0), picture) << name;
        EXPECT_EQ(PictureOfFile(name, kFileReadOnly | kFileHidden | kFileArchive), picture) << name;
    }
}

TEST(FileKind, SystemFilesAndFoldersAreWhatTheyAreWhateverTheirName) {
    EXPECT_EQ(PictureOfFile("setup.exe", kFileSystem), 5);
    EXPECT_EQ(PictureOfFile("io", kFileSystem | kFileHidden), 5);
    EXPECT_EQ(PictureOfFile("setup.exe", kFileDirectory), -32768);
    EXPECT_EQ(PictureOfFile("docs", kFileDirectory | kFileSystem), -32768);
}

// ---- Drives ----

TEST_F(Directory, ListsDrivesByTheirKinds) {
    files.drives = {{'A', {.type = 2}},
                    {'B', {.type = 0}},
                    {'C', {.type = 3, .label = "System Disk"}},
                    {'D', {.type = 3}},
                    {'E', {.type = 5}},
                    {'F', {.type = 6}},
                    {'N', {.type = 4, .networkName = "\\\\Server\\Share"}},
                    {'O', {.type = 4, .networkError = 2250}},
                    {'P', {.type = 4, .networkError = 5}},
                    {'Z', {.type = 2}}};
    OlbItem* last = Drives();
    EXPECT_EQ(Pictures(), (Lines{"a:\\=10", "c:\\ system disk=11", "d:\\ =11", "e:\\=13",
                                 "n:\\ \\\\server\\share=12", "o:\\ not connected=12", "z:\\=10"}));
    EXPECT_EQ(HandleToIndex(last), 6u);
    EXPECT_EQ(files.asked, (Lines{"n:", "o:", "p:"}));
}

TEST_F(Directory, SortsDrivesAsOrdinaryTexts) {
    host.outline.style = kStyleSort;
    host.Add(nullptr, "b:\\", kSortFirst);
    host.Add(nullptr, "d", kDefaultPicture);
    files.drives = {{'C', {.type = 5}}, {'E', {.type = 2}}};
    EXPECT_EQ(HandleToIndex(Drives()), 3u);
    EXPECT_EQ(Pictures(), (Lines{"b:\\=-32768", "c:\\=13", "d=-1", "e:\\=10"}));
}

TEST_F(Directory, CutsLabelsAndNetworkNamesToTheirBuffers) {
    files.drives = {{'C', {.type = 3, .label = std::string(300, 'x')}},
                    {'N', {.type = 4, .networkName = std::string(300, 'y')}}};
    Drives();
    EXPECT_EQ(std::string(TextOf(IndexToHandle(host.outline, 0))), "c:\\ " + std::string(79, 'x'));
    EXPECT_EQ(std::string(TextOf(IndexToHandle(host.outline, 1))), "n:\\ " + std::string(78, 'y'));
}

TEST_F(Directory, WithoutDrivesAddsNothing) {
    EXPECT_EQ(Drives(), NoItem());
    EXPECT_EQ(host.outline.itemCount, 0u);
}

// ---- Files ----

TEST_F(Directory, ListsWhatMatchesWithItsPicture) {
    files.matches["c:\\*.*"] = {{".", kFileDirectory},       {"..", kFileDirectory},
                                {"Zzz", kFileDirectory},     {"aaa", 0},
                                {"Setup.EXE", kFileArchive}, {"IO.SYS", kFileSystem | kFileHidden}};
    OlbItem* last = List(0, "c:\\*.*");
    EXPECT_EQ(Pictures(), (Lines{"zzz=-32768", "aaa=2", "setup.exe=4", "io.sys=5"}));
    EXPECT_EQ(HandleToIndex(last), 3u);
    EXPECT_EQ(files.asked, (Lines{"c:\\*.*"}));
}

TEST_F(Directory, PutsFoldersFirstInASortedList) {
    host.outline.style = kStyleSort;
    files.matches["*.*"] = {
        {"b.txt", 0}, {"zzz", kFileDirectory}, {"aaa", 0}, {"bbb", kFileDirectory}};
    // By picture first only for folders: among files the text alone counts.
    EXPECT_EQ(HandleToIndex(List(0)), 0u) << "bbb, added last";
    EXPECT_EQ(Pictures(), (Lines{"bbb=-32768", "zzz=-32768", "aaa=2", "b.txt=8"}));
}

TEST_F(Directory, ExclusivelyListsWhatSharesAnAttribute) {
    files.matches["*.*"] = {{"plain", 0},
                            {"folder", kFileDirectory},
                            {"hidden", kFileHidden},
                            {"both", kFileHidden | kFileArchive},
                            {".", kFileDirectory},
                            {"odd", 0x80 | 0x4000 | 0x8000}};
    List(kListExclusive | kFileHidden);
    EXPECT_EQ(Pictures(), (Lines{"hidden=2", "both=2"}));
    Reset(host.outline);
    List(kListExclusive | kFileDirectory | kFileArchive);
    EXPECT_EQ(Pictures(), (Lines{"folder=-32768", "both=2"}));
    Reset(host.outline);
    EXPECT_EQ(List(kListExclusive), NoItem());
    EXPECT_EQ(List(kListExclusive | kFileReadOnly), NoItem());
    EXPECT_EQ(host.outline.itemCount, 0u);
}

TEST_F(Directory, WithoutAMatchAddsNothing) {
    EXPECT_EQ(List(0), NoItem());
    files.matches["*.*"] = {{".", kFileDirectory}, {"..", kFileDirectory}};
    EXPECT_EQ(List(0), NoItem());
    EXPECT_EQ(host.outline.itemCount, 0u);
}

TEST_F(Directory, HasNoPlaceForNamesInAListOfValues) {
    host.outline.style = kStyleOwnerDrawFixed;
    files.matches["*.*"] = {{"a", 0}};
    files.drives = {{'C', {.type = 3}}};
    EXPECT_EQ(List(0), NoItem());
    EXPECT_EQ(Drives(), NoItem());
    EXPECT_EQ(Tree(3), NoItem());
    EXPECT_EQ(host.outline.itemCount, 0u);
}

// ---- Trees ----

TEST_F(Directory, ListsTheWholeTreeOfADrive) {
    files.matches["d:\\*.*"] = {{"One", kFileDirectory}, {"readme", 0}, {"Two", kFileDirectory}};
    files.matches["d:\\One\\*.*"] = {
        {".", kFileDirectory}, {"..", kFileDirectory}, {"Deep", kFileDirectory}, {"B.HLP", 0}};
    files.matches["d:\\One\\Deep\\*.*"] = {{"c.txt", 0}};
    OlbItem* root = Tree(4);
    EXPECT_STREQ(TextOf(root), "d:\\");
    EXPECT_EQ(root->bitmapIndex, 3);
    EXPECT_EQ(HandleToIndex(root), 0u);
    EXPECT_EQ(host.Rows(), "0d:\\");
    OpenAll(host.outline, nullptr);
    EXPECT_EQ(host.Rows(), "0d:\\ 1one 2deep 3c.txt 2b.hlp 1readme 1two");
    EXPECT_EQ(Pictures(), (Lines{"d:\\=3", "one=-32768", "deep=-32768", "c.txt=8", "b.hlp=9",
                                 "readme=2", "two=-32768"}));
    EXPECT_EQ(files.asked,
              (Lines{"d:\\*.*", "d:\\One\\*.*", "d:\\One\\Deep\\*.*", "d:\\Two\\*.*"}));
}

TEST_F(Directory, AlwaysListsFoldersInATree) {
    files.matches["c:\\*.*"] = {{"a", 0}, {"f", kFileDirectory}, {"h", kFileHidden}};
    files.matches["c:\\f\\*.*"] = {{"b", 0}, {"i", kFileHidden}};
    Tree(3, kListExclusive | kFileHidden);
    OpenAll(host.outline, nullptr);
    EXPECT_EQ(host.Rows(), "0c:\\ 1f 2i 1h");
}

TEST_F(Directory, KnowsDrivesByNumber) {
    files.current = 'X';
    EXPECT_STREQ(TextOf(Tree(0)), "x:\\");
    EXPECT_STREQ(TextOf(Tree(1)), "a:\\");
    EXPECT_STREQ(TextOf(Tree(26)), "z:\\");
    EXPECT_EQ(Tree(27), NoItem());
    EXPECT_EQ(Tree(0xFFFFFFFF), NoItem());
    files.current = '\0';
    EXPECT_EQ(Tree(0), NoItem());
    EXPECT_EQ(host.outline.itemCount, 3u);
}

TEST_F(Directory, DoesNotEnterLinks) {
    files.matches["c:\\*.*"] = {{"back", kFileDirectory, true}};
    files.matches["c:\\back\\*.*"] = files.matches["c:\\*.*"];
    Tree(3);
    OpenAll(host.outline, nullptr);
    EXPECT_EQ(host.Rows(), "0c:\\ 1back");
}

// A path has room for 255 characters: "c:\", names with backslashes, "*.*". So below the root
// there is room for 249 characters of names and their backslashes.
TEST_F(Directory, StopsWhereAPathWouldBeTooLong) {
    const std::string fits(248, 'a');
    const std::string tooLong(249, 'b');
    files.matches["c:\\*.*"] = {{fits, kFileDirectory}, {tooLong, kFileDirectory}, {"c", 0}};
    files.matches["c:\\" + fits + "\\*.*"] = {{"in", 0}, {"d", kFileDirectory}};
    files.matches["c:\\" + tooLong + "\\*.*"] = {{"not asked for", 0}};
    files.matches["c:\\" + fits + "\\d\\*.*"] = {{"nor that", 0}};
    Tree(3);
    OpenAll(host.outline, nullptr);
    EXPECT_EQ(host.Rows(), "0c:\\ 1" + fits + " 2in 2d 1" + tooLong + " 1c");
}

TEST_F(Directory, GoesAsDeepAsPathsGo) {
    // Names of one character take two: 124 folders below the root, the last one listed only.
    std::string path = "c:\\";
    for (int level = 1; level <= 200; ++level) {
        files.matches[path + "*.*"] = {{"f", kFileDirectory}};
        path += "f\\";
    }
    Tree(3);
    EXPECT_EQ(files.asked.size(), 125u) << "the root and 124 below it";
    EXPECT_EQ(host.outline.itemCount, 126u) << "those and one that is not entered";
}

// ---- Hosts ----

TEST_F(Directory, EndsWhenTheHostEmptiesTheList) {
    files.matches["c:\\*.*"] = {{"f", kFileDirectory}, {"g", 0}};
    files.matches["c:\\f\\*.*"] = {{"a", 0}, {"b", 0}};
    host.outline.compatibilityMode = 1;
    host.meanwhile = [this](const std::string& line) {
        host.sideTableFull = line == "record a 0";
        if (line == "errorSpace") {
            Reset(host.outline);
        }
    };
    EXPECT_EQ(Tree(3), NoItem());
    EXPECT_EQ(host.outline.itemCount, 0u);
}

TEST_F(Directory, EndsWhenTheHostDeletesAFolderOnTheWay) {
    files.matches["c:\\*.*"] = {{"f", kFileDirectory}, {"g", 0}};
    files.matches["c:\\f\\*.*"] = {{"a", 0}, {"b", 0}};
    host.outline.style = kStyleOwnerDrawVariable | kStyleHasStrings; // so that it is asked
    OlbItem* folder = nullptr;
    host.meanwhile = [&](const std::string& line) {
        if (line == "measure a -") {
            folder = IndexToHandle(host.outline, 0)->firstChild;
            DeleteItem(host.outline, folder);
        }
    };
    OlbItem* root = Tree(3);
    ASSERT_NE(root, NoItem());
    EXPECT_EQ(root->childCount, 0u);
    EXPECT_EQ(host.outline.itemCount, 1u);
}

TEST_F(Directory, EndsWithTheOutline) {
    files.drives = {{'C', {.type = 5}}, {'D', {.type = 5}}};
    files.matches["*.*"] = {{"a", 0}, {"b", 0}};
    files.matches["c:\\*.*"] = {{"a", 0}, {"b", 0}};
    host.outline.style = kStyleOwnerDrawVariable | kStyleHasStrings;
    const auto destroyAt = [this](const std::string& at) {
        host.meanwhile = [this, at](const std::string& line) {
            if (line == at) {
                Destroy(host.outline);
            }
        };
    };
    destroyAt("measure b 1");
    EXPECT_EQ(List(0), NoItem());
    destroyAt("measure c:\\ 0");
    EXPECT_EQ(Drives(), NoItem());
    destroyAt("measure b -");
    EXPECT_EQ(Tree(3), NoItem());
}

} // namespace
} // namespace vorn::hierlist
