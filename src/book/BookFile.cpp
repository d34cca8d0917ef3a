#include "book/BookFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string_view>

#include "book/BookHeaders.h"
#include "book/PerCategory.h"

namespace lindrel {

namespace {

// Goes through the lines of a text. They end in LF or CR LF; the last line may lack its end.
class LineReader {
  public:
    explicit LineReader(std::string_view text) : rest_(text) {}

    bool Next(std::string_view& line) {
        if (rest_.empty()) return false;
        const std::size_t end = rest_.find('\n');
        line = rest_.substr(0, end);
        rest_.remove_prefix(std::min(line.size() + 1, rest_.size()));
        if (end != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
        return true;
    }

  private:
    std::string_view rest_;
};

// Entries in a file of that many lines: half of what the twelve headers leave, rounded half to even.
std::size_t EstimatedEntries(long long lines) {
    const long long estimate = std::llrint(static_cast<double>(lines - kCategories) / 2);
    if (estimate < 0) throw MalformedBook(L"A fájl túl rövid: tizenkét kategória sem fér bele.", 0);
    if (estimate > kMostEntries)
        throw MalformedBook(L"A fájl több címet tartalmaz, mint amennyi egy könyvben elfér (32\u00A0767).",
                            0);
    return static_cast<std::size_t>(estimate);
}

}  // namespace

// Builds the book of a file in a book of its own, so that a malformed file does not affect the open one.
class BookReader {
  public:
    // Takes names and counts from the open book for categories that the file may not reach.
    BookReader(const Book& open, std::vector<char> bytes) : text_(bytes.data(), bytes.size()) {
        long long lines = 0;
        ForEachLine([&](std::string_view line) {
            ++lines;
            if (HasHeaderPrefix(line)) ++with_prefix_;
        });
        estimate_ = EstimatedEntries(lines);
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
        if (with_prefix_ > kCategories) ChooseTwelveHeaders();
        ForEachLine([this](std::string_view line) { TakeLine(line); });
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
    // A list of all lines would take longer to allocate than going through the text again.
    template <typename Visitor>
    void ForEachLine(Visitor visit) const {
        LineReader lines(text_);
        for (std::string_view line; lines.Next(line);) visit(line);
    }

    void ChooseTwelveHeaders() {
        std::vector<std::string_view> lines;
        ForEachLine([&](std::string_view line) { lines.push_back(line); });
        const ChosenHeaders chosen = ChooseHeaders(lines);
        if (chosen.Choice != HeaderChoice::One) RefuseHeaders(chosen.Choice, lines);
        if (!chosen.Doubtful.empty()) {
            const std::size_t first = chosen.Doubtful.front();
            read_.Doubtful = {static_cast<int>(chosen.Doubtful.size()), std::string(lines[first]),
                              static_cast<long long>(first) + 1};
        }
        headers_ = chosen.Lines;
    }

    [[noreturn]] static void RefuseHeaders(HeaderChoice choice, const std::vector<std::string_view>& lines) {
        std::wstring message = L"A fájlban tizenkettőnél több „#” jellel kezdődő sor van, ";
        message += choice == HeaderChoice::Several
                       ? L"és többféleképpen is lehet közülük tizenkét kategóriát választani."
                       : L"de nem lehet közülük úgy tizenkét kategóriát választani, hogy köztük csak teljes "
                         L"(név, cím) párok maradjanak.";
        int count = 0;
        const auto thirteenth = std::find_if(lines.begin(), lines.end(), [&count](std::string_view line) {
            return HasHeaderPrefix(line) && ++count > kCategories;
        });
        throw MalformedBook(std::move(message), thirteenth - lines.begin() + 1);
    }

    bool IsHeader(std::string_view line) const {
        if (!HasHeaderPrefix(line)) return false;
        return !headers_ || std::binary_search(headers_->begin(), headers_->end(), line_ - 1);
    }

    void TakeLine(std::string_view line) {
        ++line_;
        if (IsHeader(line)) {
            TakeHeader(line.substr(1));
        } else if (expecting_name_) {
            TakeName(line);
        } else {
            read_.TheBook.entries_[entries_ - 1].URL = line;
            // Even after a header in between: books that were edited by hand have always been read this way.
            expecting_name_ = true;
        }
    }

    void TakeHeader(std::string_view name) {
        if (category_ != 0) read_.TheBook.counts_(category_) = count_;
        read_.TheBook.names_(++category_) = name;
        count_ = 0;
    }

    void TakeName(std::string_view line) {
        if (entries_ == estimate_)
            throw MalformedBook(L"A fájlban több cím van, mint amennyi a sorok számából következik.",
                                static_cast<long long>(line_));
        read_.TheBook.entries_[entries_++].SiteName = line;
        ++count_;
        expecting_name_ = false;
    }

    BookFromFile read_;
    std::string_view text_;
    int with_prefix_ = 0;  // lines that start with "#"
    // 0-based lines, ascending; not set if every line with the prefix is a header.
    std::optional<std::array<std::size_t, kCategories>> headers_;
    std::size_t line_ = 0;  // 1-based
    std::size_t estimate_ = 0;
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
