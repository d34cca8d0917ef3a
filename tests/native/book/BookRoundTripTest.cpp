// What is read back is what was saved: random books with "#" wherever it can stand.

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "tests/support/BookAndModel.h"
#include "tests/support/Times.h"
#include "text/BookText.h"

namespace lindrel::testing {
namespace {

using Texts = std::vector<std::string>;

class BookRoundTripTest : public ::testing::Test {
  protected:
    std::size_t Roll(std::size_t sides) {
        return std::uniform_int_distribution<std::size_t>(0, sides - 1)(dice);
    }
    const std::string& OneOf(const Texts& texts) { return texts[Roll(texts.size())]; }

    // A book of a few entries in every other category.
    BookAndModel RandomBook(const Texts& names, const Texts& addresses) {
        BookAndModel books;
        for (int k = 1; k <= 12; ++k) {
            if (Roll(3) == 0) books.Rename(k, OneOf(names));
            std::vector<PlainBook::Row> rows(Roll(2) * Roll(4));
            for (PlainBook::Row& row : rows) row = {OneOf(names), OneOf(addresses)};
            books.Add(k, rows);
        }
        return books;
    }

    // Compares everything with the model.
    Reopened Reopen(const BookAndModel& books) {
        const Reopened reopened = books.SaveAndReopen().value();
        ++seen[static_cast<int>(reopened.Outcome)];
        return reopened;
    }

    std::mt19937 dice{20261121};
    int seen[3] = {};
};

const Texts kAnyNames = {"a",  "b c", "index.hu", "http://n.hu", "www.n.hu", "",
                         "#a", "#",   "##",       "#www.n.hu",   "#http://", "#b c"};
const Texts kAddresses = {"http://u.hu", "www.u.hu", "mailto:u@u.hu", "index.hu", "C:\\a b.htm", "",
                          "#u",          "#",        "#http://u.hu"};

TEST_F(BookRoundTripTest, ManyBooksAreNeverReadAmissInSilence) {
    const int rounds = Times(100000, 20000);
    for (int round = 0; round < rounds; ++round) {
        const BookAndModel books = RandomBook(kAnyNames, kAddresses);
        ASSERT_FALSE(Reopen(books).AmissInSilence) << books.Plain.File();
    }
    for (const int times : seen) EXPECT_GT(times, rounds / 100);
}

// Names that are no addresses, and addresses as they are: such books are read back whatever begins with "#".
TEST_F(BookRoundTripTest, OrdinaryBooksComeBack) {
    const Texts names = {"a", "b c", "C. D.", "#a", "#", "#b c"};
    const Texts addresses = {"http://u.hu", "www.u.hu", "mailto:u@u.hu", "HTTPS://U.HU/#u"};
    for (int round = 0; round < 10000; ++round) {
        const BookAndModel books = RandomBook(names, addresses);
        ASSERT_NE(Reopen(books).Outcome, Rereading::Lost) << books.Plain.File();
    }
}

// Addresses within a page, as imported pages have them, after names that are no addresses.
TEST_F(BookRoundTripTest, AddressesWithThePrefixAloneComeBackInSilence) {
    const Texts names = {"a", "b c", "C. D.", "x"};
    const Texts addresses = {"http://u.hu", "www.u.hu", "#u", "#", "#http://u.hu"};
    for (int round = 0; round < 10000; ++round) {
        const BookAndModel books = RandomBook(names, addresses);
        ASSERT_EQ(Reopen(books).Outcome, Rereading::Same) << books.Plain.File();
    }
}

// Only one kind of book is read amiss in silence: a name with the prefix, and an address that could as well
// be a name. The user is warned after saving.
TEST_F(BookRoundTripTest, AnAddressLikeANameIsWarnedOf) {
    BookAndModel books;
    books.Add(3, {{"#a", "localhost"}});
    EXPECT_TRUE(Reopen(books).AmissInSilence);
    EXPECT_EQ(HowItWillBeRead(books.Real), Rereading::Lost);
    for (int round = 0; round < 10000; ++round)
        Reopen(RandomBook(kAnyNames, {"localhost", "#a", "http://u.hu"}));
}

// Whatever can be typed into the dialogs, which take texts as they are: the name must not be blank, the
// address must have three characters at least, and a book must be able to hold both.
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
        BookAndModel books;
        for (int k = 1; k <= 12; ++k) {
            books.Rename(k, Taken(0));
            if (Roll(2) != 0) continue;
            const std::string name = Taken(1);
            books.Add(k, {{name, Taken(3)}});
        }
        const Reopened reopened = Reopen(books);
        const HeaderLookalikes found = FindHeaderLookalikes(books.Real);
        ASSERT_TRUE(!reopened.AmissInSilence || found.Names > 0) << books.Plain.File();
        const bool ordinary = found.Names + found.Addresses == 0;
        ASSERT_TRUE(!ordinary || reopened.Outcome == Rereading::Same) << books.Plain.File();
    }
}

}  // namespace
}  // namespace lindrel::testing
