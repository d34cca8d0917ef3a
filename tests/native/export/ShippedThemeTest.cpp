// The themes that come with the program.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "book/Book.h"
#include "export/HtmlPage.h"
#include "tests/native/export/Browser.h"
#include "tests/native/export/HostilePage.h"
#include "tests/native/support/TemporaryFolder.h"

namespace lindrel::testing {
namespace {

std::filesystem::path StylesFolder() {
    return std::filesystem::path(LINDREL_SOURCE_DIR) / "styles";
}

std::vector<std::string> ThemeNames() {
    std::vector<std::string> names;
    for (const auto& file : std::filesystem::directory_iterator(StylesFolder()))
        if (file.path().extension() == ".aut") names.push_back(file.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

class ShippedThemeTest : public ::testing::TestWithParam<std::string> {
  protected:
    static PageStyle Style() {
        PageStyle style;
        style.ThemeParts = ApplyTheme(style.ThemeParts, ContentOf(StylesFolder() / (GetParam() + ".aut")));
        style.ThemeApplied = true;
        return style;
    }
};

TEST_P(ShippedThemeTest, HoldsTheLinksAndRunsNothing) {
    ExpectHarmless(Style());
}

TEST_P(ShippedThemeTest, IsReadInItsCharset) {
    // Browsers look for it in the first kilobyte of a page only; the style sheet is longer.
    const std::string page = PageOf("Zene", PlainEntries(1), Style(), L"c\x151m");
    const std::size_t declared = page.find("<html><head>\r\n<meta charset=\"iso-8859-2\">");
    EXPECT_LT(declared, 1000u);
    EXPECT_GT(page.find("charset=iso-8859-2"), 1024u);
    EXPECT_EQ(OpenInBrowser(page).Charset, "ISO-8859-2");
}

TEST_P(ShippedThemeTest, GivesAllSixFragmentsForAPhoneToo) {
    const Fragments parts = Style().ThemeParts;
    ASSERT_EQ(parts.size(), 6u);
    EXPECT_NE(parts[5].find("<html lang=\"hu\">"), std::string::npos);
    EXPECT_NE(parts[5].find("<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">"),
              std::string::npos);
    // ASCII looks the same in an editor with any encoding.
    for (const std::string& part : parts)
        EXPECT_TRUE(std::all_of(part.begin(), part.end(), [](char byte) { return byte > 0; }));
}

TEST(ShippedThemesTest, ThereAreALightADarkAPrintableAClassicAndAColourfulOne) {
    EXPECT_EQ(ThemeNames(),
              (std::vector<std::string>{"klasszikus", "nyomtathato", "sotet", "szines", "vilagos"}));
}

INSTANTIATE_TEST_SUITE_P(Styles, ShippedThemeTest, ::testing::ValuesIn(ThemeNames()),
                         [](const auto& instance) { return instance.param; });

}  // namespace
}  // namespace lindrel::testing
