// Takes any bytes as a theme file, and more of them as title, names and addresses, and compares the page with
// that of a second writer, which is written to be simple.

#include <cstdlib>
#include <string>
#include <vector>

#include "Version.h"
#include "book/Book.h"
#include "book/PerCategory.h"
#include "export/HtmlPage.h"
#include "faults/Faults.h"
#include "text/BookText.h"
#include "text/Latin2.h"

namespace lindrel {
namespace {

void Require(bool good) {
    if (!good) std::abort();
}

// What a NUL ends.
std::string NextPiece(const std::string& input, std::size_t& place) {
    std::string piece;
    while (place < input.size() && input[place] != '\0') piece.push_back(input[place++]);
    ++place;
    return piece;
}

// Everything is checked. Entry i lies in category 1, 6, 11, 4, ...
struct PlainEntries {
    std::string Title;
    std::vector<NewEntry> Of[kCategories + 1];
};

PlainEntries EntriesFrom(const std::string& input, std::size_t place) {
    PlainEntries plain;
    plain.Title = NextPiece(input, place);
    for (std::size_t i = 0; place < input.size(); ++i) {
        NewEntry entry;
        entry.SiteName = NextPiece(input, place);
        // Queries are encoded in a way of their own.
        for (const char byte : NextPiece(input, place))
            if (byte != '?') entry.URL.push_back(byte);
        plain.Of[i * 5 % kCategories + 1].push_back(entry);
    }
    return plain;
}

std::string InLatin2(char byte) {
    const char32_t character = CharacterOf(byte);
    for (int number = 0; number < 256; ++number)
        if (Latin2Character(static_cast<char>(number)) == character)
            return std::string(1, static_cast<char>(number));
    return "&#" + std::to_string(static_cast<unsigned>(character)) + ";";
}

const std::string& Plain(char byte) {
    static const std::vector<std::string> all = [] {
        std::vector<std::string> encoded;
        for (int number = 0; number < 256; ++number) encoded.push_back(InLatin2(static_cast<char>(number)));
        return encoded;
    }();
    return all[static_cast<unsigned char>(byte)];
}

std::string Fragment(const std::string& text) {
    std::string html;
    for (const char byte : text) html += Plain(byte);
    return html;
}

// `reference`: the characters that are written as numbers.
std::string Escaped(const std::string& text, const std::string& reference) {
    std::string html;
    for (const char byte : text) {
        if (byte == '&')
            html += "&amp;";
        else if (byte == '<')
            html += "&lt;";
        else if (byte == '>')
            html += "&gt;";
        else if (byte == '"')
            html += "&quot;";
        else if (reference.find(byte) != std::string::npos)
            html += "&#" + std::to_string(static_cast<int>(byte)) + ";";
        else
            html += Plain(byte);
    }
    return html;
}

std::string Text(const std::string& text) {
    return Escaped(text, "\r");
}

// Empty when there are more than six.
std::vector<std::string> PlainParts(const std::string& theme) {
    std::vector<std::string> parts = {
        "<table border=0 cellspacing=0 cellpadding=1 bgcolor=#155BBB>",
        "<tr><td bgcolor=#655BBB><font color=#FFFFFF size=1 face=\"verdana,arial, helvetica\"><b>",
        "<B></FONT>", "<table width=100% bgcolor=\"FFFFFF\" cellpadding=5 cellspacing=0 border=0>", ""};
    std::string field;
    std::size_t fields = 0;
    for (const char byte : theme) {
        if (byte != '^') {
            field.push_back(byte);
            continue;
        }
        if (fields == 6) return {};
        parts.resize(fields == 5 ? 6 : parts.size());
        parts[fields++] = field;
        field.clear();
    }
    return parts;
}

std::string PlainPage(std::vector<std::string> parts, const PlainEntries& entries) {
    const std::string n = "\r\n";
    if (LowerCase(parts[3]).find("<tr>") == std::string::npos) parts[3] += n + "<tr><td>";
    for (std::string& part : parts) part = Fragment(part);
    std::string page = "<!DOCTYPE HTML PUBLIC \"-/W3C/DTD HTML 4.0 Transitional/EN\">\r\n<html><head>\r\n";
    if (parts.size() == 6) page += parts[5] + n;
    page += "<TITLE>" + Text(entries.Title) + "</TITLE>" + n;
    page += "<meta http-equiv=Content-Type content=text/html; charset=iso-8859-2>" + n;
    page += "<META NAME=\"GENERATOR\" content=\"Lindrel - " LINDREL_HOME_PAGE "\">" + n;
    page += "</HEAD><BODY ><BR><BR>" + n + parts[0] + n;
    for (int k = 1; k <= kCategories; ++k) {
        if (entries.Of[k].empty()) continue;
        page += parts[1] + "Project" + std::to_string(k) + parts[2] + n;
        page += "</TD></TR>" + n + "<TR><TD>" + n + parts[3] + n + "<tr><td>" + n;
        for (const NewEntry& entry : entries.Of[k])
            page +=
                "<A HREF=" + Escaped(entry.URL, " \t\r\n\f'`") + ">" + Text(entry.SiteName) + "</A><BR>" + n;
        page += parts[4] + "</td></tr></table></TD></TR>" + n;
    }
    return page + "</TABLE><BR><BR><BR></BODY></HTML>";
}

std::string RealPage(const PageStyle& style, const PlainEntries& entries) {
    Book book;
    for (int k = 1; k <= kCategories; ++k) {
        book.AddEntry(k, entries.Of[k]);
        for (int position = 1; position <= book.CategoryCounts(k); ++position)
            book.Marks.SaveOneMore(k, position);
    }
    return HtmlPageOf(book, style);
}

}  // namespace
}  // namespace lindrel

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace lindrel;
    const std::string input(data, data + size);
    std::size_t place = 0;
    const std::string theme = NextPiece(input, place);
    const PlainEntries entries = EntriesFrom(input, place);
    const std::vector<std::string> parts = PlainParts(theme);
    PageStyle style;
    style.Title = FromBookText(entries.Title);
    style.ThemeApplied = true;
    try {
        style.ThemeParts = ApplyTheme(DefaultThemeParts(), theme);
    } catch (const RangeFault&) {
        Require(parts.empty());
        return 0;
    }
    Require(style.ThemeParts == parts);
    Require(RealPage(style, entries) == PlainPage(parts, entries));
    return 0;
}
