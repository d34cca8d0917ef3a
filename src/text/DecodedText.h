// Text of other programs as book text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text/TextFile.h"

namespace lindrel {

// The number of bytes of the first character of a text; 0 if it is empty.
std::size_t FirstCharacterLength(std::string_view bytes, TextEncoding encoding);

// A piece of a file as book text. A character that a book cannot hold is a "?" in it, but an address can keep
// it: percent-encoded it leads to the same place.
class DecodedText {
  public:
    DecodedText() = default;
    DecodedText(std::string_view bytes, TextEncoding encoding) { Append(bytes, encoding); }

    // Each byte that is not UTF-8 in UTF-8 becomes a "?".
    void Append(std::string_view bytes, TextEncoding encoding);
    void Clear();
    // Turns what has been appended so far into lower case, as far as it is letters of book text. That
    // includes the digits of what will be percent-encoded.
    void MakeLowerCase();

    std::string_view Text() const { return text_; }
    // The characters from `begin` up to `end` (0 <= begin <= end <= Text().size()), percent-encoded where a
    // book cannot hold them.
    std::string Address(std::size_t begin, std::size_t end) const;

  private:
    struct ForeignCharacter {
        std::size_t Place;  // of its "?" in the text
        std::string Escape;
    };
    void AppendUtf8Text(std::string_view bytes);
    void AppendLatin2Text(std::string_view bytes);

    std::string text_;
    std::vector<ForeignCharacter> foreign_;
};

}  // namespace lindrel
