#include "import/PageEncoding.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/native/support/AnyText.h"
#include "text/BookText.h"
#include "text/Utf8.h"

namespace lindrel {
namespace {

std::string TextOf(std::string_view page) {
    const TextFile text = TextOfPage({page.begin(), page.end()});
    return std::string(DecodedText(text.Text(), text.Encoding).Text());
}

TextEncoding EncodingOf(std::string_view page) {
    return TextOfPage({page.begin(), page.end()}).Encoding;
}

// ASCII as UTF-16.
std::string Wide(std::string_view ascii, std::endian order) {
    return testing::Utf16({ascii.begin(), ascii.end()}, order);
}

constexpr std::string_view kUtf8 =
    "\xC3\x81rv\xC3\xADzt\xC5\xB1r\xC5\x91 \xE2\x80\x9Et\xC3\xBCk\xC3\xB6r\xE2\x80\x9D";
constexpr std::string_view kBook = "\xC1rv\xEDzt\xFBr\xF5 \x84t\xFCk\xF6r\x94";

TEST(PageEncodingTest, AsciiIsTheSameInEveryEncoding) {
    for (const std::string_view page : {"", "a", "<a href=\"x\">nev</a>\r\n0123456789"})
        EXPECT_EQ(TextOf(page), page);
}

TEST(PageEncodingTest, Utf8IsKnownByItsBomItsDeclarationOrItsBytes) {
    EXPECT_EQ(TextOf(std::string(kUtf8Bom).append(kUtf8)), kBook);
    EXPECT_EQ(TextOf(kUtf8), kBook);
    const std::string meta = "<meta charset=utf-8>";
    EXPECT_EQ(TextOf(meta + std::string(kUtf8)), meta + std::string(kBook));
    EXPECT_EQ(TextOf(kUtf8Bom), "");
}

TEST(PageEncodingTest, AnythingElseIsWindows1250) {
    EXPECT_EQ(TextOf(kBook), kBook);
    EXPECT_EQ(EncodingOf(kBook), TextEncoding::Windows1250);
}

TEST(PageEncodingTest, DeclarationsAreFoundHoweverTheyAreWritten) {
    for (const std::string_view page :
         {"<meta charset=utf-8>",
          "<META CHARSET=\"UTF-8\">",
          "<meta charset='utf-8'/>",
          "<meta charset=utf-8/>",
          "<meta/charset=utf-8>",
          "<meta charset = \" Utf-8 \">",
          "<meta\ncharset=utf-8 >",
          "<meta a b='>' charset=utf-8>",
          "<meta charset=utf-8",
          "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">",
          "<meta content='text/html;charset=utf-8;x' http-equiv=content-type>",
          "<meta http-equiv=Content-Type content=\"text/html; charset = 'utf-8'\">",
          "<meta http-equiv=Content-Type content=\"charset charset=utf-8\">",
          "<meta http-equiv=Content-Type content=text/html; charset=utf-8>",
          "<?xml version=\"1.0\" encoding=\"utf-8\"?>",
          "<?xml encoding = 'UTF-8' ?><html>",
          "<p title=\"<meta charset=latin2>\"><meta charset=utf-8>",
          "a < b <> <3 </> <meta charset=utf-8>",
          "<meta name=charset content=x><meta charset=utf-8>",
          "<!DOCTYPE html><html><head><meta charset=utf-8>",
          "<!--><meta charset=utf-8>",
          "<!-- <meta charset=latin2> -- > --><meta charset=utf-8>",
          "<meta charset=utf-8><meta charset=latin2>",
          "<?xml encoding=\"latin2\"?><meta charset=utf-8>"})
        EXPECT_EQ(EncodingOf(page), TextEncoding::Utf8) << page;
}

TEST(PageEncodingTest, WhatOnlyLooksLikeADeclarationIsNone) {
    for (const std::string_view page : {"",
                                        "<",
                                        "<meta",
                                        "<meta ",
                                        "charset=utf-8",
                                        "<p charset=utf-8>",
                                        "<meta name=a> charset=utf-8",
                                        "<meta charset",
                                        "<meta charset=",
                                        "<meta charset=>",
                                        "<metacharset=utf-8>",
                                        "<metal charset=utf-8>",
                                        "<meta data-charset=utf-8>",
                                        "<!-- <meta charset=utf-8> -->",
                                        "<!-- <meta charset=utf-8>",
                                        "<!--- <meta charset=utf-8> --->",
                                        "<! <meta charset=utf-8>",
                                        "<a href=\"<meta charset=utf-8>\">",
                                        "<meta name=description content=\"charset=utf-8\">",
                                        "<meta content=\"text/html; charset=utf-8\">",
                                        "<meta http-equiv=refresh content=\"charset=utf-8\">",
                                        "<meta http-equiv=content-type content=charset>",
                                        " <?xml encoding=\"utf-8\"?>",
                                        "<?xml version=\"encoding=utf-8\"?>",
                                        "<!-- <?xml encoding=\"utf-8\"?> -->"})
        EXPECT_EQ(EncodingOf(page), TextEncoding::Windows1250) << page;
}

TEST(PageEncodingTest, EveryNameThatBrowsersKnowIsKnown) {
    const auto encoding = [](std::string_view name) {
        return EncodingOf("<meta charset=\"" + std::string(name) + "\">\xE1");
    };
    for (const std::string_view name :
         {"utf-8", "utf8", "unicode-1-1-utf-8", "unicode11utf8", "unicode20utf8", "x-unicode20utf8", "UTF-8"})
        EXPECT_EQ(encoding(name), TextEncoding::Utf8) << name;
    for (const std::string_view name :
         {"iso-8859-2", "iso8859-2", "iso88592", "iso_8859-2", "iso_8859-2:1987", "iso-ir-101", "latin2",
          "l2", "csisolatin2", "ISO-8859-2"})
        EXPECT_EQ(encoding(name), TextEncoding::Latin2) << name;
    // A page in which UTF-16 is declared in ASCII is not in UTF-16.
    for (const std::string_view name :
         {"windows-1250", "cp1250", "x-cp1250", "utf-16", "utf-16le", "utf-16be", "unicode", "unicodefeff",
          "unicodefffe", "csunicode", "ucs-2", "iso-10646-ucs-2", "iso-8859-1", "utf-80", "utf", ""})
        EXPECT_EQ(encoding(name), TextEncoding::Windows1250) << name;
}

TEST(PageEncodingTest, Utf16IsKnownByItsBom) {
    const std::string little =
        std::string("\xFF\xFE") + Wide("<meta charset=iso-8859-2>", std::endian::little);
    EXPECT_EQ(TextOf(little + "\x51\x01\x91\x21"), "<meta charset=iso-8859-2>\xF5?");
    const std::string big = std::string("\xFE\xFF") + Wide("<a href=\"x\">", std::endian::big);
    EXPECT_EQ(TextOf(big + "\x01\x51\x01\x71"), "<a href=\"x\">\xF5\xFB");
    EXPECT_EQ(TextOf("\xFF\xFE"), "");
    EXPECT_EQ(TextOf("\xFF\xFE\x51"), "?");
}

TEST(PageEncodingTest, Utf16WithoutABomIsKnownByADeclarationInIt) {
    for (const std::endian order : {std::endian::little, std::endian::big})
        for (const std::string_view name : {"utf-16", "utf-16le", "UTF-16BE", "unicode", "ucs-2"}) {
            const std::string page = "<html><meta charset=" + std::string(name) + "><a href=\"x\">";
            EXPECT_EQ(TextOf(Wide(page, order)), page);
        }
    for (const std::string_view page :
         {"<meta charset=utf-8>", "<p>utf-16", "<!--<meta charset=utf-16>-->"}) {
        const std::string wide = Wide(page, std::endian::little);
        EXPECT_EQ(TextOf(wide), wide);
    }
}

TEST(PageEncodingTest, ADeclarationFarFromTheTopDoesNotCount) {
    const std::string declaration = "<meta charset=utf-8>";
    const std::string bytes = "\xE1";
    EXPECT_EQ(EncodingOf(std::string(4096 - declaration.size(), ' ') + declaration + bytes),
              TextEncoding::Utf8);
    EXPECT_EQ(EncodingOf(std::string(4096, ' ') + declaration + bytes), TextEncoding::Windows1250);
}

TEST(PageEncodingTest, ABomWinsThenDeclaredUtf8ThenValidBytesThenLatin2) {
    const std::string latin2 = "<meta charset=iso-8859-2>";
    EXPECT_EQ(EncodingOf(std::string(kUtf8Bom) + latin2 + "\xE1"), TextEncoding::Utf8);
    EXPECT_EQ(EncodingOf("<meta charset=utf-8>\xE1"), TextEncoding::Utf8);
    EXPECT_EQ(EncodingOf(latin2 + std::string(kUtf8)), TextEncoding::Utf8);
    EXPECT_EQ(EncodingOf(latin2), TextEncoding::Latin2);
}

TEST(PageEncodingTest, BrokenBytesOfDeclaredUtf8BecomeQuestionMarksOneByOne) {
    const std::string head = "<meta charset=utf-8>";
    const auto text = [&](std::string_view bytes) {
        return TextOf(head + std::string(bytes)).substr(head.size());
    };
    EXPECT_EQ(text("a\xE1z"), "a?z");                       // a byte of Windows-1250
    EXPECT_EQ(text("\xE2\x82z\xC5\x91"), "??z\xF5");        // an incomplete character
    EXPECT_EQ(text("\xC5"), "?");                           // at the end of the page
    EXPECT_EQ(text("\xC0\xAF\xE0\x80\xAF"), "?????");       // overlong forms
    EXPECT_EQ(text("\xED\xA0\xBD"), "???");                 // half a surrogate pair
    EXPECT_EQ(text("\xF4\x90\x80\x80\xF5\x80"), "??????");  // beyond the last character
    EXPECT_EQ(text("\x80\xBF\xFF"), "???");                 // trail bytes alone
    EXPECT_EQ(text("\xC2\x80\xC2\x81"), "?\x81");           // a control character, an unused byte value
}

TEST(PageEncodingTest, CharactersThatABookCannotHoldBecomeQuestionMarks) {
    EXPECT_EQ(TextOf("\xCE\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80 \xF4\x8F\xBF\xBF \xEF\xBF\xBF"), "? \x80 ? ? ?");
}

TEST(PageEncodingTest, Latin2DiffersFromWindows1250InFifteenCharacters) {
    const std::string head = "<meta charset=iso-8859-2>";
    std::string upper;
    for (int byte = 0xA0; byte <= 0xFF; ++byte) upper.push_back(static_cast<char>(byte));
    std::string expected = upper;
    const std::pair<unsigned char, unsigned char> differences[] = {
        {0xA1, 0xA5}, {0xA5, 0xBC}, {0xA6, 0x8C}, {0xA9, 0x8A}, {0xAB, 0x8D},
        {0xAC, 0x8F}, {0xAE, 0x8E}, {0xB1, 0xB9}, {0xB5, 0xBE}, {0xB6, 0x9C},
        {0xB7, 0xA1}, {0xB9, 0x9A}, {0xBB, 0x9D}, {0xBC, 0x9F}, {0xBE, 0x9E}};
    for (const auto& [from, to] : differences) expected[from - 0xA0U] = static_cast<char>(to);
    EXPECT_EQ(TextOf(head + upper), head + expected);
    EXPECT_EQ(TextOf(head + "\x84id\xE9zet\x94 \x96 \x85"), head + "\x84id\xE9zet\x94 \x96 \x85");
}

TEST(PageEncodingTest, LongPagesAreReadWholeWhereverTheyLeaveAscii) {
    for (std::size_t length = 0; length < 40; ++length) {
        const std::string ascii(length, 'a');
        EXPECT_EQ(TextOf(ascii + "\xC5\x91" + ascii), ascii + "\xF5" + ascii);
        EXPECT_EQ(TextOf(ascii + "\xF5" + ascii), ascii + "\xF5" + ascii);
    }
}

// Any text comes back from a page in any encoding that has its characters.
TEST(PageEncodingTest, AnyTextComesBackFromAnyEncoding) {
    testing::Dice dice;
    for (int round = 0; round < 2000; ++round) {
        std::u32string text;
        for (std::size_t i = dice.Roll(40); i > 0; --i) text += testing::AnyCharacter(dice);
        std::string expected;
        for (const char32_t character : text) expected.push_back(BookByte(character).value_or('?'));
        EXPECT_EQ(TextOf(testing::Utf16(U'\uFEFF' + text, std::endian::little)), expected);
        EXPECT_EQ(TextOf(testing::Utf16(U'\uFEFF' + text, std::endian::big)), expected);
        EXPECT_EQ(TextOf(testing::Utf8(U'\uFEFF' + text)), expected);
        EXPECT_EQ(TextOf("<meta charset=utf8>" + testing::Utf8(text)), "<meta charset=utf8>" + expected);
    }
}

}  // namespace
}  // namespace lindrel
