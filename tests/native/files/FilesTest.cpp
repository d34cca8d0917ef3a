#include "files/Files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "faults/Faults.h"
#include "files/File.h"
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

PathAndReason Expected(const std::filesystem::path& path, int error) {
    const std::string reason = std::strerror(error);
    return {WideText(path), std::wstring(reason.begin(), reason.end())};
}

class FilesTest : public ::testing::Test {
  protected:
    std::vector<std::string> NamesThere() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            names.push_back(entry.path().filename().string());
        return names;
    }

    const testing::TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
    const std::filesystem::path file = folder / "t\u0171z.lnd";
    const std::filesystem::path missing = folder / "nincs" / "t\u0171z.lnd";
};

TEST_F(FilesTest, BytesComeBackAsTheyWereWritten) {
    std::string bytes;
    for (int number = 0; number < 300000; ++number) bytes += static_cast<char>(number);
    for (const std::string& written : {bytes, std::string("\0\r\n\x1A", 4), std::string()}) {
        WriteFileBytes(file, written);
        EXPECT_EQ(testing::ContentOf(file), written);
        ReplaceFileBytes(file, written + "!");
        EXPECT_EQ(testing::ContentOf(file), written + "!");
    }
    EXPECT_EQ(NamesThere(), std::vector<std::string>{"t\u0171z.lnd"});
}

TEST_F(FilesTest, AFileIsReplacedAsAWhole) {
    WriteFileBytes(file, "old");
    std::filesystem::create_hard_link(file, folder / "same.lnd");
    ReplaceFileBytes(file, "new");
    EXPECT_EQ(testing::ContentOf(file), "new");
    EXPECT_EQ(testing::ContentOf(folder / "same.lnd"), "old");
}

TEST_F(FilesTest, AReplacedFileKeepsItsPermissions) {
    for (const mode_t mode : {0600U, 0664U}) {
        WriteFileBytes(file, "old");
        ASSERT_EQ(chmod(file.c_str(), mode), 0);
        ReplaceFileBytes(file, "new");
        EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(mode));
    }
}

TEST_F(FilesTest, FaultsNameThePathAndTheSystemsReason) {
    EXPECT_EQ(FaultOf([&] { ReadFileBytes(missing); }), Expected(missing, ENOENT));
    EXPECT_EQ(FaultOf([&] { WriteFileBytes(missing, "x"); }), Expected(missing, ENOENT));
    EXPECT_EQ(FaultOf([&] { ReplaceFileBytes(missing, "x"); }), Expected(missing, ENOENT));
    EXPECT_EQ(FaultOf([&] { ReadFileBytes(folder); }), Expected(folder, EISDIR));
    EXPECT_EQ(FaultOf([&] { WriteFileBytes(folder, "x"); }), Expected(folder, EISDIR));
    EXPECT_EQ(FaultOf([&] { WriteFileBytes("/dev/full", "x"); }), Expected("/dev/full", ENOSPC));
}

TEST_F(FilesTest, AReplacementThatFailsLeavesNoTemporaryFile) {
    const std::filesystem::path in_the_way = folder / "mappa";
    std::filesystem::create_directory(in_the_way);
    EXPECT_EQ(FaultOf([&] { ReplaceFileBytes(in_the_way, "x"); }), Expected(in_the_way, EISDIR));
    EXPECT_EQ(NamesThere(), std::vector<std::string>{"mappa"});
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
