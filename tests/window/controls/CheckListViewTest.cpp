// What a list with check boxes tells programs that read the screen aloud, and how long its marks take.

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
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

// The shortest of some times that a piece of code takes in the program's thread.
std::chrono::nanoseconds TimeOf(const Program& program, const std::function<void(BookView& view)>& code) {
    using Clock = std::chrono::steady_clock;
    auto shortest = std::chrono::nanoseconds::max();
    for (int time = 0; time < 5; ++time)
        program.OnUi([&](frmStart& form) {
            const auto start = Clock::now();
            code(form.View());
            shortest = std::min<std::chrono::nanoseconds>(shortest, Clock::now() - start);
        });
    return shortest;
}

TEST(CheckListViewTest, CheckingEveryRowTakesNoLongerThanFillingTheList) {
    const Program program;
    program.Add(1, std::vector<Row>(32767, {L"N", L"http://n.hu"}));
    const auto filling = TimeOf(program, [](BookView& view) { view.FillAddressList(1); });
    EXPECT_LT(TimeOf(program, [](BookView& view) { view.SetAllChecks(true); }), filling);
    program.OnUi([](frmStart& form) { form.View().SaveCheckMarks(1); });
    EXPECT_LT(TimeOf(program, [](BookView& view) { view.RestoreCheckMarks(1); }), filling);
}

}  // namespace
}  // namespace lindrel::testing
