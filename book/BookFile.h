// The book file (*.lnd): for each category a header line, "#" and its name, and then two lines for each
// entry, its site name and its address. Windows-1250; written with CR LF, read with CR LF or LF.
//
// There is no escaping: a name or an address that begins with "#" is read back as a header.
#pragma once

#include <exception>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "book/Book.h"

namespace lindrel {

// A file that is not a book. The message says in Hungarian what is wrong; the line is 1-based, or 0 if it is
// not a single line that is wrong.
class MalformedBook : public std::exception {
  public:
    MalformedBook(std::wstring message, long long line) : message_(std::move(message)), line_(line) {}
    const std::wstring& Message() const noexcept { return message_; }
    long long Line() const noexcept { return line_; }
    const char* what() const noexcept override { return "malformed book"; }

  private:
    std::wstring message_;
    long long line_;
};

// The number of lines of a text. The last one may lack its line break.
long long CountLines(std::string_view bytes);

// Replaces names, counts and entries by those of the file and clears the check marks. Returns whether
// there were exactly twelve headers. A file with fewer is loaded as far as it goes, since users repair such
// files by hand: the categories that it does not reach keep their names and counts. Throws MalformedBook or
// FileFault and leaves the book as it was.
bool LoadBook(Book& book, std::vector<char> bytes);
bool LoadBook(Book& book, const std::filesystem::path& path);

// The bytes of a book's file. Throws RangeFault for a book that counts more entries than it has.
std::string SaveBook(const Book& book);
// Writes the file in one step, see ReplaceFileBytes(). Throws FileFault too.
void SaveBook(const Book& book, const std::filesystem::path& path);

// Names and addresses that begin with "#" and would be read back as headers.
struct HeaderLookalikes {
    int Count = 0;
    std::string First;  // the first one in the book, as book text
};
HeaderLookalikes FindHeaderLookalikes(const Book& book);

}  // namespace lindrel
