#include "book/BookFile.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "book/EntrySequence.h"
#include "book/Files.h"
#include "book/PerCategory.h"

namespace lindrel {

namespace {

constexpr char kHeaderMark = '#';

// Splits a text into lines at LF or CR LF.
class LineReader {
  public:
    explicit LineReader(std::string_view text) : rest_(text) {}

    bool Next(std::string_view& line) {
        if (rest_.empty()) return false;
        const std::size_t length = std::min(rest_.find('\n'), rest_.size());
        line = rest_.substr(0, length);
        rest_.remove_prefix(std::min(length + 1, rest_.size()));
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        return true;
    }

  private:
    std::string_view rest_;
};

// Entries in a file of that many lines: half of what the twelve headers leave, rounded half to even.
long long EstimatedEntries(long long lines) {
    const long long doubled = lines - kCategories;
    const long long floor = doubled >= 0 ? doubled / 2 : -((1 - doubled) / 2);
    const bool tie = doubled % 2 != 0;
    return tie && floor % 2 != 0 ? floor + 1 : floor;
}

}  // namespace

// Builds the book of a file in a book of its own, so that a malformed file does not affect the open one.
class BookReader {
  public:
    // Takes names and counts from the old book for categories that the file may not reach.
    BookReader(const Book& old, std::vector<char> bytes) {
        book_.names_ = old.names_;
        book_.counts_ = old.counts_;
        const long long lines = CountLines({bytes.data(), bytes.size()});
        const long long estimate = EstimatedEntries(lines);
        if (estimate < 0) throw MalformedBook(L"A fájl túl rövid: tizenkét kategória sem fér bele.", 0);
        if (estimate > kMostEntries)
            throw MalformedBook(L"A fájl több címet tartalmaz, mint amennyi egy könyvben elfér (32767).", 0);
        estimate_ = static_cast<int>(estimate);
        if (estimate_ == 0)
            book_.entries_ = old.entries_;
        else
            book_.entries_.Recreate(estimate_);
        text_ = book_.entries_.Texts().Adopt(std::move(bytes));
    }

    // Whether there were exactly twelve headers.
    bool Read() {
        LineReader lines(text_);
        for (std::string_view line; lines.Next(line);) {
            ++line_;
            if (!line.empty() && line.front() == kHeaderMark)
                TakeHeader(line.substr(1));
            else if (expecting_name_)
                TakeName(line);
            else
                TakeAddress(line);
        }
        book_.counts_(kCategories) = count_;
        book_.RecomputeStarts();
        if (book_.CategoryStarts(kCategories) > kMostEntries + 1)
            throw MalformedBook(L"A kategóriák száma hibás, és a címek száma így túl nagy lenne.", 0);
        return category_ == kCategories + 1;
    }

    Book Take() { return std::move(book_); }

  private:
    void TakeHeader(std::string_view name) {
        if (category_ > kCategories)
            throw MalformedBook(
                L"A fájlban tizenkettőnél több kategória van (a „#” jellel kezdődő sor kategóriát jelöl).",
                line_);
        if (category_ != 1) book_.counts_(category_ - 1) = count_;
        book_.names_(category_) = name;
        ++category_;
        count_ = 0;
    }

    void TakeName(std::string_view line) {
        if (entry_ == estimate_)
            throw MalformedBook(L"A fájlban több cím van, mint amennyi a sorok számából következik.", line_);
        ++entry_;
        book_.entries_.At(entry_).SiteName = line;
        ++count_;
        expecting_name_ = false;
    }

    void TakeAddress(std::string_view line) {
        book_.entries_.At(entry_).URL = line;
        // Even after a header in between: books that were edited by hand have always been read this way.
        expecting_name_ = true;
    }

    Book book_;
    std::string_view text_;
    int estimate_ = 0;
    long long line_ = 0;
    bool expecting_name_ = true;
    int category_ = 1;
    int entry_ = 0;
    std::int16_t count_ = 0;
};

long long CountLines(std::string_view bytes) {
    const bool last_is_open = !bytes.empty() && bytes.back() != '\n';
    return std::count(bytes.begin(), bytes.end(), '\n') + (last_is_open ? 1 : 0);
}

bool LoadBook(Book& book, std::vector<char> bytes) {
    BookReader reader(book, std::move(bytes));
    const bool all_categories = reader.Read();
    book = reader.Take();
    return all_categories;
}

bool LoadBook(Book& book, const std::filesystem::path& path) {
    return LoadBook(book, ReadFileBytes(path));
}

std::string SaveBook(const Book& book) {
    std::string file;
    const auto write_line = [&file](std::string_view text) { file.append(text).append("\r\n"); };
    std::size_t size = 0;
    for (int i = 1; i <= book.EntryCount(); ++i)
        size += book.SiteNames(i).size() + book.SiteURLs(i).size() + 4;
    file.reserve(size + 4096);
    for (int k = 1; k <= kCategories; ++k) {
        file.push_back(kHeaderMark);
        write_line(book.CategoryNames(k));
        for (int i = book.CategoryStarts(k); i < book.CategoryStarts(k) + book.CategoryCounts(k); ++i) {
            write_line(book.SiteNames(i));
            write_line(book.SiteURLs(i));
        }
    }
    return file;
}

void SaveBook(const Book& book, const std::filesystem::path& path) {
    ReplaceFileBytes(path, SaveBook(book));
}

HeaderLookalikes FindHeaderLookalikes(const Book& book) {
    HeaderLookalikes found;
    for (int i = 1; i <= book.EntryCount(); ++i)
        for (const std::string_view text : {book.SiteNames(i), book.SiteURLs(i)})
            if (text.starts_with(kHeaderMark) && ++found.Count == 1) found.First = text;
    return found;
}

}  // namespace lindrel
