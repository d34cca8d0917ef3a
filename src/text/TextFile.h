// Text files of other programs: web pages and shortcuts.
#pragma once

#include <string_view>
#include <vector>

namespace lindrel {

// All agree with ASCII: a byte below 80 is that character and never part of another one.
enum class TextEncoding { Utf8, Latin2, Windows1250 };

enum class ByteOrder { LittleEndian, BigEndian };

struct TextFile {
    std::vector<char> Bytes;
    TextEncoding Encoding = TextEncoding::Windows1250;
    // The bytes without a mark.
    std::string_view Text() const;
};

// A file that may be in UTF-16 or UTF-8, known by their marks; UTF-8 also by bytes that are valid and not
// just ASCII. Any other is in Windows-1250.
TextFile TextFileOf(std::vector<char> bytes);

bool HasMark(std::string_view bytes);

// A file in UTF-16, converted to UTF-8. What is no character becomes a "?": half of a surrogate pair, or a
// byte that is left over at the end.
TextFile TextFileOfUtf16(std::string_view bytes, ByteOrder order);

}  // namespace lindrel
