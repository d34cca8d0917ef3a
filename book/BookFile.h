// The book file (*.lnd): for each category a line "#" + name, then two lines for each entry, its site name
// and its address; Windows-1250, no escaping. Written with CR LF; read with CR LF or LF.
//
// Because nothing is escaped, a name or an address that begins with "#" comes back as a category header.
#pragma once

#include <exception>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "book/Book.h"

namespace lindrel {

// A file that is no book. The message is in Hungarian and says what is wrong; the line is 1-based, 0 when the
// fault is none of a single line.
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

// Lines of a text: a last line without a break counts, a break at the very end adds none.
long long CountLines(std::string_view bytes);

// Replaces names, counts, starts and entries by those of the file and clears the check marks. Returns whether
// there were exactly twelve headers. A file with fewer is loaded as far as it goes, since users repair such
// files by hand: the categories that it does not reach keep their names and counts. Throws MalformedBook or
// FileFault and leaves the book as it was.
bool LoadBook(Book& book, std::vector<char> bytes);
bool LoadBook(Book& book, const std::filesystem::path& path);

// The file of a book. Throws RangeFault for a book whose counts run beyond its entries.
std::string SaveBook(const Book& book);
// Writes it in one step: the old file stays untouched until the new one is whole and on the disk. Throws
// FileFault with the system's reason; then the old file is as it was and no temporary file is left.
void SaveBook(const Book& book, const std::filesystem::path& path);

// Names and addresses that begin with "#": they will come back as headers.
struct HeaderLookalikes {
    int Count = 0;
    std::string First;  // book text of the first one in book order
};
HeaderLookalikes FindHeaderLookalikes(const Book& book);

}  // namespace lindrel
