// Reads any bytes as a book file over an open book, changes the book as further bytes say, and saves and
// loads it; a plain model must agree with the book all the time.

#include <cstddef>
#include <iterator>
#include <string>
#include <utility>

#include "tests/support/BookAndModel.h"

namespace {

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
        static const char* const texts[] = {"a",         "#a",  "",         "http://a.hu",
                                            "www.a.hu",  "#",   "index.hu", "mailto:a",
                                            "#http://a", "b c", "a\r",      "C:\\a"};
        return texts[Next(static_cast<int>(std::size(texts)))];
    }

  private:
    std::string bytes_;
    std::size_t at_ = 0;
};

}  // namespace

// A byte with the number of bytes of wishes, these, and the file. An exception that leaves is a find.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace lindrel::testing;
    const std::string input(data, data + size);
    const std::size_t length = size == 0 ? 0 : data[0];
    Wishes wishes(size == 0 ? "" : input.substr(1, length));
    const std::string file = size <= 1 + length ? "" : input.substr(1 + length);
    const Chance chance{[&](int sides) { return wishes.Next(sides); }, [&] { return wishes.Text(); }};
    BookAndModel books;
    while (wishes.Next(2) == 1) {
        books.Change(wishes.Next(BookAndModel::kChanges), chance);
        books.RequireSame();
    }
    PlainReport report;
    books.Load(file, report);
    while (wishes.Left()) {
        books.Change(wishes.Next(BookAndModel::kChanges), chance);
        books.RequireSame();
    }
    books.SaveAndReopen();
    return 0;
}
