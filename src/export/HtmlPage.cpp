#include "export/HtmlPage.h"

#include <cstddef>
#include <initializer_list>

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
constexpr std::string_view kOpenRow = "<tr><td>";

bool ContainsRow(std::string_view fragment) {
    return CaselessNeedle("<tr>").IsIn(fragment);
}

class PageWriter {
  public:
    PageWriter(const Book& book, const PageStyle& style, const ByteSink& out)
        : book_(book), style_(style), out_(out) {
        for (const std::string& part : style.ThemeParts) AppendHtmlFragment(parts_.emplace_back(), part);
        // WriteCategory() opens a row too. Exported pages have always had both.
        std::string& open_inner = parts_.at(kOpenInnerTable);
        if (!ContainsRow(open_inner)) open_inner.append("\r\n").append(kOpenRow);
    }

    void Write() {
        WriteHead();
        Line({parts_.at(kOpenTable)});
        for (int c = 1; c <= kCategories; ++c)
            if (IsExported(book_, c)) WriteCategory(c);
        Text({"</TABLE><BR><BR><BR></BODY></HTML>"});
        HandOut();
    }

  private:
    void Text(std::initializer_list<std::string_view> pieces) {
        for (const std::string_view piece : pieces) page_.append(piece);
    }
    void Line(std::initializer_list<std::string_view> pieces) {
        Text(pieces);
        page_.append("\r\n");
    }
    void HandOut() {
        out_(page_);
        page_.clear();
    }

    void WriteHead() {
        // Programs that read exported pages know this head by its single slashes, missing quotation marks and
        // mixed case.
        Line({R"(<!DOCTYPE HTML PUBLIC "-/W3C/DTD HTML 4.0 Transitional/EN">)"});
        Line({"<html><head>"});
        if (parts_.size() > kHeadLine) Line({parts_[kHeadLine]});
        page_.append("<TITLE>");
        AppendHtmlText(page_, style_.Title).append("</TITLE>\r\n");
        Line({"<meta http-equiv=Content-Type content=text/html; charset=iso-8859-2>"});
        Line({R"(<META NAME="GENERATOR" content="Lindrel - )" LINDREL_HOME_PAGE R"(">)"});
        if (!style_.ThemeApplied) Line({R"(<BASEFONT FACE="Arial,Helvetica">)"});
        Text({"</HEAD><BODY "});
        if (!style_.ThemeApplied)
            Text({"BGCOLOR=", style_.Background, R"( link="#725E50" vlink="#990000" alink="#ff0000" text=)",
                  style_.Text});
        Line({"><BR><BR>"});
    }

    void WriteCategory(int category) {
        page_.append(parts_.at(kBeforeName));
        AppendHtmlText(page_, book_.CategoryNames(category)).append(parts_.at(kAfterName)).append("\r\n");
        Line({"</TD></TR>"});
        Line({"<TR><TD>"});
        Line({parts_.at(kOpenInnerTable), "\r\n", kOpenRow});
        for (const int e : ExportedEntries(book_, category)) {
            const AddressEntry& entry = book_.Entry(e);
            page_.append("<A HREF=");
            AppendHtmlAddress(page_, entry.URL).append(">");
            AppendHtmlText(page_, entry.SiteName).append("</A><BR>\r\n");
            if (page_.size() >= kGoodPiece) HandOut();
        }
        Line({parts_.at(kBeforeClosing), "</td></tr></table></TD></TR>"});
        HandOut();
    }

    const Book& book_;
    const PageStyle& style_;
    const ByteSink& out_;
    Fragments parts_;
    std::string page_;  // what has not been handed out yet
};

}  // namespace

Fragments DefaultThemeParts() {
    return {
        "<table border=0 cellspacing=0 cellpadding=1 bgcolor=#155BBB>",
        R"(<tr><td bgcolor=#655BBB><font color=#FFFFFF size=1 face="verdana,arial, helvetica"><b>)",
        "<B></FONT>",  // not </B>: exported pages have always been bold from here on
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

void WriteHtmlPage(const Book& book, const PageStyle& style, const ByteSink& out) {
    PageWriter(book, style, out).Write();
}

}  // namespace lindrel
