#include "book/BookFile.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "book/BookHeaders.h"
#include "book/EntrySequence.h"
#include "book/Files.h"
#include "book/PerCategory.h"

namespace lindrel {

namespace {

constexpr std::size_t kMostLines = kCategories + 2 * kMostEntries;

// Cuts a text at LF or CR LF. The last line may lack its end.
std::vector<std::string_view> LinesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        if (lines.size() == kMostLines)
            throw MalformedBook(
                L"A fájl több címet tartalmaz, mint amennyi egy könyvben elfér (32\u00A0767).", 0);
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (end != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
    }
    return lines;
}

// Entries in a file of that many lines: half of what the twelve headers leave, rounded half to even.
int EstimatedEntries(std::size_t lines) {
    const int doubled = static_cast<int>(lines) - kCategories;
    const int half = doubled >> 1;
    return (doubled & 1) != 0 && (half & 1) != 0 ? half + 1 : half;
}

[[noreturn]] void RefuseHeaders(HeaderChoice choice, std::size_t thirteenth) {
    std::wstring message = L"A fájlban tizenkettőnél több „#” jellel kezdődő sor van, ";
    message += choice == HeaderChoice::Several
                   ? L"és többféleképpen is lehet közülük tizenkét kategóriát választani."
                   : L"de nem lehet közülük úgy tizenkét kategóriát választani, hogy köztük csak teljes "
                     L"(név, cím) párok maradjanak.";
    throw MalformedBook(std::move(message), static_cast<long long>(thirteenth) + 1);
}

DoubtfulLines DoubtsOf(const std::vector<std::string_view>& lines, const std::vector<std::size_t>& doubtful) {
    if (doubtful.empty()) return {};
    const std::size_t first = doubtful.front();
    return {static_cast<int>(doubtful.size()), std::string(lines[first]), static_cast<long long>(first) + 1};
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
        const std::string_view text(bytes.data(), bytes.size());  // stays where it is when it is adopted
        lines_ = LinesOf(text);
        estimate_ = EstimatedEntries(lines_.size());
        if (estimate_ < 0) throw MalformedBook(L"A fájl túl rövid: tizenkét kategória sem fér bele.", 0);
        if (estimate_ == 0)
            book.entries_ = open.entries_;
        else
            book.entries_.Recreate(estimate_);
        book.entries_.Texts().Adopt(std::move(bytes));
    }

    BookFromFile Read() {
        FindHeaders();
        TakeLines();
        Book& book = read_.TheBook;
        book.counts_(kCategories) = count_;
        book.RecomputeStarts();
        if (book.CategoryStarts(kCategories) > kMostEntries + 1)
            throw MalformedBook(L"A kategóriák száma hibás, és a címek száma így túl nagy lenne.", 0);
        read_.AllCategories = headers_.size() == kCategories;
        read_.InNoCategory = std::max(0, entry_ - book.EntryCount());
        return std::move(read_);
    }

  private:
    void FindHeaders() {
        for (std::size_t line = 0; line < lines_.size(); ++line)
            if (IsMarked(lines_[line])) headers_.push_back(line);
        if (headers_.size() <= kCategories) return;
        const ChosenHeaders chosen = ChooseHeaders(lines_);
        if (chosen.Choice != HeaderChoice::One) RefuseHeaders(chosen.Choice, headers_[kCategories]);
        headers_.assign(chosen.Lines.begin(), chosen.Lines.end());
        read_.Doubtful = DoubtsOf(lines_, chosen.Doubtful);
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
                TakeAddress(lines_[line]);
            }
        }
    }

    void TakeHeader(std::string_view name) {
        if (category_ != 1) read_.TheBook.counts_(category_ - 1) = count_;
        read_.TheBook.names_(category_) = name;
        ++category_;
        count_ = 0;
    }

    void TakeName(std::size_t line) {
        if (entry_ == estimate_)
            throw MalformedBook(L"A fájlban több cím van, mint amennyi a sorok számából következik.",
                                static_cast<long long>(line) + 1);
        ++entry_;
        read_.TheBook.entries_.At(entry_).SiteName = lines_[line];
        ++count_;
        expecting_name_ = false;
    }

    void TakeAddress(std::string_view line) {
        read_.TheBook.entries_.At(entry_).URL = line;
        // Even after a header in between: books that were edited by hand have always been read this way.
        expecting_name_ = true;
    }

    BookFromFile read_;
    std::vector<std::string_view> lines_;
    std::vector<std::size_t> headers_;  // 0-based lines
    int estimate_ = 0;
    bool expecting_name_ = true;
    int category_ = 1;
    int entry_ = 0;
    std::int16_t count_ = 0;
};

BookFromFile ReadBook(const Book& open, std::vector<char> bytes) {
    return BookReader(open, std::move(bytes)).Read();
}

BookFromFile ReadBook(const Book& open, const std::filesystem::path& path) {
    return ReadBook(open, ReadFileBytes(path));
}

bool LoadBook(Book& book, std::vector<char> bytes) {
    BookFromFile read = ReadBook(book, std::move(bytes));
    book = std::move(read.TheBook);
    return read.AllCategories;
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
