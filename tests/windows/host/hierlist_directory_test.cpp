// Outline lists filled from the file system, with real folders and drives.
#include "tests/windows/support/folder.h"
#include "tests/windows/support/outline_list.h"
#include "tests/windows/support/outline_redraw.h"
#include "tests/windows/support/spy.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

using vorn::test::Folder;
using vorn::test::FolderDrive;
using vorn::test::OutlineListTest;
using vorn::test::PaintsBy;
using vorn::test::Spy;
using Texts = std::vector<std::string>;

class HierListDirectory : public OutlineListTest {
protected:
    Folder folder;

    static std::string TextOf(HWND list, LONG row) {
        char text[300] = "";
        olbGetText(list, row, text);
        return text;
    }

    static Texts TextsOf(HWND list) {
        Texts texts;
        for (LONG row = 0; row < olbGetVisibleCount(list); ++row) {
            texts.push_back(TextOf(list, row));
        }
        return texts;
    }

    // The picture index of a row, which is left as it was.
    static LONG PictureOf(HWND list, LONG row) {
        const LONG index = olbSetBitmapIndex(list, row, 0);
        olbSetBitmapIndex(list, row, index);
        return index;
    }

    static LONG PictureOf(HWND list, const std::string& text) {
        const LONG row = olbFindString(list, -1, -1, text.c_str(), TRUE);
        EXPECT_NE(row, -1) << text;
        return PictureOf(list, row);
    }

    std::string All() const { return folder.path + "\\*.*"; }
};

TEST_F(HierListDirectory, ListsWhatMatches) {
    folder.AddFile("readme.HLP");
    folder.AddFile("setup.EXE");
    folder.AddFile("no extension");
    folder.AddFolder("Zzz");
    folder.AddFile("AAA");
    HWND list = Create(LBS_SORT);
    const LONG last = olbDir(list, 0, All().c_str());
    EXPECT_EQ(TextsOf(list), (Texts{"zzz", "aaa", "no extension", "readme.hlp", "setup.exe"}))
        << "folders first, all in lower case, neither . nor ..";
    EXPECT_GE(last, 0);
    EXPECT_LT(last, 5);
    EXPECT_EQ(PictureOf(list, 0), OLB_SORTFIRST);
    EXPECT_EQ(PictureOf(list, "aaa"), 2);
    EXPECT_EQ(PictureOf(list, "no extension"), 2);
    EXPECT_EQ(PictureOf(list, "readme.hlp"), 9);
    EXPECT_EQ(PictureOf(list, "setup.exe"), 4);
    EXPECT_EQ(olbGetCount(list), 5) << "folders are not entered";
}

TEST_F(HierListDirectory, ListsNothingForNothing) {
    HWND list = Create(LBS_SORT);
    EXPECT_EQ(olbDir(list, 0, All().c_str()), -1) << "an empty folder";
    EXPECT_EQ(olbDir(list, 0, (folder.path + "\\no such folder\\*.*").c_str()), -1);
    EXPECT_EQ(olbDir(list, 0, ""), -1);
    EXPECT_EQ(olbDir(list, 0, nullptr), -1);
    EXPECT_EQ(olbDir(list, 0, std::string(5000, 'x').c_str()), -1);
    EXPECT_EQ(olbGetCount(list), 0);
    folder.AddFile("a.txt");
    EXPECT_EQ(olbDir(list, 0, (folder.path + "\\*.doc").c_str()), -1);
    EXPECT_EQ(olbDir(list, 0, (folder.path + "\\*.txt").c_str()), 0);
    EXPECT_EQ(olbDir(list, 0, (folder.path + "\\a.txt").c_str()), 1) << "beside the first";
}

TEST_F(HierListDirectory, ListsInTheSystemsOrderUnsorted) {
    for (const char* name : {"m.txt", "a.exe", "z", "Folder.txt.old", "b.c.d.e"}) {
        folder.AddFile(name);
    }
    folder.AddFolder("dir");
    const Texts found = folder.NamesFound();
    ASSERT_EQ(found.size(), 6u);
    HWND list = Create();
    EXPECT_EQ(olbDir(list, 0, All().c_str()), 5) << "the last one added";
    EXPECT_EQ(TextsOf(list), found);
    EXPECT_EQ(PictureOf(list, "folder.txt.old"), 2) << "the last extension counts";
}

TEST_F(HierListDirectory, KnowsKindsByExtension) {
    struct Kind {
        const char* name;
        LONG picture;
    };
    const Kind kinds[] = {{"a.Exe", 4}, {"a.bat", 4},   {"a.com", 4},   {"a.VBX", 4},
                          {"a.ocx", 4}, {"a.dll", 4},   {"a.txt", 8},   {"a.DOC", 8},
                          {"a.wri", 8}, {"a.rtf", 8},   {"a.hlp", 9},   {"a.html", 2},
                          {"exe", 2},   {"a.exe.x", 2}, {"b.x.exe", 4}, {".exe", 4}};
    for (const Kind& kind : kinds) {
        folder.AddFile(kind.name);
    }
    HWND list = Create(LBS_SORT);
    EXPECT_GE(olbDir(list, 0, All().c_str()), 0);
    for (const Kind& kind : kinds) {
        std::string lower = kind.name;
        std::ranges::transform(lower, lower.begin(),
                               [](char c) { return static_cast<char>(c | 0x20); });
        if (kind.name[0] != '.') {
            EXPECT_EQ(PictureOf(list, lower), kind.picture) << kind.name;
        }
    }
    EXPECT_EQ(PictureOf(list, ".exe"), 4);
}

TEST_F(HierListDirectory, AttributesFilterExclusively) {
    folder.AddFile("plain.txt", FILE_ATTRIBUTE_ARCHIVE);
    folder.AddFile("readonly.txt", FILE_ATTRIBUTE_READONLY);
    folder.AddFile("hidden.txt", FILE_ATTRIBUTE_HIDDEN);
    folder.AddFile("system.txt", FILE_ATTRIBUTE_SYSTEM);
    folder.AddFolder("folder");
    HWND list = Create(LBS_SORT);
    olbDir(list, 0, All().c_str());
    EXPECT_EQ(TextsOf(list),
              (Texts{"folder", "hidden.txt", "plain.txt", "readonly.txt", "system.txt"}))
        << "without DDL_EXCLUSIVE everything";
    EXPECT_EQ(PictureOf(list, "system.txt"), 5) << "before its extension";
    EXPECT_EQ(PictureOf(list, "hidden.txt"), 8);
    const auto exclusive = [&](DWORD attributes) {
        olbResetContent(list);
        olbDir(list, attributes | DDL_EXCLUSIVE, All().c_str());
        return TextsOf(list);
    };
    EXPECT_EQ(exclusive(DDL_READONLY), (Texts{"readonly.txt"}));
    EXPECT_EQ(exclusive(DDL_HIDDEN), (Texts{"hidden.txt"}));
    EXPECT_EQ(exclusive(DDL_SYSTEM), (Texts{"system.txt"}));
    EXPECT_EQ(exclusive(DDL_DIRECTORY), (Texts{"folder"})) << "neither . nor ..";
    EXPECT_EQ(exclusive(DDL_HIDDEN | DDL_SYSTEM), (Texts{"hidden.txt", "system.txt"}));
    EXPECT_EQ(exclusive(0), Texts{});
}

TEST_F(HierListDirectory, KeepsLongAndForeignNames) {
    const std::string longName(200, 'L');
    folder.AddFile(longName);
    folder.AddFile("\xC4\xD6\xDC.TXT");
    folder.AddFile("two  blanks & more.txt");
    HWND list = Create(LBS_SORT);
    olbDir(list, 0, All().c_str());
    char lower[] = "\xC4\xD6\xDC.TXT";
    CharLowerBuffA(lower, 7);
    EXPECT_NE(olbFindString(list, -1, -1, std::string(200, 'l').c_str(), TRUE), -1);
    EXPECT_NE(olbFindString(list, -1, -1, "two  blanks & more.txt", TRUE), -1);
    EXPECT_EQ(PictureOf(list, lower), 8);
}

TEST_F(HierListDirectory, ListsAThousandFiles) {
    for (int i = 0; i < 1000; ++i) {
        folder.AddFile("f" + std::to_string(10000 + i) + ".txt");
    }
    HWND list = Create(LBS_SORT | WS_VSCROLL);
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    EXPECT_GE(olbDir(list, 0, All().c_str()), 0);
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    ASSERT_EQ(olbGetCount(list), 1000);
    EXPECT_EQ(TextOf(list, 0), "f10000.txt");
    EXPECT_EQ(TextOf(list, 999), "f10999.txt");
}

TEST_F(HierListDirectory, ListBoxMessagesListToo) {
    folder.AddFile("b.exe");
    folder.AddFile("a.txt");
    HWND list = Create(LBS_SORT);
    EXPECT_GE(SendMessageA(list, LB_DIR, 0, reinterpret_cast<LPARAM>(All().c_str())), 0);
    EXPECT_EQ(TextsOf(list), (Texts{"a.txt", "b.exe"}));
    EXPECT_EQ(SendMessageA(list, LB_DIR, 0, 0), -1);
    const std::string program = folder.path + "\\B.EXE";
    EXPECT_GE(SendMessageA(list, LB_ADDFILE, 0, reinterpret_cast<LPARAM>(program.c_str())), 0);
    EXPECT_EQ(PictureOf(list, program), 4) << "the text as it was given";
    EXPECT_EQ(olbGetCount(list), 3);
}

TEST_F(HierListDirectory, AddsSingleNames) {
    folder.AddFolder("Dir");
    HWND list = Create();
    EXPECT_EQ(olbAddFile(list, "Nowhere.HLP"), 0) << "there need be no such file";
    EXPECT_EQ(TextOf(list, 0), "Nowhere.HLP");
    EXPECT_EQ(PictureOf(list, 0), 9);
    EXPECT_EQ(olbAddFile(list, (folder.path + "\\Dir").c_str()), 1);
    EXPECT_EQ(PictureOf(list, 1), OLB_SORTFIRST);
    EXPECT_EQ(olbAddFile(list, ""), 2);
    EXPECT_EQ(PictureOf(list, 2), 2);
    const std::string longName = std::string(2000, 'n') + ".exe";
    EXPECT_EQ(olbAddFile(list, longName.c_str()), 3);
    EXPECT_EQ(olbGetTextLength(list, 3), 2004) << "whole";
}

TEST_F(HierListDirectory, HasNoPlaceForNamesInListsOfValues) {
    folder.AddFile("a.txt");
    HWND list = Create(LBS_OWNERDRAWFIXED);
    EXPECT_EQ(olbDir(list, 0, All().c_str()), -1);
    EXPECT_EQ(olbDir(list, DDL_DRIVES, nullptr), -1);
    EXPECT_EQ(olbGetCount(list), 0);
}

// ---- Drives ----

// What the list should hold, asked of the platform in the test's own way.
Texts DriveTexts(std::vector<LONG>& pictures) {
    Texts texts;
    const DWORD drives = GetLogicalDrives();
    for (int number = 0; number < 26; ++number) {
        char root[] = "a:\\";
        root[0] = static_cast<char>('a' + number);
        const UINT type = (drives >> number & 1) != 0 ? GetDriveTypeA(root) : DRIVE_NO_ROOT_DIR;
        std::string text = root;
        if (type == DRIVE_FIXED) {
            char label[80] = "";
            GetVolumeInformationA(root, label, sizeof label, nullptr, nullptr, nullptr, nullptr, 0);
            CharLowerBuffA(label, static_cast<DWORD>(lstrlenA(label)));
            text += std::string(" ") + label;
        }
        if (type == DRIVE_REMOVABLE || type == DRIVE_FIXED || type == DRIVE_CDROM) {
            texts.push_back(text);
            pictures.push_back(type == DRIVE_REMOVABLE ? 10 : type == DRIVE_FIXED ? 11 : 13);
        }
    }
    return texts;
}

TEST_F(HierListDirectory, ListsTheDrivesThereAre) {
    std::vector<LONG> pictures;
    const Texts expected = DriveTexts(pictures);
    ASSERT_FALSE(expected.empty());
    HWND list = Create();
    EXPECT_EQ(olbDir(list, DDL_DRIVES, "ignored"), static_cast<LONG>(expected.size()) - 1);
    EXPECT_EQ(TextsOf(list), expected);
    for (std::size_t row = 0; row < pictures.size(); ++row) {
        EXPECT_EQ(PictureOf(list, static_cast<LONG>(row)), pictures[row]);
        EXPECT_EQ(olbHasChildren(list, static_cast<LONG>(row)), 0);
    }
    olbResetContent(list);
    EXPECT_EQ(olbDirEx(list, DDL_DRIVES | DDL_EXCLUSIVE, 3),
              static_cast<LONG>(expected.size()) - 1);
    EXPECT_EQ(TextsOf(list), expected) << "the same for a drive's tree";
}

TEST_F(HierListDirectory, ShowsEachDrivesPictureAtOnce) {
    HWND list = Create();
    olbDir(list, DDL_DRIVES, "");
    const vorn::test::Pixels shown = vorn::test::PixelsOf(list);
    RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(Difference(shown, vorn::test::PixelsOf(list)), "");
}

TEST_F(HierListDirectory, RefusesDrivesThatAreNone) {
    HWND list = Create();
    for (const LONG drive : {-1, 27, 0x7FFFFFFF}) {
        EXPECT_EQ(olbDirEx(list, 0, drive), -1) << drive;
    }
    EXPECT_EQ(olbGetCount(list), 0);
    EXPECT_EQ(olbSetCurSel(list, 0), -1);
    EXPECT_GE(PaintsBy(list, [&] { olbAddString(list, "x"); }), 1u) << "drawing is on again";
}

// ---- The tree of a drive ----

TEST_F(HierListDirectory, ListsADriveWithAllBelow) {
    folder.AddFile("Top.txt");
    folder.AddFolder("Empty");
    folder.AddFolder("Full");
    folder.AddFile("Full\\In.exe");
    folder.AddFolder("Full\\Deep");
    folder.AddFile("Full\\Deep\\x");
    const FolderDrive drive(folder.path);
    HWND list = Create(LBS_SORT);
    {
        const Spy spy(list);
        EXPECT_EQ(olbDirEx(list, 0, drive.Number()), 0);
        ASSERT_EQ(spy.Received(WM_SETREDRAW).size(), 2u) << "off meanwhile, and on again";
        EXPECT_EQ(spy.Received(WM_SETREDRAW)[0].wParam, 0u);
        EXPECT_EQ(spy.Received(WM_PAINT).size(), 1u);
    }
    EXPECT_EQ(olbGetVisibleCount(list), 1) << "closed";
    EXPECT_EQ(PictureOf(list, 0), 3);
    olbOpenAll(list, -1);
    EXPECT_EQ(TextsOf(list),
              (Texts{drive.Root(), "empty", "full", "deep", "x", "in.exe", "top.txt"}));
    EXPECT_EQ(olbQueryLevel(list, 4), 3);
    char path[256];
    EXPECT_STREQ(olbGetFullPath(list, 4, path), (drive.Root() + "full\\deep\\x").c_str());

    olbResetContent(list);
    EXPECT_EQ(SendMessageA(list, 1337, DDL_EXCLUSIVE, drive.Number()), 0);
    olbOpenAll(list, -1);
    EXPECT_EQ(TextsOf(list), (Texts{drive.Root(), "empty", "full", "deep"})) << "folders only";
}

TEST_F(HierListDirectory, ListsTwentyLevels) {
    std::string path = "l00";
    folder.AddFolder(path);
    for (int level = 1; level < 20; ++level) {
        path += "\\l" + std::to_string(100 + level).substr(1);
        folder.AddFolder(path);
    }
    folder.AddFile(path + "\\bottom.hlp");
    const FolderDrive drive(folder.path);
    HWND list = Create();
    EXPECT_EQ(olbDirEx(list, 0, drive.Number()), 0);
    EXPECT_EQ(olbGetCount(list), 22);
    olbOpenAll(list, 0);
    EXPECT_EQ(TextOf(list, 21), "bottom.hlp");
    EXPECT_EQ(olbQueryLevel(list, 21), 21);
    EXPECT_EQ(PictureOf(list, 21), 9);
}

// The path to list with its pattern has 255 characters at most.
TEST_F(HierListDirectory, StopsWherePathsAreTooLong) {
    const FolderDrive drive(folder.path);
    // "x:\" and two folders of 120 with their backslashes are 245 characters, and 3 for "*.*".
    const std::string first(120, 'a');
    const std::string fits = drive.Root() + first + "\\" + std::string(120, 'b');
    const std::string tooLong = drive.Root() + first + "\\" + std::string(128, 'c');
    ASSERT_TRUE(CreateDirectoryA((drive.Root() + first).c_str(), nullptr));
    ASSERT_TRUE(CreateDirectoryA(fits.c_str(), nullptr));
    ASSERT_TRUE(folder.AddLongFile(fits + "\\file.txt"));
    ASSERT_TRUE(folder.AddLongFolder(tooLong));
    ASSERT_TRUE(folder.AddLongFile(tooLong + "\\f")); // a path of 254, that of all of them is 256
    HWND list = Create(LBS_SORT);
    EXPECT_EQ(olbDirEx(list, 0, drive.Number()), 0);
    olbOpenAll(list, -1);
    EXPECT_EQ(TextsOf(list), (Texts{drive.Root(), first, std::string(120, 'b'), "file.txt",
                                    std::string(128, 'c')}))
        << "listed, but not entered";
    folder.Clear(drive.Root());
}

TEST_F(HierListDirectory, EndsAtLinksThatLeadBack) {
    folder.AddFolder("in");
    ASSERT_TRUE(folder.AddLink("in\\loop"));
    const FolderDrive drive(folder.path);
    HWND list = Create();
    EXPECT_EQ(olbDirEx(list, 0, drive.Number()), 0);
    olbOpenAll(list, -1);
    EXPECT_EQ(TextsOf(list), (Texts{drive.Root(), "in", "loop"}));
}

TEST_F(HierListDirectory, GoesOnBesideFoldersThatCannotBeRead) {
    folder.AddFolder("a closed");
    folder.AddFolder("b open");
    folder.AddFile("b open\\file");
    const bool closed = folder.Forbid("a closed");
    const FolderDrive drive(folder.path);
    HWND list = Create(LBS_SORT);
    EXPECT_EQ(olbDirEx(list, 0, drive.Number()), 0);
    olbOpenAll(list, -1);
    EXPECT_EQ(TextsOf(list), (Texts{drive.Root(), "a closed", "b open", "file"})) << closed;
}

TEST_F(HierListDirectory, StaysQuietWhenTheListGoesMeanwhile) {
    folder.AddFile("a");
    folder.AddFile("b");
    const FolderDrive drive(folder.path);
    HWND list = Create();
    Spy spy(list);
    spy.before = [&](const vorn::test::Message& received) {
        if (received.message == WM_SETREDRAW) {
            DestroyWindow(list);
        }
    };
    EXPECT_EQ(olbDirEx(list, 0, drive.Number()), -1);
    EXPECT_FALSE(IsWindow(list));
}

} // namespace
