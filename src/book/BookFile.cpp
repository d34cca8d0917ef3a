#include "book/BookFile.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

#include "book/BookHeaders.h"
#include "book/EntrySequence.h"
#include "book/PerCategory.h"
#include "files/Files.h"
#include "text/Words.h"

namespace lindrel {

namespace {

// Splits a text into lines at LF or CR LF. The last line may lack its end.
class LineReader {
  public:
    explicit LineReader(std::string_view text) : rest_(text) {}

    bool Next(std::string_view& line) {
        if (rest_.empty()) return false;
        const std::size_t end = FindByte(rest_, '\n');
        line = rest_.substr(0, end);
        rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
        if (end != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
        return true;
    }

  private:
    std::string_view rest_;
};

long long CountLines(std::string_view text) {
    // In pieces so short that a byte counts their line ends, and of one length: compilers make steps of many
    // bytes of it.
    constexpr std::size_t kPiece = 240;
    long long lines = text.empty() || text.back() == '\n' ? 0 : 1;
    for (; text.size() >= kPiece; text.remove_prefix(kPiece)) {
        std::uint8_t ends = 0;
        for (std::size_t place = 0; place < kPiece; ++place)
            ends = static_cast<std::uint8_t>(ends + (text[place] == '\n' ? 1 : 0));
        lines += ends;
    }
    return lines + std::count(text.begin(), text.end(), '\n');
}

bool HasMoreMarksThanHeaders(std::string_view text) {
    int marked = 0;
    for (std::size_t place = FindByte(text, kHeaderMark); place != std::string_view::npos;
         place = FindByte(text, kHeaderMark, place + 1))
        if ((place == 0 || text[place - 1] == '\n') && ++marked > kCategories) return true;
    return false;
}

// Entries in a file of that many lines: half of what the twelve headers leave, rounded half to even.
int EstimatedEntries(long long lines) {
    const long long doubled = lines - kCategories;
    const long long half = doubled >> 1;
    const long long estimate = (doubled & 1) != 0 && (half & 1) != 0 ? half + 1 : half;
    if (estimate < 0) throw MalformedBook(L"A fájl túl rövid: tizenkét kategória sem fér bele.", 0);
    if (estimate > kMostEntries)
        throw MalformedBook(L"A fájl több címet tartalmaz, mint amennyi egy könyvben elfér (32\u00A0767).",
                            0);
    return static_cast<int>(estimate);
}

[[noreturn]] void RefuseHeaders(HeaderChoice choice, const std::vector<std::string_view>& lines) {
    std::wstring message = L"A fájlban tizenkettőnél több „#” jellel kezdődő sor van, ";
    message += choice == HeaderChoice::Several
                   ? L"és többféleképpen is lehet közülük tizenkét kategóriát választani."
                   : L"de nem lehet közülük úgy tizenkét kategóriát választani, hogy köztük csak teljes "
                     L"(név, cím) párok maradjanak.";
    int marked = 0;
    const auto thirteenth = std::find_if(lines.begin(), lines.end(), [&marked](std::string_view line) {
        return IsMarked(line) && ++marked > kCategories;
    });
    throw MalformedBook(std::move(message), thirteenth - lines.begin() + 1);
}

}  // namespace

// Builds the book of a file in a book of its own, so that a malformed file does not affect the open one.
class BookReader {
  public:
    // Takes names and counts from the open book for categories that the file may not reach.
    BookReader(const Book& open, std::vector<char> bytes) {
        Book& book = read_.TheBook;
        book.names_ = open.names_;
        book.counts_ = open.counts_;
        estimate_ = EstimatedEntries(CountLines({bytes.data(), bytes.size()}));
        if (estimate_ == 0)
            book.entries_ = open.entries_;
        else
            book.entries_.Recreate(estimate_);
        text_ = book.entries_.Texts().Adopt(std::move(bytes));
    }

    BookFromFile Read() {
        if (HasMoreMarksThanHeaders(text_)) ChooseTwelveHeaders();
        TakeLines();
        Book& book = read_.TheBook;
        book.counts_(kCategories) = count_;
        book.RecomputeStarts();
        if (book.CategoryStarts(kCategories) > kMostEntries + 1)
            throw MalformedBook(L"A kategóriák száma hibás, és a címek száma így túl nagy lenne.", 0);
        read_.AllCategories = category_ == kCategories + 1;
        read_.InNoCategory = std::max(0, entry_ - book.EntryCount());
        return std::move(read_);
    }

  private:
    void ChooseTwelveHeaders() {
        std::vector<std::string_view> lines;
        LineReader reader(text_);
        for (std::string_view line; reader.Next(line);) lines.push_back(line);
        ChosenHeaders chosen = ChooseHeaders(lines);
        if (chosen.Choice != HeaderChoice::One) RefuseHeaders(chosen.Choice, lines);
        if (!chosen.Doubtful.empty()) {
            const std::size_t first = chosen.Doubtful.front();
            read_.Doubtful = {static_cast<int>(chosen.Doubtful.size()), std::string(lines[first]),
                              static_cast<long long>(first) + 1};
        }
        chosen_ = chosen.Lines;
    }

    bool IsHeader(std::string_view line) const {
        if (!IsMarked(line)) return false;
        return !chosen_ || std::binary_search(chosen_->begin(), chosen_->end(), line_ - 1);
    }

    void TakeLines() {
        LineReader lines(text_);
        for (std::string_view line; lines.Next(line);) {
            ++line_;
            if (IsHeader(line))
                TakeHeader(line.substr(1));
            else if (expecting_name_)
                TakeName(line);
            else
                TakeAddress(line);
        }
    }

    void TakeHeader(std::string_view name) {
        if (category_ != 1) read_.TheBook.counts_(category_ - 1) = count_;
        read_.TheBook.names_(category_) = name;
        ++category_;
        count_ = 0;
    }

    void TakeName(std::string_view line) {
        if (entry_ == estimate_)
            throw MalformedBook(L"A fájlban több cím van, mint amennyi a sorok számából következik.",
                                static_cast<long long>(line_));
        ++entry_;
        read_.TheBook.entries_.At(entry_).SiteName = line;
        ++count_;
        expecting_name_ = false;
    }

    void TakeAddress(std::string_view line) {
        read_.TheBook.entries_.At(entry_).URL = line;
        // Even after a header in between: books that were edited by hand have always been read this way.
        expecting_name_ = true;
    }

    BookFromFile read_;
    std::string_view text_;
    // The headers, if not every marked line is one: 0-based lines.
    std::optional<std::array<std::size_t, kCategories>> chosen_;
    std::size_t line_ = 0;  // 1-based
    int estimate_ = 0;
    bool expecting_name_ = true;
    int category_ = 1;
    int entry_ = 0;
    std::int16_t count_ = 0;
};

BookFromFile ReadBook(const Book& open, std::vector<char> bytes) {
    return BookReader(open, std::move(bytes)).Read();
}

BookFromFile ReadBook(const Book& open, const Path& path) {
    return ReadBook(open, ReadFileBytes(path));
}

bool LoadBook(Book& book, std::vector<char> bytes) {
    BookFromFile read = ReadBook(book, std::move(bytes));
    book = std::move(read.TheBook);
    return read.AllCategories;
}

bool LoadBook(Book& book, const Path& path) {
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

void SaveBook(const Book& book, const Path& path) {
    ReplaceFileBytes(path, SaveBook(book));
}

HeaderLookalikes FindHeaderLookalikes(const Book& book) {
    HeaderLookalikes found;
    for (int i = 1; i <= book.EntryCount(); ++i) {
        if (IsMarked(book.SiteNames(i)) && ++found.Names == 1) found.First = book.SiteNames(i);
        if (IsMarked(book.SiteURLs(i)) && ++found.Addresses == 1 && found.Names == 0)
            found.First = book.SiteURLs(i);
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
