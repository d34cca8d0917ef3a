// Book text: text in Windows-1250, the encoding of book files. Names and addresses are kept in it from
// loading to saving; windows use wide text. With a table of our own nothing depends on the machine's code
// page and no character is replaced by a "best fit". Nothing in here throws but std::bad_alloc.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lindrel {

// Book text as wide text. The five bytes that are not used in Windows-1250 keep their numbers (U+0081, ...).
std::wstring FromBookText(std::string_view text);

// Wide text as book text. Each character that a book cannot hold becomes one "?", a surrogate pair too.
std::string ToBookText(std::wstring_view text);

// The first character (one unit, or a surrogate pair) that a book cannot hold, or nullopt.
std::optional<std::wstring> FirstForeignCharacter(std::wstring_view text);

// The byte of a character (a UTF-32 value), or nullopt if a book cannot hold it.
std::optional<char> BookByte(char32_t character);

// The UTF-32 value of a byte.
char32_t CharacterOf(char byte);

// Book text in lower or upper case, accented letters included. Anything but letters stays as it is.
char LowerCase(char byte);
std::string LowerCase(std::string_view text);
char UpperCase(char byte);

// The text without blanks (U+0020 only, not tabs) at its ends.
std::wstring_view Trim(std::wstring_view text);

// Case-insensitive search in book text, prepared once for many texts. An empty needle is found at every
// offset 0..size.
class CaselessNeedle {
  public:
    explicit CaselessNeedle(std::string_view needle);

    // 0-based offset of the first match at or after `from`, or npos.
    std::size_t FindIn(std::string_view text, std::size_t from = 0) const noexcept;
    bool IsIn(std::string_view text) const noexcept { return FindIn(text) != std::string_view::npos; }

  private:
    // Recognizes a letter in either case by the bits in which the two agree. Other bytes may pass too.
    class EitherCase {
      public:
        EitherCase() = default;
        explicit EitherCase(char lower);
        // Zero in each byte that passes, of eight.
        std::uint64_t Difference(std::uint64_t word) const noexcept { return (word | ignored_) ^ expected_; }

      private:
        // The same in all eight bytes.
        std::uint64_t ignored_ = 0;
        std::uint64_t expected_ = 0;
    };

    bool MatchesAt(std::string_view text, std::size_t start) const noexcept;

    std::string needle_;  // in lower case
    EitherCase first_;
    EitherCase last_;
};

// The same search in wide text, such as the clipboard's, which need not fit into a book.
bool ContainsCaseless(std::wstring_view text, std::wstring_view needle);

}  // namespace lindrel
