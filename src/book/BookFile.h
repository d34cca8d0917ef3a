// The book file (*.lnd): for each category a header line, "#" and its name, and then two lines for each
// entry, its site name and its address. Windows-1250; written with CR LF, read with CR LF or LF.
//
// There is no escaping: a name or an address may start with "#" and looks like a header then.
#pragma once

#include <exception>
#include <string>
#include <utility>
#include <vector>

#include "book/Book.h"

namespace lindrel {

// A file that is not a book. The message says in Hungarian what is wrong; the line is 1-based, or 0 if no
// single line is wrong.
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

// Lines that start with "#" and were taken for names or addresses, though they may be headers.
struct DoubtfulLines {
    int Count = 0;
    std::string First;        // book text
    long long FirstLine = 0;  // 1-based
};

// A book as it was read from a file, and what the user should know about it.
struct BookFromFile {
    Book TheBook;
    bool AllCategories = true;  // whether there were exactly twelve headers
    int InNoCategory = 0;       // entries that no category counts; saving drops as many
    DoubtfulLines Doubtful;     // if there are any, ask before the book replaces the open one
};

// Reads names, counts and entries, without check marks. In a file with at most twelve lines that start with
// "#" each of them is a header. One with fewer is read as far as it goes, since users repair such files by
// hand: the categories that it does not reach have the names and counts of the open book, and an empty book
// keeps the stored entries of the open one. In a file with more such lines ChooseHeaders() finds the headers.
// Throws MalformedBook.
BookFromFile ReadBook(const Book& open, std::vector<char> bytes);

// The bytes of a book's file. Throws RangeFault for a book that counts entries which are not stored.
std::string SaveBook(const Book& book);

// Names and addresses of a book that start with "#".
struct HeaderLookalikes {
    int Names = 0;
    int Addresses = 0;
    std::string First;  // the first name, or the first address if there is no such name, as book text
};
// Throws RangeFault for a book that counts entries which are not stored.
HeaderLookalikes FindHeaderLookalikes(const Book& book);

// How a book's file will be read.
enum class Rereading {
    Same,             // as the same book, without a question
    SameIfConfirmed,  // after a question, see BookFromFile::Doubtful
    Lost,             // not at all, or as another book
};
// Throws what SaveBook() throws.
Rereading HowItWillBeRead(const Book& book);

}  // namespace lindrel
