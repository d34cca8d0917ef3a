// A process that saves books is killed at random moments. Whatever happens, there is the old book or the new
// one.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <set>
#include <string>

#include "book/Book.h"
#include "book/BookFile.h"
#include "tests/native/support/TemporaryFolder.h"
#include "tests/support/Times.h"

namespace lindrel {
namespace {

using namespace std::chrono_literals;

// A number from the environment, or the usual one.
unsigned long FromEnvironment(const char* name, unsigned long usual) {
    const char* const text = std::getenv(name);
    return text == nullptr ? usual : std::strtoul(text, nullptr, 10);
}

Book BookOf(int entries, const std::string& name) {
    Book book;
    for (int i = 0; i < entries; ++i)
        book.AddEntry(i % kCategories + 1, {{name + std::to_string(i), "http://" + name + ".hu/"}});
    return book;
}

// Saves the two books in turn until it is killed.
[[noreturn]] void SaveForEver(const Book& first, const Book& second, const std::filesystem::path& path) {
    for (;;) {
        ReplaceFileBytes(path, SaveBook(first));
        ReplaceFileBytes(path, SaveBook(second));
    }
}

void LetRunAndKill(pid_t child, std::chrono::microseconds time) {
    const auto end = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < end) {
    }
    ASSERT_EQ(::kill(child, SIGKILL), 0);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
}

TEST(KilledSaveTest, ThereIsTheOldBookOrTheNewOneAndNothingElseAfterTheNextSave) {
    const unsigned long seed = FromEnvironment("LINDREL_SEED", std::random_device{}());
    const unsigned long kills =
        FromEnvironment("LINDREL_KILLS", static_cast<unsigned long>(testing::Times(200, 50)));
    std::cout << "LINDREL_SEED=" << seed << " LINDREL_KILLS=" << kills << std::endl;
    std::mt19937 random(static_cast<std::mt19937::result_type>(seed));
    std::uniform_int_distribution<int> microseconds(0, 20000);

    const testing::TemporaryFolder temporary;
    const std::filesystem::path path = temporary.Path() / "a.lnd";
    const Book first = BookOf(3000, "egy");
    const Book second = BookOf(20000, "k\xE9t");
    const std::set<std::string> whole{SaveBook(first), SaveBook(second)};
    ReplaceFileBytes(path, SaveBook(first));
    unsigned long leftovers = 0;
    for (unsigned long kill = 0; kill < kills; ++kill) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) SaveForEver(first, second, path);
        LetRunAndKill(child, std::chrono::microseconds(microseconds(random)));
        ASSERT_TRUE(whole.contains(testing::ContentOf(path))) << "kill " << kill;
        const std::filesystem::directory_iterator there(temporary.Path());
        if (std::distance(begin(there), end(there)) > 1) ++leftovers;
    }
    ReplaceFileBytes(path, SaveBook(second));
    EXPECT_EQ(testing::ContentOf(path), SaveBook(second));
    for (const auto& entry : std::filesystem::directory_iterator(temporary.Path()))
        EXPECT_EQ(entry.path(), path);
    // Else no kill has hit a save in its middle.
    EXPECT_GT(leftovers, 0U);
    std::cout << leftovers << " kills left a temporary file\n";
}

}  // namespace
}  // namespace lindrel
