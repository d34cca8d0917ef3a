// What a list with check boxes tells screen readers, how few rows it looks at when check marks change, and
// how little it moves when it gets new rows.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "resources/resource.h"
#include "tests/window/support/Program.h"
#include "window/Subclass.h"

namespace lindrel::testing {
namespace {

// The rows whose state has changed, 1-based, as a screen reader hears of them in the thread that pumps.
HWND list_heard = nullptr;
std::vector<LONG> rows_heard;
void CALLBACK Hear(HWINEVENTHOOK, DWORD, HWND window, LONG object, LONG child, DWORD, DWORD) {
    if (window == list_heard && object == OBJID_CLIENT) rows_heard.push_back(child);
}

TEST(CheckListViewTest, ChangesOfCheckMarksAreTold) {
    const Program program;
    program.Add(1, {{L"1", L"http://1.hu"}, {L"2", L"http://2.hu"}, {L"3", L"http://3.hu"}});
    list_heard = program.List().Handle();
    const HWINEVENTHOOK hook = SetWinEventHook(EVENT_OBJECT_STATECHANGE, EVENT_OBJECT_STATECHANGE, nullptr,
                                               &Hear, GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    program.ClickBox(3);
    program.ClickRow(2);
    program.PressKey(list_heard, VK_SPACE);
    program.Run(ID_mnuSelectAll);
    EXPECT_TRUE(Eventually([] {
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
        return rows_heard.size() >= 3;
    }));
    EXPECT_EQ(rows_heard, (std::vector<LONG>{3, 2, CHILDID_SELF}));
    EXPECT_TRUE(UnhookWinEvent(hook));
}

// What a program that serves the disabled sends; row 0 means all rows.
void SetCheckState(const ListOnScreen& list, int row, int image) {
    LVITEMW item{};
    item.stateMask = LVIS_STATEIMAGEMASK;
    item.state = static_cast<UINT>(INDEXTOSTATEIMAGEMASK(image));
    SendMessageW(list.Handle(), LVM_SETITEMSTATE, static_cast<WPARAM>(row - 1),
                 reinterpret_cast<LPARAM>(&item));
}

TEST(CheckListViewTest, ACheckMarkSetByMessageIsAToggleOfTheUser) {
    const Program program;
    program.Add(1, {{L"1", L"http://1.hu"},
                    {L"2", L"http://2.hu"},
                    {L"3", L"http://3.hu"},
                    {L"4", L"http://4.hu"},
                    {L"5", L"http://5.hu"}});
    const ListOnScreen list = program.List();
    program.ClickRow(1);
    const auto expect = [&program](int selected, const std::vector<int>& checked) {
        const MainState state = program.State();
        EXPECT_EQ(state.Checked, checked);
        EXPECT_EQ(state.Status[2], L"bejelölve " + std::to_wstring(checked.size()));
        EXPECT_EQ(state.SelectedRow, selected);
        EXPECT_EQ(state.txtSite, std::to_wstring(selected));
        EXPECT_FALSE(state.Modified);
    };
    constexpr int kUnchecked = 1;
    constexpr int kChecked = 2;
    SetCheckState(list, 3, kChecked);
    expect(1, {3});
    SetCheckState(list, 3, kChecked);
    SetCheckState(list, 2, kUnchecked);
    expect(1, {3});
    SetCheckState(list, 3, kUnchecked);
    expect(1, {});
    SetCheckState(list, 1, kChecked);
    expect(2, {1});  // as after the user's
    SetCheckState(list, 0, kChecked);
    expect(3, {1, 2, 3, 4, 5});
    SetCheckState(list, 0, kUnchecked);
    expect(4, {});
    // Neither one nor the other, and no such row.
    for (const int image : {0, 3}) SetCheckState(list, 1, image);
    for (const int row : {-1, 6}) SetCheckState(list, row, kChecked);
    expect(4, {});
}

TEST(CheckListViewTest, NoCheckMarkIsSetByMessageBehindADialog) {
    const Program program;
    program.Add(1, {{L"1", L"http://1.hu"}, {L"2", L"http://2.hu"}});
    program.ClickRow(1);
    const MainState before = program.State();
    program.Choose(ID_mnuFind);
    const DialogOnScreen dialog = program.Dialog(L"Keresés");
    dialog.Click(ID_frmFind_cmdFind);
    program.Settle();
    SetCheckState(program.List(), 0, 2);
    EXPECT_EQ(program.State(), before);
    // The dialog's own list takes it.
    const ListOnScreen hits(dialog.Control(ID_frmFind_ListView));
    SetCheckState(hits, 2, 2);
    EXPECT_EQ(hits.Checked(), std::vector<int>{2});
    dialog.Cancel();
    program.Settle();
    EXPECT_EQ(program.State().Checked, std::vector<int>{2});
    EXPECT_EQ(program.State().Status[2], L"bejelölve 1");
}

using Wanted = std::function<bool(UINT message, LPARAM lparam)>;

// Counts the messages of a window that are wanted, while a piece of code runs in the program's thread.
int Count(const Program& program, HWND window, const Wanted& wanted,
          const std::function<void(BookView& view)>& code) {
    int count = 0;
    program.OnUi([&](frmStart& form) {
        Subclass counter;
        counter.Attach(window, [&](UINT message, WPARAM, LPARAM lparam) -> std::optional<LRESULT> {
            if (wanted(message, lparam)) ++count;
            return std::nullopt;
        });
        code(form.View());
    });
    return count;
}

bool IsSize(UINT message, LPARAM) {
    return message == WM_SIZE;
}
bool IsColumnWidth(UINT message, LPARAM lparam) {
    return message == WM_NOTIFY && reinterpret_cast<const NMHDR*>(lparam)->code == HDN_ITEMCHANGEDW;
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

TEST(CheckListViewTest, SelectingAndCheckingFarRowsLooksAtFewOthers) {
    const Program program;
    program.Add(1, std::vector<Row>(32767, {L"N", L"http://n.hu"}));
    const Wanted any = [](UINT, LPARAM) { return true; };
    // The control asks its header about each row that it looks at.
    const auto expect_few_rows_looked_at = [&](const std::function<void(BookView & view)>& code) {
        EXPECT_LT(Count(program, ListView_GetHeader(program.List().Handle()), any, code), 1000);
    };
    program.OnUi([](frmStart& form) { form.View().SelectRow(32767); });
    expect_few_rows_looked_at([](BookView& view) { view.SelectRow(1); });
    EXPECT_EQ(program.List().Selected(), 1);

    // The list's own answers would take minutes.
    using Runs = std::vector<RowRun>;
    const auto checked = [&program] {
        return program.Ask<Runs>([](frmStart& form) { return form.View().CheckedRows(); });
    };
    expect_few_rows_looked_at([](BookView& view) { view.SetAllChecks(true); });
    EXPECT_EQ(checked(), (Runs{{1, 32767}}));
    program.OnUi([](frmStart& form) {
        form.View().SaveCheckMarks(1);
        form.View().FillAddressList(1);
    });
    EXPECT_EQ(checked(), Runs{});
    expect_few_rows_looked_at([](BookView& view) { view.RestoreCheckMarks(1); });
    EXPECT_EQ(checked(), (Runs{{1, 32767}}));
}

}  // namespace
}  // namespace lindrel::testing
