// Exported pages in a real browser have exactly the exported links and run no scripts.

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

}  // namespace
}  // namespace lindrel::testing
