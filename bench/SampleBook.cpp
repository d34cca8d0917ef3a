#include "bench/SampleBook.h"

#include <unistd.h>

#include <array>
#include <cstddef>
#include <string_view>
#include <system_error>
#include <vector>

#include "book/BookFile.h"

namespace lindrel::bench {

namespace {

// The same numbers everywhere, unlike those of the standard library's distributions.
class Dice {
  public:
    std::size_t Roll(std::size_t sides) {
        state_ = state_ * 6364136223846793005u + 1442695040888963407u;
        return static_cast<std::size_t>(state_ >> 33) % sides;
    }

  private:
    unsigned long long state_ = 32767;
};

// As book text.
constexpr std::array<std::string_view, 16> kWords = {"k\xF6nyvt\xE1r",
                                                     "m\xFBsor",
                                                     "h\xEDrek",
                                                     "id\xF5j\xE1r\xE1s",
                                                     "z\xF6lds\xE9g",
                                                     "sz\xEDnh\xE1z",
                                                     "vas\xFAt",
                                                     "t\xE9rk\xE9p",
                                                     "bolt",
                                                     "\xDAjs\xE1g",
                                                     "Sz\xE9kesfeh\xE9rv\xE1r",
                                                     "r\xE1"
                                                     "di\xF3",
                                                     "recept",
                                                     "mozi",
                                                     "sz\xF3t\xE1r",
                                                     "\xE1llat"};
constexpr std::array<std::string_view, 8> kHosts = {"konyvtar", "musor",  "hirek",  "idojaras",
                                                    "vasut",    "terkep", "szotar", "bolt"};

NewEntry MakeEntry(Dice& dice, int number) {
    NewEntry entry;
    for (int word = 0; word < 3; ++word)
        entry.SiteName.append(kWords[dice.Roll(kWords.size())]).push_back(' ');
    entry.SiteName += std::to_string(number);
    entry.URL = "http://www.";
    entry.URL.append(kHosts[dice.Roll(kHosts.size())]).append("-").append(std::to_string(number));
    entry.URL.append(".hu/").append(kHosts[dice.Roll(kHosts.size())]).append("/index.html");
    return entry;
}

class TemporaryFolder {
  public:
    TemporaryFolder()
        : path_(std::filesystem::temp_directory_path() / ("lindrel-bench-" + std::to_string(getpid()))) {
        std::filesystem::create_directories(path_);
    }
    ~TemporaryFolder() {
        std::error_code ignored;  // a leftover in the system's temporary folder does no harm
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    std::filesystem::path File(const std::string& name) const { return path_ / name; }

  private:
    std::filesystem::path path_;
};

}  // namespace

int EntriesOf(int category, int categories) {
    if (category > categories) return 0;
    return kMostEntries / categories + (category <= kMostEntries % categories ? 1 : 0);
}

Book MakeLargestBook(int categories) {
    Dice dice;
    Book book;
    int number = 0;
    for (int category = 1; category <= categories; ++category) {
        std::vector<NewEntry> entries;
        for (int i = 0; i < EntriesOf(category, categories); ++i)
            entries.push_back(MakeEntry(dice, ++number));
        book.AddEntry(category, entries);
    }
    return book;
}

const std::string& LargestBookFile() {
    static const std::string file = SaveBook(MakeLargestBook());
    return file;
}

std::filesystem::path TemporaryFile(const std::string& name) {
    static const TemporaryFolder folder;
    return folder.File(name);
}

}  // namespace lindrel::bench
