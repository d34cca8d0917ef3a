// The program's start and end around its main window.

#include "app/Program.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "tests/window/support/Boxes.h"
#include "tests/window/support/Polling.h"
#include "tests/window/support/Program.h"

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
