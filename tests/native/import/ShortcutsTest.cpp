#include "import/Shortcuts.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "book/Book.h"
#include "book/Faults.h"
#include "book/Files.h"
#include "export/Shortcut.h"
#include "tests/native/support/PrintEntry.h"
#include "tests/native/support/TemporaryFolder.h"

namespace lindrel {
namespace {

using Entries = std::vector<NewEntry>;

class ShortcutsTest : public ::testing::Test {
  protected:
    void Write(const std::string& name, const std::string& address) const {
        WriteFileBytes(folder / name, ShortcutFile(address));
    }

    const testing::TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
};

TEST_F(ShortcutsTest, TheAddressStandsBehindTheKeyOfTheSecondLine) {
    for (const std::string_view end : {"\r\n", "\n", "\r"}) {
        const std::string first = "[InternetShortcut]" + std::string(end);
        EXPECT_EQ(ShortcutAddress(first + "URL=http://lap.hu/?a=URL=b"), "http://lap.hu/?a=URL=b");
        EXPECT_EQ(ShortcutAddress(first + "url=Http://Lap.hu" + std::string(end) + "IconIndex=1"),
                  "Http://Lap.hu");
        EXPECT_EQ(ShortcutAddress(first + "URL="), "");
    }
}

TEST_F(ShortcutsTest, AnExportedFileComesBackAsItWas) {
    for (const std::string_view url :
         {"http://www.hirek.hu/", "mailto:ki@lap.hu", "", "\xE1rv\xEDz?q=URL=1", " x "})
        EXPECT_EQ(ShortcutAddress(ShortcutFile(url)), url);
}

TEST_F(ShortcutsTest, AnotherSectionBeforeGivesWhatItsKeyHolds) {
    EXPECT_EQ(ShortcutAddress(
                  "[DEFAULT]\r\nBASEURL=http://alap.hu/\r\n[InternetShortcut]\r\nURL=http://lap.hu/\r\n"),
              "http://alap.hu/");
    EXPECT_EQ(ShortcutAddress("[{000214A0}]\nProp3=19,2\n[InternetShortcut]\nURL=http://lap.hu/\n"),
              "p3=19,2");
}

TEST_F(ShortcutsTest, ASecondLineWithoutKeyLosesThreeCharacters) {
    EXPECT_EQ(ShortcutAddress("x\nhttp://lap.hu"), "p://lap.hu");
    EXPECT_EQ(ShortcutAddress("x\nURL"), "");
    EXPECT_EQ(ShortcutAddress("x\nabcd"), "d");
}

TEST_F(ShortcutsTest, TooShortFilesAreFaults) {
    for (const std::string_view file :
         {"", "\r\n", "[InternetShortcut]", "[InternetShortcut]\r\n", "x\r", "x\n"})
        EXPECT_THROW(ShortcutAddress(file), EndOfFileFault);
    for (const std::string_view file :
         {"x\n\n", "x\r\r", "x\r\n\r\nURL=http://lap.hu", "x\nab", "x\nUR\r\nL=x"})
        EXPECT_THROW(ShortcutAddress(file), ArgumentFault);
}

TEST_F(ShortcutsTest, FileNamesAndAddressesAreTheEntriesInTheOrderOfTheNames) {
    Write("Posta.url", "http://posta.hu");
    Write("H\xC3\xADrek.url", "http://hirek.hu");
    Write("alma.URL", "http://alma.hu");
    Write("B.html.Url", "http://b.hu");
    Write("\xCE\xA9 \xC5\x91.url", "http://gorog.hu");
    Write(".url", "http://nevtelen.hu");
    EXPECT_EQ(ShortcutsOfFolder(folder), (Entries{{"", "http://nevtelen.hu"},
                                                  {"? \xF5", "http://gorog.hu"},
                                                  {"alma", "http://alma.hu"},
                                                  {"B.html", "http://b.hu"},
                                                  {"H\xEDrek", "http://hirek.hu"},
                                                  {"Posta", "http://posta.hu"}}));
}

TEST_F(ShortcutsTest, OtherFilesAndFoldersAreNotRead) {
    Write("lap.urls", "http://1.hu");
    Write("url", "http://2.hu");
    Write("lap.url.txt", "http://3.hu");
    std::filesystem::create_directory(folder / "mappa.url");
    std::filesystem::create_directory(folder / "belso");
    Write("belso/lap.url", "http://4.hu");
    EXPECT_EQ(ShortcutsOfFolder(folder), Entries{});
    EXPECT_EQ(ShortcutsOfFolder(folder / "nincs"), Entries{});
}

TEST_F(ShortcutsTest, A256thFileOverflows) {
    Entries expected;
    for (int i = 100; i < 355; ++i) {
        Write(std::to_string(i) + ".url", "http://" + std::to_string(i) + ".hu");
        expected.push_back({std::to_string(i), "http://" + std::to_string(i) + ".hu"});
    }
    EXPECT_EQ(ShortcutsOfFolder(folder), expected);
    Write("355.url", "http://355.hu");
    EXPECT_THROW(ShortcutsOfFolder(folder), OverflowFault);
}

TEST_F(ShortcutsTest, AFaultyFileIsTheFaultOfTheWholeFolder) {
    Write("a.url", "http://a.hu");
    WriteFileBytes(folder / "b.url", "[InternetShortcut]\r\n");
    EXPECT_THROW(ShortcutsOfFolder(folder), EndOfFileFault);
    WriteFileBytes(folder / "b.url", "[InternetShortcut]\r\n\r\n");
    EXPECT_THROW(ShortcutsOfFolder(folder), ArgumentFault);
    std::filesystem::remove(folder / "b.url");
    std::filesystem::create_symlink("nincs", folder / "b.url");
    EXPECT_THROW(ShortcutsOfFolder(folder), FileFault);
}

}  // namespace
}  // namespace lindrel
