#include "book/BookFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

#include "book/Book.h"
#include "book/CheckMarks.h"
#include "book/PerCategory.h"
#include "faults/Faults.h"
#include "files/Files.h"
#include "tests/native/support/TemporaryFolder.h"

namespace lindrel {
namespace {

std::vector<char> Bytes(const std::string& text) {
    return {text.begin(), text.end()};
}

std::string Headers(int from, int to) {
    std::string text;
    for (int k = from; k <= to; ++k) text += "#K" + std::to_string(k) + "\r\n";
    return text;
}

Book BookOf(const std::string& text) {
    Book book;
    EXPECT_TRUE(LoadBook(book, Bytes(text)));
    return book;
}

// The line of the fault that loading a text throws. Checks that the open book does not change.
long long FaultLine(const std::string& text) {
    Book book = BookOf("#Regi\r\nnev\r\nhttp://regi.hu\r\n" + Headers(2, 12));
    const std::string before = SaveBook(book);
    try {
        LoadBook(book, Bytes(text));
    } catch (const MalformedBook& malformed) {
        EXPECT_FALSE(malformed.Message().empty());
        EXPECT_EQ(SaveBook(book), before);
        return malformed.Line();
    }
    ADD_FAILURE() << "no fault";
    return -1;
}

TEST(BookFileTest, TwelveHeadersAreAnEmptyBookAndLeaveTheElements) {
    Book book = BookOf("#A\r\nn\r\nu\r\n" + Headers(2, 12));
    EXPECT_TRUE(LoadBook(book, Bytes(Headers(1, 12))));
    EXPECT_TRUE(book.IsEmpty());
    EXPECT_EQ(book.UpperBound(), 1);
    EXPECT_EQ(book.SiteNames(1), "n");
    EXPECT_EQ(book.SiteURLs(1), "u");
    EXPECT_EQ(SaveBook(book), Headers(1, 12));
}

TEST(BookFileTest, SavesAndLoadsTheSame) {
    const std::string file =
        "#H\xEDrek\r\nIndex\r\nhttps://index.hu\r\n\r\n\r\n# szoveg\r\n#\r\nA\r\nB\r\n" + Headers(4, 12);
    const Book book = BookOf(file);
    EXPECT_EQ(SaveBook(book), file);
    EXPECT_EQ(book.CategoryNames(2), " szoveg");  // the blank belongs to the name
    EXPECT_EQ(book.CategoryNames(3), "");
    EXPECT_EQ(book.CategoryCounts(1), 2);
    EXPECT_EQ(book.SiteNames(2), "");  // an empty line is a value
    EXPECT_EQ(book.SiteURLs(2), "");
    EXPECT_EQ(book.CategoryStarts(3), 3);
    EXPECT_EQ(book.SiteNames(3), "A");
}

TEST(BookFileTest, LineFeedsAloneAndAMissingLastBreakAreRead) {
    std::string file = "#1\nnev\nhttp://a.hu\n";
    for (int k = 2; k <= 12; ++k) file += "#" + std::to_string(k) + "\n";
    file.pop_back();
    const Book book = BookOf(file);
    EXPECT_EQ(book.SiteNames(1), "nev");
    EXPECT_EQ(book.SiteURLs(1), "http://a.hu");
    EXPECT_EQ(book.CategoryNames(12), "12");
}

TEST(BookFileTest, AHeaderBetweenNameAndAddressShiftsThePair) {
    const Book book = BookOf("#1\r\nnev\r\n#2\r\ncim\r\nnev2\r\ncim2\r\n" + Headers(3, 12));
    EXPECT_EQ(book.SiteNames(1), "nev");
    EXPECT_EQ(book.SiteURLs(1), "cim");
    EXPECT_EQ(book.SiteNames(2), "nev2");
    EXPECT_EQ(book.CategoryCounts(1), 1);
    EXPECT_EQ(book.CategoryCounts(2), 1);
}

TEST(BookFileTest, TenLinesAreTooFewAndElevenAreEnough) {
    EXPECT_EQ(FaultLine(Headers(1, 10)), 0);
    EXPECT_EQ(FaultLine(""), 0);
    Book book;
    EXPECT_FALSE(LoadBook(book, Bytes(Headers(1, 11))));
    EXPECT_EQ(book.CategoryNames(11), "K11");
    EXPECT_EQ(book.CategoryNames(12), "Project12");
}

TEST(BookFileTest, MoreEntryLinesThanEstimatedAreAFault) {
    EXPECT_EQ(FaultLine(Headers(1, 12) + "n\r\n"), 13);                      // 0.5 rounds to 0
    EXPECT_EQ(FaultLine(Headers(1, 12) + "a\r\nb\r\nc\r\nd\r\ne\r\n"), 17);  // 2.5 rounds to 2
    const Book book = BookOf(Headers(1, 12) + "a\r\nb\r\nc\r\n");            // 1.5 rounds to 2
    EXPECT_EQ(book.CategoryCounts(12), 2);
    EXPECT_EQ(book.SiteURLs(2), "");
}

TEST(BookFileTest, CategoriesNeverReachedKeepNamesAndCounts) {
    Book book = BookOf(Headers(1, 10) + "#R11\r\na\r\nb\r\nc\r\nd\r\n#R12\r\n");
    EXPECT_EQ(book.CategoryCounts(11), 2);
    EXPECT_FALSE(LoadBook(book, Bytes(Headers(1, 11) + "n\r\nu\r\nm\r\nv\r\n")));
    EXPECT_EQ(book.CategoryNames(11), "K11");
    EXPECT_EQ(book.CategoryNames(12), "R12");
    EXPECT_EQ(book.CategoryCounts(11), 2);  // of the old book
    EXPECT_EQ(book.CategoryCounts(12), 2);  // what followed the last header
    EXPECT_EQ(book.CategoryStarts(12), 3);
    EXPECT_THROW(SaveBook(book), RangeFault);
}

TEST(BookFileTest, LinesBeforeTheFirstHeaderBelongToNoCategory) {
    const BookFromFile read = ReadBook(Book(), Bytes("x\r\ny\r\n#K1\r\nn\r\nu\r\n" + Headers(2, 12)));
    EXPECT_TRUE(read.AllCategories);
    EXPECT_EQ(read.InNoCategory, 1);
    EXPECT_EQ(read.TheBook.UpperBound(), 2);
    EXPECT_EQ(read.TheBook.SiteNames(1), "x");
    EXPECT_EQ(read.TheBook.EntryCount(), 1);
    EXPECT_EQ(SaveBook(read.TheBook), "#K1\r\nx\r\ny\r\n" + Headers(2, 12));  // all that is counted
}

TEST(BookFileTest, TooFewHeadersAndLinesBeforeThemAreBothReported) {
    const std::string before = "x\r\ny\r\nz\r\nw\r\n";
    const BookFromFile read = ReadBook(Book(), Bytes(before + Headers(1, 11)));
    EXPECT_FALSE(read.AllCategories);
    EXPECT_EQ(read.InNoCategory, 2);
    // What the open book counts in a category that the file does not reach covers some of them.
    Book open;
    open.AddEntry(11, {{"n", "u"}});
    EXPECT_EQ(ReadBook(open, Bytes(before + Headers(1, 11))).InNoCategory, 1);
}

TEST(BookFileTest, ReadingLeavesTheOpenBookAsItIs) {
    const Book open = BookOf("#Regi\r\nnev\r\nhttp://regi.hu\r\n" + Headers(2, 12));
    const BookFromFile read = ReadBook(open, Bytes("#Uj\r\na\r\nb\r\n" + Headers(2, 12)));
    EXPECT_EQ(SaveBook(read.TheBook), "#Uj\r\na\r\nb\r\n" + Headers(2, 12));
    EXPECT_EQ(SaveBook(open), "#Regi\r\nnev\r\nhttp://regi.hu\r\n" + Headers(2, 12));
    EXPECT_TRUE(read.AllCategories);
    EXPECT_EQ(read.InNoCategory, 0);
    EXPECT_EQ(read.Doubtful.Count, 0);
}

TEST(BookFileTest, OnlyACarriageReturnBeforeALineFeedEndsALine) {
    const Book book = BookOf("#1\r\na\rb\r\r\n\rc\n" + Headers(2, 11) + "#12\r");
    EXPECT_EQ(book.SiteNames(1), "a\rb\r");
    EXPECT_EQ(book.SiteURLs(1), "\rc");
    EXPECT_EQ(book.CategoryNames(12), "12\r");
}

TEST(BookFileTest, LoadingClearsTheCheckMarks) {
    Book book = BookOf("#1\r\nn\r\nu\r\n" + Headers(2, 12));
    book.Marks.SetCheckedCount(1);
    book.Marks.Save(4, {1, 2});
    EXPECT_TRUE(LoadBook(book, Bytes(Headers(1, 12))));
    EXPECT_EQ(book.Marks, CheckMarks());
}

TEST(BookFileTest, TheLargestBookIsSavedAndOpenedAgain) {
    Book book;
    book.AddEntry(1, std::vector<NewEntry>(kMostEntries, {"n", "u"}));
    const std::string file = SaveBook(book);
    EXPECT_EQ(std::count(file.begin(), file.end(), '\n'), 12 + 2 * kMostEntries);
    EXPECT_EQ(SaveBook(BookOf(file)), file);
    EXPECT_EQ(FaultLine(file + "m"), 0);
    EXPECT_EQ(FaultLine(file + "m\r\nv\r\n"), 0);
}

class BookFileOnDiskTest : public ::testing::Test {
  protected:
    int FilesThere() const {
        return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder), {}));
    }
    const testing::TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
};

TEST_F(BookFileOnDiskTest, ReplacesTheOldFileInOneStep) {
    const auto path = folder / "konyv.lnd";
    WriteFileBytes(path, "regi");
    SaveBook(Book(), path);
    Book loaded;
    EXPECT_TRUE(LoadBook(loaded, path));
    EXPECT_EQ(testing::ContentOf(path), SaveBook(Book()));
    EXPECT_EQ(FilesThere(), 1);
}

TEST_F(BookFileOnDiskTest, AFailureLeavesNoTraceAndNamesThePath) {
    const auto path = folder / "nincs" / "konyv.lnd";
    try {
        SaveBook(Book(), path);
        FAIL();
    } catch (const FileFault& fault) {
        EXPECT_EQ(fault.Path(), path.wstring());
        EXPECT_FALSE(fault.Meaning().empty());
    }
    EXPECT_EQ(FilesThere(), 0);
    Book book;
    EXPECT_THROW(LoadBook(book, path), FileFault);
}

TEST(SampleBookTest, EveryCategoryOfTheSampleHoldsEntriesAndSavesTheSame) {
    const std::vector<char> bytes = ReadFileBytes(LINDREL_SOURCE_DIR "/samples/minta.lnd");
    Book book;
    EXPECT_TRUE(LoadBook(book, bytes));
    for (int k = 1; k <= kCategories; ++k) EXPECT_GE(book.CategoryCounts(k), 5) << k;
    EXPECT_EQ(SaveBook(book), std::string(bytes.begin(), bytes.end()));
    EXPECT_EQ(HowItWillBeRead(book), Rereading::Same);
}

}  // namespace
}  // namespace lindrel
