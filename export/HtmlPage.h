// The export as a web page, and the theme files that change its look.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "book/Book.h"
#include "book/OutputFile.h"

namespace lindrel {

// HTML fragments of the page, book text, passed through as they stand:
//   0  opens the outer table           3  opens a category's inner table
//   1  before a category's name        4  before a category's closing tags
//   2  after it                        5  one more line in the head (themes only)
using Fragments = std::vector<std::string>;

// The five fragments of a page without a theme.
Fragments DefaultThemeParts();

// The fragments with those of a theme file in the place of theirs. A file is cut at each "^"; what stands
// behind the last "^" is no field. Throws RangeFault for more than six fields.
Fragments ApplyTheme(Fragments parts, std::string_view theme_file);

// The rest of a page's look.
struct PageStyle {
    std::wstring Title;
    std::string Background;  // colour words of the body tag, for a page without a theme
    std::string Text;
    Fragments ThemeParts = DefaultThemeParts();
    bool ThemeApplied = false;  // leaves out the built-in font and colours
};

// Writes the checked entries in ISO 8859-2, with character references for what that lacks. Names, title and
// addresses are escaped, so that no entry can be markup.
void WriteHtmlPage(const Book& book, const PageStyle& style, const ByteSink& out);

}  // namespace lindrel
