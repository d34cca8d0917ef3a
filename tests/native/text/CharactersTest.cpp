#include "text/Characters.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lindrel {
namespace {

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
