#include "text/Utf8.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/native/support/AnyText.h"
#include "text/Characters.h"

namespace lindrel {
namespace {

TEST(Utf8Test, EveryCharacterComesBack) {
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (IsSurrogate(character)) continue;
        const auto number = static_cast<unsigned long>(character);
        std::string bytes;
        AppendUtf8(bytes, character);
        ASSERT_EQ(bytes, testing::Utf8({character})) << number;
        const std::optional<Utf8Character> back = FirstUtf8Character(bytes + "\x80");
        ASSERT_TRUE(back) << number;
        ASSERT_TRUE(back->Value == character) << number;
        ASSERT_EQ(back->Length, bytes.size());
        ASSERT_EQ(IsUtf8BeyondAscii(bytes), character >= 0x80) << number;
        for (std::size_t part = 1; part < bytes.size(); ++part)
            ASSERT_FALSE(FirstUtf8Character(std::string_view(bytes).substr(0, part))) << number;
    }
}

TEST(Utf8Test, OtherBytesAreNotUtf8) {
    std::istringstream invalid(
        "\x80 \xBF \xC0\xAF \xC1\xBF \xC5 \xC5z \xC5\xC5 \xE0\x80\xAF \xE0\x9F\xBF \xE2\x82 \xE2\x82z "
        "\xED\xA0\x80 "
        "\xED\xBF\xBF \xF0\x80\x80\x80 \xF0\x8F\xBF\xBF \xF4\x90\x80\x80 \xF5\x80\x80\x80 "
        "\xF8\x88\x80\x80\x80 "
        "\xFE \xFF");
    int count = 0;
    for (std::string bytes; invalid >> bytes; ++count) {
        EXPECT_FALSE(FirstUtf8Character(bytes));
        for (std::size_t before = 0; before < 10; ++before) {
            const std::string text = "\xC5\x91" + std::string(before, 'a') + bytes;
            EXPECT_FALSE(IsUtf8BeyondAscii(text + "a"));
            EXPECT_FALSE(IsUtf8BeyondAscii(text + std::string(20, 'a')));
        }
    }
    EXPECT_EQ(count, 20);
    EXPECT_FALSE(IsUtf8BeyondAscii(""));
    EXPECT_FALSE(IsUtf8BeyondAscii(std::string(100, 'a')));
    EXPECT_TRUE(IsUtf8BeyondAscii(std::string(100, 'a') + "\xC5\x91"));
}

TEST(Utf8Test, AsciiEndsAtTheFirstOtherByte) {
    for (std::size_t length = 0; length < 40; ++length) {
        EXPECT_EQ(AsciiLength(std::string(length, '\x7F')), length);
        EXPECT_EQ(AsciiLength(std::string(length, '\0') + "\x80"), length);
        EXPECT_EQ(AsciiLength(std::string(length, 'a') + "\xFF" + std::string(20, 'a')), length);
    }
}

TEST(Utf8Test, AddressesHoldEveryByteWithTwoCapitalDigits) {
    EXPECT_EQ(PercentEncoded(U'\n'), "%0A");
    EXPECT_EQ(PercentEncoded(U'\u0151'), "%C5%91");
    EXPECT_EQ(PercentEncoded(U'\u20AC'), "%E2%82%AC");
    EXPECT_EQ(PercentEncoded(0x10FFFF), "%F4%8F%BF%BF");
}

using Characters = std::vector<char32_t>;

Characters CharactersOf(std::wstring_view text) {
    Characters characters;
    for (std::size_t offset = 0; offset < text.size();) characters.push_back(NextCharacter(text, offset));
    return characters;
}

// Of a text of these units. A literal cannot have unpaired surrogates.
Characters CharactersOfUnits(const std::vector<unsigned>& units) {
    std::wstring text;
    for (const unsigned unit : units) text.push_back(static_cast<wchar_t>(unit));
    return CharactersOf(text);
}

TEST(CharactersTest, AUnitIsACharacter) {
    EXPECT_EQ(CharactersOf(L""), Characters{});
    EXPECT_EQ(CharactersOf(L"aő中\uFFFF"), (Characters{U'a', U'ő', U'中', 0xFFFF}));
    EXPECT_EQ(CharactersOfUnits({0xD7FF, 0xE000, 0}), (Characters{0xD7FF, 0xE000, 0}));
}

TEST(CharactersTest, ASurrogatePairIsOneCharacter) {
    EXPECT_EQ(CharactersOfUnits({'a', 0xD83D, 0xDE00, 'b'}), (Characters{U'a', 0x1F600, U'b'}));
    EXPECT_EQ(CharactersOfUnits({0xD800, 0xDC00, 0xDBFF, 0xDFFF}), (Characters{0x10000, 0x10FFFF}));
}

TEST(CharactersTest, AHalfOfAPairIsACharacterOfItsOwn) {
    for (const Characters& halves : {Characters{0xD83D}, {0xDE00, 'a'}, {0xD83D, 'a'}, {0xDE00, 0xD83D}})
        EXPECT_EQ(CharactersOfUnits({halves.begin(), halves.end()}), halves);
    EXPECT_EQ(CharactersOfUnits({0xD83D, 0xD83D, 0xDE00}), (Characters{0xD83D, 0x1F600}));
}

TEST(CharactersTest, SurrogatesAreKnown) {
    for (const char32_t surrogate : {0xD800U, 0xDFFFU}) EXPECT_TRUE(IsSurrogate(surrogate));
    for (const char32_t other : {0xD7FFU, 0xE000U, 0x1D800U}) EXPECT_FALSE(IsSurrogate(other));
}

}  // namespace
}  // namespace lindrel
