// What can go wrong when a file is opened or replaced on Windows: each time the fault, the bytes that are
// there afterwards, everything that stands in the folder, and how often it is tried.
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <thread>

#include "faults/Faults.h"
#include "files/File.h"
#include "files/Files.h"
#include "files/Patience.h"
#include "files/TemporaryName.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/ReplacedImport.h"
// after windows.h
#include <aclapi.h>
#include <sddl.h>

namespace lindrel::testing {
namespace {

using Names = std::vector<std::wstring>;

constexpr char kOld[] = "old";
constexpr char kNew[] = "new";
constexpr wchar_t kNone[] = L"none";

std::wstring Reason(DWORD error) {
    wchar_t text[500] = L"";
    FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0, text, 500,
                   nullptr);
    const std::wstring reason = text;
    return reason.substr(0, reason.find_last_not_of(L"\r\n .") + 1);
}

// The reason of the fault that a call throws, which must be about that path.
std::wstring FaultOf(const std::wstring& path, const std::function<void()>& call) {
    try {
        call();
    } catch (const FileFault& fault) {
        return fault.Path() == path ? fault.Meaning() : L"a fault of " + fault.Path();
    }
    return kNone;
}
std::wstring FaultOfReplacing(const std::wstring& path) {
    return FaultOf(path, [&] { ReplaceFileBytes(path, kNew); });
}
std::wstring FaultOfReading(const std::wstring& path) {
    return FaultOf(path, [&] { ReadFileBytes(path); });
}
std::wstring FaultOfWriting(const std::wstring& path) {
    return FaultOf(path, [&] { WriteFileBytes(path, kNew); });
}

// Another program that has a file open.
class Holder {
  public:
    // For a time, or until it is destroyed.
    Holder(const std::wstring& path, DWORD sharing, std::optional<std::chrono::milliseconds> time = {})
        : file_(CreateFileW(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr)) {
        if (file_ == INVALID_HANDLE_VALUE) throw std::runtime_error("the file cannot be held");
        thread_ = std::jthread([this, time](const std::stop_token& stop) {
            const auto end = std::chrono::steady_clock::now() + time.value_or(std::chrono::minutes(1));
            while (!stop.stop_requested() && std::chrono::steady_clock::now() < end)
                std::this_thread::yield();
            CloseHandle(file_);
        });
    }

  private:
    HANDLE file_;
    std::jthread thread_;
};

constexpr std::chrono::milliseconds kMoment{300};

class FileFaultsTest : public ::testing::Test {
  protected:
    // The name that the temporary file of a.lnd has.
    static std::wstring TemporaryOfA() { return TemporaryName<wchar_t>(L"a.lnd"); }
    void Old() const { folder.Write(L"a.lnd", kOld); }
    // What is there after a replacement that succeeded, or failed.
    void Expect(const std::string& bytes) const {
        EXPECT_EQ(folder.Names(), (Names{L"a.lnd"}));
        EXPECT_EQ(TemporaryFolder::Read(file), bytes);
    }

    TemporaryFolder folder;
    const std::wstring file = folder.File(L"a.lnd");
};

TEST_F(FileFaultsTest, DevicesAreNoFiles) {
    for (const wchar_t* name : {L"nul.lnd", L"con.lnd", L"aux", L"com1.lnd", L"NUL", L"prn.x.lnd"}) {
        const std::wstring device = folder.File(name);
        EXPECT_EQ(FaultOfReplacing(device), Reason(ERROR_INVALID_NAME)) << name;
        EXPECT_EQ(FaultOfWriting(device), Reason(ERROR_INVALID_NAME)) << name;
        EXPECT_EQ(FaultOfReading(device), Reason(ERROR_INVALID_NAME)) << name;
        EXPECT_EQ(StateOf(device), std::nullopt) << name;
    }
    EXPECT_EQ(FaultOfReplacing(L"\\\\.\\pipe\\lindrel"), Reason(ERROR_INVALID_NAME));
    EXPECT_EQ(folder.Names(), Names{});
}

TEST_F(FileFaultsTest, AMissingFolder) {
    const std::wstring missing = folder.File(L"nincs\\a.lnd");
    EXPECT_EQ(FaultOfReplacing(missing), Reason(ERROR_PATH_NOT_FOUND));
    EXPECT_EQ(FaultOfWriting(missing), Reason(ERROR_PATH_NOT_FOUND));
    EXPECT_EQ(FaultOfReading(missing), Reason(ERROR_PATH_NOT_FOUND));
    EXPECT_EQ(FaultOfReading(file), Reason(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(folder.Names(), Names{});
}

TEST_F(FileFaultsTest, AFolderInThePlaceOfTheFile) {
    ASSERT_TRUE(CreateDirectoryW(file.c_str(), nullptr));
    EXPECT_EQ(FaultOfReplacing(file), Reason(ERROR_ACCESS_DENIED));
    EXPECT_EQ(folder.Names(), (Names{L"a.lnd"}));
    ASSERT_TRUE(RemoveDirectoryW(file.c_str()));
}

TEST_F(FileFaultsTest, NamesAsLongAsTheDiskAllows) {
    for (const std::size_t length : {240U, 249U, 250U, 255U}) {
        const std::wstring name = std::wstring(length - 4, L'x') + L".lnd";
        folder.Write(name, kOld);
        EXPECT_EQ(FaultOfReplacing(folder.File(name)), kNone) << length;
        EXPECT_EQ(folder.Names(), (Names{name}));
        EXPECT_EQ(TemporaryFolder::Read(folder.File(name)), kNew);
        ASSERT_TRUE(DeleteFileW(folder.File(name).c_str()));
    }
}

TEST_F(FileFaultsTest, PathsThatAreLongerThan260Characters) {
    std::wstring deep = folder.File(L"");
    deep.pop_back();
    for (int level = 0; level < 5; ++level) {
        deep += L"\\" + std::wstring(100, L'm');
        ASSERT_TRUE(CreateDirectoryW((L"\\\\?\\" + deep).c_str(), nullptr));
    }
    const std::wstring path = deep + L"\\a.lnd";
    EXPECT_EQ(FaultOfReplacing(path), kNone);
    EXPECT_EQ(FaultOfReplacing(path), kNone);
    EXPECT_EQ(FaultOfReading(path), kNone);
    EXPECT_EQ(StateOf(path).value().Size, 3U);
    ASSERT_TRUE(DeleteFileW((L"\\\\?\\" + path).c_str()));
    for (int level = 0; level < 5; ++level) {
        ASSERT_TRUE(RemoveDirectoryW((L"\\\\?\\" + deep).c_str()));
        deep.resize(deep.rfind(L'\\'));
    }
}

TEST_F(FileFaultsTest, AFileThatIsHeldForAMoment) {
    Old();
    {
        const Holder scanner(file, 0, kMoment);
        EXPECT_EQ(FaultOfReplacing(file), kNone);
    }
    Expect(kNew);
    {
        const Holder scanner(file, 0, kMoment);
        EXPECT_EQ(FaultOfReading(file), kNone);
    }
    {
        const Holder scanner(file, FILE_SHARE_READ, kMoment);
        EXPECT_EQ(FaultOfWriting(file), kNone);
    }
    Expect(kNew);
}

TEST_F(FileFaultsTest, AFileThatIsHeldForGood) {
    Old();
    const ULONGLONG start = GetTickCount64();
    {
        const Holder other(file, FILE_SHARE_READ);
        EXPECT_EQ(FaultOfReplacing(file), Reason(ERROR_ACCESS_DENIED));
        EXPECT_EQ(FaultOfWriting(file), Reason(ERROR_SHARING_VIOLATION));
    }
    Expect(kOld);
    {
        const Holder other(file, 0);
        EXPECT_EQ(FaultOfReading(file), Reason(ERROR_SHARING_VIOLATION));
    }
    EXPECT_GE(GetTickCount64() - start, static_cast<ULONGLONG>(3 * kFilePatience.count()));
}

TEST_F(FileFaultsTest, AFileThatAnotherProgramWritesCanBeRead) {
    Old();
    const HANDLE writer =
        CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(writer, INVALID_HANDLE_VALUE);
    EXPECT_EQ(FaultOfReading(file), kNone);
    CloseHandle(writer);
}

TEST_F(FileFaultsTest, WhatAKilledSaveHasLeftIsTakenOver) {
    Old();
    folder.Write(TemporaryOfA(), std::string(5000, 'x'));
    EXPECT_EQ(FaultOfReplacing(file), kNone);
    Expect(kNew);
    // The same file under another spelling has the same temporary file.
    folder.Write(TemporaryOfA(), std::string(5000, 'x'));
    EXPECT_EQ(FaultOfReplacing(folder.File(L"A.LND")), kNone);
    Expect(kNew);
}

TEST_F(FileFaultsTest, ALeftoverThatIsHeld) {
    Old();
    const std::wstring leftover = folder.Write(TemporaryOfA(), "x");
    {
        const Holder scanner(leftover, 0, kMoment);
        EXPECT_EQ(FaultOfReplacing(file), kNone);
    }
    Expect(kNew);
    folder.Write(TemporaryOfA(), "x");
    {
        const Holder other(leftover, FILE_SHARE_READ);
        EXPECT_EQ(FaultOfReplacing(file), Reason(ERROR_SHARING_VIOLATION));
        EXPECT_EQ(TemporaryFolder::Read(file), kNew);
    }
    EXPECT_EQ(FaultOfReplacing(file), kNone);
    Expect(kNew);
}

TEST_F(FileFaultsTest, TheAttributesStay) {
    Old();
    ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ(FaultOfReplacing(file), kNone);
    EXPECT_EQ(GetFileAttributesW(file.c_str()) & FILE_ATTRIBUTE_HIDDEN, DWORD{FILE_ATTRIBUTE_HIDDEN});
    EXPECT_EQ(FaultOfWriting(file), kNone);
    EXPECT_EQ(GetFileAttributesW(file.c_str()) & FILE_ATTRIBUTE_HIDDEN, DWORD{FILE_ATTRIBUTE_HIDDEN});
    ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL));
    Expect(kNew);
}

// The access list as the system writes it down.
std::wstring AccessListOf(const std::wstring& path) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    wchar_t* text = nullptr;
    if (GetNamedSecurityInfoW(path.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                              nullptr, nullptr, &descriptor) != ERROR_SUCCESS ||
        !ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor, SDDL_REVISION_1,
                                                              DACL_SECURITY_INFORMATION, &text, nullptr))
        throw std::runtime_error("no access list");
    const std::wstring list = text;
    LocalFree(text);
    LocalFree(descriptor);
    return list;
}

TEST_F(FileFaultsTest, TheAccessListStays) {
    Old();
    const std::wstring usual = AccessListOf(file);
    PSECURITY_DESCRIPTOR mine = nullptr;
    ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(A;;FA;;;OW)(A;;FA;;;BA)",
                                                                     SDDL_REVISION_1, &mine, nullptr));
    ASSERT_TRUE(SetFileSecurityW(file.c_str(), DACL_SECURITY_INFORMATION, mine));
    LocalFree(mine);
    const std::wstring list = AccessListOf(file);
    ASSERT_NE(list, usual);
    EXPECT_EQ(FaultOfReplacing(file), kNone);
    EXPECT_EQ(AccessListOf(file), list);
    Expect(kNew);
}

TEST_F(FileFaultsTest, TheStateOfAFileTellsEveryChange) {
    EXPECT_EQ(StateOf(file), std::nullopt);
    EXPECT_EQ(FaultOfReplacing(file), kNone);
    const auto before = StateOf(file);
    EXPECT_EQ(before.value().Size, 3U);
    EXPECT_EQ(StateOf(file), before);
    folder.Write(L"a.lnd", "longer");
    EXPECT_NE(StateOf(file), before);
}

// Faults that no disk here can be made to have.
BOOL(WINAPI* const kWriteFile)(HANDLE, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED) = WriteFile;
BOOL(WINAPI* const kFlushFileBuffers)(HANDLE) = FlushFileBuffers;
BOOL(WINAPI* const kMoveFileExW)(LPCWSTR, LPCWSTR, DWORD) = MoveFileExW;

template <DWORD error>
BOOL WINAPI WriteFails(HANDLE, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED) {
    SetLastError(error);
    return FALSE;
}
template <DWORD error>
BOOL WINAPI FlushFails(HANDLE) {
    SetLastError(error);
    return FALSE;
}
int tries = 0;
BOOL WINAPI MoveIsDenied(LPCWSTR, LPCWSTR, DWORD) {
    ++tries;
    SetLastError(ERROR_ACCESS_DENIED);
    return FALSE;
}

TEST_F(FileFaultsTest, AFullDisk) {
    Old();
    const ReplacedImport full(kWriteFile, &WriteFails<ERROR_DISK_FULL>);
    EXPECT_EQ(FaultOfReplacing(file), Reason(ERROR_DISK_FULL));
    EXPECT_EQ(folder.Names(), (Names{L"a.lnd"}));
}

TEST_F(FileFaultsTest, ADiskThatFailsToFlush) {
    Old();
    {
        const ReplacedImport broken(kFlushFileBuffers, &FlushFails<ERROR_IO_DEVICE>);
        EXPECT_EQ(FaultOfReplacing(file), Reason(ERROR_IO_DEVICE));
    }
    Expect(kOld);
    const ReplacedImport network(kFlushFileBuffers, &FlushFails<ERROR_INVALID_FUNCTION>);
    EXPECT_EQ(FaultOfReplacing(file), kNone);
    Expect(kNew);
}

TEST_F(FileFaultsTest, AccessDenied) {
    Old();
    tries = 0;
    {
        const ReplacedImport denied(kMoveFileExW, &MoveIsDenied);
        EXPECT_EQ(FaultOfReplacing(file), Reason(ERROR_ACCESS_DENIED));
    }
    // After pauses of 10, 20, 40 and so on up to 640, and the remaining 730 milliseconds.
    EXPECT_EQ(tries, 9);
    Expect(kOld);
}

TEST_F(FileFaultsTest, AReadOnlyFileIsRefusedAtOnce) {
    Old();
    ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
    tries = 0;
    {
        const ReplacedImport counting(kMoveFileExW, &MoveIsDenied);
        EXPECT_EQ(FaultOfReplacing(file), Reason(ERROR_ACCESS_DENIED));
    }
    EXPECT_EQ(tries, 0);
    Expect(kOld);
    ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL));
}

}  // namespace
}  // namespace lindrel::testing
