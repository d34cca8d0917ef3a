// The program is killed while it saves. Whatever happens, there is the old book or the new one.

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

#include "resources/resource.h"
#include "tests/e2e/support/ShippedProgram.h"
#include "tests/support/Times.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

// All entries in the first category, "n<number>" from a number on.
std::string BookFrom(int first, int last) {
    std::string bytes = "#1\r\n";
    for (int i = first; i <= last; ++i)
        bytes += "n" + std::to_string(i) + "\r\nhttp://www.oldal.hu/" + std::to_string(i) + "\r\n";
    for (int k = 2; k <= 12; ++k) bytes += "#" + std::to_string(k) + "\r\n";
    return bytes;
}

class KilledSaveTest : public ::testing::Test {
  protected:
    static constexpr int kEntries = 20000;

    // Opens the book and deletes its first entry. By messages: on a busy machine Wine loses a real key now
    // and then, and this test is about the file, not about the keys.
    void OpenAndDeleteTheFirst(const ShippedProgram& program, int rows) const {
        program.Choose(ID_mnuOpen);
        program.FileDialog().Accept(book);
        WaitUntil("the rows of the book", [&] { return program.RowCount() == rows; });
        ASSERT_TRUE(PostMessageW(program.Control(ID_frmStart_ListURLs), WM_KEYDOWN, VK_DOWN, 0));
        WaitUntil("the first row", [&] { return program.SelectedRow() == 1; });
        program.Choose(ID_mnuDel);
        program.Box().Press(IDOK);
        WaitUntil("the deletion", [&] { return program.RowCount() == rows - 1; });
    }

    TemporaryFolder folder;
    const std::wstring book = folder.Write(L"a.lnd", BookFrom(1, kEntries));
};

TEST_F(KilledSaveTest, ThereIsTheOldBookOrTheNewOneAndNothingElseAfterTheNextSave) {
    const char* const given = std::getenv("LINDREL_SEED");
    const unsigned seed =
        given == nullptr ? std::random_device{}() : static_cast<unsigned>(std::strtoul(given, nullptr, 10));
    std::cout << "LINDREL_SEED=" << seed << std::endl;
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> milliseconds(0, 60);

    int first = 1;  // of the entries that the file holds
    const int kills = Times(20, 5);
    for (int kill = 0; kill < kills; ++kill) {
        {
            const ShippedProgram program;
            OpenAndDeleteTheFirst(program, kEntries - first + 1);
            program.Choose(ID_mnuSave);
            const auto end =
                std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds(random));
            while (std::chrono::steady_clock::now() < end) {
            }
        }  // killed
        const std::string bytes = TemporaryFolder::Read(book);
        const bool saved = bytes == BookFrom(first + 1, kEntries);
        ASSERT_TRUE(saved || bytes == BookFrom(first, kEntries)) << "kill " << kill;
        if (saved) ++first;
    }
    std::cout << first - 1 << " of " << kills << " kills came after the save\n";
    const ShippedProgram program;
    OpenAndDeleteTheFirst(program, kEntries - first + 1);
    program.Choose(ID_mnuSave);
    WaitUntil("the box that tells of the save",
              [&] { return program.Title() == L"Lindrel -a.lnd" && !IsWindowEnabled(program.Main()); });
    program.Box().Press(IDOK);
    EXPECT_EQ(TemporaryFolder::Read(book), BookFrom(first + 1, kEntries));
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"a.lnd"});
}

}  // namespace
}  // namespace lindrel::testing
