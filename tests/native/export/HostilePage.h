// A page whose names, addresses and title try to become markup, and how a browser must show it.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "book/Book.h"
#include "export/HtmlPage.h"
#include "tests/native/export/Browser.h"
#include "text/BookText.h"

namespace lindrel::testing {

// A character as encodeURIComponent writes it.
inline std::string Encoded(char32_t character) {
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

inline std::string Encoded(std::string_view book_text) {
    std::string encoded;
    for (const char byte : book_text) encoded += Encoded(CharacterOf(byte));
    return encoded;
}

inline std::string EveryCharacter() {
    std::string all;
    for (int number = 1; number < 256; ++number) all += static_cast<char>(number);
    return all;
}

inline std::vector<NewEntry> HostileEntries() {
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

inline std::vector<NewEntry> PlainEntries(std::size_t count) {
    return std::vector<NewEntry>(count, NewEntry{"n\xE9v", "http://nev.hu"});
}

inline std::vector<std::string> LinksOf(const std::vector<NewEntry>& entries) {
    std::vector<std::string> links;
    for (const NewEntry& entry : entries) links.push_back(Encoded(entry.URL) + ',' + Encoded(entry.SiteName));
    return links;
}

inline std::string PageOf(const std::string& category, const std::vector<NewEntry>& entries, PageStyle style,
                          const std::wstring& title) {
    Book book;
    book.SetCategoryName(3, category);
    book.AddEntry(3, entries);
    // An entry that is not checked must not be on the page.
    book.AddEntry(3, {{"nincs kijel\xF6lve", "http://nem.hu"}});
    for (int position = 1; position <= static_cast<int>(entries.size()); ++position)
        book.Marks.SaveOneMore(3, position);
    style.Title = title;
    return HtmlPageOf(book, style);
}

// Whatever the names, addresses and the title of a page say, a browser must find the same elements as on a
// harmless page, the links as they are in the book, and nothing to run.
inline void ExpectHarmless(const PageStyle& style) {
    const std::vector<NewEntry> hostile = HostileEntries();
    const PageInBrowser page = OpenInBrowser(PageOf("<B></FONT><script>window.ran = 8</script>", hostile,
                                                    style, L"</TITLE><script>window.ran = 9</script>"));
    const PageInBrowser plain =
        OpenInBrowser(PageOf("Zene", PlainEntries(hostile.size()), style, L"c\x151m"));
    EXPECT_EQ(page.Links, LinksOf(hostile));
    EXPECT_EQ(page.Title, Encoded("</TITLE><script>window.ran = 9</script>"));
    EXPECT_EQ(page.Elements, plain.Elements);
    EXPECT_EQ(page.Elements.find("SCRIPT"), std::string::npos);
    EXPECT_EQ(page.Handlers, "");
    EXPECT_EQ(page.Ran, "undefined");
}

}  // namespace lindrel::testing
