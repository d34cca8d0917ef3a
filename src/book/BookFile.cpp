#include "book/BookFile.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>

#include "book/BookHeaders.h"
#include "book/PerCategory.h"

namespace lindrel {

namespace {

// Of a file: twelve headers and two for each entry.
constexpr std::size_t kMostLines = kCategories + 2 * kMostEntries;

// The lines of a text. They end in LF or CR LF; the last line may lack its end.
std::vector<std::string_view> LinesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    lines.reserve(std::min(kMostLines, text.size()));  // memory costs nothing until it is used
    while (!text.empty()) {
        if (lines.size() == kMostLines)
            throw MalformedBook(
                L"A fájl több címet tartalmaz, mint amennyi egy könyvben elfér (32\u00A0767).", 0);
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (end != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
    }
    return lines;
}

// Entries in a file of that many lines: half of what the twelve headers leave, rounded half to even.
std::size_t EstimatedEntries(std::size_t lines) {
    const long estimate = std::lrint((static_cast<double>(lines) - kCategories) / 2);
    if (estimate < 0) throw MalformedBook(L"A fájl túl rövid: tizenkét kategória sem fér bele.", 0);
    return static_cast<std::size_t>(estimate);
}

}  // namespace

// Builds the book of a file in a book of its own, so that a malformed file does not affect the open one.
class BookReader {
  public:
    // Takes names and counts from the open book for categories that the file may not reach.
    BookReader(const Book& open, std::vector<char> bytes)
        : lines_(LinesOf({bytes.data(), bytes.size()})), estimate_(EstimatedEntries(lines_.size())) {
        Book& book = read_.TheBook;
        book.names_ = open.names_;
        book.counts_ = open.counts_;
        if (estimate_ == 0) {
            book.entries_ = open.entries_;
            book.texts_ = open.texts_;
        } else {
            book.entries_.resize(estimate_);
        }
        book.texts_->Adopt(std::move(bytes));
    }

    BookFromFile Read() {
        FindHeaders();
        TakeLines();
        Book& book = read_.TheBook;
        book.counts_(kCategories) = count_;
        book.RecomputeStarts();
        if (book.CategoryStarts(kCategories) > kMostEntries + 1)
            throw MalformedBook(L"A kategóriák száma hibás, és a címek száma így túl nagy lenne.", 0);
        read_.AllCategories = category_ == kCategories;
        read_.InNoCategory = std::max(0, static_cast<int>(entries_) - book.EntryCount());
        return std::move(read_);
    }

  private:
    void FindHeaders() {
        for (std::size_t line = 0; line < lines_.size(); ++line)
            if (HasHeaderPrefix(lines_[line])) headers_.push_back(line);
        if (headers_.size() <= kCategories) return;
        const ChosenHeaders chosen = ChooseHeaders(lines_);
        if (chosen.Choice != HeaderChoice::One) RefuseHeaders(chosen.Choice);
        if (!chosen.Doubtful.empty()) {
            const std::size_t first = chosen.Doubtful.front();
            read_.Doubtful = {static_cast<int>(chosen.Doubtful.size()), std::string(lines_[first]),
                              static_cast<long long>(first) + 1};
        }
        headers_.assign(chosen.Lines.begin(), chosen.Lines.end());
    }

    [[noreturn]] void RefuseHeaders(HeaderChoice choice) const {
        std::wstring message = L"A fájlban tizenkettőnél több „#” jellel kezdődő sor van, ";
        message += choice == HeaderChoice::Several
                       ? L"és többféleképpen is lehet közülük tizenkét kategóriát választani."
                       : L"de nem lehet közülük úgy tizenkét kategóriát választani, hogy köztük csak teljes "
                         L"(név, cím) párok maradjanak.";
        throw MalformedBook(std::move(message), static_cast<long long>(headers_[kCategories]) + 1);
    }

    void TakeLines() {
        auto header = headers_.begin();
        for (std::size_t line = 0; line < lines_.size(); ++line) {
            if (header != headers_.end() && line == *header) {
                TakeHeader(lines_[line].substr(1));
                ++header;
            } else if (expecting_name_) {
                TakeName(line);
            } else {
                read_.TheBook.entries_[entries_ - 1].URL = lines_[line];
                // Even after a header in between: books that were edited by hand have always been read this
                // way.
                expecting_name_ = true;
            }
        }
    }

    void TakeHeader(std::string_view name) {
        if (category_ != 0) read_.TheBook.counts_(category_) = count_;
        read_.TheBook.names_(++category_) = name;
        count_ = 0;
    }

    void TakeName(std::size_t line) {
        if (entries_ == estimate_)
            throw MalformedBook(L"A fájlban több cím van, mint amennyi a sorok számából következik.",
                                static_cast<long long>(line) + 1);
        read_.TheBook.entries_[entries_++].SiteName = lines_[line];
        ++count_;
        expecting_name_ = false;
    }

    BookFromFile read_;
    std::vector<std::string_view> lines_;
    std::vector<std::size_t> headers_;  // 0-based lines, ascending
    std::size_t estimate_;
    std::size_t entries_ = 0;  // so far
    std::int16_t count_ = 0;   // of them after the last header
    int category_ = 0;         // of the last header; 0 before the first
    bool expecting_name_ = true;
};

BookFromFile ReadBook(const Book& open, std::vector<char> bytes) {
    return BookReader(open, std::move(bytes)).Read();
}

std::string SaveBook(const Book& book) {
    std::string file;
    const auto write_line = [&file](std::string_view text) { file.append(text).append("\r\n"); };
    for (int k = 1; k <= kCategories; ++k) {
        file.push_back(kHeaderPrefix);
        write_line(book.CategoryNames(k));
        for (const AddressEntry& entry : book.Entries(book.CategoryStarts(k), book.CategoryCounts(k))) {
            write_line(entry.SiteName);
            write_line(entry.URL);
        }
    }
    return file;
}

HeaderLookalikes FindHeaderLookalikes(const Book& book) {
    HeaderLookalikes found;
    for (const AddressEntry& entry : book.Entries(1, book.EntryCount())) {
        if (HasHeaderPrefix(entry.SiteName) && ++found.Names == 1) found.First = entry.SiteName;
        if (HasHeaderPrefix(entry.URL) && ++found.Addresses == 1 && found.Names == 0) found.First = entry.URL;
    }
    return found;
}

Rereading HowItWillBeRead(const Book& book) {
    const std::string file = SaveBook(book);
    try {
        const BookFromFile read = ReadBook(Book(), std::vector<char>(file.begin(), file.end()));
        // The same lines are the same book if every category has as many of them.
        for (int k = 1; k <= kCategories; ++k)
            if (read.TheBook.CategoryCounts(k) != book.CategoryCounts(k)) return Rereading::Lost;
        return read.Doubtful.Count == 0 ? Rereading::Same : Rereading::SameIfConfirmed;
    } catch (const MalformedBook&) {
        return Rereading::Lost;
    }
}

}  // namespace lindrel
