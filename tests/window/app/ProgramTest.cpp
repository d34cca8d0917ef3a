// The program's start and end around its main window.

#include "app/Program.h"

#include <gtest/gtest.h>
#include <ole2.h>

#include <atomic>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "tests/window/support/Boxes.h"
#include "tests/window/support/Polling.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

// Replaces a window class of the program by one that lets no window be created.
class RefusingClass {
  public:
    explicit RefusingClass(const wchar_t* name) : name_(name) {
        UnregisterClassW(name_, GetModuleHandleW(nullptr));  // an earlier test may have made it
        WNDCLASSW description{};
        description.lpfnWndProc = [](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return FALSE; };
        description.hInstance = GetModuleHandleW(nullptr);
        description.lpszClassName = name_;
        EXPECT_NE(RegisterClassW(&description), 0);
    }
    ~RefusingClass() { EXPECT_TRUE(UnregisterClassW(name_, GetModuleHandleW(nullptr))); }
    RefusingClass(const RefusingClass&) = delete;
    RefusingClass& operator=(const RefusingClass&) = delete;

  private:
    const wchar_t* name_;
};

TEST(ProgramTest, AStartThatFailsIsReported) {
    const RefusingClass tray_area(L"TrayArea");
    std::atomic<DWORD> thread_id = 0;
    int exit_code = -1;
    std::thread starting([&] {
        thread_id = GetCurrentThreadId();
        exit_code = RunProgram(GetModuleHandleW(nullptr), SW_SHOWNORMAL);
    });
    WaitUntil("the thread", [&] { return thread_id != 0; });
    const BoxOnScreen report = WaitForBox(thread_id);
    EXPECT_EQ(report.Title(), L"Lindrel");
    EXPECT_EQ(report.Text(),
              L"Futásidejű hiba: 0\r\n\r\nA Windows ezt nem tudta teljesíteni: ablak létrehozása (TrayArea)."
              L"\r\n\r\nA program bezárul.");
    report.Press(IDOK);
    starting.join();
    EXPECT_EQ(exit_code, 1);
}

// What the system was asked for at the start, in order.
std::vector<std::string> first_calls;
decltype(&SetDllDirectoryW) set_folder = nullptr;
decltype(&SetErrorMode) set_error_mode = nullptr;
decltype(&OleInitialize) initialize = nullptr;

BOOL WINAPI RecordPolicy(PROCESS_MITIGATION_POLICY kind, void* policy, SIZE_T size) {
    const bool images =
        kind == ProcessImageLoadPolicy && size == sizeof(PROCESS_MITIGATION_IMAGE_LOAD_POLICY);
    PROCESS_MITIGATION_IMAGE_LOAD_POLICY wanted{};
    wanted.PreferSystem32Images = 1;
    const bool system_first = images && std::memcmp(policy, &wanted, size) == 0;
    first_calls.emplace_back(system_first ? "images of the system first" : "another policy");
    SetLastError(ERROR_INVALID_PARAMETER);  // as a system that does not know the policy
    return FALSE;
}
BOOL WINAPI RecordFolder(LPCWSTR folder) {
    first_calls.emplace_back(folder != nullptr && *folder == 0 ? "not in the current folder"
                                                               : "another folder");
    return set_folder(folder);
}
UINT WINAPI RecordErrorMode(UINT mode) {
    first_calls.emplace_back("error mode");
    return set_error_mode(mode);
}
HRESULT WINAPI RecordInitialization(void* reserved) {
    first_calls.emplace_back("COM");
    return initialize(reserved);
}

TEST(ProgramTest, WhereLibrariesComeFromIsSettledFirst) {
    set_folder = &SetDllDirectoryW;
    set_error_mode = &SetErrorMode;
    initialize = &OleInitialize;
    first_calls.clear();
    ASSERT_TRUE(SetDllDirectoryW(L"C:\\windows\\temp"));
    {
        const ReplacedImport policy(&SetProcessMitigationPolicy, &RecordPolicy);
        const ReplacedImport folder(&SetDllDirectoryW, &RecordFolder);
        const ReplacedImport error_mode(&SetErrorMode, &RecordErrorMode);
        const ReplacedImport com(&OleInitialize, &RecordInitialization);
        const Program program;
        EXPECT_TRUE(program.NothingIsOpen());
    }
    EXPECT_EQ(first_calls, (std::vector<std::string>{"images of the system first",
                                                     "not in the current folder", "error mode", "COM"}));
    wchar_t searched[MAX_PATH] = L"?";
    EXPECT_EQ(GetDllDirectoryW(MAX_PATH, searched), 0u);
    EXPECT_STREQ(searched, L"");
    EXPECT_TRUE(SetDllDirectoryW(nullptr));
}

TEST(ProgramTest, AnEmptyDriveOpensNoBoxOfTheSystem) {
    const UINT before = SetErrorMode(SEM_NOOPENFILEERRORBOX);
    {
        const Program program;
        EXPECT_EQ(GetErrorMode(), static_cast<UINT>(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX));
    }
    SetErrorMode(before);
}

}  // namespace
}  // namespace lindrel::testing
