// Text files of other programs (web pages, shortcuts): their encodings, their lines, and their text as book
// text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lindrel {

// In each of these a byte below 0x80 is that ASCII character and never part of another one.
enum class TextEncoding { Utf8, Latin2, Windows1250 };

struct TextFile {
    std::vector<char> Bytes;  // without a BOM
    TextEncoding Encoding = TextEncoding::Windows1250;
    std::string_view Text() const { return {Bytes.data(), Bytes.size()}; }
};

// Guesses the encoding: UTF-16 or UTF-8 after their BOMs, UTF-8 also if the bytes are valid and not just
// ASCII, otherwise Windows-1250. UTF-16 is converted to UTF-8; half of a surrogate pair and an odd byte at
// the end become "?".
TextFile TextFileOf(std::vector<char> bytes);

// Removes the first line of a text and returns it without its end: CR LF, LF or CR. The end of the last line
// may be missing; an empty text has no more lines.
std::string_view TakeLine(std::string_view& text);

// A piece of a file as book text. A character that a book cannot hold is a "?" in it, but an address can keep
// such a character: percent-encoded, it leads to the same page.
class DecodedText {
  public:
    // In UTF-8 each invalid byte becomes a "?".
    DecodedText(std::string_view bytes, TextEncoding encoding) { Append(bytes, encoding); }
    void Append(std::string_view bytes, TextEncoding encoding);
    // Turns the letters of what has been appended so far into lower case, and the hexadecimal digits of the
    // characters that an address percent-encodes.
    void MakeLowerCase();

    std::string_view Text() const { return text_; }
    // The characters from offset `begin` up to `end` (begin <= end <= Text().size()), percent-encoded where a
    // book cannot hold them.
    std::string Address(std::size_t begin, std::size_t end) const;

  private:
    struct ForeignCharacter {
        std::size_t Offset;  // of its "?" in the text
        std::string Escape;
    };
    void AppendUtf8Text(std::string_view bytes);
    void AppendLatin2Text(std::string_view bytes);

    std::string text_;
    std::vector<ForeignCharacter> foreign_;
};

}  // namespace lindrel
