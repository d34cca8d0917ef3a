#include "files/OutputFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include "faults/Faults.h"
#include "files/Files.h"
#include "tests/native/support/TemporaryFolder.h"

namespace lindrel {
namespace {

class OutputFileTest : public ::testing::Test {
  protected:
    const testing::TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.Path();
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
    EXPECT_EQ(testing::ContentOf(path), expected + large);
}

TEST_F(OutputFileTest, ReplacesWhatWasThere) {
    WriteFileBytes(path, "something longer than what comes now");
    OutputFile file(path);
    file.Write("short");
    file.Close();
    EXPECT_EQ(testing::ContentOf(path), "short");
}

TEST_F(OutputFileTest, AnUnfinishedFileKeepsWhatWasWritten) {
    {
        OutputFile file(path);
        file.Write("as far as it went");
    }
    EXPECT_EQ(testing::ContentOf(path), "as far as it went");
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
