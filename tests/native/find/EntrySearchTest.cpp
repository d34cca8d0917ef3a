#include "find/EntrySearch.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "book/Book.h"
#include "book/PerCategory.h"
#include "tests/native/support/BookFromText.h"
#include "text/BookText.h"

namespace lindrel {
namespace {

// Names and addresses as wide text, which is easier to read here than book text.
using Row = std::pair<std::wstring, std::wstring>;

void Add(Book& book, int category, const std::vector<Row>& rows) {
    std::vector<NewEntry> entries;
    for (const auto& [name, url] : rows) entries.push_back({ToBookText(name), ToBookText(url)});
    book.AddEntry(category, entries);
}

Book HungarianBook() {
    Book book;
    Add(book, 1, {{L"MŰSOR", L"http://musor.hu"}, {L"Időjárás", L"http://www.idojaras.com"}});
    Add(book, 4, {{L"űrhajó", L"http://www.URHAJO.HU/Musor"}});
    Add(book, 12, {{L"", L"http://ures.hu"}, {L"Árvíztűrő tükörfúrógép", L"ftp://gep.gov"}});
    return book;
}

std::vector<int> IndicesOf(const Hits& hits) {
    std::vector<int> indices;
    for (const Hit& hit : hits.Items) indices.push_back(hit.Index);
    return indices;
}

TEST(EntrySearchTest, FindsNamesInBookOrderWithTheirCategories) {
    const Book book = HungarianBook();
    const std::vector<Hit> expected = {{1, 1, book.Entry(1)}, {3, 4, book.Entry(3)}, {5, 12, book.Entry(5)}};
    EXPECT_EQ(FindEntries(book, L"ű", L"").Items, expected);
}

TEST(EntrySearchTest, LetterCaseIsNotLookedAt) {
    const Book book = HungarianBook();
    EXPECT_EQ(IndicesOf(FindEntries(book, L"ű", L"")), (std::vector<int>{1, 3, 5}));
    EXPECT_EQ(IndicesOf(FindEntries(book, L"Ű", L"")), (std::vector<int>{1, 3, 5}));
    EXPECT_EQ(IndicesOf(FindEntries(book, L"műsor", L"")), std::vector<int>{1});
    EXPECT_EQ(IndicesOf(FindEntries(book, L"IDŐJÁRÁS", L"")), std::vector<int>{2});
    EXPECT_EQ(IndicesOf(FindEntries(book, L"TŰRŐ TÜKÖR", L"")), std::vector<int>{5});
}

TEST(EntrySearchTest, ALetterIsNotItsUnaccentedOne) {
    const Book book = HungarianBook();
    EXPECT_EQ(IndicesOf(FindEntries(book, L"musor", L"")), std::vector<int>{});
    EXPECT_EQ(IndicesOf(FindEntries(book, L"ü", L"")), std::vector<int>{5});
}

TEST(EntrySearchTest, OnlyNamesAreSearched) {
    EXPECT_EQ(IndicesOf(FindEntries(HungarianBook(), L"http", L"")), std::vector<int>{});
}

TEST(EntrySearchTest, AnEmptyTextIsInEveryNameAlsoInAnEmptyOne) {
    EXPECT_EQ(IndicesOf(FindEntries(HungarianBook(), L"", L"")), (std::vector<int>{1, 2, 3, 4, 5}));
}

TEST(EntrySearchTest, AnEndingAloneListsEveryAddressThatCarriesIt) {
    const Book book = HungarianBook();
    EXPECT_EQ(IndicesOf(FindEntries(book, L"", L"hu")), (std::vector<int>{1, 3, 4}));
    EXPECT_EQ(IndicesOf(FindEntries(book, L"", L"HU")), (std::vector<int>{1, 3, 4}));
    EXPECT_EQ(IndicesOf(FindEntries(book, L"", L"com")), std::vector<int>{2});
    EXPECT_EQ(IndicesOf(FindEntries(book, L"", L"gov")), std::vector<int>{5});
    EXPECT_EQ(IndicesOf(FindEntries(book, L"", L"net")), std::vector<int>{});
}

TEST(EntrySearchTest, AnEndingNarrowsTheNames) {
    const Book book = HungarianBook();
    EXPECT_EQ(IndicesOf(FindEntries(book, L"ű", L"hu")), (std::vector<int>{1, 3}));
    EXPECT_EQ(IndicesOf(FindEntries(book, L"Ő", L"com")), std::vector<int>{2});
}

TEST(EntrySearchTest, WhatNoBookCanHoldFindsNothingNotEvenQuestionMarks) {
    Book book;
    Add(book, 1, {{L"Mi ez?", L"http://a.?"}});
    EXPECT_EQ(IndicesOf(FindEntries(book, L"?", L"?")), std::vector<int>{1});
    EXPECT_EQ(IndicesOf(FindEntries(book, L"ж", L"")), std::vector<int>{});
    EXPECT_EQ(IndicesOf(FindEntries(book, L"", L"ж")), std::vector<int>{});
}

TEST(EntrySearchTest, EmptyBooksHaveNoHits) {
    Book book;
    EXPECT_EQ(IndicesOf(FindEntries(book, L"", L"")), std::vector<int>{});
    // Deleting the last entry leaves a blank element, which is not an entry.
    Add(book, 3, {{L"Egy", L"http://egy.hu"}});
    book.DeleteEntry(3, 1, 1);
    EXPECT_EQ(IndicesOf(FindEntries(book, L"", L"")), std::vector<int>{});
    // The same after a reset.
    Add(book, 3, {{L"Egy", L"http://egy.hu"}, {L"Kettő", L"http://ketto.hu"}});
    book.Reset();
    EXPECT_EQ(IndicesOf(FindEntries(book, L"", L"")), std::vector<int>{});
}

TEST(EntrySearchTest, AllIsFoundInPlaceAfterChangesAnywhere) {
    for (int changed = 1; changed <= kCategories; ++changed) {
        Book book;
        for (int category = 1; category <= kCategories; ++category)
            Add(book, category, {{L"Egy", L"http://egy.hu"}, {L"Kettő", L"http://ketto.hu"}});
        Add(book, changed, {{L"Három", L"http://harom.hu"}});
        book.DeleteEntry(changed, 2, 1);
        const Hits hits = FindEntries(book, L"", L"hu");
        ASSERT_EQ(hits.Items.size(), 24u);
        for (int i = 1; i <= 24; ++i)
            EXPECT_EQ(hits.Items[static_cast<std::size_t>(i - 1)],
                      (Hit{i, book.CategoryOf(i), book.Entry(i)}));
        EXPECT_EQ(IndicesOf(FindEntries(book, L"HÁROM", L"")), std::vector<int>{2 * changed});
    }
}

TEST(EntrySearchTest, ABookThatCountsMoreThanItHasIsSearchedToItsEnd) {
    Book book;
    Add(book, 11, {{L"régi", L"http://regi.hu"}, {L"régi", L"http://regi.hu"}});
    std::string file;
    for (int header = 1; header <= 11; ++header) file += "#K\r\n";
    file += "a\r\nhttp://a.hu\r\nb\r\nhttp://b.hu\r\n";
    book = testing::Read(file, book).TheBook;
    ASSERT_GT(book.EntryCount(), book.UpperBound());
    const std::vector<Hit> expected = {{1, 11, book.Entry(1)}, {2, 11, book.Entry(2)}};
    EXPECT_EQ(FindEntries(book, L"", L"").Items, expected);
}

TEST(EntrySearchTest, HitsStayReadableWhenTheirEntriesAreGone) {
    Book book;
    Add(book, 2, {{L"Műsor", L"http://musor.hu"}});
    const Hits hits = FindEntries(book, L"ŰS", L"");
    book.DeleteEntry(2, 1, 1);
    Add(book, 2, {{L"Más", L"http://mas.hu"}});
    ASSERT_EQ(hits.Items.size(), 1u);
    EXPECT_EQ(FromBookText(hits.Items[0].Entry.SiteName), L"Műsor");
    EXPECT_EQ(FromBookText(hits.Items[0].Entry.URL), L"http://musor.hu");
}

struct EndingCase {
    const char* url;
    const char* ending;
    bool carries;
};

constexpr EndingCase kEndingCases[] = {
    // Plain hosts.
    {"http://index.hu", ".hu", true},
    {"http://index.hu/", ".hu", true},
    {"http://index.com", ".hu", false},
    {"HTTP://INDEX.HU", ".hu", true},
    {"http://www.index.hu", ".hu", true},
    {"HTTP://WWW.INDEX.HU", ".hu", true},
    // A host after "www." that begins like the ending.
    {"http://www.hungary.com", ".hu", false},
    {"http://www.hungary.hu", ".hu", true},
    {"HTTP://WWW.HUNGARY.COM", ".hu", false},
    {"http://www.hu", ".hu", false},
    {"http://www.com.hu", ".com", false},
    {"http://www.a.hu", ".hu", true},
    // The search starts at the same place for any host that begins with "www".
    {"http://www2.hu", ".hu", true},
    {"http://www.", ".hu", false},
    {"http://www", ".hu", false},
    // "www." is skipped only after "http://", so the host may match.
    {"https://www.hungary.com", ".hu", true},
    {"ftp://www.hungary.com", ".hu", true},
    {"www.hungary.com", ".hu", false},
    {"http://hungary.com", ".hu", false},
    {"http://x.hungary.com", ".hu", true},
    // One-letter hosts, and endings around the fifth character, where the search starts.
    {"http://x.hu/lap", ".hu", true},
    {"a.hu", ".hu", false},
    {"abc.hu", ".hu", false},
    {"abcd.hu", ".hu", true},
    {"abcde.hu", ".hu", true},
    // An ending in the path or within a longer word.
    {"http://pelda.com/lap.hu/index.html", ".hu", true},
    {"http://www.pelda.com/lap.hu", ".hu", true},
    {"http://pelda.human.org", ".hu", true},
    {"mailto:valaki@pelda.hu", ".hu", true},
    // Endings of several parts or with accented letters.
    {"http://bolt.co.uk/", ".co.uk", true},
    {"http://bolt.uk/", ".co.uk", false},
    {"http://pelda.\xD5", ".\xF5", true},
    {"", ".hu", false},
};

TEST(EntrySearchTest, TheEndingRule) {
    for (const EndingCase& tried : kEndingCases)
        EXPECT_EQ(CarriesEnding(tried.url, CaselessNeedle(tried.ending)), tried.carries)
            << tried.url << " and " << tried.ending;
}

// The positions after successive steps of a search.
std::vector<int> Steps(const Book& book, std::wstring_view text, int category, int steps) {
    std::vector<int> positions;
    std::int16_t position = 0;
    for (int step = 0; step < steps; ++step) {
        FindInCategory(book, text, category, position);
        positions.push_back(position);
    }
    return positions;
}

TEST(EntrySearchTest, StepsWalkThroughTheCategoryAndStartAgain) {
    Book book;
    Add(book, 1, {{L"ab", L""}});
    Add(book, 2, {{L"első", L"http://ab.hu"}, {L"kABát", L""}, {L"harmadik", L""}, {L"AB", L""}});
    Add(book, 3, {{L"ab", L""}});
    EXPECT_EQ(Steps(book, L"ab", 2, 4), (std::vector<int>{2, 4, 0, 2}));
    EXPECT_EQ(Steps(book, L"nincs", 2, 2), (std::vector<int>{0, 0}));
    EXPECT_EQ(Steps(book, L"ab", 5, 1), std::vector<int>{0});
}

TEST(EntrySearchTest, StepsKnowHungarianLetters) {
    Book book;
    Add(book, 7, {{L"ŐSZI VÁSÁR", L""}, {L"tűz", L""}, {L"TŰZ", L""}});
    EXPECT_EQ(Steps(book, L"őszi vásár", 7, 2), (std::vector<int>{1, 0}));
    EXPECT_EQ(Steps(book, L"Tűz", 7, 3), (std::vector<int>{2, 3, 0}));
    EXPECT_EQ(Steps(book, L"жт", 7, 1), std::vector<int>{0});
}

TEST(EntrySearchTest, AStepGoesOnFromWhereAnotherCategoryWasLeft) {
    Book book;
    Add(book, 1, {{L"x", L""}, {L"y", L""}, {L"műsor", L""}});
    Add(book, 2, {{L"műsor", L""}, {L"z", L""}, {L"z", L""}, {L"Műsor", L""}});
    Add(book, 3, {{L"műsor", L""}});
    std::int16_t position = 0;
    FindInCategory(book, L"műsor", 1, position);
    EXPECT_EQ(position, 3);
    FindInCategory(book, L"műsor", 2, position);
    EXPECT_EQ(position, 4);
    // The third category ends before that position.
    FindInCategory(book, L"műsor", 3, position);
    EXPECT_EQ(position, 0);
}

TEST(EntrySearchTest, TheLastEntryOfTheLargestBookIsFound) {
    Book book;
    std::vector<NewEntry> entries(kMostEntries - 1, {"x", "http://x.hu"});
    entries.push_back({ToBookText(L"utolsó ŰR"), "http://utolso.hu"});
    book.AddEntry(1, entries);
    EXPECT_EQ(IndicesOf(FindEntries(book, L"űr", L"hu")), std::vector<int>{kMostEntries});
    EXPECT_EQ(Steps(book, L"űr", 1, 2), (std::vector<int>{kMostEntries, 0}));
}

}  // namespace
}  // namespace lindrel
