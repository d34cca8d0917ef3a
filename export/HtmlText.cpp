#include "export/HtmlText.h"

#include <cstddef>
#include <optional>

#include "book/BookText.h"
#include "book/Characters.h"
#include "book/Latin2.h"

namespace lindrel {

namespace {

constexpr std::string_view kEndsAnAddress = " \t\n\f'`";

void AppendReference(std::string& html, char32_t character) {
    html.append("&#").append(std::to_string(static_cast<unsigned long>(character))).append(";");
}

void AppendCharacter(std::string& html, char32_t character) {
    // Bytes 80 to 9F must not become references: browsers take those numbers for Windows-1252.
    if (const auto byte = Latin2Byte(character))
        html.push_back(*byte);
    else
        AppendReference(html, character);
}

// Returns false for a character that needs no escape.
bool AppendEscaped(std::string& html, char32_t character) {
    switch (character) {
        case U'&':
            html += "&amp;";
            return true;
        case U'<':
            html += "&lt;";
            return true;
        case U'>':
            html += "&gt;";
            return true;
        case U'"':
            html += "&quot;";
            return true;
        case U'\r':
            // Unescaped, a browser would read it as a line feed.
            AppendReference(html, character);
            return true;
        default:
            return false;
    }
}

}  // namespace

std::string HtmlText(std::wstring_view text) {
    constexpr char32_t kReplacement = 0xFFFD;
    std::string html;
    for (std::size_t place = 0; place < text.size();) {
        char32_t character = NextCharacter(text, place);
        if (IsSurrogate(character)) character = kReplacement;
        if (!AppendEscaped(html, character)) AppendCharacter(html, character);
    }
    return html;
}

std::string HtmlText(std::string_view book_text) {
    return HtmlText(FromBookText(book_text));
}

std::string HtmlAddress(std::string_view book_text) {
    std::string html;
    for (const char byte : book_text) {
        const char32_t character = CharacterOf(byte);
        if (AppendEscaped(html, character)) continue;
        if (kEndsAnAddress.find(byte) != std::string_view::npos)
            AppendReference(html, character);
        else
            AppendCharacter(html, character);
    }
    return html;
}

std::string HtmlFragment(std::string_view book_text) {
    std::string html;
    for (const char byte : book_text) AppendCharacter(html, CharacterOf(byte));
    return html;
}

}  // namespace lindrel
