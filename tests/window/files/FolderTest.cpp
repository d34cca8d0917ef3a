// Folders, and what is found in them.
#include "files/Folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "faults/Faults.h"
#include "files/FileSearch.h"
#include "files/Files.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

using Names = std::vector<std::wstring>;

int closed = 0;
BOOL(WINAPI* find_close)(HANDLE) = nullptr;

BOOL WINAPI CountClosing(HANDLE search) {
    ++closed;
    return find_close(search);
}
BOOL WINAPI NextFails(HANDLE, LPWIN32_FIND_DATAW) {
    SetLastError(ERROR_IO_DEVICE);
    return FALSE;
}

class FolderTest : public ::testing::Test {
  protected:
    FolderTest() {
        for (const wchar_t* const name : {L"b.aut", L"A.aut", L"\u0151 .txt"}) folder.Write(name, "");
        std::filesystem::create_directory(folder.File(L"d.aut"));
        folder.Write(L"d.aut\\inside.aut", "");
    }
    Names Found(const std::wstring& pattern) const {
        Names names;
        EXPECT_TRUE(VisitMatches(folder.File(pattern), [&](const WIN32_FIND_DATAW& found) {
            names.emplace_back(IsFolder(found) ? L"<" + std::wstring(found.cFileName) + L">"
                                               : found.cFileName);
            return true;
        }));
        SortNames(names);
        return names;
    }
    // The path and the meaning of the fault of a call.
    template <typename Call>
    static std::pair<std::wstring, std::wstring> FaultOf(Call call) {
        try {
            call();
        } catch (const FileFault& fault) {
            return {fault.Path(), fault.Meaning()};
        }
        return {};
    }
    using PathAndMeaning = std::pair<std::wstring, std::wstring>;

    TemporaryFolder folder;
    const std::wstring path = folder.File(L"");
};

TEST_F(FolderTest, VisitsFilesAndFoldersThatMatch) {
    EXPECT_EQ(Found(L"*.aut"), (Names{L"<d.aut>", L"A.aut", L"b.aut"}));
    EXPECT_EQ(Found(L"\u0151 .txt"), Names{L"\u0151 .txt"});
    EXPECT_EQ(Found(L"*.lnd"), Names{});
    EXPECT_EQ(Found(L"nincs\\*"), Names{});
}

TEST_F(FolderTest, StopsWhenTheVisitorHasSeenEnoughAndAlwaysClosesTheSearch) {
    closed = 0;
    find_close = &FindClose;
    const ReplacedImport counting(&FindClose, &CountClosing);
    int visited = 0;
    EXPECT_TRUE(VisitMatches(folder.File(L"*"), [&](const WIN32_FIND_DATAW&) { return ++visited < 2; }));
    EXPECT_EQ(visited, 2);
    EXPECT_EQ(closed, 1);
    EXPECT_THROW(VisitMatches(folder.File(L"*"),
                              [](const WIN32_FIND_DATAW&) -> bool { throw std::runtime_error("enough"); }),
                 std::runtime_error);
    EXPECT_EQ(closed, 2);
}

TEST_F(FolderTest, FilesAreFoundAndFoldersLeftOut) {
    const std::wstring device = ExactPath(folder.File(L"nul.url"));
    WriteFileBytes(device, "");
    Names names = FilesIn(path);
    SortNames(names);
    EXPECT_EQ(names, (Names{L"A.aut", L"b.aut", L"nul.url", L"\u0151 .txt"}));
    EXPECT_EQ(FilesIn(folder.File(L"nincs")), Names{});
    ASSERT_TRUE(DeleteFileW(device.c_str()));
}

TEST_F(FolderTest, AFolderThatCannotBeReadToItsEndIsAFault) {
    const ReplacedImport broken(&FindNextFileW, &NextFails);
    EXPECT_EQ(FaultOf([&] { FilesIn(path); }), PathAndMeaning(path, L"A mappa nem olvasható végig"));
    EXPECT_FALSE(VisitMatches(folder.File(L"*"), [](const WIN32_FIND_DATAW&) { return true; }));
}

TEST_F(FolderTest, FoldersAreCreatedOnce) {
    const std::wstring made = folder.File(L"a");
    EXPECT_FALSE(FolderIsThere(made));
    CreateFolder(made);
    CreateFolder(made);
    EXPECT_TRUE(FolderIsThere(made));
    EXPECT_FALSE(FolderIsThere(folder.File(L"b.aut")));
    EXPECT_FALSE(FolderIsThere(L""));
    for (const std::wstring& other : {folder.File(L"b.aut"), folder.File(L"nincs\\a")})
        EXPECT_EQ(FaultOf([&] { CreateFolder(other); }), PathAndMeaning(other, L"A mappa nem hozható létre"));
}

}  // namespace
}  // namespace lindrel::testing
