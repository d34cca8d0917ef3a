// The exporters, byte by byte.

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "book/Book.h"
#include "export/Favorites.h"
#include "export/HtmlPage.h"
#include "export/HtmlText.h"
#include "export/Shortcut.h"
#include "export/TextList.h"
#include "faults/Faults.h"
#include "tests/native/support/AnyText.h"
#include "tests/native/support/TemporaryFolder.h"
#include "text/BookText.h"
#include "text/Latin2.h"

namespace lindrel {
namespace {

class ExportTest : public ::testing::Test {
  protected:
    ExportTest() {
        book.SetCategoryName(2, "H\xEDrek");
        book.AddEntry(2, {{"M\xFBsor", "http://musor.hu/"},
                          {"nem", "http://nem.hu"},
                          {"\xC1llat", "http://allat.hu/a.htm"}});
        book.AddEntry(5, {{"X", "x"}});
    }
    void Check(int category, std::vector<std::int16_t> positions) {
        book.Marks.Save(category, std::move(positions));
    }

    Book book;
};

std::string ListHeader(const std::string& name) {
    return "\xF7\xF7\xF7\xF7\xF7< " + name + std::string(120 - name.size(), '-') + "\r\n";
}

TEST_F(ExportTest, ATextListHasAHeaderOfOneLengthForEachCategoryAndTwoLinesForEachEntry) {
    Check(2, {1, 3});
    Check(5, {1});
    EXPECT_EQ(ListHeader("H\xEDrek").size(), 129u);
    EXPECT_EQ(TextListOf(book).Text,
              ListHeader("H\xEDrek") +
                  "\xB0 M\xFBsor\r\n  http://musor.hu/\r\n\xB0 \xC1llat\r\n  http://allat.hu/a.htm\r\n" +
                  ListHeader("Project5") + "\xB0 X\r\n  x\r\n");
    book.Marks.Forget(2);
    EXPECT_EQ(TextListOf(book).Text, ListHeader("Project5") + "\xB0 X\r\n  x\r\n");
    EXPECT_TRUE(TextListOf(book).Complete);
}

TEST_F(ExportTest, ATextListEndsBeforeACategoryWhoseNameIsTooLong) {
    Check(2, {2});
    Check(5, {1});
    const std::string first = ListHeader("H\xEDrek") + "\xB0 nem\r\n  http://nem.hu\r\n";
    const std::string longest(120, 'n');
    book.SetCategoryName(5, longest);
    EXPECT_EQ(TextListOf(book).Text, first + ListHeader(longest) + "\xB0 X\r\n  x\r\n");
    EXPECT_TRUE(TextListOf(book).Complete);
    book.SetCategoryName(5, longest + "n");
    EXPECT_EQ(TextListOf(book).Text, first);
    EXPECT_FALSE(TextListOf(book).Complete);
}

// A page up to the attributes of its body.
std::string Head(const std::string& title, const std::string& more_lines = "") {
    return "<!DOCTYPE HTML PUBLIC \"-/W3C/DTD HTML 4.0 Transitional/EN\">\r\n<html><head>\r\n" + more_lines +
           "<TITLE>" + title +
           "</TITLE>\r\n"
           "<meta http-equiv=Content-Type content=text/html; charset=iso-8859-2>\r\n"
           "<META NAME=\"GENERATOR\" content=\"Lindrel - https://lindrel.example/\">\r\n";
}
constexpr char kEnd[] = "</TABLE><BR><BR><BR></BODY></HTML>";

TEST_F(ExportTest, APageWithoutATheme) {
    PageStyle style;
    style.Title = L"Címeim";
    style.Background = "Black";
    style.Text = "white";
    const std::string start =
        Head("C\xEDmeim") +
        "<BASEFONT FACE=\"Arial,Helvetica\">\r\n"
        "</HEAD><BODY BGCOLOR=Black link=\"#725E50\" vlink=\"#990000\" alink=\"#ff0000\" "
        "text=white><BR><BR>\r\n"
        "<table border=0 cellspacing=0 cellpadding=1 bgcolor=#155BBB>\r\n";
    EXPECT_EQ(HtmlPageOf(book, style), start + kEnd);
    Check(2, {1, 3});
    EXPECT_EQ(HtmlPageOf(book, style),
              start +
                  "<tr><td bgcolor=#655BBB><font color=#FFFFFF size=1 face=\"verdana,arial, "
                  "helvetica\"><b>H\xEDrek<B></FONT>\r\n"
                  "</TD></TR>\r\n"
                  "<TR><TD>\r\n"
                  "<table width=100% bgcolor=\"FFFFFF\" cellpadding=5 cellspacing=0 border=0>\r\n"
                  "<tr><td>\r\n"
                  "<tr><td>\r\n"
                  "<A HREF=http://musor.hu/>M\xFBsor</A><BR>\r\n"
                  "<A HREF=http://allat.hu/a.htm>\xC1llat</A><BR>\r\n"
                  "</td></tr></table></TD></TR>\r\n" +
                  kEnd);
}

TEST_F(ExportTest, AThemeReplacesTheFragmentsAndTheBodysAttributes) {
    Check(5, {1});
    const auto page = [&](std::string_view theme) {
        PageStyle style;
        style.ThemeParts = ApplyTheme(style.ThemeParts, theme);
        style.ThemeApplied = true;
        return HtmlPageOf(book, style);
    };
    const std::string links = "<tr><td>\r\n<A HREF=x>X</A><BR>\r\nE</td></tr></table></TD></TR>\r\n";
    EXPECT_EQ(page("A^B^C^D^E^"), Head("") +
                                      "</HEAD><BODY ><BR><BR>\r\n"
                                      "A\r\nBProject5C\r\n</TD></TR>\r\n<TR><TD>\r\nD\r\n<tr><td>\r\n" +
                                      links + kEnd);
    // A sixth field is a line of the head, and a row that the theme opens is not opened twice.
    EXPECT_EQ(page("A^\r\nB^C^D<TR>^E^<style>\r\nx</style>^ami ut\xE1na"),
              Head("", "<style>\r\nx</style>\r\n") +
                  "</HEAD><BODY ><BR><BR>\r\n"
                  "A\r\n\r\nBProject5C\r\n</TD></TR>\r\n<TR><TD>\r\nD<TR>\r\n" +
                  links + kEnd);
}

TEST_F(ExportTest, AThemeWithoutFieldsKeepsTheDefaultsAndASeventhFieldIsAFault) {
    EXPECT_EQ(ApplyTheme(DefaultThemeParts(), "nincs benne jel"), DefaultThemeParts());
    EXPECT_EQ(ApplyTheme(DefaultThemeParts(), ""), DefaultThemeParts());
    Fragments one = DefaultThemeParts();
    one[0] = "A";
    EXPECT_EQ(ApplyTheme(DefaultThemeParts(), "A^B"), one);
    EXPECT_EQ(ApplyTheme(DefaultThemeParts(), "1^2^3^4^5^6^").size(), 6u);
    EXPECT_EQ(ApplyTheme(DefaultThemeParts(), "1^2^3^4^5^6^7").size(), 6u);
    EXPECT_THROW(ApplyTheme(DefaultThemeParts(), "1^2^3^4^5^6^7^"), RangeFault);
}

TEST_F(ExportTest, NothingOfAnEntryIsMarkup) {
    book.SetSiteName(book.IndexOf(2, 1), "\"><script>alert(1)</script> & 'x' \x84 \xA5");
    book.SetSiteURL(book.IndexOf(2, 1), "http://a.hu/\x96\xB9?q=1&copy=2 3\t\"'<>`");
    EXPECT_EQ(HtmlText(book.SiteNames(book.IndexOf(2, 1))),
              "&quot;&gt;&lt;script&gt;alert(1)&lt;/script&gt; &amp; 'x' &#8222; \xA1");
    EXPECT_EQ(HtmlAddress(book.SiteURLs(book.IndexOf(2, 1))),
              "http://a.hu/&#8211;\xB1?q=1&amp;copy=2&#32;3&#9;&quot;&#39;&lt;&gt;&#96;");
}

TEST_F(ExportTest, PlainTextIsWrittenAsItStandsAndTheRestAsReferences) {
    EXPECT_EQ(HtmlText(std::wstring_view(L"árvíztűrő ŐŰ")), "\xE1rv\xEDzt\xFBr\xF5 \xD5\xDB");
    EXPECT_EQ(HtmlText(std::wstring_view(L"Ω ☺ \x81\r\n")), "&#937; &#9786; \x81&#13;\n");
    const std::wstring smile =
        sizeof(wchar_t) == 2 ? L"\xD83D\xDE00" : std::wstring(1, static_cast<wchar_t>(0x1F600));
    EXPECT_EQ(HtmlText(std::wstring_view(smile)), "&#128512;");
    EXPECT_EQ(HtmlText(std::wstring_view(L"\xD83D", 1)), "&#65533;");
    EXPECT_EQ(HtmlAddress("http://a.hu/~x?y=z;k#v"), "http://a.hu/~x?y=z;k#v");
    EXPECT_EQ(HtmlFragment("<p title=\"a & b\">\xE1\x8A</p>"), "<p title=\"a & b\">\xE1\xA9</p>");
}

TEST_F(ExportTest, AQueryIsPercentEncodedBeyondAscii) {
    EXPECT_EQ(HtmlAddress("http://\xF5.hu/\xF5?\xF5=\x80&\xE1#\xF5?\xF5"),
              "http://\xF5.hu/\xF5?%C5%91=%E2%82%AC&amp;%C3%A1#\xF5?\xF5");
    EXPECT_EQ(HtmlAddress("#?\xF5"), "#?\xF5");
    EXPECT_EQ(HtmlAddress("?\xF5?\x81"), "?%C5%91?%C2%81");
    EXPECT_EQ(HtmlAddress("?%C5%91&a"), "?%C5%91&amp;a");  // what is encoded already stays
}

// Reads the references of an exported text as a browser does.
std::u32string Decoded(std::string_view html) {
    const std::map<std::string_view, char32_t> names = {
        {"amp", U'&'}, {"lt", U'<'}, {"gt", U'>'}, {"quot", U'"'}};
    std::u32string text;
    while (!html.empty()) {
        if (html.front() != '&') {
            text.push_back(Latin2Character(html.front()));
            html.remove_prefix(1);
            continue;
        }
        const std::string_view name = html.substr(1, html.find(';') - 1);
        text.push_back(name.front() == '#' ? static_cast<char32_t>(std::stoul(std::string(name.substr(1))))
                                           : names.at(name));
        html.remove_prefix(name.size() + 2);
    }
    return text;
}

std::string PercentDecoded(std::string text) {
    for (std::size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at + 1))
        text.replace(at, 3, 1, static_cast<char>(std::stoi(text.substr(at + 1, 2), nullptr, 16)));
    return text;
}

TEST_F(ExportTest, AnyTextComesBackFromThePage) {
    testing::Dice dice;
    for (int round = 0; round < 5000; ++round) {
        std::string text;
        std::u32string characters;
        for (std::size_t i = dice.Roll(60); i > 0; --i) {
            const auto byte = static_cast<char>(dice.Roll(256));
            if (byte == '%') continue;
            text.push_back(byte);
            characters.push_back(CharacterOf(byte));
        }
        EXPECT_EQ(Decoded(HtmlText(std::string_view(text))), characters);
        EXPECT_EQ(Decoded(HtmlText(std::wstring_view(FromBookText(text)))), characters);
        EXPECT_EQ(PercentDecoded(testing::Utf8(Decoded(HtmlAddress(text)))), testing::Utf8(characters));
        EXPECT_EQ(HtmlAddress(text).find_first_of(" \t\r\n\f\"'`<>"), std::string::npos);
    }
}

TEST_F(ExportTest, AShortcutFileHasTwoLinesAndNoEnd) {
    EXPECT_EQ(ShortcutFile("x"), "[InternetShortcut]\r\nURL=x");
    EXPECT_EQ(ShortcutFile(""), "[InternetShortcut]\r\nURL=");
}

TEST_F(ExportTest, FourCharactersAreReplacedInNames) {
    const auto made = [](auto make, std::string name) {
        make(name);
        return name;
    };
    EXPECT_EQ(made(MakeShortcutFileName, "a:b/c?d\\e*f\"<>|"), "a_b_c_d_e*f\"<>|");
    EXPECT_EQ(made(MakeShortcutFileName, std::string(254, 'n') + "::"), std::string(254, 'n') + "__");
    EXPECT_EQ(made(SafeFileName, std::string(254, 'n') + ":"), std::string(254, 'n') + "_");
    EXPECT_EQ(made(SafeFileName, std::string(300, 'n')), std::string(300, 'n'));
    std::string name = "a:" + std::string(253, 'n') + ":";
    const std::string before = name;
    EXPECT_THROW(SafeFileName(name), OverflowFault);
    EXPECT_EQ(name, before);
}

TEST_F(ExportTest, FolderNamesAreMadeSafe) {
    EXPECT_EQ(SafeFolderName("H\xEDrek"), "H\xEDrek");
    EXPECT_EQ(SafeFolderName("a\\b/c:d?e*f\"g<h>i|j\tk"), "a_b_c_d_e_f_g_h_i_j_k");
    EXPECT_EQ(SafeFolderName("vége."), "vége._");
    EXPECT_EQ(SafeFolderName("vége "), "vége _");
    EXPECT_EQ(SafeFolderName(".. "), ".. _");
    EXPECT_EQ(SafeFolderName("."), "._");
    EXPECT_EQ(SafeFolderName(" eleje .közepe"), " eleje .közepe");
    EXPECT_EQ(SafeFolderName(""), "");
}

TEST_F(ExportTest, FolderNamesAreNoDevices) {
    for (const std::string name : {"CON", "con", "PRN", "aux", "NUL", "COM0", "COM1", "com9", "LPT1", "Lpt9",
                                   "CONIN$", "conout$", "NUL "}) {
        EXPECT_EQ(SafeFolderName(name + ".1"), name + "_.1");
        EXPECT_EQ(SafeFolderName(name), name + "_");
    }
    EXPECT_EQ(SafeFolderName("NUL:"), "NUL_");
    EXPECT_EQ(SafeFolderName("nul.a."), "nul_.a._");
    for (const std::string name :
         {"CO", "CONN", "COM", "COM10", "COMA", "LPT", "NULL", " NUL", "a.NUL", "CONIN", "AUX_"})
        EXPECT_EQ(SafeFolderName(name), name);
}

TEST_F(ExportTest, TheDesktopsPathEndsAtTheFirstOtherCharacter) {
    const std::map<std::wstring, std::wstring> cases = {
        {L"C:\\users\\Pista\\Desktop", L"C:\\USERS\\PISTA\\DESKTOP"},
        {L"C:\\users\\Kis Pista\\Desktop", L"C:\\USERS\\KIS"},
        {L"C:\\users\\anna2\\Desktop", L"C:\\USERS\\ANNA"},
        {L"C:\\users\\a.b\\Desktop", L"C:\\USERS\\A"},
        {L"C:\\users\\Őri\\Asztal", L"C:\\USERS\\"},
        {L"C:\\Űr asztal", L"C:\\ŰR"},  // the first five may be anything
        {L"D:\\1 x", L"D:\\1 X"},
        {L"C:\\ab", L"C:\\AB"},
        {L"C:\\", L"C:\\"},
        {L"", L""},
    };
    for (const auto& [folder, path] : cases) EXPECT_EQ(DesktopPath(folder), path);
}

class FavoritesTest : public ExportTest {
  protected:
    std::map<std::string, std::string> Files() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
            if (entry.is_regular_file())
                files[entry.path().lexically_relative(folder).string()] = testing::ContentOf(entry.path());
        return files;
    }
    const testing::TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
};

TEST_F(FavoritesTest, AllFilesGoIntoOneFolderAndTheNamesIntoTheBook) {
    book.SetSiteName(book.IndexOf(2, 2), "a:b/c?d");
    Check(2, {1, 2});
    Check(5, {1});
    saveTo_fav(book, folder, false);
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{
                           {"Műsor.url", "[InternetShortcut]\r\nURL=http://musor.hu/"},
                           {"X.url", "[InternetShortcut]\r\nURL=x"},
                           {"a_b_c_d.url", "[InternetShortcut]\r\nURL=http://nem.hu"},
                       }));
    EXPECT_EQ(book.SiteNames(book.IndexOf(2, 2)), "a_b_c_d");
}

TEST_F(FavoritesTest, EachCategoryHasItsFolderAndFilesAreOverwritten) {
    book.SetCategoryName(5, "a/b");
    Check(2, {3});
    Check(5, {1});
    saveTo_fav(book, folder, true);
    book.SetSiteURL(book.IndexOf(5, 1), "y");
    saveTo_fav(book, folder, true);
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{
                           {"Hírek/Állat.url", "[InternetShortcut]\r\nURL=http://allat.hu/a.htm"},
                           {"a_b/X.url", "[InternetShortcut]\r\nURL=y"},
                       }));
}

TEST_F(FavoritesTest, ANameThatIsTooLongLeavesBookAndFolderAsTheyWere) {
    book.SetSiteName(book.IndexOf(2, 1), "a:b");
    book.SetSiteName(book.IndexOf(2, 2), std::string(255, 'n') + ":");
    Check(2, {1, 2});
    try {
        saveTo_fav(book, folder, false);
        FAIL();
    } catch (const FileFault& fault) {
        EXPECT_EQ(fault.Number(), 6);
        EXPECT_EQ(fault.Meaning(), L"Túlcsordulás");
        EXPECT_EQ(fault.Path(), WideText(folder) + L"/" + std::wstring(255, L'n') + L":.url");
    }
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{}));
    EXPECT_EQ(book.SiteNames(book.IndexOf(2, 1)), "a:b");
}

TEST_F(FavoritesTest, AFolderThatIsNotThereLeavesTheBookAsItWas) {
    book.SetSiteName(book.IndexOf(2, 1), "a:b");
    Check(2, {1});
    EXPECT_THROW(saveTo_fav(book, folder / "nincs", false), FileFault);
    EXPECT_THROW(saveTo_fav(book, folder / "nincs", true), FileFault);
    EXPECT_EQ(book.SiteNames(book.IndexOf(2, 1)), "a:b");
}

}  // namespace
}  // namespace lindrel
