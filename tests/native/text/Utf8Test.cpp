#include "text/Utf8.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

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

}  // namespace
}  // namespace lindrel
