#include "find/EntrySearch.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "book/Book.h"
#include "book/CheckMarks.h"
#include "book/PerCategory.h"
#include "faults/Faults.h"
#include "find/CheckedHits.h"
#include "find/WebServices.h"
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

using Indices = std::vector<int>;

Indices Found(const Book& book, std::wstring_view what, std::wstring_view ending) {
    Indices indices;
    for (const Hit& hit : FindEntries(book, what, ending).Items) indices.push_back(hit.Index);
    return indices;
}

TEST(EntrySearchTest, FindsNamesInBookOrderWithTheirCategories) {
    const Book book = HungarianBook();
    const std::vector<Hit> expected = {{1, 1, book.Entry(1)}, {3, 4, book.Entry(3)}, {5, 12, book.Entry(5)}};
    EXPECT_EQ(FindEntries(book, L"ű", L"").Items, expected);
    EXPECT_EQ(FindEntries(book, L"Ű", L"").Items, expected);
}

TEST(EntrySearchTest, NamesAreSearchedInEitherCaseButNotWithoutTheirAccents) {
    const Book book = HungarianBook();
    EXPECT_EQ(Found(book, L"műsor", L""), Indices{1});
    EXPECT_EQ(Found(book, L"IDŐJÁRÁS", L""), Indices{2});
    EXPECT_EQ(Found(book, L"TŰRŐ TÜKÖR", L""), Indices{5});
    EXPECT_EQ(Found(book, L"ü", L""), Indices{5});
    EXPECT_EQ(Found(book, L"musor", L""), Indices{});
    EXPECT_EQ(Found(book, L"http", L""), Indices{});             // only in addresses
    EXPECT_EQ(Found(book, L"", L""), (Indices{1, 2, 3, 4, 5}));  // also in an empty name
}

TEST(EntrySearchTest, AnEndingNarrowsTheNames) {
    const Book book = HungarianBook();
    EXPECT_EQ(Found(book, L"", L"hu"), (Indices{1, 3, 4}));
    EXPECT_EQ(Found(book, L"", L"HU"), (Indices{1, 3, 4}));
    EXPECT_EQ(Found(book, L"", L"com"), Indices{2});
    EXPECT_EQ(Found(book, L"", L"gov"), Indices{5});
    EXPECT_EQ(Found(book, L"", L"net"), Indices{});
    EXPECT_EQ(Found(book, L"ű", L"hu"), (Indices{1, 3}));
    EXPECT_EQ(Found(book, L"Ő", L"com"), Indices{2});
}

TEST(EntrySearchTest, WhatNoBookCanHoldFindsNothingNotEvenQuestionMarks) {
    Book book;
    Add(book, 1, {{L"Mi ez?", L"http://a.?"}});
    EXPECT_EQ(Found(book, L"?", L"?"), Indices{1});
    EXPECT_EQ(Found(book, L"ж", L""), Indices{});
    EXPECT_EQ(Found(book, L"", L"ж"), Indices{});
}

TEST(EntrySearchTest, EmptyBooksHaveNoHits) {
    Book book;
    EXPECT_EQ(Found(book, L"", L""), Indices{});
    // Deleting the last entry leaves a blank element, which is not an entry; a reset leaves them all.
    Add(book, 3, {{L"Egy", L"http://egy.hu"}});
    book.DeleteEntry(3, 1, 1);
    EXPECT_EQ(Found(book, L"", L""), Indices{});
    Add(book, 3, {{L"Egy", L"http://egy.hu"}, {L"Kettő", L"http://ketto.hu"}});
    book.Reset();
    EXPECT_EQ(Found(book, L"", L""), Indices{});
}

TEST(EntrySearchTest, EveryEntryIsFoundInItsCategory) {
    Book book;
    for (int category = 1; category <= kCategories; ++category)
        Add(book, category, {{L"Egy", L"http://egy.hu"}, {L"Kettő", L"http://ketto.hu"}});
    book.DeleteEntry(5, 2, 1);
    const Hits hits = FindEntries(book, L"", L"hu");
    ASSERT_EQ(hits.Items.size(), 23u);
    for (int i = 1; i <= 23; ++i)
        EXPECT_EQ(hits.Items[static_cast<std::size_t>(i - 1)], (Hit{i, book.CategoryOf(i), book.Entry(i)}));
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
    std::int16_t position = 1;
    FindInCategory(book, L"b", 11, position);
    EXPECT_EQ(position, 2);
    FindInCategory(book, L"b", 11, position);
    EXPECT_EQ(position, 0);
    FindInCategory(book, L"a", 12, position);
    EXPECT_EQ(position, 0);
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

void ExpectEnding(bool carried, const char* ending, const std::vector<std::string>& urls) {
    for (const std::string& url : urls)
        EXPECT_EQ(CarriesEnding(url, CaselessNeedle(ending)), carried) << url << " and " << ending;
}

TEST(EntrySearchTest, AnEndingIsLookedForInHostAndPath) {
    ExpectEnding(true, ".hu",
                 {"http://index.hu", "http://index.hu/", "HTTP://INDEX.HU", "http://www.index.hu",
                  "HTTP://WWW.INDEX.HU", "http://www.a.hu", "http://x.hungary.com", "http://x.hu/lap",
                  "http://pelda.com/lap.hu/index.html", "http://www.pelda.com/lap.hu",
                  "http://pelda.human.org", "mailto:valaki@pelda.hu"});
    ExpectEnding(false, ".hu", {"http://index.com", "http://hungary.com", "http://www", ""});
    ExpectEnding(true, ".co.uk", {"http://bolt.co.uk/"});
    ExpectEnding(false, ".co.uk", {"http://bolt.uk/"});
    ExpectEnding(true, ".\xF5", {"http://pelda.\xD5"});
}

TEST(EntrySearchTest, AHostThatStartsLikeTheEndingIsPassedOverAfterHttpWww) {
    ExpectEnding(false, ".hu",
                 {"http://www.hungary.com", "HTTP://WWW.HUNGARY.COM", "http://www.hu", "http://www."});
    ExpectEnding(false, ".com", {"http://www.com.hu"});
    // The search starts at the same offset for any host that starts with "www", but only after "http://".
    ExpectEnding(
        true, ".hu",
        {"http://www.hungary.hu", "http://www2.hu", "https://www.hungary.com", "ftp://www.hungary.com"});
}

TEST(EntrySearchTest, TheFirstFourCharactersAreNotSearched) {
    ExpectEnding(false, ".hu", {"a.hu", "abc.hu", "www.hungary.com"});
    ExpectEnding(true, ".hu", {"abcd.hu", "abcde.hu"});
}

// The positions after successive steps of a search.
Indices Steps(const Book& book, std::wstring_view text, int category, int steps) {
    Indices positions;
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
    EXPECT_EQ(Steps(book, L"ab", 2, 4), (Indices{2, 4, 0, 2}));
    EXPECT_EQ(Steps(book, L"nincs", 2, 2), (Indices{0, 0}));
    EXPECT_EQ(Steps(book, L"ab", 5, 1), Indices{0});
}

TEST(EntrySearchTest, StepsKnowHungarianLetters) {
    Book book;
    Add(book, 7, {{L"ŐSZI VÁSÁR", L""}, {L"tűz", L""}, {L"TŰZ", L""}});
    EXPECT_EQ(Steps(book, L"őszi vásár", 7, 2), (Indices{1, 0}));
    EXPECT_EQ(Steps(book, L"Tűz", 7, 3), (Indices{2, 3, 0}));
    EXPECT_EQ(Steps(book, L"жт", 7, 1), Indices{0});
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
    EXPECT_EQ(Found(book, L"űr", L"hu"), Indices{kMostEntries});
    EXPECT_EQ(Steps(book, L"űr", 1, 2), (Indices{kMostEntries, 0}));
}

class CheckedHitsTest : public ::testing::Test {
  protected:
    // Indices 1 to 9, some of them checked.
    CheckedHitsTest() {
        for (const int category : {2, 5, 12}) book.AddEntry(category, {{"a", "u"}, {"b", "u"}, {"c", "u"}});
        book.Marks.Save(1, {4, 5});
        book.Marks.Save(5, {1, 2, 3});
        book.Marks.SetCheckedCount(3);
    }
    Book book;
    CheckMarks expected;
};

TEST_F(CheckedHitsTest, ChecksExactlyTheEntriesInTheirCategories) {
    CheckOnly(book, {1, 3, 5}, 2);
    expected.Save(2, {1, 3});
    expected.Save(5, {2});
    expected.SetCheckedCount(2);
    EXPECT_EQ(book.Marks, expected);
}

TEST_F(CheckedHitsTest, TheShownCategoryMayHaveNoneOfThem) {
    CheckOnly(book, {9}, 5);
    expected.Save(12, {3});
    EXPECT_EQ(book.Marks, expected);
}

TEST_F(CheckedHitsTest, NoneClearsEveryCheckMark) {
    CheckOnly(book, {}, 2);
    EXPECT_EQ(book.Marks, expected);
}

TEST_F(CheckedHitsTest, ABadCategoryIsAFaultThatChangesNothing) {
    expected = book.Marks;
    EXPECT_THROW(CheckOnly(book, {1}, 13), RangeFault);
    EXPECT_EQ(book.Marks, expected);
}

TEST(WebServicesTest, SixChoicesTheFirstEmpty) {
    std::vector<std::wstring_view> names;
    for (const WebService& service : kWebServices) names.push_back(service.Name);
    EXPECT_EQ(names, (std::vector<std::wstring_view>{L"", L"AltaVista", L"Lycos", L"Excite", L"Yahoo",
                                                     L"Altavizsla - hu!"}));
}

TEST(WebServicesTest, TheTextFollowsThePrefixAsTyped) {
    EXPECT_EQ(ServiceAddress(3, L"két szó"),
              L"http://search.excite.com/search.gw?searchType=Concept&search=két szó");
    EXPECT_EQ(ServiceAddress(4, L"ŰR & 100% +?#"), L"https://search.yahoo.com/search?p=ŰR & 100% +?#");
}

TEST(WebServicesTest, EveryServiceHasAWebAddressOfItsOwn) {
    std::set<std::wstring> prefixes;
    for (int service = 1; service <= 5; ++service) {
        const std::wstring prefix = ServiceAddress(service, L"");
        EXPECT_TRUE(prefix.starts_with(service == 3 ? L"http://" : L"https://")) << service;
        EXPECT_TRUE(prefix.ends_with(L'=')) << service;
        EXPECT_TRUE(prefixes.insert(prefix).second) << service;
    }
    for (const int service : {-1, 0, 6}) EXPECT_THROW(ServiceAddress(service, L"x"), RangeFault);
}

}  // namespace
}  // namespace lindrel
