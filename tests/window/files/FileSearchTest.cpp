#include "files/FileSearch.h"

#include <gtest/gtest.h>

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

class FileSearchTest : public ::testing::Test {
  protected:
    FileSearchTest() {
        for (const wchar_t* const name : {L"b.aut", L"a.aut", L"c.txt"}) folder.Write(name, "");
        EXPECT_TRUE(CreateDirectoryW(folder.File(L"d.aut").c_str(), nullptr));
    }
    Names Found(const std::wstring& pattern) const {
        Names names;
        VisitMatches(folder.File(pattern), [&](const WIN32_FIND_DATAW& found) {
            names.emplace_back(IsFolder(found) ? L"<" + std::wstring(found.cFileName) + L">"
                                               : found.cFileName);
            return true;
        });
        SortNames(names);
        return names;
    }
    TemporaryFolder folder;
};

TEST_F(FileSearchTest, VisitsFilesAndFoldersThatMatch) {
    EXPECT_EQ(Found(L"*.aut"), (Names{L"<d.aut>", L"a.aut", L"b.aut"}));
    EXPECT_EQ(Found(L"c.txt"), Names{L"c.txt"});
    EXPECT_EQ(Found(L"*.lnd"), Names{});
    EXPECT_EQ(Found(L"nincs\\*"), Names{});
}

TEST_F(FileSearchTest, StopsWhenTheVisitorHasSeenEnough) {
    int visited = 0;
    VisitMatches(folder.File(L"*"), [&](const WIN32_FIND_DATAW&) { return ++visited < 2; });
    EXPECT_EQ(visited, 2);
}

TEST_F(FileSearchTest, AVisitorThatThrowsLeavesNoSearchOpen) {
    closed = 0;
    find_close = &FindClose;
    {
        const ReplacedImport counting(&FindClose, &CountClosing);
        EXPECT_THROW(
            VisitMatches(folder.File(L"*"), [](const WIN32_FIND_DATAW&) -> bool { throw std::bad_alloc(); }),
            std::bad_alloc);
    }
    EXPECT_EQ(closed, 1);
}

}  // namespace
}  // namespace lindrel::testing
