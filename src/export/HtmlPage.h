// Export to a web page, and the theme files that change its look.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "book/Book.h"

namespace lindrel {

// HTML fragments of the page, as book text that is not escaped:
//   0  opens the outer table           3  opens a category's inner table
//   1  before a category's name        4  before a category's closing tags
//   2  after it                        5  one more line in the head (themes only)
using Fragments = std::vector<std::string>;

// The five fragments of a page without a theme.
Fragments DefaultThemeParts();

// Replaces fragments by the fields of a theme file, each of which ends with a "^". Text after the last "^" is
// ignored. Throws RangeFault for more than six fields.
Fragments ApplyTheme(Fragments parts, std::string_view theme_file);

// The look of a page.
struct PageStyle {
    std::wstring Title;
    std::string Background;  // colours of the body tag, for a page without a theme
    std::string Text;
    Fragments ThemeParts = DefaultThemeParts();
    bool ThemeApplied = false;  // leaves out the built-in font and colours
};

// The page with the checked entries, in ISO 8859-2 with references for other characters. Names, addresses and
// the title are escaped, so that none of them can become markup.
std::string HtmlPageOf(const Book& book, const PageStyle& style);

}  // namespace lindrel
