#include "text/Characters.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lindrel {
namespace {

std::vector<char32_t> CharactersOf(std::wstring_view text) {
    std::vector<char32_t> characters;
    for (std::size_t place = 0; place < text.size();) characters.push_back(NextCharacter(text, place));
    return characters;
}

// Text of these units. A literal cannot have unpaired surrogates.
std::wstring Units(const std::vector<unsigned>& units) {
    std::wstring text;
    for (const unsigned unit : units) text.push_back(static_cast<wchar_t>(unit));
    return text;
}

using Characters = std::vector<char32_t>;

TEST(CharactersTest, AUnitIsACharacter) {
    EXPECT_EQ(CharactersOf(L""), Characters{});
    EXPECT_EQ(CharactersOf(L"aő中\uFFFF"), (Characters{U'a', U'ő', U'中', 0xFFFF}));
    EXPECT_EQ(CharactersOf(Units({0xD7FF, 0xE000, 0})), (Characters{0xD7FF, 0xE000, 0}));
}

TEST(CharactersTest, ASurrogatePairIsOneCharacter) {
    EXPECT_EQ(CharactersOf(Units({'a', 0xD83D, 0xDE00, 'b'})), (Characters{U'a', 0x1F600, U'b'}));
    EXPECT_EQ(CharactersOf(Units({0xD800, 0xDC00, 0xDBFF, 0xDFFF})), (Characters{0x10000, 0x10FFFF}));
}

TEST(CharactersTest, AHalfOfAPairIsACharacterOfItsOwn) {
    EXPECT_EQ(CharactersOf(Units({0xD83D})), Characters{0xD83D});
    EXPECT_EQ(CharactersOf(Units({0xDE00, 'a'})), (Characters{0xDE00, U'a'}));
    EXPECT_EQ(CharactersOf(Units({0xD83D, 'a'})), (Characters{0xD83D, U'a'}));
    EXPECT_EQ(CharactersOf(Units({0xD83D, 0xD83D, 0xDE00})), (Characters{0xD83D, 0x1F600}));
    EXPECT_EQ(CharactersOf(Units({0xDE00, 0xD83D})), (Characters{0xDE00, 0xD83D}));
}

TEST(CharactersTest, SurrogatesAreKnown) {
    EXPECT_FALSE(IsSurrogate(0xD7FF));
    EXPECT_TRUE(IsSurrogate(0xD800));
    EXPECT_TRUE(IsSurrogate(0xDFFF));
    EXPECT_FALSE(IsSurrogate(0xE000));
    EXPECT_FALSE(IsSurrogate(0x1D800));
}

}  // namespace
}  // namespace lindrel
