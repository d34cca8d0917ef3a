// Takes bytes as a theme file, a title, names and addresses, and compares the page with that of a second,
// plain writer.

#include <iconv.h>

#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "Version.h"
#include "book/Book.h"
#include "book/PerCategory.h"
#include "export/HtmlPage.h"
#include "fuzz/PlainText.h"
#include "text/BookText.h"

namespace lindrel::fuzz {
namespace {

// Up to the next NUL.
std::string NextPiece(const std::string& input, std::size_t& offset) {
    std::string piece;
    while (offset < input.size() && input[offset] != '\0') piece.push_back(input[offset++]);
    ++offset;
    return piece;
}

// All of them are checked. Entry i is in category 1, 6, 11, 4, ...
struct PlainEntries {
    std::string Title;
    std::vector<NewEntry> Of[kCategories + 1];
};

PlainEntries EntriesFrom(const std::string& input, std::size_t offset) {
    PlainEntries plain;
    plain.Title = NextPiece(input, offset);
    for (std::size_t i = 0; offset < input.size(); ++i) {
        NewEntry entry;
        entry.SiteName = NextPiece(input, offset);
        // Without queries, which are encoded differently.
        for (const char byte : NextPiece(input, offset))
            if (byte != '?') entry.URL.push_back(byte);
        plain.Of[i * 5 % kCategories + 1].push_back(entry);
    }
    return plain;
}

// By the tables of the C library; empty if a character cannot be converted.
std::string Converted(const char* to, const char* from, std::string text) {
    const iconv_t table = iconv_open(to, from);
    Require(table != iconv_t(-1));
    char bytes[8];
    char* in = text.data();
    char* out = bytes;
    std::size_t left = text.size();
    std::size_t room = sizeof bytes;
    const bool good = iconv(table, &in, &left, &out, &room) == 0;
    iconv_close(table);
    return good ? std::string(bytes, out) : std::string();
}

std::string InPage(char byte) {
    std::string character = Converted("UCS-4LE", "CP1250", {byte});
    // The five bytes that the code page does not use keep their numbers.
    if (character.empty()) character = {byte, '\0', '\0', '\0'};
    const std::string latin2 = Converted("ISO-8859-2", "UCS-4LE", character);
    if (!latin2.empty()) return latin2;
    std::uint32_t number = 0;
    std::memcpy(&number, character.data(), sizeof number);
    return "&#" + std::to_string(number) + ";";
}

const std::string& Plain(char byte) {
    static const std::vector<std::string> all = [] {
        std::vector<std::string> encoded;
        for (int number = 0; number < 256; ++number) encoded.push_back(InPage(static_cast<char>(number)));
        return encoded;
    }();
    return all[static_cast<unsigned char>(byte)];
}

std::string Fragment(const std::string& text) {
    std::string html;
    for (const char byte : text) html += Plain(byte);
    return html;
}

// `numbered`: the characters that are written as their numbers.
std::string Escaped(const std::string& text, const std::string& numbered) {
    static const std::map<char, std::string> names{
        {'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}};
    std::string html;
    for (const char byte : text) {
        if (const auto name = names.find(byte); name != names.end())
            html += name->second;
        else if (numbered.find(byte) != std::string::npos)
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
    if (Lower(parts[3]).find("<tr>") == std::string::npos) parts[3] += n + "<tr><td>";
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
}  // namespace lindrel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace lindrel;
    using namespace lindrel::fuzz;
    const std::string input(data, data + size);
    std::size_t offset = 0;
    const std::string theme = NextPiece(input, offset);
    const PlainEntries entries = EntriesFrom(input, offset);
    const std::vector<std::string> parts = PlainParts(theme);
    PageStyle style;
    style.Title = FromBookText(entries.Title);
    style.ThemeApplied = true;
    style.ThemeParts = Outcome([&] { return ApplyTheme(DefaultThemeParts(), theme); }).first;
    Require(style.ThemeParts == parts);
    if (!parts.empty()) Require(RealPage(style, entries) == PlainPage(parts, entries));
    return 0;
}
