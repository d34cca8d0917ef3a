// Exported pages in a real browser: they hold the exported links, exactly, and run nothing.

#include <gtest/gtest.h>

#include <algorithm>

#include "book/BookText.h"
#include "export/HtmlPage.h"
#include "tests/native/export/Browser.h"

namespace lindrel::testing {
namespace {

// UTF-8 of a character, percent-encoded unless encodeURIComponent leaves it alone.
std::string Encoded(char32_t character) {
    constexpr std::string_view kPlain =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.!~*'()";
    if (character < 0x80 && kPlain.find(static_cast<char>(character)) != std::string_view::npos)
        return {static_cast<char>(character)};
    std::string encoded;
    for (const char8_t unit : std::filesystem::path(std::u32string(1, character)).u8string()) {
        std::array<char, 4> hex{};
        std::snprintf(hex.data(), hex.size(), "%%%02X", static_cast<unsigned>(unit));
        encoded += hex.data();
    }
    return encoded;
}

std::string Encoded(std::string_view book_text) {
    std::string encoded;
    for (const char byte : book_text) encoded += Encoded(CharacterOf(byte));
    return encoded;
}

std::string EveryCharacter() {
    std::string all;
    for (int number = 1; number < 256; ++number) all += static_cast<char>(number);
    return all;
}

std::vector<NewEntry> HostileEntries() {
    return {
        {"\"><script>window.ran = 1</script>", "\"><script>window.ran = 2</script>"},
        {"<img src=x onerror='window.ran = 3'>", "x onmouseover=window.ran=4 style=position:fixed"},
        {"</A></TITLE></td></table><svg onload=window.ran=5>", "' autofocus onfocus='window.ran = 6"},
        {"<!-- <plaintext> ]]> &copy= &lt; &#65; &amp;", "http://a.hu/?a=1&copy=2&lt=3&#65;&amp;&nosuch;"},
        {"  k\xE9t  sz\xF3k\xF6z  ", "http://a.hu/k\xE9t sz\xF3k\xF6z\tvagy\"id\xE9zet'"},
        {"`>=", "=`>x"},
        {"/", "http://a.hu/"},
        {"javascript", "javascript:window.ran=7"},
        {"", ""},
        {EveryCharacter(), EveryCharacter()},
    };
}

std::vector<NewEntry> PlainEntries(std::size_t count) {
    return std::vector<NewEntry>(count, NewEntry{"n\xE9v", "http://nev.hu"});
}

std::vector<std::string> LinksOf(const std::vector<NewEntry>& entries) {
    std::vector<std::string> links;
    for (const NewEntry& entry : entries) links.push_back(Encoded(entry.URL) + ',' + Encoded(entry.SiteName));
    return links;
}

std::string PageOf(const std::string& category, const std::vector<NewEntry>& entries, PageStyle style,
                   const std::wstring& title) {
    Book book;
    book.SetCategoryName(3, category);
    book.NewEntries = entries;
    book.AddEntry(3);
    // An entry that is not checked must not be on the page.
    book.NewEntries = {{"nincs kijel\xF6lve", "http://nem.hu"}};
    book.AddEntry(3);
    book.SavedCheckCounts(3) = static_cast<std::int16_t>(entries.size());
    for (std::int16_t position = 1; position <= book.SavedCheckCounts(3); ++position)
        book.SavedCheckLists(3).push_back(position);
    style.Title = title;
    std::string page;
    WriteHtmlPage(book, style, [&](std::string_view bytes) { page.append(bytes); });
    return page;
}

PageStyle DefaultStyle() {
    PageStyle style;
    style.Background = "white";
    style.Text = "black";
    return style;
}

constexpr char kHostileCategory[] = "<B></FONT><script>window.ran = 8</script>";
constexpr wchar_t kHostileTitle[] = L"</TITLE><script>window.ran = 9</script>";

void ExpectHarmless(const PageInBrowser& page, const PageInBrowser& plain) {
    EXPECT_EQ(page.Links, LinksOf(HostileEntries()));
    EXPECT_EQ(page.Title, Encoded("</TITLE><script>window.ran = 9</script>"));
    EXPECT_EQ(page.Elements, plain.Elements);
    EXPECT_EQ(page.Elements.find("SCRIPT"), std::string::npos);
    EXPECT_EQ(page.Handlers, "");
    EXPECT_EQ(page.Ran, "undefined");
}

TEST(PageInBrowserTest, TheProbeSeesWhatGetsThrough) {
    const PageInBrowser page =
        Browser().Open("<title>c</title><a href=x>y</a><b onclick=z></b><script>window.ran = 1</script>");
    EXPECT_EQ(page.Title, "c");
    EXPECT_EQ(page.Links, std::vector<std::string>{"x,y"});
    EXPECT_EQ(page.Elements, "A 1 B 1 BODY 1 HEAD 1 HTML 1 SCRIPT 1 TITLE 1");
    EXPECT_EQ(page.Handlers, "onclick");
    EXPECT_EQ(page.Ran, "1");
}

TEST(PageInBrowserTest, ThePageWithoutAThemeHoldsTheLinksAndRunsNothing) {
    const Browser browser;
    const std::vector<NewEntry> hostile = HostileEntries();
    ExpectHarmless(browser.Open(PageOf(kHostileCategory, hostile, DefaultStyle(), kHostileTitle)),
                   browser.Open(PageOf("Zene", PlainEntries(hostile.size()), DefaultStyle(), L"c\x151m")));
}

// The themes that are shipped, each with its own name in CTest.
class ShippedThemeTest : public ::testing::TestWithParam<std::string> {
  protected:
    static std::filesystem::path Folder() { return std::filesystem::path(LINDREL_SOURCE_DIR) / "styles"; }
    static PageStyle Style() {
        const std::vector<char> bytes = ReadFileBytes(Folder() / (GetParam() + ".aut"));
        PageStyle style;
        style.ThemeParts = ApplyTheme(style.ThemeParts, {bytes.data(), bytes.size()});
        style.ThemeApplied = true;
        return style;
    }
};

TEST_P(ShippedThemeTest, HoldsTheLinksAndRunsNothing) {
    const Browser browser;
    const std::vector<NewEntry> hostile = HostileEntries();
    ExpectHarmless(browser.Open(PageOf(kHostileCategory, hostile, Style(), kHostileTitle)),
                   browser.Open(PageOf("Zene", PlainEntries(hostile.size()), Style(), L"c\x151m")));
}

TEST_P(ShippedThemeTest, GivesAllSixFragmentsForAPhoneToo) {
    const Fragments parts = Style().ThemeParts;
    ASSERT_EQ(parts.size(), 6u);
    EXPECT_NE(parts[5].find("<html lang=\"hu\">"), std::string::npos);
    EXPECT_NE(parts[5].find("<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">"),
              std::string::npos);
    // Plain ASCII reads the same in every encoding of an editor.
    for (const std::string& part : parts)
        EXPECT_TRUE(std::all_of(part.begin(), part.end(), [](char byte) { return byte > 0; }));
}

INSTANTIATE_TEST_SUITE_P(Styles, ShippedThemeTest,
                         ::testing::Values("vilagos", "sotet", "nyomtathato", "klasszikus", "szines"),
                         [](const auto& instance) { return instance.param; });

TEST(ShippedThemesTest, EveryThemeIsTested) {
    std::vector<std::string> names;
    for (const auto& file :
         std::filesystem::directory_iterator(std::filesystem::path(LINDREL_SOURCE_DIR) / "styles"))
        if (file.path().extension() == ".aut") names.push_back(file.path().stem().string());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"klasszikus", "nyomtathato", "sotet", "szines", "vilagos"}));
}

}  // namespace
}  // namespace lindrel::testing
