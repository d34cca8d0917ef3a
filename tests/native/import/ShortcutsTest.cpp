#include "import/Shortcuts.h"

#include <gtest/gtest.h>

#include <bit>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "book/Book.h"
#include "export/Shortcut.h"
#include "faults/Faults.h"
#include "files/Files.h"
#include "tests/native/support/AnyText.h"
#include "tests/native/support/PrintEntry.h"
#include "tests/native/support/TemporaryFolder.h"

namespace lindrel {
namespace {

using Entries = std::vector<NewEntry>;

std::string AddressIn(std::string_view file) {
    return ShortcutAddress({file.begin(), file.end()});
}

class ShortcutsTest : public ::testing::Test {
  protected:
    void Write(const std::string& name, const std::string& address) const {
        WriteFileBytes(folder / name, ShortcutFile(address));
    }

    const testing::TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
};

TEST_F(ShortcutsTest, TheAddressFollowsTheKeyOfTheSecondLine) {
    for (const std::string_view end : {"\r\n", "\n", "\r"}) {
        const std::string first = "[InternetShortcut]" + std::string(end);
        EXPECT_EQ(AddressIn(first + "URL=http://lap.hu/?a=URL=b"), "http://lap.hu/?a=URL=b");
        EXPECT_EQ(AddressIn(first + "url=Http://Lap.hu" + std::string(end) + "IconIndex=1"), "Http://Lap.hu");
        EXPECT_EQ(AddressIn(first + "URL="), "");
    }
}

TEST_F(ShortcutsTest, AnExportedFileComesBackAsItWas) {
    for (const std::string_view url :
         {"http://www.hirek.hu/", "mailto:ki@lap.hu", "", "\xE1rv\xEDz?q=URL=1", " x "})
        EXPECT_EQ(AddressIn(ShortcutFile(url)), url);
}

TEST_F(ShortcutsTest, TheSecondLineCountsInWhicheverSectionItIs) {
    EXPECT_EQ(
        AddressIn("[DEFAULT]\r\nBASEURL=http://alap.hu/\r\n[InternetShortcut]\r\nURL=http://lap.hu/\r\n"),
        "http://alap.hu/");
    EXPECT_EQ(AddressIn("[{000214A0}]\nProp3=19,2\n[InternetShortcut]\nURL=http://lap.hu/\n"), "p3=19,2");
}

TEST_F(ShortcutsTest, ASecondLineWithoutKeyLosesThreeCharacters) {
    EXPECT_EQ(AddressIn("x\nhttp://lap.hu"), "p://lap.hu");
    EXPECT_EQ(AddressIn("x\nURL"), "");
    EXPECT_EQ(AddressIn("x\nabcd"), "d");
    EXPECT_EQ(AddressIn("x\n\u0151\u0440\U0001F600\u0440z"), "%D1%80z");
    EXPECT_EQ(AddressIn("x\n\u0151\u0440\u0151"), "");
    EXPECT_THROW(AddressIn("x\n\u0151\u0440"), ArgumentFault);
}

TEST_F(ShortcutsTest, TooShortFilesAreFaults) {
    for (const std::string_view file :
         {"", "\r\n", "[InternetShortcut]", "[InternetShortcut]\r\n", "x\r", "x\n"})
        EXPECT_THROW(AddressIn(file), EndOfFileFault);
    for (const std::string_view file :
         {"x\n\n", "x\r\r", "x\r\n\r\nURL=http://lap.hu", "x\nab", "x\nUR\r\nL=x"})
        EXPECT_THROW(AddressIn(file), ArgumentFault);
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

TEST_F(ShortcutsTest, FilesAreReadInUtf8OrUtf16AndWithAnyLineEnd) {
    const std::string address = "http://t\u0171z.hu/\u0440?\u20AC";
    const std::string expected = "http://t\xFBz.hu/%D1%80?\x80";
    for (const std::string end : {"\r\n", "\n", "\r"}) {
        const std::string file = "[InternetShortcut]" + end + "URL=" + address + end + "IconIndex=1";
        EXPECT_EQ(AddressIn(file), expected);
        EXPECT_EQ(AddressIn("\xEF\xBB\xBF" + file), expected);
        for (const std::endian order : {std::endian::little, std::endian::big})
            EXPECT_EQ(AddressIn(testing::Utf16(
                          U"\uFEFF[InternetShortcut]\r\nURL=http://t\u0171z.hu/\u0440?\u20AC", order)),
                      expected);
    }
    // After a BOM it is UTF-8 although some bytes are not valid.
    EXPECT_EQ(AddressIn("\xEF\xBB\xBFx\nURL=\xE1\xC5\x91"), "?\xF5");
    EXPECT_EQ(AddressIn("x\nURL=\xE1\xC5\x91"), "\xE1\xC5\x91");
}

// What is thrown, as the report shows it.
template <typename Action>
std::pair<int, std::wstring> FaultOf(Action action) {
    try {
        action();
    } catch (...) {
        const Fault fault = CurrentFault();
        return {fault.Number(), fault.Meaning()};
    }
    return {0, L""};
}

TEST_F(ShortcutsTest, A256thFileOverflows) {
    Entries expected;
    for (int i = 100; i < 355; ++i) {
        Write(std::to_string(i) + ".url", "http://" + std::to_string(i) + ".hu");
        expected.push_back({std::to_string(i), "http://" + std::to_string(i) + ".hu"});
    }
    EXPECT_EQ(ShortcutsOfFolder(folder), expected);
    Write("355.url", "http://355.hu");
    EXPECT_EQ(FaultOf([&] { ShortcutsOfFolder(folder); }),
              std::pair(6, WideText(folder / "355.url") + L"\r\nTúlcsordulás"));
}

TEST_F(ShortcutsTest, AFaultyFileIsTheFaultOfTheWholeFolderAndIsNamed) {
    const auto fault = [&] { return FaultOf([&] { ShortcutsOfFolder(folder); }); };
    const std::wstring path = WideText(folder / "b.url") + L"\r\n";
    Write("a.url", "http://a.hu");
    WriteFileBytes(folder / "b.url", "[InternetShortcut]\r\n");
    EXPECT_EQ(fault(), std::pair(62, path + L"Olvasás a fájl vége után"));
    WriteFileBytes(folder / "b.url", "[InternetShortcut]\r\n\r\n");
    EXPECT_EQ(fault(), std::pair(5, path + L"Érvénytelen eljáráshívás vagy argumentum"));
    std::filesystem::remove(folder / "b.url");
    std::filesystem::create_symlink("nincs", folder / "b.url");
    EXPECT_EQ(fault(), std::pair(75, path + L"No such file or directory"));
}

}  // namespace
}  // namespace lindrel
