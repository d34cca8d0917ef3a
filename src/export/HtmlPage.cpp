#include "export/HtmlPage.h"

#include <cstddef>

#include "Version.h"
#include "book/PerCategory.h"
#include "export/ExportedEntries.h"
#include "export/HtmlText.h"
#include "faults/Faults.h"
#include "text/BookText.h"

namespace lindrel {

namespace {

enum FragmentIndex : std::size_t {
    kOpenTable,
    kBeforeName,
    kAfterName,
    kOpenInnerTable,
    kBeforeClosing,
    kHeadLine
};
constexpr std::size_t kMostFragments = kHeadLine + 1;

// Single slashes, missing quotation marks and mixed case are on purpose: programs that read exported pages
// recognise this head.
std::string Head(const PageStyle& style, const Fragments& parts) {
    std::string head = "<!DOCTYPE HTML PUBLIC \"-/W3C/DTD HTML 4.0 Transitional/EN\">\r\n<html><head>\r\n";
    if (parts.size() > kHeadLine) head += parts[kHeadLine] + "\r\n";
    head += "<TITLE>" + HtmlText(style.Title) +
            "</TITLE>\r\n"
            "<meta http-equiv=Content-Type content=text/html; charset=iso-8859-2>\r\n"
            "<META NAME=\"GENERATOR\" content=\"Lindrel - " LINDREL_HOME_PAGE "\">\r\n";
    if (!style.ThemeApplied) head += "<BASEFONT FACE=\"Arial,Helvetica\">\r\n";
    head += "</HEAD><BODY ";
    if (!style.ThemeApplied)
        head += "BGCOLOR=" + style.Background + R"( link="#725E50" vlink="#990000" alink="#ff0000" text=)" +
                style.Text;
    return head + "><BR><BR>\r\n";
}

void AppendCategory(std::string& page, const Book& book, int category, const Fragments& parts) {
    page += parts.at(kBeforeName) + HtmlText(book.CategoryNames(category)) + parts.at(kAfterName) + "\r\n";
    page += "</TD></TR>\r\n<TR><TD>\r\n" + parts.at(kOpenInnerTable) + "\r\n<tr><td>\r\n";
    for (const int e : ExportedEntries(book, category)) {
        const AddressEntry& entry = book.Entry(e);
        page.append("<A HREF=").append(HtmlAddress(entry.URL)).append(">");
        page.append(HtmlText(entry.SiteName)).append("</A><BR>\r\n");
    }
    page += parts.at(kBeforeClosing) + "</td></tr></table></TD></TR>\r\n";
}

}  // namespace

Fragments DefaultThemeParts() {
    return {
        "<table border=0 cellspacing=0 cellpadding=1 bgcolor=#155BBB>",
        R"(<tr><td bgcolor=#655BBB><font color=#FFFFFF size=1 face="verdana,arial, helvetica"><b>)",
        "<B></FONT>",  // not </B>: exported pages have always stayed bold
        R"(<table width=100% bgcolor="FFFFFF" cellpadding=5 cellspacing=0 border=0>)",
        "",
    };
}

Fragments ApplyTheme(Fragments parts, std::string_view theme_file) {
    std::size_t field = 0;
    for (std::size_t end = theme_file.find('^'); end != std::string_view::npos; end = theme_file.find('^')) {
        if (field == kMostFragments) throw RangeFault();
        if (field == parts.size()) parts.emplace_back();
        parts.at(field) = theme_file.substr(0, end);
        theme_file.remove_prefix(end + 1);
        ++field;
    }
    return parts;
}

std::string HtmlPageOf(const Book& book, const PageStyle& style) {
    Fragments parts;
    for (const std::string& part : style.ThemeParts) parts.push_back(HtmlFragment(part));
    // AppendCategory() opens the same row again, as exported pages have always had it.
    std::string& open_inner = parts.at(kOpenInnerTable);
    if (!CaselessNeedle("<tr>").IsIn(open_inner)) open_inner += "\r\n<tr><td>";

    std::string page = Head(style, parts) + parts.at(kOpenTable) + "\r\n";
    for (int c = 1; c <= kCategories; ++c)
        if (IsExported(book, c)) AppendCategory(page, book, c, parts);
    page += "</TABLE><BR><BR><BR></BODY></HTML>";
    return page;
}

}  // namespace lindrel
