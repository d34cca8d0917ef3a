#include "bench/SampleBook.h"

#include <unistd.h>

#include <cstddef>
#include <iterator>
#include <sstream>
#include <system_error>
#include <vector>

#include "book/BookFile.h"
#include "tests/native/support/AnyText.h"

namespace lindrel::bench {

namespace {

using testing::Dice;
using Words = std::vector<std::string>;

Words WordsOf(const char* text) {
    std::istringstream words(text);
    return {std::istream_iterator<std::string>(words), {}};
}

NewEntry MakeEntry(Dice& dice, int number) {
    // As book text.
    static const Words words = WordsOf(
        "k\xF6nyvt\xE1r m\xFBsor h\xEDrek id\xF5j\xE1r\xE1s z\xF6lds\xE9g sz\xEDnh\xE1z vas\xFAt "
        "t\xE9rk\xE9p bolt \xDAjs\xE1g "
        "Sz\xE9kesfeh\xE9rv\xE1r r\xE1"
        "di\xF3 recept mozi sz\xF3t\xE1r \xE1llat");
    static const Words hosts = WordsOf("konyvtar musor hirek idojaras vasut terkep szotar bolt");
    const auto any = [&dice](const Words& list) { return list[dice.Roll(list.size())]; };
    NewEntry entry;
    for (int word = 0; word < 3; ++word) entry.SiteName += any(words) + ' ';
    entry.SiteName += std::to_string(number);
    entry.URL = "http://www." + any(hosts) + '-' + std::to_string(number) + ".hu/";
    entry.URL += any(hosts) + "/index.html";
    return entry;
}

struct TemporaryFolder {
    TemporaryFolder() { std::filesystem::create_directories(Path); }
    ~TemporaryFolder() {
        std::error_code ignored;  // a leftover in the system's temporary folder does no harm
        std::filesystem::remove_all(Path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    const std::filesystem::path Path =
        std::filesystem::temp_directory_path() / ("lindrel-bench-" + std::to_string(getpid()));
};

}  // namespace

int EntriesOf(int category, int categories) {
    if (category > categories) return 0;
    return kMostEntries / categories + (category <= kMostEntries % categories ? 1 : 0);
}

Book MakeLargestBook(int categories) {
    Dice dice(32767);
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
    return folder.Path / name;
}

}  // namespace lindrel::bench
