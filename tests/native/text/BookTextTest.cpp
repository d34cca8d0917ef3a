#include "text/BookText.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/native/support/AnyText.h"

namespace lindrel {
namespace {

// The upper half of the code page as text, with "?" for the five unused bytes.
constexpr std::wstring_view kUpperHalf =
    L"€?‚?„…†‡?‰Š‹ŚŤŽŹ?‘’“”•–—?™š›śťžź"
    L"\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż°±˛ł´µ¶·¸ąş»Ľ˝ľż"
    L"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
    L"ŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙";

TEST(BookTextTest, TheTableIsThatOfTheCodePage) {
    ASSERT_EQ(kUpperHalf.size(), 128U);
    for (int number = 0; number < 256; ++number) {
        const char byte = static_cast<char>(number);
        char32_t expected = static_cast<char32_t>(number);
        if (number >= 128 && kUpperHalf[static_cast<std::size_t>(number - 128)] != L'?')
            expected = static_cast<char32_t>(kUpperHalf[static_cast<std::size_t>(number - 128)]);
        EXPECT_EQ(CharacterOf(byte), expected) << number;
        EXPECT_EQ(BookByte(expected), byte) << number;
    }
}

TEST(BookTextTest, TextGoesThereAndBack) {
    const std::wstring text = L"Árvíztűrő tükörfúrógép – „idézet” 5 €";
    EXPECT_EQ(FromBookText(ToBookText(text)), text);
    EXPECT_EQ(ToBookText(L"őű"), "\xF5\xFB");
    EXPECT_EQ(FirstForeignCharacter(text), std::nullopt);
}

TEST(BookTextTest, ForeignCharactersAreFoundAndBecomeOneQuestionMarkEach) {
    EXPECT_EQ(FirstForeignCharacter(L"aБв"), L"Б");
    EXPECT_EQ(FirstForeignCharacter(L"ő\U0001F600"), L"\U0001F600");
    EXPECT_EQ(ToBookText(L"a\U0001F600b中"), "a?b?");
    EXPECT_EQ(FirstForeignCharacter(L"õ"), L"õ");  // no best fit to ő
    const std::wstring pair = {static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)};
    EXPECT_EQ(FirstForeignCharacter(L"ő" + pair), pair);
    EXPECT_EQ(ToBookText(L"a" + pair + L"b"), "a?b");
}

TEST(BookTextTest, LowerCaseKnowsTheWholeRepertoire) {
    EXPECT_EQ(FromBookText(LowerCase(ToBookText(L"ÁÉÍÓÖŐÚÜŰ ŁĄŞŻĽŔÂĂÄĹĆÇČĘËĚÎĎĐŃŇÔŘŮÝŢŠŚŤŽŹ AZ09"))),
              L"áéíóöőúüű łąşżľŕâăäĺćçčęëěîďđńňôřůýţšśťžź az09");
    EXPECT_EQ(FromBookText(LowerCase(ToBookText(L"×ß÷˙µ€"))), L"×ß÷˙µ€");
}

TEST(BookTextTest, UpperCaseUndoesLowerCase) {
    for (int number = 0; number < 256; ++number) {
        const char byte = static_cast<char>(number);
        EXPECT_EQ(LowerCase(UpperCase(byte)), LowerCase(byte)) << number;
        if (LowerCase(byte) != byte) {
            EXPECT_EQ(UpperCase(LowerCase(byte)), byte) << number;
            EXPECT_EQ(UpperCase(byte), byte) << number;
        }
    }
    EXPECT_EQ(UpperCase('\xFB'), '\xDB');  // ű
    for (const char byte : ToBookText(L"×ß÷˙µ€1_")) EXPECT_EQ(UpperCase(byte), byte);
}

TEST(BookTextTest, ContainmentIgnoresCase) {
    const CaselessNeedle needle(ToBookText(L"űRHAJÓ"));
    EXPECT_TRUE(needle.IsIn(ToBookText(L"Az Űrhajó")));
    EXPECT_EQ(needle.FindIn(ToBookText(L"űrhajó űrhajó"), 1), 7U);
    EXPECT_FALSE(needle.IsIn(ToBookText(L"űrhaj")));
    EXPECT_FALSE(CaselessNeedle("u").IsIn(ToBookText(L"ú")));
    EXPECT_TRUE(CaselessNeedle("").IsIn(""));
    EXPECT_EQ(CaselessNeedle("a").FindIn("a", 2), std::string_view::npos);
    EXPECT_TRUE(ContainsCaseless(L"ez WWW.Őr.hu", L"www.őR"));
    EXPECT_TRUE(ContainsCaseless(L"", L""));
    EXPECT_FALSE(ContainsCaseless(L"", L"a"));
}

// Few different letters make many near misses. "`", "@" and "B" are next to "a" and "A"; \xA1 and \xBD have
// all the bits in which \xA5 and its lower case agree.
std::string AnyLetters(testing::Dice& dice, std::size_t length) {
    constexpr std::string_view kLetters = "aA`b@B\xFB\xDB\xFA\xFC\xA5\xB9\xA1\xBD";
    std::string text;
    while (text.size() < length) text += kLetters[dice.Roll(kLetters.size())];
    return text;
}

// Compares with a search in lower case, from every start, in a text that ends where its memory does, so that
// a sanitizer sees a byte too many.
void ExpectPlainSearch(const std::string& needle, const std::string& text) {
    const CaselessNeedle prepared(needle);
    const std::vector<char> exact(text.begin(), text.end());
    for (std::size_t from = 0; from <= text.size() + 1; ++from)
        ASSERT_EQ(prepared.FindIn({exact.data(), exact.size()}, from),
                  LowerCase(text).find(LowerCase(needle), from))
            << '"' << needle << "\" in \"" << text << "\" from " << from;
}

TEST(BookTextTest, TextsOfEveryLengthAreSearchedForAnythingAndForTheirParts) {
    testing::Dice dice;
    for (std::size_t length = 0; length <= 40; ++length) {
        for (std::size_t needle_length = 0; needle_length <= 10; ++needle_length)
            for (int round = 0; round < 20; ++round)
                ExpectPlainSearch(AnyLetters(dice, needle_length), AnyLetters(dice, length));
        for (std::size_t start = 0; start < length; ++start)
            for (std::size_t part = 1; part <= length - start; ++part) {
                const std::string text = AnyLetters(dice, length);
                std::string needle = text.substr(start, part);
                for (char& letter : needle)
                    letter = dice.Roll(2) == 0 ? LowerCase(letter) : UpperCase(letter);
                ASSERT_TRUE(CaselessNeedle(needle).IsIn(text)) << '"' << needle << "\" in \"" << text << '"';
                ExpectPlainSearch(needle, text);
            }
    }
}

TEST(BookTextTest, EveryByteIsFoundInBothItsForms) {
    for (int number = 0; number < 256; ++number)
        for (int other = 0; other < 256; ++other) {
            const std::string byte(1, static_cast<char>(number));
            const std::string text = (byte == "x" || byte == "X" ? "yyyyyyyyyy" : "xxxxxxxxxx") +
                                     std::string(1, static_cast<char>(other));
            ASSERT_EQ(CaselessNeedle(byte).IsIn(text), LowerCase(byte) == LowerCase(text.substr(10)))
                << number << " and " << other;
        }
}

TEST(BookTextTest, TrimmingRemovesBlanksOnly) {
    EXPECT_EQ(Trim(L"  a b  "), L"a b");
    EXPECT_EQ(Trim(L"   "), L"");
    EXPECT_EQ(Trim(L"\ta "), L"\ta");
}

}  // namespace
}  // namespace lindrel
