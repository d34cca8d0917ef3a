#include "files/Folder.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "faults/Faults.h"
#include "files/File.h"
#include "files/Files.h"
#include "tests/native/support/TemporaryFolder.h"

namespace lindrel {
namespace {

class FolderTest : public ::testing::Test {
  protected:
    const testing::TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
};

TEST_F(FolderTest, FilesAreFoundAndFoldersLeftOut) {
    std::filesystem::create_directory(folder / "mappa.url");
    WriteFileBytes(folder / "mappa.url" / "belso.url", "");
    WriteFileBytes(folder / "\u0151 .url", "");
    WriteFileBytes(folder / "nul.url", "");
    WriteFileBytes(folder / ".url", "");
    std::filesystem::create_symlink("nincs", folder / "link.url");
    auto names = FilesIn(folder);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::filesystem::path>{".url", "link.url", "nul.url", "\u0151 .url"}));
    EXPECT_EQ(FilesIn(folder / "nincs"), std::vector<std::filesystem::path>{});
}

TEST_F(FolderTest, FoldersAreCreatedOnce) {
    EXPECT_FALSE(FolderIsThere(folder / "a"));
    CreateFolder(folder / "a");
    CreateFolder(folder / "a");
    EXPECT_TRUE(FolderIsThere(folder / "a"));
    WriteFileBytes(folder / "b", "");
    EXPECT_FALSE(FolderIsThere(folder / "b"));
    EXPECT_FALSE(FolderIsThere(""));
    for (const auto& path : {folder / "b", folder / "nincs" / "a"}) {
        try {
            CreateFolder(path);
            ADD_FAILURE() << path;
        } catch (const FileFault& fault) {
            EXPECT_EQ(fault.Number(), 75);
            EXPECT_EQ(fault.Path(), WideText(path));
            EXPECT_EQ(fault.Meaning(), L"A mappa nem hozható létre");
        }
    }
}

}  // namespace
}  // namespace lindrel
