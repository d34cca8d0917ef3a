// What a list with check boxes tells programs that read the screen aloud, how few rows it looks at when marks
// change, and how little it moves when it gets new rows.

#include <gtest/gtest.h>

#include <functional>
#include <string>
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

using Wanted = std::function<bool(UINT message, LPARAM lparam)>;

// Counts the messages of a window that are wanted, while a piece of code runs in the program's thread.
int Count(const Program& program, HWND window, const Wanted& wanted,
          const std::function<void(BookView& view)>& code) {
    struct Counter {
        Wanted IsWanted;
        int Messages;
    } counter{wanted, 0};
    const SUBCLASSPROC count = [](HWND counted, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                  DWORD_PTR data) {
        auto* const of_window = reinterpret_cast<Counter*>(data);
        if (of_window->IsWanted(message, lparam)) ++of_window->Messages;
        return DefSubclassProc(counted, message, wparam, lparam);
    };
    program.OnUi([&](frmStart& form) {
        EXPECT_TRUE(SetWindowSubclass(window, count, 1, reinterpret_cast<DWORD_PTR>(&counter)));
        code(form.View());
        EXPECT_TRUE(RemoveWindowSubclass(window, count, 1));
    });
    return counter.Messages;
}

bool IsSize(UINT message, LPARAM) {
    return message == WM_SIZE;
}
bool IsColumnWidth(UINT message, LPARAM lparam) {
    return message == WM_NOTIFY && reinterpret_cast<const NMHDR*>(lparam)->code == HDN_ITEMCHANGEDW;
}
bool IsAny(UINT, LPARAM) {
    return true;
}

TEST(CheckListViewTest, NewRowsMoveTheColumnsOnlyWhenTheScrollBarComesOrGoes) {
    const Program program;
    const HWND list = program.List().Handle();
    const std::vector<Row> many(100, {L"N", L"http://n.hu"});
    program.Add(2, many);
    program.Add(1, many);
    const auto fill = [](int category) {
        return [category](BookView& view) { view.FillAddressList(category); };
    };
    EXPECT_EQ(Count(program, list, &IsSize, fill(2)), 0);
    EXPECT_EQ(Count(program, list, &IsColumnWidth, fill(1)), 0);
    EXPECT_EQ(Count(program, list, &IsColumnWidth, fill(3)), 2);
    EXPECT_EQ(Count(program, list, &IsColumnWidth, fill(1)), 2);
}

TEST(CheckListViewTest, ColumnsMakeRoomBeforeTheScrollBarComes) {
    const Program program;
    program.Add(2, std::vector<Row>(100, {L"N", L"http://n.hu"}));
    std::string order;
    const Wanted written_down = [&order](UINT message, LPARAM lparam) {
        if (IsColumnWidth(message, lparam)) order += "column ";
        if (IsSize(message, lparam)) order += "list ";
        return false;
    };
    Count(program, program.List().Handle(), written_down, [](BookView& view) { view.FillAddressList(2); });
    EXPECT_EQ(order, "column column list ");
}

TEST(CheckListViewTest, NewRowsAreShownFromTheFirstOn) {
    const Program program;
    program.Add(1, std::vector<Row>(100, {L"N", L"http://n.hu"}));
    const HWND list = program.List().Handle();
    program.OnUi([](frmStart& form) { form.View().SelectRow(100); });
    EXPECT_GT(ListView_GetTopIndex(list), 0);
    program.OnUi([](frmStart& form) { form.View().FillAddressList(1); });
    program.Settle();
    EXPECT_EQ(ListView_GetTopIndex(list), 0);
    EXPECT_EQ(program.List().Selected(), 0);
}

// The control asks its header about each row that it looks at.
void ExpectFewRowsLookedAt(const Program& program, const std::function<void(BookView& view)>& code) {
    EXPECT_LT(Count(program, ListView_GetHeader(program.List().Handle()), &IsAny, code), 1000);
}

TEST(CheckListViewTest, SelectingAFarRowLooksAtFewOthers) {
    const Program program;
    program.Add(1, std::vector<Row>(32767, {L"N", L"http://n.hu"}));
    program.OnUi([](frmStart& form) { form.View().SelectRow(32767); });
    ExpectFewRowsLookedAt(program, [](BookView& view) { view.SelectRow(1); });
    EXPECT_EQ(program.List().Selected(), 1);
}

TEST(CheckListViewTest, CheckingEveryRowLooksAtFew) {
    const Program program;
    program.Add(1, std::vector<Row>(32767, {L"N", L"http://n.hu"}));
    // The list's own answers would take minutes.
    using Runs = std::vector<RowRun>;
    const auto checked = [&program] {
        return program.Ask<Runs>([](frmStart& form) { return form.View().CheckedRows(); });
    };
    ExpectFewRowsLookedAt(program, [](BookView& view) { view.SetAllChecks(true); });
    EXPECT_EQ(checked(), (Runs{{1, 32767}}));
    program.OnUi([](frmStart& form) {
        form.View().SaveCheckMarks(1);
        form.View().FillAddressList(1);
    });
    EXPECT_EQ(checked(), Runs{});
    ExpectFewRowsLookedAt(program, [](BookView& view) { view.RestoreCheckMarks(1); });
    EXPECT_EQ(checked(), (Runs{{1, 32767}}));
}

}  // namespace
}  // namespace lindrel::testing
