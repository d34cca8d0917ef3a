// What a list with check boxes tells programs that read the screen aloud.

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "resources/resource.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

using Change = std::pair<HWND, LONG>;  // whose state changed: the list, and the row, 1-based
std::vector<Change> changes;

void CALLBACK Hear(HWINEVENTHOOK, DWORD, HWND window, LONG object, LONG child, DWORD, DWORD) {
    if (object == OBJID_CLIENT) changes.emplace_back(window, child);
}

// Listens as a screen reader does, in the thread that pumps.
class ScreenReader {
  public:
    ScreenReader()
        : hook_(SetWinEventHook(EVENT_OBJECT_STATECHANGE, EVENT_OBJECT_STATECHANGE, nullptr, &Hear,
                                GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT)) {
        changes.clear();
        EXPECT_NE(hook_, nullptr);
    }
    ~ScreenReader() { EXPECT_TRUE(UnhookWinEvent(hook_)); }
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;

    // What it has heard of a list, once it has heard as much.
    static std::vector<LONG> Heard(HWND list, std::size_t count) {
        std::vector<LONG> rows;
        WaitUntil("the events", [&] {
            MSG message{};
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
            rows.clear();
            for (const auto& [window, row] : changes)
                if (window == list) rows.push_back(row);
            return rows.size() >= count;
        });
        return rows;
    }

  private:
    HWINEVENTHOOK hook_;
};

TEST(CheckListViewTest, ChangesOfCheckMarksAreTold) {
    const Program program;
    program.Add(1, {{L"1", L"http://1.hu"}, {L"2", L"http://2.hu"}, {L"3", L"http://3.hu"}});
    const HWND list = program.List().Handle();
    const ScreenReader reader;
    program.ClickBox(3);
    program.ClickRow(2);
    program.PressKey(list, VK_SPACE);
    program.Run(ID_mnuSelectAll);
    EXPECT_EQ(ScreenReader::Heard(list, 3), (std::vector<LONG>{3, 2, CHILDID_SELF}));
}

}  // namespace
}  // namespace lindrel::testing
