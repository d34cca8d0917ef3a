#include "book/BookFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "book/Book.h"
#include "book/CheckMarks.h"
#include "book/PerCategory.h"
#include "faults/Faults.h"
#include "files/Files.h"
#include "tests/native/support/BookFromText.h"

namespace lindrel {
namespace {

using testing::Read;

std::string Headers(int from, int to) {
    std::string text;
    for (int k = from; k <= to; ++k) text += "#K" + std::to_string(k) + "\r\n";
    return text;
}

const std::string kOldFile = "#Regi\r\nnev\r\nhttp://regi.hu\r\n" + Headers(2, 12);

Book BookOf(const std::string& text) {
    const BookFromFile read = Read(text);
    EXPECT_TRUE(read.AllCategories);
    EXPECT_EQ(read.InNoCategory, 0);
    EXPECT_EQ(read.Doubtful.Count, 0);
    return read.TheBook;
}

// The line of the fault that reading a text throws. Checks that the open book does not change.
long long FaultLine(const std::string& text) {
    const Book open = BookOf(kOldFile);
    try {
        Read(text, open);
    } catch (const MalformedBook& malformed) {
        EXPECT_FALSE(malformed.Message().empty());
        EXPECT_EQ(SaveBook(open), kOldFile);
        return malformed.Line();
    }
    ADD_FAILURE() << "no fault";
    return -1;
}

TEST(BookFileTest, TwelveHeadersAreAnEmptyBookAndLeaveTheElements) {
    const Book book = Read(Headers(1, 12), BookOf("#A\r\nn\r\nu\r\n" + Headers(2, 12))).TheBook;
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
    EXPECT_EQ(book.Entry(2), (AddressEntry{"", ""}));  // an empty line is a value
    EXPECT_EQ(book.CategoryStarts(3), 3);
    EXPECT_EQ(book.SiteNames(3), "A");
}

TEST(BookFileTest, LineFeedsAloneAndAMissingLastBreakAreRead) {
    std::string file = "#1\nnev\nhttp://a.hu\n";
    for (int k = 2; k <= 12; ++k) file += "#" + std::to_string(k) + "\n";
    file.pop_back();
    const Book book = BookOf(file);
    EXPECT_EQ(book.Entry(1), (AddressEntry{"nev", "http://a.hu"}));
    EXPECT_EQ(book.CategoryNames(12), "12");
}

TEST(BookFileTest, OnlyACarriageReturnBeforeALineFeedEndsALine) {
    const Book book = BookOf("#1\r\na\rb\r\r\n\rc\n" + Headers(2, 11) + "#12\r");
    EXPECT_EQ(book.Entry(1), (AddressEntry{"a\rb\r", "\rc"}));
    EXPECT_EQ(book.CategoryNames(12), "12\r");
}

TEST(BookFileTest, AHeaderBetweenNameAndAddressShiftsThePair) {
    const Book book = BookOf("#1\r\nnev\r\n#2\r\ncim\r\nnev2\r\ncim2\r\n" + Headers(3, 12));
    EXPECT_EQ(book.Entry(1), (AddressEntry{"nev", "cim"}));
    EXPECT_EQ(book.SiteNames(2), "nev2");
    EXPECT_EQ(book.CategoryCounts(1), 1);
    EXPECT_EQ(book.CategoryCounts(2), 1);
}

TEST(BookFileTest, TenLinesAreTooFewAndElevenAreEnough) {
    EXPECT_EQ(FaultLine(Headers(1, 10)), 0);
    EXPECT_EQ(FaultLine(""), 0);
    const BookFromFile read = Read(Headers(1, 11));
    EXPECT_FALSE(read.AllCategories);
    EXPECT_EQ(read.TheBook.CategoryNames(11), "K11");
    EXPECT_EQ(read.TheBook.CategoryNames(12), "Project12");
}

TEST(BookFileTest, MoreEntryLinesThanEstimatedAreAFault) {
    EXPECT_EQ(FaultLine(Headers(1, 12) + "n\r\n"), 13);                      // 0.5 rounds to 0
    EXPECT_EQ(FaultLine(Headers(1, 12) + "a\r\nb\r\nc\r\nd\r\ne\r\n"), 17);  // 2.5 rounds to 2
    const Book book = BookOf(Headers(1, 12) + "a\r\nb\r\nc\r\n");            // 1.5 rounds to 2
    EXPECT_EQ(book.CategoryCounts(12), 2);
    EXPECT_EQ(book.SiteURLs(2), "");
}

TEST(BookFileTest, CategoriesNeverReachedKeepNamesAndCounts) {
    const Book open = BookOf(Headers(1, 10) + "#R11\r\na\r\nb\r\nc\r\nd\r\n#R12\r\n");
    const BookFromFile read = Read(Headers(1, 11) + "n\r\nu\r\nm\r\nv\r\n", open);
    EXPECT_FALSE(read.AllCategories);
    EXPECT_EQ(read.TheBook.CategoryNames(11), "K11");
    EXPECT_EQ(read.TheBook.CategoryNames(12), "R12");
    EXPECT_EQ(read.TheBook.CategoryCounts(11), 2);  // of the old book
    EXPECT_EQ(read.TheBook.CategoryCounts(12), 2);  // what followed the last header
    EXPECT_EQ(read.TheBook.CategoryStarts(12), 3);
    EXPECT_THROW(SaveBook(read.TheBook), RangeFault);
}

TEST(BookFileTest, LinesBeforeTheFirstHeaderBelongToNoCategory) {
    const BookFromFile read = Read("x\r\ny\r\n#K1\r\nn\r\nu\r\n" + Headers(2, 12));
    EXPECT_TRUE(read.AllCategories);
    EXPECT_EQ(read.InNoCategory, 1);
    EXPECT_EQ(read.TheBook.UpperBound(), 2);
    EXPECT_EQ(read.TheBook.SiteNames(1), "x");
    EXPECT_EQ(read.TheBook.EntryCount(), 1);
    EXPECT_EQ(SaveBook(read.TheBook), "#K1\r\nx\r\ny\r\n" + Headers(2, 12));  // all that is counted
}

TEST(BookFileTest, TooFewHeadersAndLinesBeforeThemAreBothReported) {
    const std::string file = "x\r\ny\r\nz\r\nw\r\n" + Headers(1, 11);
    EXPECT_FALSE(Read(file).AllCategories);
    EXPECT_EQ(Read(file).InNoCategory, 2);
    // What the open book counts in a category that the file does not reach covers some of them.
    Book open;
    open.AddEntry(11, {{"n", "u"}});
    EXPECT_EQ(Read(file, open).InNoCategory, 1);
}

TEST(BookFileTest, ReadingLeavesTheOpenBookAsItIs) {
    Book open = BookOf(kOldFile);
    open.Marks.SetCheckedCount(1);
    open.Marks.Save(4, {1, 2});
    const std::string file = "#Uj\r\na\r\nb\r\n" + Headers(2, 12);
    const Book book = Read(file, open).TheBook;
    EXPECT_EQ(SaveBook(book), file);
    EXPECT_EQ(book.Marks, CheckMarks());
    EXPECT_EQ(SaveBook(open), kOldFile);
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

TEST(SampleBookTest, EveryCategoryOfTheSampleHoldsEntriesAndSavesTheSame) {
    const std::vector<char> bytes = ReadFileBytes(LINDREL_SOURCE_DIR "/samples/minta.lnd");
    const std::string file(bytes.begin(), bytes.end());
    const Book book = BookOf(file);
    for (int k = 1; k <= kCategories; ++k) EXPECT_GE(book.CategoryCounts(k), 5) << k;
    EXPECT_EQ(SaveBook(book), file);
    EXPECT_EQ(HowItWillBeRead(book), Rereading::Same);
}

}  // namespace
}  // namespace lindrel
