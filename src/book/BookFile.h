// The book file (*.lnd): for each category a header line, "#" and its name, and then two lines for each
// entry, its site name and its address. Windows-1250; written with CR LF, read with CR LF or LF.
//
// There is no escaping: a name or an address may begin with "#" and looks like a header then.
#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "book/Book.h"
#include "files/Path.h"

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

// Lines that begin with "#" and were taken for names or addresses, though they may be headers.
struct DoubtfulLines {
    int Count = 0;
    std::string First;        // book text
    long long FirstLine = 0;  // 1-based
};

// A book as it was read from a file, and what the user should know of it.
struct BookFromFile {
    Book TheBook;
    bool AllCategories = true;  // whether there were exactly twelve headers
    int InNoCategory = 0;       // entries that no category counts; saving drops as many
    DoubtfulLines Doubtful;     // ask before the book takes the place of the open one if there are any
};

// Reads names, counts and entries, without check marks. In a file with at most twelve lines that begin with
// "#" each of them is a header. One with fewer is read as far as it goes, since users repair such files by
// hand: the categories that it does not reach have the names and counts of the open book. In a file with more
// such lines the headers are found by what stands around them (ChooseHeaders). Throws MalformedBook or
// FileFault.
BookFromFile ReadBook(const Book& open, std::vector<char> bytes);
BookFromFile ReadBook(const Book& open, const Path& path);

// Reads a book and puts it in the place of another one, whatever is in doubt. Returns whether there were
// exactly twelve headers. Leaves the book as it was when it throws.
bool LoadBook(Book& book, std::vector<char> bytes);
bool LoadBook(Book& book, const Path& path);

// The bytes of a book's file. Throws RangeFault for a book that counts more entries than it has.
std::string SaveBook(const Book& book);
// Writes the file in one step, see ReplaceFileBytes(). Throws FileFault too.
void SaveBook(const Book& book, const Path& path);

// Names and addresses of a book that begin with "#".
struct HeaderLookalikes {
    int Names = 0;
    int Addresses = 0;
    std::string First;  // the first name, or the first address if there is no such name, as book text
};
HeaderLookalikes FindHeaderLookalikes(const Book& book);

// How a book's file will be read.
enum class Rereading {
    Same,             // in silence
    SameIfConfirmed,  // after a question, see BookFromFile::Doubtful
    Lost,             // not at all, or as another book
};
// Throws RangeFault for a book that cannot be saved.
Rereading HowItWillBeRead(const Book& book);

}  // namespace lindrel
