#include "book/OutputFile.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "book/Faults.h"
#include "book/Files.h"

namespace lindrel {
namespace {

class OutputFileTest : public ::testing::Test {
  protected:
    OutputFileTest() { std::filesystem::create_directories(folder); }
    ~OutputFileTest() override { std::filesystem::remove_all(folder); }
    std::string Read() const {
        const std::vector<char> bytes = ReadFileBytes(path);
        return {bytes.begin(), bytes.end()};
    }

    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("lindrel-output-" + std::to_string(getpid()));
    const std::filesystem::path path = folder / "lista.txt";
};

TEST_F(OutputFileTest, KeepsPiecesInTheirOrder) {
    std::string expected;
    OutputFile file(path);
    for (int i = 0; i < 30000; ++i) {
        const std::string piece = std::to_string(i) + "\r\n";
        file.Write(piece);
        expected += piece;
    }
    const std::string large(200000, '\xE1');
    file.Write(large);
    file.Close();
    EXPECT_EQ(Read(), expected + large);
}

TEST_F(OutputFileTest, ReplacesWhatWasThere) {
    WriteFileBytes(path, "something longer than what comes now");
    OutputFile file(path);
    file.Write("short");
    file.Close();
    EXPECT_EQ(Read(), "short");
}

TEST_F(OutputFileTest, AnUnfinishedFileKeepsWhatWasWritten) {
    {
        OutputFile file(path);
        file.Write("as far as it went");
    }
    EXPECT_EQ(Read(), "as far as it went");
}

// The reason in the fault that a call throws.
std::wstring ReasonOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const FileFault& fault) {
        return fault.Meaning();
    }
    return L"no fault";
}

TEST_F(OutputFileTest, AFileThatCannotBeCreatedIsAFault) {
    EXPECT_EQ(ReasonOf([&] { OutputFile(folder / "missing" / "lista.txt"); }), L"No such file or directory");
}

TEST_F(OutputFileTest, AFullDiskIsAFaultWhenTheFileIsClosedAtTheLatest) {
    OutputFile file("/dev/full");
    file.Write("x");
    EXPECT_EQ(ReasonOf([&] { file.Close(); }), L"No space left on device");
    OutputFile large("/dev/full");
    EXPECT_EQ(ReasonOf([&] {
                  large.Write(std::string(1U << 20, 'x'));
                  large.Close();
              }),
              L"No space left on device");
}

TEST_F(OutputFileTest, AFullDiskIsNoSecondFaultWhenTheFileIsLeftOpen) {
    OutputFile file("/dev/full");
    file.Write("x");
}

}  // namespace
}  // namespace lindrel
