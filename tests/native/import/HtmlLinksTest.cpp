#include "import/HtmlLinks.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "book/Book.h"
#include "export/HtmlPage.h"
#include "faults/Faults.h"
#include "tests/native/support/PrintEntry.h"

namespace lindrel {
namespace {

using Links = std::vector<NewEntry>;

Links All(std::string_view page, TextEncoding encoding = TextEncoding::Windows1250) {
    return LinksOfPage(page, encoding, LinkChoice::All);
}

Links Online(std::string_view page) {
    return LinksOfPage(page, TextEncoding::Windows1250, LinkChoice::Online);
}

DecodedText Chunk(std::string_view text) {
    return DecodedText(text, TextEncoding::Windows1250);
}

// A link's text after cleaning.
std::string Cleaned(std::string_view text) {
    CleanLinkText(text);
    return std::string(text);
}

std::string Times(std::size_t count, std::string_view text) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) all += text;
    return all;
}

TEST(HtmlLinksTest, NamesAndAddressesAreInLowerCase) {
    EXPECT_EQ(Online("<A HREF=\"HTTP://Www.H\xCDREK.hu/Lap\">H\xCDrek</A>\r\n"),
              (Links{{"h\xEDrek", "http://www.h\xEDrek.hu/lap"}}));
    EXPECT_EQ(All("<a href=\"x\">\xC1RV\xCDZT\xDBR\xD5 T\xDCK\xD6RF\xDAR\xD3G\xC9P</a>"),
              (Links{{"\xE1rv\xEDzt\xFBr\xF5 t\xFCk\xF6rf\xFAr\xF3g\xE9p", "x"}}));
}

TEST(HtmlLinksTest, RelativeAndMailLinksAreSkippedInOnlineModeOnly) {
    constexpr std::string_view kPage =
        "<a href=\"lap.htm\">Lap</a>\r\n"
        "<a href=\"mailto:ki@lap.hu\">Ki</a>\r\n"
        "<a href=\"http://lap.hu\">H\xE1l\xF3</a>\r\n";
    EXPECT_EQ(Online(kPage), (Links{{"h\xE1l\xF3", "http://lap.hu"}}));
    EXPECT_EQ(All(kPage),
              (Links{{"lap", "lap.htm"}, {"ki", "mailto:ki@lap.hu"}, {"h\xE1l\xF3", "http://lap.hu"}}));
}

TEST(HtmlLinksTest, OnlineMeansAProtocolFromTheThirdCharacterOnAnywhereInTheChunk) {
    EXPECT_EQ(Online("<a href=\"ab://c\">n</a>"), (Links{{"n", "ab://c"}}));
    EXPECT_EQ(Online("<a href=\"a://c\">n</a>"), Links{});
    EXPECT_EQ(Online("<a href=\"://c\">n</a>"), Links{});
    EXPECT_EQ(Online("<a href=\"lap.htm\">http://lap.hu</a>"), (Links{{"http://lap.hu", "lap.htm"}}));
    EXPECT_EQ(Online("<a href=\"\"></a>"), Links{});
}

TEST(HtmlLinksTest, TheNameIsBetweenTheLastOpeningTagAndTheFirstClosingOne) {
    EXPECT_EQ(All("<a href=\"x\"><b>H\xEDrek</b></a>"), (Links{{"h\xEDrek", "x"}}));
    EXPECT_EQ(All("<a href=\"x\"><font size=2><b>H\xEDrek</b></font></a>"), (Links{{"h\xEDrek", "x"}}));
    EXPECT_EQ(All("<a href=\"x\">els\xF5 <b>m\xE1sodik</b> harmadik</a>"), (Links{{"m\xE1sodik", "x"}}));
    // Without a closing tag it is unknown.
    EXPECT_EQ(All("<a href=\"x\"><img src=\"k.gif\"></a>"), (Links{{"ismeretlen", "x"}}));
    EXPECT_EQ(All("<a href=\"x\">el\xF5tte<br>ut\xE1na</a>"), (Links{{"ismeretlen", "x"}}));
    // Further attributes are no part of it.
    EXPECT_EQ(All("<a href=\"x\" title=\"c\xEDm\" class=k>N\xE9v</a>"), (Links{{"n\xE9v", "x"}}));
    EXPECT_EQ(All("<a href=\"x\" icon=\"" + Times(5000, "i") + "\">N\xE9v</a>"), (Links{{"n\xE9v", "x"}}));
    // An anchor without a ">" is all of it.
    EXPECT_EQ(All("<a href=\"x\" rossz</a>"), (Links{{"x\" rossz", "x"}}));
}

TEST(HtmlLinksTest, AddressesWithoutQuotationMarksAreNotFound) {
    EXPECT_EQ(All("<a href=http://lap.hu>Lap</a><a href='http://lap.hu'>Lap</a>"
                  "<a target=_top href=\"http://lap.hu\">Lap</a><a  href=\"http://lap.hu\">Lap</a>"),
              Links{});
}

TEST(HtmlLinksTest, PagesOfThisProgramsOwnExportHoldNone) {
    Book book;
    book.SetCategoryName(3, "<a href=\"http://kategoria.hu\">K</a>");
    book.AddEntry(3, {{"H\xEDrek", "http://hirek.hu/"},
                      {"<a href=\"http://nev.hu\">N\xE9v</a>", "http://lap.hu/?a=\"b\"&c=<a href=\"x\">"}});
    book.Marks.Save(3, {1, 2});
    PageStyle style;
    style.Title = L"<a href=\"http://cim.hu\">C</a>";
    const std::string page = HtmlPageOf(book, style);
    EXPECT_NE(page.find("<A HREF=http://hirek.hu/>"), std::string::npos) << page;
    EXPECT_EQ(All(page), Links{});
}

TEST(HtmlLinksTest, AllAnchorsOfALineAreFound) {
    EXPECT_EQ(All("<a href=\"1\">Egy</a> \xE9s <A HREF=\"2\">Kett\xF5</A>, <a href=\"3\">H\xE1rom</a>\n"
                  "<a href=\"4\">N\xE9gy</a>"),
              (Links{{"egy", "1"}, {"kett\xF5", "2"}, {"h\xE1rom", "3"}, {"n\xE9gy", "4"}}));
    // So is what only ends like an anchor.
    EXPECT_EQ(All("<area href=\"terkep\">T\xE9rk\xE9p</a>"), (Links{{"t\xE9rk\xE9p", "terkep"}}));
}

TEST(HtmlLinksTest, AnAnchorGoesOnOverLinesThatKeepTheirCase) {
    EXPECT_EQ(All("<A HREF=\"HTTP://LAP.hu\">Els\xF5\r\nM\xC1SODIK\r\n\r\nHarmadik</A> m\xF6g\xF6tte\r\n"),
              (Links{{"els\xF5 M\xC1SODIK  Harmadik", "http://lap.hu"}}));
    EXPECT_EQ(All("<A HREF=\"LAP\nFOLYTATOM\">N\xC9V</A>"), (Links{{"N\xC9V", "lap FOLYTATOM"}}));
}

TEST(HtmlLinksTest, TheRestOfAClosingLineIsNotScanned) {
    EXPECT_EQ(All("<a href=\"1\">Egy\n</b></a><a href=\"2\">Kett\xF5</a>\n<a href=\"3\">H\xE1rom</a>\n"),
              (Links{{"egy ", "1"}, {"h\xE1rom", "3"}}));
}

TEST(HtmlLinksTest, ALineThatBeginsWithTheClosingTagDoesNotClose) {
    EXPECT_EQ(All("<a href=\"1\">Egy\n</a> <a href=\"2\">Kett\xF5</a>\nvége</a>\n"), (Links{{"egy ", "1"}}));
    EXPECT_THROW(All("<a href=\"1\">Egy\n</a>\n"), EndOfFileFault);
}

TEST(HtmlLinksTest, AChunkGoesOneCharacterBeyondTheClosingTagOfALaterLine) {
    // The chunk is  1" N</ax  without a ">", so all of it is the text.
    EXPECT_EQ(All("<a href=\"1\"\nN</axyz>\n"), (Links{{"1\" N", "1"}}));
    EXPECT_EQ(All("<a href=\"1\">Egy\nN</a"), (Links{{"egy N", "1"}}));
    // Here that character is the ">", with no text after it.
    EXPECT_EQ(All("<a href=\"1\"\nN</a>\n"), (Links{{"", "1"}}));
    // A quotation mark there ends the address.
    EXPECT_EQ(All("<a href=\"1\nN</a\""), (Links{{"1 N", "1 N</a"}}));
    // A character of two bytes is cut off with the tag all the same.
    EXPECT_EQ(All("<a href=\"1\"\nN</a\u0151>\n", TextEncoding::Utf8), (Links{{"1\" N", "1"}}));
    EXPECT_EQ(All("<a href=\"1\">Egy\nN</a\u0151\n<a href=\"2\">x</a>", TextEncoding::Utf8),
              (Links{{"egy N", "1"}, {"x", "2"}}));
}

TEST(HtmlLinksTest, AnyLineEndIsOne) {
    for (const std::string_view end : {"\r\n", "\n", "\r"}) {
        const std::string page = "<A HREF=\"1\">EGY" + std::string(end) + "KETT\xD5</A><a href=\"2\">x</a>" +
                                 std::string(end) + "<A HREF=\"3\">H\xC1ROM</A>";
        EXPECT_EQ(All(page), (Links{{"egy KETT\xD5", "1"}, {"h\xE1rom", "3"}}));
    }
}

constexpr std::size_t kLargePage = 2'000'000;

TEST(HtmlLinksTest, ALargePageWithBareCarriageReturns) {
    std::string page;
    Links expected;
    for (int i = 0; page.size() < kLargePage; ++i) {
        const std::string number = std::to_string(i);
        page += "<P>" + Times(40, "x") + "\r<A HREF=\"HTTP://LAP.HU/" + number + "\">EGY\rK\xC9T" + number +
                "</A>\r";
        expected.push_back({"egy K\xC9T" + number, "http://lap.hu/" + number});
    }
    EXPECT_EQ(Online(page), expected);
}

TEST(HtmlLinksTest, ALargePageWithAnAnchorThatIsNotClosed) {
    std::string page = "<a href=\"lap.htm\">N\xC9V";
    while (page.size() < kLargePage) page += "\rX";
    EXPECT_THROW(Online(page), EndOfFileFault);
    EXPECT_THROW(Online(Times(kLargePage / 11, "<a href=\"x\">")), EndOfFileFault);
    page += "</a>\r<a href=\"http://ket.hu\">Kett\xF5</a>";
    EXPECT_EQ(Online(page), (Links{{"kett\xF5", "http://ket.hu"}}));
    // The first anchor is too long to be a link.
    EXPECT_THROW(All(page), OverflowFault);
}

TEST(HtmlLinksTest, PagesWithoutLinksGiveNone) {
    for (const std::string_view page : {"", "\r\n", "a href=", "<a href=\r\n\"x\">n</a>", "<p>Semmi</p>"})
        EXPECT_EQ(All(page), Links{});
}

TEST(HtmlLinksTest, AnAnchorLeftOpenIsReadingPastTheEnd) {
    for (const std::string_view page :
         {"<a href=\"", "<a href=\"x\">n", "<a href=\"x\">n\r\n", "<a href=\"x\">n\r\n\r\n<a href=\"y\">\r\n",
          "<a href=\"1\">Egy</a>\n<a href=\"2\">Kett\xF5"})
        EXPECT_THROW(All(page), EndOfFileFault);
    // Even if the link would have been skipped.
    EXPECT_THROW(Online("<a href=\"x\">n"), EndOfFileFault);
}

TEST(HtmlLinksTest, AnAddressWithoutClosingQuotationMarkIsAFaultOfItsOwn) {
    EXPECT_THROW(All("<a href=\"lap.htm>N\xE9v</a>"), ArgumentFault);
    EXPECT_THROW(Online("<a href=\"http://lap.hu>N\xE9v</a>"), ArgumentFault);
    EXPECT_EQ(Online("<a href=\"lap.htm>N\xE9v</a>"), Links{});
}

TEST(HtmlLinksTest, AnAddressOf254CharactersIsTheLongest) {
    const auto page = [](std::size_t length) { return "<a href=\"" + Times(length, "u") + "\">N</a>"; };
    EXPECT_EQ(All(page(254)), (Links{{"n", Times(254, "u")}}));
    EXPECT_THROW(All(page(255)), OverflowFault);
}

TEST(HtmlLinksTest, AClosingTagAfterThe255thCharacterOfTheTextOverflows) {
    const auto page = [](std::size_t length) { return "<a href=\"x\">" + Times(length, "n") + "</b></a>"; };
    EXPECT_EQ(All(page(254)), (Links{{Times(55, "n"), "x"}}));
    EXPECT_THROW(All(page(255)), OverflowFault);
    // Text without tags may have any length.
    EXPECT_EQ(All("<a href=\"x\">" + Times(70000, "n") + "</a>"), (Links{{Times(55, "n"), "x"}}));
}

TEST(HtmlLinksTest, The16BitCounterEndsAt32766Links) {
    std::string page;
    Links expected;
    for (int i = 1; i <= 32766; ++i) {
        const std::string number = std::to_string(i);
        page.append("<a href=\"").append(number).append("\">n").append(number).append("</a>\n");
        expected.push_back({"n" + number, number});
    }
    EXPECT_EQ(All(page), expected);
    EXPECT_EQ(Online(page + "<a href=\"http://u\">u</a>"), (Links{{"u", "http://u"}}));
    EXPECT_THROW(All(page + "<a href=\"32767\">n32767</a>"), OverflowFault);
}

TEST(HtmlLinksTest, CleansLinkTextsAndCutsThemTo55Characters) {
    EXPECT_EQ(Cleaned(""), "");
    EXPECT_EQ(Cleaned(" n\xE9v "), " n\xE9v ");
    EXPECT_EQ(Cleaned("nagyobb > kisebb"), "nagyobb > kisebb");
    EXPECT_EQ(Cleaned("<"), "ismeretlen");
    EXPECT_EQ(Cleaned("<br/>"), "ismeretlen");
    EXPECT_EQ(Cleaned("</b>"), "");
    EXPECT_EQ(Cleaned("<i>a</i><b>b</b>"), "a");
    EXPECT_EQ(Cleaned("<b></b>"), "");
    EXPECT_EQ(Cleaned(Times(70, "n")), Times(55, "n"));
    EXPECT_EQ(Cleaned(Times(56, "n")), Times(55, "n"));
    EXPECT_EQ(Cleaned(Times(55, "n")), Times(55, "n"));
    EXPECT_EQ(Cleaned("<b>" + Times(70, "n") + "</b>"), Times(55, "n"));
    EXPECT_EQ(Cleaned("<b>" + Times(55, "n") + "</b>"), Times(55, "n"));
}

TEST(HtmlLinksTest, WhatABookLacksIsPercentEncodedInAnAddressAndAQuestionMarkInAName) {
    // The first line is in lower case with all that its address has; letters that a book lacks keep theirs.
    EXPECT_EQ(All("<A HREF=\"HTTP://\u043F\u0440.\u0420\u0444/\u0150?q=\u03A9\">\u041F\u0151 \u0150</A>",
                  TextEncoding::Utf8),
              (Links{{"?\xF5 \xF5", "http://%d0%bf%d1%80.%d0%a0%d1%84/\xF5?q=%ce%a9"}}));
    EXPECT_EQ(All("<a href=\"/\u043F\nLAP/\u0420\">N\u00C9V \u0420</a\u0420>", TextEncoding::Utf8),
              (Links{{"N\xC9V ?", "/%d0%bf LAP/%D0%A0"}}));
    EXPECT_EQ(All("<a href=\"?a=?&b=\U0001F600\">?\U0001F600</a>", TextEncoding::Utf8),
              (Links{{"??", "?a=?&b=%f0%9f%98%80"}}));
    // Each link has its own.
    EXPECT_EQ(All("<a href=\"\u0420\">1</a><a href=\"?\">2</a>", TextEncoding::Utf8),
              (Links{{"1", "%d0%a0"}, {"2", "?"}}));
}

TEST(HtmlLinksTest, TheLimitsCountCharactersOfThePage) {
    const auto page = [&](std::size_t address, std::size_t name) {
        return "<a href=\"" + Times(address, "\u0440") + "\"><b>" + Times(name, "\u0151") + "</b></a>";
    };
    EXPECT_EQ(All(page(254, 251), TextEncoding::Utf8), (Links{{Times(55, "\xF5"), Times(254, "%d1%80")}}));
    EXPECT_THROW(All(page(255, 1), TextEncoding::Utf8), OverflowFault);
    EXPECT_THROW(All(page(1, 252), TextEncoding::Utf8), OverflowFault);
}

TEST(HtmlLinksTest, OtherEncodingsAreDecoded) {
    EXPECT_EQ(All("<A HREF=\"\xA9\xB9\">\xA5\xE1 \x84</A>", TextEncoding::Latin2),
              (Links{{"\xBE\xE1 \x84", "\x9A\x9A"}}));
    // Bytes that are not valid UTF-8.
    EXPECT_EQ(All("<a href=\"\xE1\xC5\">\xE2\x82</a>", TextEncoding::Utf8), (Links{{"??", "??"}}));
}

TEST(HtmlLinksTest, StagesUnderTheNumberAndLeavesTheOthers) {
    Links staged{{"egy", "1"}};
    StageLink(staged, Chunk("2\">kett\xF5"), 2);
    EXPECT_EQ(staged, (Links{{"egy", "1"}, {"kett\xF5", "2"}}));
    EXPECT_THROW(StageLink(staged, Chunk("idez\xF5jel n\xE9lk\xFCl"), 3), ArgumentFault);
    EXPECT_THROW(StageLink(staged, Chunk(Times(255, "u") + "\">n"), 3), OverflowFault);
    EXPECT_THROW(StageLink(staged, Chunk("3\">" + Times(255, "n") + "</b>"), 3), OverflowFault);
    EXPECT_THROW(StageLink(staged, Chunk("3\">n"), 0), RangeFault);
    EXPECT_EQ(staged, (Links{{"egy", "1"}, {"kett\xF5", "2"}}));
}

}  // namespace
}  // namespace lindrel
