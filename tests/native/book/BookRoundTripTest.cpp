// What is read back is what was saved: random books with "#" wherever it can stand.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "book/Book.h"
#include "book/BookFile.h"
#include "book/BookHeaders.h"
#include "book/PerCategory.h"
#include "tests/support/Times.h"
#include "text/BookText.h"

namespace lindrel {
namespace {

using Texts = std::vector<std::string>;

std::optional<BookFromFile> Reread(const std::string& file) {
    try {
        return ReadBook(Book(), std::vector<char>(file.begin(), file.end()));
    } catch (const MalformedBook&) {
        return std::nullopt;
    }
}

bool SameBook(const Book& a, const Book& b) {
    if (a.EntryCount() != b.EntryCount()) return false;
    for (int k = 1; k <= kCategories; ++k)
        if (a.CategoryNames(k) != b.CategoryNames(k) || a.CategoryCounts(k) != b.CategoryCounts(k))
            return false;
    for (int i = 1; i <= a.EntryCount(); ++i)
        if (a.SiteNames(i) != b.SiteNames(i) || a.SiteURLs(i) != b.SiteURLs(i)) return false;
    return true;
}

Texts LinesOfFile(const std::string& file) {
    Texts lines;
    for (std::size_t at = 0; at < file.size();) {
        const std::size_t end = file.find("\r\n", at);
        lines.push_back(file.substr(at, end - at));
        at = end + 2;
    }
    return lines;
}

// The ways, at most two, to read lines from a place on when a number of headers is still to come.
int Ways(const Texts& lines, std::size_t line, int headers) {
    if (line == lines.size()) return headers == 0 ? 1 : 0;
    int ways = 0;
    if (HasHeaderPrefix(lines[line]) && headers > 0) ways += Ways(lines, line + 1, headers - 1);
    if (line + 1 == lines.size() || ways >= 2) return ways;
    const bool name_is_good = !HasHeaderPrefix(lines[line]) || LooksLikeAddress(lines[line + 1]);
    const bool address_is_good = !HasHeaderPrefix(lines[line + 1]) || !LooksLikeAddress(lines[line]);
    return name_is_good && address_is_good ? ways + Ways(lines, line + 2, headers) : ways;
}

bool CanBeRead(const std::string& file) {
    const Texts lines = LinesOfFile(file);
    return std::count_if(lines.begin(), lines.end(), HasHeaderPrefix) == kCategories ||
           Ways(lines, 1, kCategories - 1) == 1;
}

class BookRoundTripTest : public ::testing::Test {
  protected:
    std::size_t Roll(std::size_t sides) {
        return std::uniform_int_distribution<std::size_t>(0, sides - 1)(dice);
    }
    const std::string& OneOf(const Texts& texts) { return texts[Roll(texts.size())]; }

    // A book of a few entries in every other category.
    Book RandomBook(const Texts& names, const Texts& addresses) {
        Book book;
        for (int k = 1; k <= kCategories; ++k) {
            if (Roll(3) == 0) book.SetCategoryName(k, OneOf(names));
            std::vector<NewEntry> entries(Roll(2) * Roll(4));
            for (NewEntry& entry : entries) entry = {OneOf(names), OneOf(addresses)};
            book.AddEntry(k, entries);
        }
        return book;
    }

    // False if the book is read amiss in silence. Checks everything else.
    bool ExpectReadBackOrAsked(const Book& book) {
        const std::string file = SaveBook(book);
        const std::optional<BookFromFile> read = Reread(file);
        EXPECT_EQ(read.has_value(), CanBeRead(file)) << file;
        // Nothing is dropped, whatever it is taken for.
        EXPECT_EQ(read ? SaveBook(read->TheBook) : file, file);
        const Rereading outcome = OutcomeOf(read, book);
        ++seen[static_cast<int>(outcome)];
        return outcome != Rereading::Lost || !read || read->Doubtful.Count > 0;
    }
    // What the user is told after saving is what happens.
    static void ExpectToldTruly(const Book& book) {
        const std::string file = SaveBook(book);
        EXPECT_EQ(HowItWillBeRead(book), OutcomeOf(Reread(file), book)) << file;
    }
    static Rereading OutcomeOf(const std::optional<BookFromFile>& read, const Book& book) {
        if (!read || !SameBook(read->TheBook, book)) return Rereading::Lost;
        return read->Doubtful.Count > 0 ? Rereading::SameIfConfirmed : Rereading::Same;
    }

    std::mt19937 dice{20261121};
    int seen[3] = {};
};

const Texts kAnyNames = {"a",  "b c", "index.hu", "http://n.hu", "www.n.hu", "",
                         "#a", "#",   "##",       "#www.n.hu",   "#http://", "#b c"};
const Texts kAddresses = {"http://u.hu", "www.u.hu", "mailto:u@u.hu", "index.hu", "C:\\a b.htm", "",
                          "#u",          "#",        "#http://u.hu"};

TEST_F(BookRoundTripTest, ManyBooksAreNeverReadAmissInSilence) {
    const int rounds = testing::Times(100000, 20000);
    for (int round = 0; round < rounds; ++round) {
        ASSERT_TRUE(ExpectReadBackOrAsked(RandomBook(kAnyNames, kAddresses))) << "round " << round;
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
    for (const int times : seen) EXPECT_GT(times, rounds / 100);
}

// Names that are no addresses, and addresses as they are: such books are read back whatever begins with "#".
TEST_F(BookRoundTripTest, OrdinaryBooksComeBack) {
    const Texts names = {"a", "b c", "C. D.", "#a", "#", "#b c"};
    const Texts addresses = {"http://u.hu", "www.u.hu", "mailto:u@u.hu", "HTTPS://U.HU/#u"};
    for (int round = 0; round < 10000; ++round) {
        const Book book = RandomBook(names, addresses);
        EXPECT_NE(HowItWillBeRead(book), Rereading::Lost) << SaveBook(book);
        ASSERT_TRUE(ExpectReadBackOrAsked(book)) << "round " << round;
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

// Addresses within a page, which imported pages have, behind names that are no addresses.
TEST_F(BookRoundTripTest, MarkedAddressesAloneComeBackInSilence) {
    const Texts names = {"a", "b c", "C. D.", "x"};
    const Texts addresses = {"http://u.hu", "www.u.hu", "#u", "#", "#http://u.hu"};
    for (int round = 0; round < 10000; ++round) {
        const Book book = RandomBook(names, addresses);
        ASSERT_EQ(HowItWillBeRead(book), Rereading::Same) << SaveBook(book);
    }
}

// An address that nobody could tell from a name, behind a name with "#": the one book that is read amiss in
// silence. The user is warned after saving.
TEST_F(BookRoundTripTest, AnAddressLikeANameIsWarnedOf) {
    Book book;
    book.AddEntry(3, {{"#a", "localhost"}});
    EXPECT_FALSE(ExpectReadBackOrAsked(book));
    EXPECT_EQ(HowItWillBeRead(book), Rereading::Lost);
    for (int round = 0; round < 10000; ++round) {
        const Book any = RandomBook(kAnyNames, {"localhost", "#a", "http://u.hu"});
        ExpectToldTruly(any);
        const bool amiss = !ExpectReadBackOrAsked(any);
        ASSERT_TRUE(!amiss || HowItWillBeRead(any) == Rereading::Lost) << "round " << round;
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

// Whatever can be typed into the dialogs, which take texts as they are: the name must not be blank, the
// address have three characters at least, and both fit into a book.
class BookFromDialogsTest : public BookRoundTripTest {
  protected:
    std::wstring Typed() {
        static constexpr wchar_t kKeys[] = L"ab #.:/@\\www.őűÁ…–\t\x00A0\r\x20AC\x4E2D";
        std::wstring text;
        for (std::size_t length = Roll(9); length > 0; --length) text += kKeys[Roll(std::size(kKeys) - 1)];
        return text;
    }
    // Typed until the dialog takes it.
    std::string Taken(std::size_t shortest) {
        for (;;) {
            const std::wstring text = Typed();
            if (Trim(text).size() >= shortest && !FirstForeignCharacter(text)) return ToBookText(text);
        }
    }
};

TEST_F(BookFromDialogsTest, WhatTheDialogsTakeIsReadBackOrToldOf) {
    for (int round = 0; round < 10000; ++round) {
        Book book;
        for (int k = 1; k <= kCategories; ++k) {
            book.SetCategoryName(k, Taken(0));
            if (Roll(2) == 0) book.AddEntry(k, {{Taken(1), Taken(3)}});
        }
        const bool not_amiss = ExpectReadBackOrAsked(book);
        ExpectToldTruly(book);
        const HeaderLookalikes found = FindHeaderLookalikes(book);
        EXPECT_TRUE(not_amiss || found.Names > 0) << SaveBook(book);
        const bool plain = found.Names + found.Addresses == 0;
        EXPECT_TRUE(!plain || HowItWillBeRead(book) == Rereading::Same) << SaveBook(book);
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

}  // namespace
}  // namespace lindrel
