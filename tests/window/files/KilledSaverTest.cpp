// A process that saves books is killed at random moments. There is always one of the whole books.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <random>
#include <set>
#include <string>

#include "files/Files.h"
#include "tests/support/Times.h"
#include "tests/window/support/Polling.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

// A book file with all entries in the first category; so long that a kill can come while it is written.
std::string BookWith(int entries, const std::string& name) {
    const std::string rest(100, name.front());
    std::string bytes = "#1\r\n";
    for (int i = 0; i < entries; ++i)
        bytes += name + std::to_string(i) + "\r\nhttp://www." + name + ".hu/" + rest + "\r\n";
    for (int k = 2; k <= 12; ++k) bytes += "#" + std::to_string(k) + "\r\n";
    return bytes;
}

class Saver {
  public:
    explicit Saver(const std::wstring& arguments) {
        std::wstring command = L"\"Z:" LINDREL_SAVER "\" " + arguments;
        STARTUPINFOW start{};
        start.cb = sizeof start;
        // Wine fails to start a process once in a long while.
        WaitUntil("the saver to start", [&] {
            return CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                  &start, &process_) != FALSE;
        });
    }
    ~Saver() {
        constexpr DWORD kKilled = 99;
        EXPECT_TRUE(TerminateProcess(process_.hProcess, kKilled));
        EXPECT_EQ(WaitForSingleObject(process_.hProcess, kDeadlineInMilliseconds), WAIT_OBJECT_0);
        DWORD code = 0;
        EXPECT_TRUE(GetExitCodeProcess(process_.hProcess, &code));
        EXPECT_EQ(code, kKilled) << "the saver had ended by itself";
        EXPECT_TRUE(CloseHandle(process_.hThread));
        EXPECT_TRUE(CloseHandle(process_.hProcess));
    }
    Saver(const Saver&) = delete;
    Saver& operator=(const Saver&) = delete;

  private:
    PROCESS_INFORMATION process_{};
};

// Whether a save is under way. Looking at the book itself could keep the saver from replacing it.
bool TemporaryFileIsIn(const TemporaryFolder& folder) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(folder.File(L"~lnd*.tmp").c_str(), &found);
    return search != INVALID_HANDLE_VALUE && FindClose(search);
}

TEST(KilledSaverTest, ThereIsAWholeBookAndNothingElseAfterTheNextSave) {
    const char* const given = std::getenv("LINDREL_SEED");
    const unsigned seed =
        given == nullptr ? std::random_device{}() : static_cast<unsigned>(std::strtoul(given, nullptr, 10));
    std::cout << "LINDREL_SEED=" << seed << std::endl;
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> microseconds(0, 5000);

    const std::string first = BookWith(3000, "egy");
    const std::string second = BookWith(20000, "k\xE9t");
    const TemporaryFolder books;
    const TemporaryFolder folder;
    const std::wstring path = folder.Write(L"a.lnd", first);
    const std::wstring arguments = L'"' + path + L"\" \"" + books.Write(L"1.lnd", first) + L"\" \"" +
                                   books.Write(L"2.lnd", second) + L'"';
    int leftovers = 0;
    for (int kill = 0; kill < Times(200, 20); ++kill) {
        {
            using Clock = std::chrono::steady_clock;
            const Saver saver(arguments);
            // Without a pause: a save takes some milliseconds.
            for (const auto deadline = Clock::now() + kDeadline; !TemporaryFileIsIn(folder);)
                ASSERT_LT(Clock::now(), deadline) << "no temporary file";
            for (const auto end = Clock::now() + std::chrono::microseconds(microseconds(random));
                 Clock::now() < end;) {
            }
        }
        const std::string bytes = TemporaryFolder::Read(path);
        ASSERT_TRUE(bytes == first || bytes == second) << "kill " << kill << ": " << bytes.size() << " bytes";
        if (TemporaryFileIsIn(folder)) ++leftovers;
        ReplaceFileBytes(path, second);
        ASSERT_EQ(folder.Names(), std::vector<std::wstring>{L"a.lnd"}) << "kill " << kill;
    }
    std::cout << leftovers << " kills left a temporary file\n";
    EXPECT_GT(leftovers, 0) << "no kill has hit a save in its middle";
}

}  // namespace
}  // namespace lindrel::testing
