// Book text: what a book file can hold, one byte for each character, in Windows-1250. Names and addresses are
// kept in this form from the file to the file; windows show and take wide text. The table is our own, so that
// the result does not depend on the machine's code page and nothing is ever replaced by a "best fit".
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lindrel {

// Wide text of book text. The five bytes that Windows-1250 leaves unused keep their numbers (U+0081, ...).
std::wstring FromBookText(std::string_view text);

// Book text of wide text; every character that a book cannot hold becomes one "?" (a surrogate pair is one
// character).
std::string ToBookText(std::wstring_view text);

// The first character of the text that a book cannot hold (one unit, or a surrogate pair), if there is one.
std::optional<std::wstring> FirstForeignCharacter(std::wstring_view text);

// The byte of one character (a UTF-32 value), or nothing when a book cannot hold it.
std::optional<char> BookByte(char32_t character);

// The UTF-32 value of one byte.
char32_t CharacterOf(char byte);

// Letters of the whole repertoire in lower case (Á to á, Ő to ő, Š to š, ...); anything else as it is.
char LowerCase(char byte);
std::string LowerCase(std::string_view text);

// The other way round; anything that is not a lower-case letter as it is.
char UpperCase(char byte);

// Blanks (U+0020 only, no tabs) removed from both ends.
std::wstring_view Trim(std::wstring_view text);

// Whether a text contains another, letter case aside. An empty needle is contained in everything. Made once
// for a needle and asked for many texts.
class CaselessNeedle {
  public:
    explicit CaselessNeedle(std::string_view needle);

    // 0-based place of the first occurrence at or after `from` (0-based), or npos.
    std::size_t FindIn(std::string_view text, std::size_t from = 0) const noexcept;
    bool IsIn(std::string_view text) const noexcept { return FindIn(text) != std::string_view::npos; }

  private:
    std::size_t NextStart(std::string_view text, std::size_t from) const noexcept;
    bool MatchesAt(std::string_view text, std::size_t start) const noexcept;

    std::string needle_;  // in lower case
    // The two forms of its first letter, each in every byte of a word.
    std::uint64_t lower_ = 0;
    std::uint64_t upper_ = 0;
};

// The same for wide text that need not fit a book (such as what the clipboard holds).
bool ContainsCaseless(std::wstring_view text, std::wstring_view needle);

}  // namespace lindrel
