// Files as native tests, fuzz targets and benchmarks read and write them. Tests of what the program does on
// Windows are in tests/window/files.
#include "files/Files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "faults/Faults.h"
#include "files/Folder.h"
#include "tests/native/support/TemporaryFolder.h"

namespace lindrel {
namespace {

// The path and the reason of the fault that a call throws.
using PathAndReason = std::pair<std::wstring, std::wstring>;
PathAndReason FaultOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const FileFault& fault) {
        return {fault.Path(), fault.Meaning()};
    }
    return {};
}

class FilesTest : public ::testing::Test {
  protected:
    const testing::TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
    const std::filesystem::path file = folder / "t\u0171z.lnd";
    const std::filesystem::path missing = folder / "nincs" / "t\u0171z.lnd";
};

TEST_F(FilesTest, BytesComeBackAsTheyWereWritten) {
    for (const std::string& written :
         {std::string(300000, '\xE1'), std::string("\0\r\n\x1A", 4), std::string()}) {
        WriteFileBytes(file, written);
        EXPECT_EQ(testing::ContentOf(file), written);
        ReplaceFileBytes(file, written + "!");
        EXPECT_EQ(testing::ContentOf(file), written + "!");
    }
    EXPECT_EQ(FilesIn(folder), std::vector<Path>{"t\u0171z.lnd"});
}

TEST_F(FilesTest, FaultsNameThePathAndTheReason) {
    const PathAndReason not_there = {WideText(missing), L"No such file or directory"};
    EXPECT_EQ(FaultOf([&] { ReadFileBytes(missing); }), not_there);
    EXPECT_EQ(FaultOf([&] { WriteFileBytes(missing, "x"); }), not_there);
    EXPECT_EQ(FaultOf([&] { ReplaceFileBytes(missing, "x"); }), not_there);
    const PathAndReason is_a_folder = {WideText(folder), L"Is a directory"};
    EXPECT_EQ(FaultOf([&] { ReadFileBytes(folder); }), is_a_folder);
    EXPECT_EQ(FaultOf([&] { WriteFileBytes(folder, "x"); }), is_a_folder);
    std::filesystem::create_directory(file);
    EXPECT_EQ(FaultOf([&] { ReplaceFileBytes(file, "x"); }),
              PathAndReason(WideText(file), L"Is a directory"));
    EXPECT_EQ(FilesIn(folder), std::vector<Path>{});
    EXPECT_EQ(FaultOf([&] { WriteFileBytes("/dev/full", "x"); }),
              PathAndReason(L"/dev/full", L"No space left on device"));
}

TEST_F(FilesTest, FilesAreFoundAndFoldersCreatedOnce) {
    const PathAndReason not_created = {WideText(missing), L"A mappa nem hozható létre"};
    EXPECT_EQ(FaultOf([&] { CreateFolder(missing); }), not_created);
    EXPECT_EQ(FilesIn(missing), std::vector<Path>{});
    CreateFolder(folder / "a.url");
    CreateFolder(folder / "a.url");
    WriteFileBytes(folder / "a.url" / "b.url", "");
    std::filesystem::create_symlink("nincs", folder / "c.url");
    EXPECT_EQ(FilesIn(folder), std::vector<Path>{"c.url"});
}

TEST_F(FilesTest, FileNamesArePathsAfterTheLastBackslash) {
    EXPECT_EQ(FileNameOf(L"C:\\mappa\\ sajat.lnd "), L"sajat.lnd");
    EXPECT_EQ(FileNameOf(L"C:\\m\\a.lnd"), L"a.lnd");
    EXPECT_EQ(FileNameOf(L" a.lnd"), L"a.lnd");
    EXPECT_EQ(FileNameOf(L"C:\\mappa\\"), L"");
    EXPECT_EQ(FileNameOf(L""), L"");
}

}  // namespace
}  // namespace lindrel
