#include "book/BookHeaders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "tests/native/support/AnyText.h"

namespace lindrel {
namespace {

using Lines = std::vector<std::string>;

// Twelve headers "#1" to "#12" with further lines after some of them.
Lines BookLines(const std::vector<std::pair<int, Lines>>& after) {
    Lines lines;
    for (int k = 1; k <= kCategories; ++k) {
        lines.push_back("#" + std::to_string(k));
        for (const auto& [category, entries] : after)
            if (category == k) lines.insert(lines.end(), entries.begin(), entries.end());
    }
    return lines;
}

ChosenHeaders Chosen(const Lines& lines) {
    return ChooseHeaders({lines.begin(), lines.end()});
}

// The texts of the chosen headers, a bar, and the lines in doubt.
std::string Choice(const Lines& lines) {
    const ChosenHeaders chosen = Chosen(lines);
    if (chosen.Choice == HeaderChoice::None) return "none";
    if (chosen.Choice == HeaderChoice::Several) return "several";
    std::string text;
    for (const std::size_t line : chosen.Lines) text += lines[line];
    text += "|";
    for (const std::size_t line : chosen.Doubtful) text += lines[line];
    return text;
}

constexpr char kOneToTwelve[] = "#1#2#3#4#5#6#7#8#9#10#11#12|";

TEST(BookHeadersTest, AnAddressIsKnownByItsScheme) {
    for (const char* const text : {"http://a.hu", "x file:///c", "MailTo:a@b.hu", "WWW.a.hu", "://"})
        EXPECT_TRUE(LooksLikeAddress(text)) << text;
    for (const char* const text : {"", "index.hu", "ww.a", "a www.b.hu", "x mailto:", "C:\\lap.htm", "a:/b"})
        EXPECT_FALSE(LooksLikeAddress(text)) << text;
}

TEST(BookHeadersTest, AnAddressWithoutASchemeIsAtLeastPossible) {
    for (const char* const text : {"", "index.hu", "C:\\Az oldal.htm", "a@b.hu", "lap/ketto", "http://a"})
        EXPECT_TRUE(MayBeAddress(text)) << text;
    for (const char* const text : {"Vissza", "dr. Nagy", "#fej", "1"})
        EXPECT_FALSE(MayBeAddress(text)) << text;
}

TEST(BookHeadersTest, ANameWithThePrefixIsKnownByItsAddress) {
    EXPECT_EQ(Choice(BookLines({{1, {"#a", "http://a.hu"}}, {12, {"b", "x", "#c", "www.c.hu"}}})),
              kOneToTwelve + std::string("#a#c"));
    EXPECT_EQ(Choice(BookLines({{3, {"#a", "#http://a.hu"}}})), kOneToTwelve + std::string("#a"));
    EXPECT_EQ(Choice(BookLines({{3, {"#a", "index.hu", "b", "http://b.hu"}}})), "none");
}

TEST(BookHeadersTest, AnAddressWithThePrefixIsKnownByItsName) {
    EXPECT_EQ(Choice(BookLines({{1, {"Vissza", "#fej", "b", "http://b.hu"}}, {12, {"Lent", "#lab"}}})),
              kOneToTwelve);
    EXPECT_EQ(Choice(BookLines({{1, {"http://a.hu", "#fej"}}})), "none");
}

// The name "#a" with an address that does not look like one reads as a category, and the next category as an
// address. Nothing but its name tells.
TEST(BookHeadersTest, AnAddressWithThePrefixIsDoubtfulIfItsNameMayBeAnAddress) {
    EXPECT_EQ(Choice(BookLines({{3, {"#a", "index.hu"}}})), "#1#2#3#a#5#6#7#8#9#10#11#12|#4");
}

TEST(BookHeadersTest, HalfPairsAndLinesBeforeTheFirstHeaderAreNoChoice) {
    Lines lines = BookLines({{12, {"#a", "http://a.hu"}}});
    EXPECT_EQ(Choice(lines), kOneToTwelve + std::string("#a"));
    lines.push_back("b");
    EXPECT_EQ(Choice(lines), "none");
    lines.pop_back();
    lines.insert(lines.begin(), {"b", "http://b.hu"});
    EXPECT_EQ(Choice(lines), "none");
    lines = BookLines({{5, {"Vissza", "#fej", "Le", "#lab"}}});
    EXPECT_EQ(Choice(lines), kOneToTwelve);
    lines.front() = "1";
    EXPECT_EQ(Choice(lines), "none");
    EXPECT_EQ(Choice({}), "none");
    EXPECT_EQ(Choice({"#1"}), "none");
}

// Any of the pairs but the first, which begins with the first header, may be an entry.
TEST(BookHeadersTest, SeveralReadingsAreNoChoice) {
    Lines lines = {"#a", "#http://a.hu"};
    while (lines.size() < 14) lines.insert(lines.end(), {"#a", "#http://a.hu"});
    EXPECT_EQ(Choice(lines), "several");
    std::fill(lines.begin() + 4, lines.end(), "#b");
    EXPECT_EQ(Choice(lines), "#a#http://a.hu#b#b#b#b#b#b#b#b#b#b|#a");
}

// As many lines as a file can have, all with the prefix. The first file has more choices than any counter can
// hold.
TEST(BookHeadersTest, AHostileFileIsDecidedInOnePass) {
    Lines lines;
    while (lines.size() < 65546) lines.insert(lines.end(), {"#a", "#http://a.hu"});
    EXPECT_EQ(Choice(lines), "several");
    EXPECT_EQ(Choice(Lines(65546, "#a")), "none");
    EXPECT_EQ(Choice(Lines(65546, "#" + std::string(500, 'a'))), "none");
}

// The same by trying out every choice of twelve lines with the prefix.

bool IsEntry(const std::string& name, const std::string& address) {
    const auto looks = [](const std::string& text) {
        return text.find("://") != std::string::npos || text.rfind("mailto:", 0) == 0 ||
               text.rfind("www.", 0) == 0;
    };
    return (name[0] != '#' || looks(address)) && (address[0] != '#' || !looks(name));
}

bool IsChoice(const Lines& lines, const std::vector<std::size_t>& headers) {
    if (headers.front() != 0) return false;
    for (std::size_t k = 0; k < headers.size(); ++k) {
        const std::size_t end = k + 1 < headers.size() ? headers[k + 1] : lines.size();
        if ((end - headers[k]) % 2 == 0) return false;
        for (std::size_t name = headers[k] + 1; name < end; name += 2)
            if (!IsEntry(lines[name], lines[name + 1])) return false;
    }
    return true;
}

std::vector<std::vector<std::size_t>> AllChoices(const Lines& lines) {
    std::vector<std::size_t> candidates;
    for (std::size_t line = 0; line < lines.size(); ++line)
        if (lines[line][0] == '#') candidates.push_back(line);
    std::vector<std::vector<std::size_t>> choices;
    std::vector<bool> taken(candidates.size(), false);
    std::fill_n(taken.begin(), kCategories, true);
    do {
        std::vector<std::size_t> headers;
        for (std::size_t i = 0; i < candidates.size(); ++i)
            if (taken[i]) headers.push_back(candidates[i]);
        if (IsChoice(lines, headers)) choices.push_back(headers);
    } while (std::prev_permutation(taken.begin(), taken.end()));
    return choices;
}

// Mostly books with some names and addresses that have the prefix; in some a line is missing or doubled.
Lines RandomLines(testing::Dice& dice) {
    const Lines names = {"a", "#a", "#", "http://n", "#www.", "", "www.n.hu"};
    const Lines addresses = {"http://u", "www.u", "mailto:u", "u.hu", "#u", "#http://u", ""};
    Lines lines;
    std::size_t spare = dice.Roll(5);
    for (int k = 1; k <= kCategories; ++k) {
        lines.push_back("#" + std::to_string(k));
        for (std::size_t left = dice.Roll(2) + dice.Roll(2); left > 0; --left) {
            const std::string name = names[dice.Roll(names.size())];
            const std::string address = addresses[dice.Roll(addresses.size())];
            const std::size_t prefixes = (name[0] == '#' ? 1u : 0u) + (address[0] == '#' ? 1u : 0u);
            if (prefixes > spare) continue;
            spare -= prefixes;
            lines.insert(lines.end(), {name, address});
        }
    }
    const auto at = lines.begin() + static_cast<std::ptrdiff_t>(dice.Roll(lines.size()));
    const std::size_t accident = dice.Roll(8);
    if (accident == 0) lines.erase(at);
    if (accident == 1) lines.insert(at, std::string(*at));
    return lines;
}

TEST(BookHeadersTest, TheCountAgreesWithTryingOutEveryChoice) {
    testing::Dice dice;
    int seen[3] = {};
    for (int round = 0; round < 1500; ++round) {
        const Lines lines = RandomLines(dice);
        if (std::count_if(lines.begin(), lines.end(), HasHeaderPrefix) < kCategories) continue;
        const auto choices = AllChoices(lines);
        const ChosenHeaders chosen = Chosen(lines);
        const HeaderChoice expected = choices.empty()       ? HeaderChoice::None
                                      : choices.size() == 1 ? HeaderChoice::One
                                                            : HeaderChoice::Several;
        ASSERT_EQ(chosen.Choice, expected) << "round " << round;
        ++seen[static_cast<int>(expected)];
        if (expected == HeaderChoice::One) {
            const std::vector<std::size_t> headers(chosen.Lines.begin(), chosen.Lines.end());
            ASSERT_EQ(headers, choices.front()) << "round " << round;
        }
    }
    for (const int times : seen) EXPECT_GT(times, 50);
}

}  // namespace
}  // namespace lindrel
