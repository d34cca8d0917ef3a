// Reads any bytes as a book file over an open book, changes the book as further bytes say, saves and loads
// it, and does the same with a second book, which is written to be simple.

#include <cstdlib>
#include <string>
#include <vector>

#include "book/Book.h"
#include "book/BookFile.h"
#include "book/PerCategory.h"
#include "faults/Faults.h"
#include "fuzz/PlainBook.h"

namespace lindrel {
namespace {

void Require(bool good) {
    if (!good) std::abort();
}

void RequireSame(const Book& book, PlainBook& plain) {
    for (int k = 1; k <= kCategories; ++k) {
        Require(book.CategoryNames(k) == plain.NameOf(k));
        Require(book.CategoryCounts(k) == plain.CountOf(k));
        Require(book.CategoryStarts(k) == plain.StartOf(k));
    }
    Require(book.EntryCount() == plain.Total() - 1);
    Require(book.UpperBound() == plain.Size());
    for (int i = 1; i <= plain.Size(); ++i) {
        Require(book.SiteNames(i) == plain.At(i).first);
        Require(book.SiteURLs(i) == plain.At(i).second);
    }
}

// Does the same to both books and expects the same fault, or none.
template <typename Real, typename Plain>
bool DoBoth(Real real, Plain plain) {
    PlainFault expected{-1};
    PlainFault seen{-1};
    try {
        plain();
    } catch (const PlainFault& fault) {
        expected = fault;
    }
    try {
        real();
    } catch (const Fault& fault) {
        seen = {fault.Number()};
    } catch (const MalformedBook& malformed) {
        seen = {0, malformed.Line()};
    }
    Require(seen == expected);
    return seen.Number == -1;
}

// The bytes that say what to change: each call takes one, and 0 when there are no more.
class Wishes {
  public:
    explicit Wishes(std::string bytes) : bytes_(std::move(bytes)) {}
    bool Left() const { return at_ < bytes_.size(); }
    int Next(int choices) {
        const int byte = Left() ? static_cast<unsigned char>(bytes_[at_++]) : 0;
        return byte % choices;
    }
    std::string Text() {
        static const std::vector<std::string> texts = {"a",         "#a",  "",         "http://a.hu",
                                                       "www.a.hu",  "#",   "index.hu", "mailto:a",
                                                       "#http://a", "b c", "a\r",      "C:\\a"};
        return texts[static_cast<std::size_t>(Next(static_cast<int>(texts.size())))];
    }

  private:
    std::string bytes_;
    std::size_t at_ = 0;
};

void Change(Wishes& wishes, Book& book, PlainBook& plain) {
    const int wish = wishes.Next(6);
    const int category = wishes.Next(kCategories) + 1;
    const int number = wishes.Next(8);
    const std::string text = wishes.Text();
    if (wish == 0) {
        book.SetCategoryName(category, text);
        plain.NameOf(category) = text;
    } else if (wish == 1) {
        DoBoth([&] { book.SetSiteName(number, text); }, [&] { plain.At(number).first = text; });
    } else if (wish == 2) {
        DoBoth([&] { book.SetSiteURL(number, text); }, [&] { plain.At(number).second = text; });
    } else if (wish == 3) {
        const int destination = wishes.Next(kCategories) + 1;
        DoBoth([&] { book.MoveEntry(category, number, destination); },
               [&] { plain.Move(category, number, destination); });
    } else if (wish == 4) {
        const int count = wishes.Next(3) + 1;
        DoBoth([&] { book.DeleteEntry(category, number, count); },
               [&] { plain.Delete(category, number, count); });
    } else {
        const std::string address = wishes.Text();
        DoBoth(
            [&] {
                book.AddEntry(category, {{text, address}});
            },
            [&] {
                plain.Add(category, {text, address});
            });
    }
}

void LoadBoth(Book& book, PlainBook& plain, const std::string& file) {
    PlainReport seen;
    PlainReport expected;
    const bool loaded = DoBoth(
        [&] {
            BookFromFile read = ReadBook(book, std::vector<char>(file.begin(), file.end()));
            seen = {read.AllCategories, read.InNoCategory, read.Doubtful.Count, read.Doubtful.FirstLine};
            book = std::move(read.TheBook);
        },
        [&] { expected = PlainReader(plain, file).Read(); });
    Require(!loaded || seen == expected);
    RequireSame(book, plain);
}

void SaveAndLoadBoth(Book& book, PlainBook& plain) {
    std::string file;
    std::string expected;
    if (!DoBoth([&] { file = SaveBook(book); }, [&] { expected = plain.File(); })) return;
    Require(file == expected);
    const Rereading rereading = HowItWillBeRead(book);
    PlainBook again = plain;
    LoadBoth(book, again, file);
    // The same file as before, whether it was loaded or refused, and the same book if it was said so.
    Require(SaveBook(book) == file);
    Require(rereading == Rereading::Lost || again.Counts == plain.Counts);
}

}  // namespace
}  // namespace lindrel

// A byte with the number of bytes of wishes, these, and the file.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace lindrel;
    const std::string input(data, data + size);
    const std::size_t length = size == 0 ? 0 : data[0];
    Wishes wishes(size == 0 ? "" : input.substr(1, length));
    const std::string file = size <= 1 + length ? "" : input.substr(1 + length);
    Book book;
    PlainBook plain;
    while (wishes.Next(2) == 1) Change(wishes, book, plain);
    RequireSame(book, plain);
    LoadBoth(book, plain, file);
    while (wishes.Left()) {
        Change(wishes, book, plain);
        RequireSame(book, plain);
    }
    SaveAndLoadBoth(book, plain);
    return 0;
}
