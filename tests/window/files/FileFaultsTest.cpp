// What can go wrong when a file is read, written or replaced: the fault, the bytes and the names that are in
// the folder afterwards, and how often the system is asked.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>

#include "faults/Faults.h"
#include "files/Files.h"
#include "files/HeldFile.h"
#include "files/Patience.h"
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

using Time = std::chrono::milliseconds;
constexpr Time kMoment{300};
constexpr Time kForGood = std::chrono::minutes(1);

// Another program that has a file open, until the time is over or the object is destroyed.
class Holder {
  public:
    Holder(const std::wstring& path, DWORD sharing, Time time)
        : file_(CreateFileW(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr)) {
        if (file_ == INVALID_HANDLE_VALUE) throw std::runtime_error("the file cannot be held");
        thread_ = std::jthread([this, time](const std::stop_token& stop) {
            const auto end = std::chrono::steady_clock::now() + time;
            while (!stop.stop_requested() && std::chrono::steady_clock::now() < end)
                std::this_thread::yield();
            CloseHandle(file_);
        });
    }

  private:
    HANDLE file_;
    std::jthread thread_;
};

class FileFaultsTest : public ::testing::Test {
  protected:
    // The temporary file of a.lnd.
    static constexpr wchar_t kTemporary[] = L"~lnd769f0d3c.tmp";
    void Old() const { folder.Write(L"a.lnd", kOld); }
    // There is nothing but a.lnd.
    void Expect(const std::string& bytes) const {
        EXPECT_EQ(folder.Names(), (Names{L"a.lnd"}));
        EXPECT_EQ(TemporaryFolder::Read(file), bytes);
    }

    // The fault of an operation on a.lnd while another program holds a file.
    using Operation = std::wstring(const std::wstring& path);
    std::wstring FaultWhileHeld(const std::wstring& held, DWORD sharing, Time time,
                                Operation operation) const {
        const Holder other(held, sharing, time);
        return operation(file);
    }
    // The same while a function of the system is replaced.
    template <typename Function>
    std::wstring FaultWith(Function* function, Function* replacement, Operation operation) const {
        const ReplacedImport replaced(function, replacement);
        return operation(file);
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
        EXPECT_FALSE(IsFile(device)) << name;
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
    EXPECT_FALSE(IsFile(missing));
    EXPECT_FALSE(IsFile(file));
    EXPECT_EQ(folder.Names(), Names{});
}

TEST_F(FileFaultsTest, AFolderInThePlaceOfTheFile) {
    ASSERT_TRUE(CreateDirectoryW(file.c_str(), nullptr));
    EXPECT_EQ(FaultOfReplacing(file), Reason(ERROR_ACCESS_DENIED));
    EXPECT_EQ(FaultOfWriting(file), Reason(ERROR_ACCESS_DENIED));
    EXPECT_EQ(FaultOfReading(file), Reason(ERROR_ACCESS_DENIED));
    EXPECT_FALSE(IsFile(file));
    EXPECT_EQ(folder.Names(), (Names{L"a.lnd"}));
    ASSERT_TRUE(RemoveDirectoryW(file.c_str()));
}

TEST_F(FileFaultsTest, BytesComeBackAsTheyWereWritten) {
    std::string bytes;
    for (int number = 0; number < 300000; ++number) bytes += static_cast<char>(number);
    for (const std::string& written : {bytes, std::string("\0\r\n\x1A", 4), std::string()}) {
        WriteFileBytes(file, written);
        Expect(written);
        ReplaceFileBytes(file, written + "!");
        Expect(written + "!");
    }
}

TEST_F(FileFaultsTest, OtherNamesOfTheFileKeepTheOldContent) {
    Old();
    ASSERT_TRUE(CreateHardLinkW(folder.File(L"same.lnd").c_str(), file.c_str(), nullptr));
    EXPECT_EQ(FaultOfReplacing(file), kNone);
    EXPECT_EQ(folder.Names(), (Names{L"a.lnd", L"same.lnd"}));
    EXPECT_EQ(TemporaryFolder::Read(file), kNew);
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"same.lnd")), kOld);
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
    EXPECT_THROW(ReplaceFileBytes(folder.File(std::wstring(256, L'x')), kNew), FileFault);
    EXPECT_EQ(folder.Names(), Names{});
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
    EXPECT_TRUE(IsFile(path));
    ASSERT_TRUE(DeleteFileW((L"\\\\?\\" + path).c_str()));
    for (int level = 0; level < 5; ++level) {
        ASSERT_TRUE(RemoveDirectoryW((L"\\\\?\\" + deep).c_str()));
        deep.resize(deep.rfind(L'\\'));
    }
}

TEST_F(FileFaultsTest, AFileThatIsHeldForAMoment) {
    Old();
    EXPECT_EQ(FaultWhileHeld(file, 0, kMoment, FaultOfReplacing), kNone);
    Expect(kNew);
    EXPECT_EQ(FaultWhileHeld(file, 0, kMoment, FaultOfReading), kNone);
    EXPECT_EQ(FaultWhileHeld(file, FILE_SHARE_READ, kMoment, FaultOfWriting), kNone);
    Expect(kNew);
}

TEST_F(FileFaultsTest, AFileThatIsHeldForGood) {
    Old();
    const ULONGLONG start = GetTickCount64();
    EXPECT_EQ(FaultWhileHeld(file, FILE_SHARE_READ, kForGood, FaultOfReplacing), Reason(ERROR_ACCESS_DENIED));
    EXPECT_EQ(FaultWhileHeld(file, FILE_SHARE_READ, kForGood, FaultOfWriting),
              Reason(ERROR_SHARING_VIOLATION));
    Expect(kOld);
    EXPECT_EQ(FaultWhileHeld(file, 0, kForGood, FaultOfReading), Reason(ERROR_SHARING_VIOLATION));
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
    folder.Write(kTemporary, std::string(5000, 'x'));
    EXPECT_EQ(FaultOfReplacing(file), kNone);
    Expect(kNew);
    // The same file under another spelling has the same temporary file.
    folder.Write(kTemporary, std::string(5000, 'x'));
    EXPECT_EQ(FaultOfReplacing(folder.File(L"A.LND")), kNone);
    Expect(kNew);
}

TEST_F(FileFaultsTest, WhatHasTheNameOfTheTemporaryFileIsNotWrittenTo) {
    Old();
    const std::wstring treasure = folder.Write(L"treasure", "gold");
    ASSERT_TRUE(CreateHardLinkW(folder.File(kTemporary).c_str(), treasure.c_str(), nullptr));
    EXPECT_EQ(FaultOfReplacing(file), kNone);
    EXPECT_EQ(folder.Names(), (Names{L"a.lnd", L"treasure"}));
    EXPECT_EQ(TemporaryFolder::Read(treasure), "gold");
}

TEST_F(FileFaultsTest, ALeftoverThatIsHeld) {
    Old();
    const std::wstring leftover = folder.Write(kTemporary, "x");
    EXPECT_EQ(FaultWhileHeld(leftover, 0, kMoment, FaultOfReplacing), kNone);
    Expect(kNew);
    Old();
    folder.Write(kTemporary, "x");
    EXPECT_EQ(FaultWhileHeld(leftover, FILE_SHARE_READ, kForGood, FaultOfReplacing),
              Reason(ERROR_SHARING_VIOLATION));
    EXPECT_EQ(TemporaryFolder::Read(file), kOld);
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

TEST_F(FileFaultsTest, WhatIsHeldOrBeingDeletedMayPass) {
    constexpr DWORD kNoneToAskFor = INVALID_FILE_ATTRIBUTES;
    const auto denied = [](DWORD attributes, DWORD attributes_error = ERROR_SUCCESS) {
        return MayPass(ERROR_ACCESS_DENIED, attributes, attributes_error);
    };
    EXPECT_TRUE(denied(FILE_ATTRIBUTE_NORMAL));
    EXPECT_TRUE(denied(FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE, ERROR_FILE_NOT_FOUND));
    EXPECT_FALSE(denied(FILE_ATTRIBUTE_READONLY));
    EXPECT_FALSE(denied(FILE_ATTRIBUTE_DIRECTORY, ERROR_ACCESS_DENIED));
    EXPECT_TRUE(denied(kNoneToAskFor, ERROR_ACCESS_DENIED));  // being deleted
    for (const DWORD error : std::initializer_list<DWORD>{ERROR_SUCCESS, ERROR_FILE_NOT_FOUND,
                                                          ERROR_PATH_NOT_FOUND, ERROR_BAD_NETPATH})
        EXPECT_FALSE(denied(kNoneToAskFor, error)) << error;
    for (const DWORD error :
         std::initializer_list<DWORD>{ERROR_SHARING_VIOLATION, ERROR_LOCK_VIOLATION, ERROR_DELETE_PENDING}) {
        EXPECT_TRUE(MayPass(error, FILE_ATTRIBUTE_READONLY, ERROR_SUCCESS)) << error;
        EXPECT_TRUE(MayPass(error, kNoneToAskFor, ERROR_FILE_NOT_FOUND)) << error;
    }
    for (const DWORD error : std::initializer_list<DWORD>{ERROR_FILE_NOT_FOUND, ERROR_DISK_FULL,
                                                          ERROR_INVALID_NAME, ERROR_FILE_EXISTS})
        EXPECT_FALSE(MayPass(error, FILE_ATTRIBUTE_NORMAL, ERROR_ACCESS_DENIED)) << error;
}

// What no disk here can be made to do: the system's functions are replaced.
HANDLE(WINAPI* create_file)
(LPCWSTR, DWORD, DWORD, LPSECURITY_ATTRIBUTES, DWORD, DWORD, HANDLE) = nullptr;
DWORD(WINAPI* get_file_attributes)(LPCWSTR) = nullptr;

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

HANDLE WINAPI CreationIsDenied(LPCWSTR path, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                               DWORD creation, DWORD flags, HANDLE pattern) {
    if (creation != CREATE_NEW) return create_file(path, access, sharing, security, creation, flags, pattern);
    ++tries;
    SetLastError(ERROR_ACCESS_DENIED);
    return INVALID_HANDLE_VALUE;
}
DWORD WINAPI AttributesOfALink(LPCWSTR path) {
    const bool link = std::wstring_view(path).ends_with(L"\\a.lnd");
    return link ? FILE_ATTRIBUTE_REPARSE_POINT : get_file_attributes(path);
}
// Of a file that is being deleted nothing can be learned.
DWORD WINAPI AttributesUnlessBeingDeleted(LPCWSTR path) {
    const DWORD attributes = get_file_attributes(path);
    const bool leftover = std::wstring_view(path).ends_with(L".tmp");
    if (!leftover || attributes == INVALID_FILE_ATTRIBUTES) return attributes;
    SetLastError(ERROR_ACCESS_DENIED);
    return INVALID_FILE_ATTRIBUTES;
}
HANDLE WINAPI CreationUnlessBeingDeleted(LPCWSTR path, DWORD access, DWORD sharing,
                                         LPSECURITY_ATTRIBUTES security, DWORD creation, DWORD attributes,
                                         HANDLE pattern) {
    if (creation != CREATE_NEW || get_file_attributes(path) == INVALID_FILE_ATTRIBUTES)
        return create_file(path, access, sharing, security, creation, attributes, pattern);
    ++tries;
    SetLastError(ERROR_ACCESS_DENIED);
    return INVALID_HANDLE_VALUE;
}
DWORD WINAPI AttributesWithEncryption(LPCWSTR path) {
    const DWORD attributes = get_file_attributes(path);
    const bool book = attributes != INVALID_FILE_ATTRIBUTES && std::wstring_view(path).ends_with(L"\\a.lnd");
    return book ? attributes | FILE_ATTRIBUTE_ENCRYPTED : attributes;
}
std::vector<DWORD> created_with;  // attributes
HANDLE WINAPI RecordCreation(LPCWSTR path, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                             DWORD creation, DWORD attributes, HANDLE pattern) {
    if (creation == CREATE_NEW) created_with.push_back(attributes);
    return create_file(path, access, sharing, security, creation, FILE_ATTRIBUTE_NORMAL, pattern);
}
std::wstring target_of_link;
DWORD WINAPI TargetOfTheLink(HANDLE, LPWSTR path, DWORD size, DWORD) {
    return static_cast<DWORD>(target_of_link.copy(path, size));
}

// Another program has it open and has deleted it: it goes when the program closes it.
TEST_F(FileFaultsTest, ALeftoverThatIsBeingDeleted) {
    Old();
    const std::wstring leftover = folder.Write(kTemporary, "x");
    get_file_attributes = &GetFileAttributesW;
    create_file = &CreateFileW;
    tries = 0;
    const Holder other(leftover, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, kMoment);
    ASSERT_TRUE(DeleteFileW(leftover.c_str()));
    const ReplacedImport attributes(&GetFileAttributesW, &AttributesUnlessBeingDeleted);
    const ReplacedImport creation(&CreateFileW, &CreationUnlessBeingDeleted);
    EXPECT_EQ(FaultOfReplacing(file), kNone);
    EXPECT_GT(tries, 1);
    Expect(kNew);
}

// Never plain on the disk: what takes its place is encrypted before there is anything in it.
TEST_F(FileFaultsTest, AnEncryptedFileStaysEncrypted) {
    get_file_attributes = &GetFileAttributesW;
    create_file = &CreateFileW;
    created_with.clear();
    const ReplacedImport creation(&CreateFileW, &RecordCreation);
    EXPECT_EQ(FaultOfReplacing(file), kNone);  // there is none yet
    EXPECT_EQ(FaultOfReplacing(file), kNone);
    const ReplacedImport attributes(&GetFileAttributesW, &AttributesWithEncryption);
    EXPECT_EQ(FaultOfReplacing(file), kNone);
    EXPECT_EQ(created_with,
              (std::vector<DWORD>{FILE_ATTRIBUTE_NORMAL, FILE_ATTRIBUTE_NORMAL, FILE_ATTRIBUTE_ENCRYPTED}));
    Expect(kNew);
}

TEST_F(FileFaultsTest, AFullDisk) {
    Old();
    EXPECT_EQ(FaultWith(&WriteFile, &WriteFails<ERROR_DISK_FULL>, FaultOfReplacing), Reason(ERROR_DISK_FULL));
    Expect(kOld);
    EXPECT_EQ(FaultWith(&WriteFile, &WriteFails<ERROR_DISK_FULL>, FaultOfWriting), Reason(ERROR_DISK_FULL));
    Expect("");
}

TEST_F(FileFaultsTest, AFolderThatCannotBeWrittenIsRefusedAtOnce) {
    Old();
    tries = 0;
    create_file = &CreateFileW;
    EXPECT_EQ(FaultWith(&CreateFileW, &CreationIsDenied, FaultOfReplacing), Reason(ERROR_ACCESS_DENIED));
    EXPECT_EQ(tries, 1);
    Expect(kOld);
}

TEST_F(FileFaultsTest, ASymbolicLinkStaysAndItsTargetIsReplaced) {
    Old();  // the link
    target_of_link = L"\\\\?\\" + folder.Write(L"b.lnd", kOld);
    get_file_attributes = &GetFileAttributesW;
    const ReplacedImport link(&GetFileAttributesW, &AttributesOfALink);
    const ReplacedImport target(&GetFinalPathNameByHandleW, &TargetOfTheLink);
    EXPECT_EQ(FaultOfReplacing(file), kNone);
    EXPECT_EQ(folder.Names(), (Names{L"a.lnd", L"b.lnd"}));
    EXPECT_EQ(TemporaryFolder::Read(file), kOld);
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"b.lnd")), kNew);
    // On a disk without final paths the link itself is replaced.
    target_of_link.clear();
    EXPECT_EQ(FaultOfReplacing(file), kNone);
    EXPECT_EQ(TemporaryFolder::Read(file), kNew);
}

TEST_F(FileFaultsTest, ALinkThatLeadsNowhere) {
    get_file_attributes = &GetFileAttributesW;
    const ReplacedImport link(&GetFileAttributesW, &AttributesOfALink);
    EXPECT_EQ(FaultOfReplacing(file), Reason(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(folder.Names(), Names{});
}

TEST_F(FileFaultsTest, ADiskThatFailsToFlush) {
    Old();
    EXPECT_EQ(FaultWith(&FlushFileBuffers, &FlushFails<ERROR_IO_DEVICE>, FaultOfReplacing),
              Reason(ERROR_IO_DEVICE));
    Expect(kOld);
    // A drive of the network that cannot flush.
    EXPECT_EQ(FaultWith(&FlushFileBuffers, &FlushFails<ERROR_INVALID_FUNCTION>, FaultOfReplacing), kNone);
    Expect(kNew);
}

TEST_F(FileFaultsTest, AccessDenied) {
    Old();
    tries = 0;
    EXPECT_EQ(FaultWith(&MoveFileExW, &MoveIsDenied, FaultOfReplacing), Reason(ERROR_ACCESS_DENIED));
    // After pauses of 10, 20, 40 and so on up to 640, and the remaining 730 milliseconds.
    EXPECT_EQ(tries, 9);
    Expect(kOld);
}

TEST_F(FileFaultsTest, AReadOnlyFileIsRefusedAtOnce) {
    Old();
    ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
    tries = 0;
    EXPECT_EQ(FaultWith(&MoveFileExW, &MoveIsDenied, FaultOfReplacing), Reason(ERROR_ACCESS_DENIED));
    EXPECT_EQ(tries, 0);
    Expect(kOld);
    ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL));
}

}  // namespace
}  // namespace lindrel::testing
