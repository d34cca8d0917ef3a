// In a real browser, exported pages have exactly the exported links and run no scripts.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "book/Book.h"
#include "tests/native/export/Browser.h"
#include "tests/native/export/HostilePage.h"

namespace lindrel::testing {
namespace {

TEST(PageInBrowserTest, TheProbeSeesWhatGetsThrough) {
    const PageInBrowser page =
        OpenInBrowser("<title>c</title><a href=x>y</a><b onclick=z></b><script>window.ran = 1</script>");
    EXPECT_EQ(page.Title, "c");
    EXPECT_EQ(page.Links, std::vector<std::string>{"x,y"});
    EXPECT_EQ(page.Elements, "A 1 B 1 BODY 1 HEAD 1 HTML 1 SCRIPT 1 TITLE 1");
    EXPECT_EQ(page.Handlers, "onclick");
    EXPECT_EQ(page.Ran, "1");
}

TEST(PageInBrowserTest, ThePageWithoutAThemeHoldsTheLinksAndRunsNothing) {
    PageStyle style;
    style.Background = "white";
    style.Text = "black";
    ExpectHarmless(style);
}

TEST(PageInBrowserTest, LinksLeadWhereTheirAddressesSay) {
    const std::vector<NewEntry> entries = {
        {"n", "http://a.hu/\xF5?q=\xF5 \x80&\xE1=%C5%91#\xF5"},
        {"n", "mailto:ki@a.hu?subject=\xDBr"},
        {"n", "http://a.hu/?\xA5?'`"},
    };
    const PageInBrowser page = OpenInBrowser(PageOf("Zene", entries, PageStyle(), L"c"));
    EXPECT_EQ(page.Charset, "ISO-8859-2");
    EXPECT_EQ(page.Targets, (std::vector<std::string>{
                                Encoded("http://a.hu/%C5%91?q=%C5%91%20%E2%82%AC&%C3%A1=%C5%91#%C5%91"),
                                Encoded("mailto:ki@a.hu?subject=%C5%B0r"),
                                Encoded("http://a.hu/?%C4%84?%27`"),
                            }));
}

}  // namespace
}  // namespace lindrel::testing
