#include "import/PageText.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lindrel {
namespace {

std::string TextOf(std::string_view page) {
    const std::vector<char> text = BookTextOfPage({page.begin(), page.end()});
    return {text.begin(), text.end()};
}

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf8 =
    "\xC3\x81rv\xC3\xADzt\xC5\xB1r\xC5\x91 \xE2\x80\x9Et\xC3\xBCk\xC3\xB6r\xE2\x80\x9D";
constexpr std::string_view kBook = "\xC1rv\xEDzt\xFBr\xF5 \x84t\xFCk\xF6r\x94";

TEST(PageTextTest, AsciiIsTheSameInEveryEncoding) {
    for (const std::string_view page : {"", "a", "<a href=\"x\">nev</a>\r\n0123456789"})
        EXPECT_EQ(TextOf(page), page);
}

TEST(PageTextTest, Utf8IsKnownByItsMarkItsDeclarationOrItsBytes) {
    EXPECT_EQ(TextOf(std::string(kUtf8Mark).append(kUtf8)), kBook);
    EXPECT_EQ(TextOf(kUtf8), kBook);
    const std::string meta = "<meta charset=utf-8>";
    EXPECT_EQ(TextOf(meta + std::string(kUtf8)), meta + std::string(kBook));
    EXPECT_EQ(TextOf(kUtf8Mark), "");
}

TEST(PageTextTest, AnythingElseIsWindows1250) {
    EXPECT_EQ(TextOf(kBook), kBook);
    EXPECT_EQ(EncodingOfPage(kBook), PageEncoding::Windows1250);
    EXPECT_EQ(EncodingOfPage("<meta charset=iso-8859-1>\xE1"), PageEncoding::Windows1250);
    EXPECT_EQ(EncodingOfPage("<meta charset=windows-1250>\xE1"), PageEncoding::Windows1250);
}

TEST(PageTextTest, DeclarationsAreFoundHoweverTheyAreWritten) {
    const auto encoding = [](std::string_view head) { return EncodingOfPage(std::string(head) + "\xE1"); };
    for (const std::string_view head :
         {"<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">",
          "<meta charset='utf-8'/>", "<meta charset = \" Utf8 \">",
          "<meta name=charset content=x><meta\ncharset=utf-8 >",
          "<?xml version=\"1.0\" encoding=\"utf-8\"?>"})
        EXPECT_EQ(encoding(head), PageEncoding::Utf8) << head;
    for (const std::string_view head :
         {"<meta http-equiv=\"Content-Type\" content=\"text/html; charset=ISO-8859-2\">",
          "<META content='text/html;charset=iso8859-2;x'>", "<meta charset=Latin2>",
          "<?xml version='1.0' encoding='iso-8859-2' ?>"})
        EXPECT_EQ(encoding(head), PageEncoding::Latin2) << head;
    for (const std::string_view head :
         {"charset=utf-8", "<p charset=utf-8>", "<meta name=a> charset=utf-8", "<meta charset",
          "<meta charset=", "<meta charset=utf-80>", "<meta charset=utf-16>", "<metacharset>"})
        EXPECT_EQ(encoding(head), PageEncoding::Windows1250) << head;
}

TEST(PageTextTest, ADeclarationFarFromTheTopDoesNotCount) {
    const std::string declaration = "<meta charset=utf-8>";
    const std::string bytes = "\xE1";
    EXPECT_EQ(EncodingOfPage(std::string(4096 - declaration.size(), ' ') + declaration + bytes),
              PageEncoding::Utf8);
    EXPECT_EQ(EncodingOfPage(std::string(4096, ' ') + declaration + bytes), PageEncoding::Windows1250);
}

TEST(PageTextTest, AMarkWinsThenDeclaredUtf8ThenValidBytesThenLatin2) {
    const std::string latin2 = "<meta charset=iso-8859-2>";
    const std::string utf8 = "<meta charset=utf-8>";
    EXPECT_EQ(EncodingOfPage(std::string(kUtf8Mark) + latin2 + "\xE1"), PageEncoding::Utf8);
    EXPECT_EQ(EncodingOfPage(utf8 + "\xE1"), PageEncoding::Utf8);
    EXPECT_EQ(EncodingOfPage(latin2 + std::string(kUtf8)), PageEncoding::Utf8);
    EXPECT_EQ(EncodingOfPage(latin2 + "\xE1"), PageEncoding::Latin2);
    EXPECT_EQ(EncodingOfPage(latin2), PageEncoding::Latin2);
}

TEST(PageTextTest, BrokenBytesOfDeclaredUtf8BecomeQuestionMarksOneByOne) {
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

TEST(PageTextTest, CharactersThatABookLacksBecomeQuestionMarks) {
    EXPECT_EQ(TextOf("\xCE\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80 \xF4\x8F\xBF\xBF \xEF\xBF\xBF"), "? \x80 ? ? ?");
}

TEST(PageTextTest, Latin2DiffersFromWindows1250InFifteenPlaces) {
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

TEST(PageTextTest, LongPagesAreReadWholeWhereverTheyLeaveAscii) {
    for (std::size_t length = 0; length < 40; ++length) {
        const std::string ascii(length, 'a');
        EXPECT_EQ(TextOf(ascii + "\xC5\x91" + ascii), ascii + "\xF5" + ascii);
        EXPECT_EQ(TextOf(ascii + "\xF5" + ascii), ascii + "\xF5" + ascii);
    }
}

}  // namespace
}  // namespace lindrel
