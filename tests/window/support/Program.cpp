#include "tests/window/support/Program.h"

#include <atomic>
#include <exception>
#include <ostream>

#include "app/Program.h"
#include "tests/window/support/ControlsOnScreen.h"
#include "tests/window/support/RealClipboard.h"
#include "tests/window/support/Text.h"
#include "text/BookText.h"

namespace lindrel::testing {

namespace {

constexpr UINT kRunCode = WM_APP + 1;
constexpr UINT kTellWhenIdle = WM_APP + 2;
constexpr wchar_t kEarClass[] = L"LindrelTestEar";

LRESULT CALLBACK EarProcedure(HWND window, UINT message, WPARAM first, LPARAM second) {
    if (message == kRunCode) {
        (*reinterpret_cast<const std::function<void()>*>(second))();
        return 0;
    }
    // A timer comes when nothing else waits: no message, no input, no paint.
    if (message == kTellWhenIdle) {
        SetTimer(window, first, USER_TIMER_MINIMUM, nullptr);
        return 0;
    }
    if (message == WM_TIMER) {
        if (HIWORD(GetQueueStatus(QS_ALLINPUT & ~QS_TIMER)) != 0) return 0;
        KillTimer(window, first);
        SetEvent(reinterpret_cast<HANDLE>(first));
        return 0;
    }
    return DefWindowProcW(window, message, first, second);
}

HWND MakeEar() {
    WNDCLASSW description{};
    description.lpfnWndProc = &EarProcedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = kEarClass;
    static_cast<void>(RegisterClassW(&description));  // fails when an earlier test has made it
    return CreateWindowExW(0, kEarClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, description.hInstance,
                           nullptr);
}

}  // namespace

Program::Program() {
    EmptyTheClipboard();
    std::atomic<HWND> ear{nullptr};
    thread_ = std::thread([this, &ear] {
        thread_id_ = GetCurrentThreadId();
        const HWND made = MakeEar();
        ear = made;
        exit_code_ = RunProgram(GetModuleHandleW(nullptr), SW_SHOWNORMAL);
        DestroyWindow(made);
    });
    WaitUntil("the program's thread", [&] { return ear != nullptr; });
    ear_ = ear;
    main_ = WaitForMainWindow(thread_id_);
    Settle();
}

Program::~Program() {
    if (!ended_) {
        LeaveWhateverIsOpen();
        if (IsWindow(main_)) {
            OnUi([](frmStart& form) { form.OpenedBook().Modified = false; });
            Close();
        }
        WaitForEnd();
    }
    if (thread_.joinable()) thread_.join();
}

void Program::LeaveWhateverIsOpen() const {
    const bool clean = NothingIsOpen();
    EXPECT_TRUE(clean) << "a box or dialog is still open at the end of the test";
    if (clean) return;
    WaitUntil("everything open to close", [this] {
        for (const HWND window : WindowsOf(thread_id_))
            if (window != main_ && IsWindowEnabled(window)) {
                if (IsMessageBox(window)) PostMessageW(GetWindow(window, GW_CHILD), BM_CLICK, 0, 0);
                PostMessageW(window, WM_CLOSE, 0, 0);
            }
        return NothingIsOpen();
    });
}

void Program::OnUi(const std::function<void(frmStart&)>& code) const {
    std::exception_ptr thrown;
    const std::function<void()> guarded = [&] {
        try {
            code(static_cast<frmStart&>(*OwnWindow::FromWindow(main_)));
        } catch (...) {
            thrown = std::current_exception();
        }
    };
    SendMessageW(ear_, kRunCode, 0, reinterpret_cast<LPARAM>(&guarded));
    if (thrown) std::rethrow_exception(thrown);
}

void Program::Settle() const {
    const HANDLE idle = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    PostMessageW(ear_, kTellWhenIdle, reinterpret_cast<WPARAM>(idle), 0);
    const DWORD waited = WaitForSingleObject(idle, kDeadlineInMilliseconds);
    // An event that is still to be set must stay valid.
    if (waited != WAIT_OBJECT_0) throw DeadlinePassed("the program does not come to rest");
    CloseHandle(idle);
}

void Program::Add(int category, const std::vector<Row>& rows) const {
    OnUi([&](frmStart& form) {
        std::vector<NewEntry> entries;
        for (const Row& row : rows) entries.push_back({ToBookText(row.first), ToBookText(row.second)});
        form.OpenedBook().TheBook.AddEntry(category, entries);
        form.View().FillAddressList(form.OpenedBook().CurrentCategory);
    });
}

MainState EmptyState() {
    MainState state;
    state.Title = L"Lindrel ";
    for (int k = 1; k <= 12; ++k) state.Tabs.push_back(L"Project" + std::to_wstring(k));
    state.SelectedTab = 1;
    state.Status[1] = L"megjelenítve (0 / 0)";
    state.Status[2] = L"bejelölve 0";
    return state;
}

MainState Program::State() const {
    MainState state;
    OnUi([&](frmStart& form) {
        state.Title = TextOf(form.Handle());
        state.Tabs = TabCaptions(Control(ID_frmStart_TabStrip1));
        state.SelectedTab = TabStrip(Control(ID_frmStart_TabStrip1)).Selected();
        const ListOnScreen list = List();
        state.Rows = list.Rows();
        state.Checked = list.Checked();
        state.SelectedRow = list.Selected();
        for (int panel = 1; panel <= 3; ++panel)
            state.Status[panel - 1] = PanelText(Control(ID_frmStart_StatusBar1), panel);
        state.txtSite = TextOf(Control(ID_frmStart_txtSite));
        state.txtURL = TextOf(Control(ID_frmStart_txtURL));
        state.OpenedFile = form.OpenedBook().OpenedFile;
        state.Modified = form.OpenedBook().Modified;
    });
    return state;
}

bool Program::CommandEnabled(int menu_id) const {
    const UINT state = GetMenuState(GetMenu(main_), static_cast<UINT>(menu_id), MF_BYCOMMAND);
    if (state == static_cast<UINT>(-1)) throw std::runtime_error("no such menu item");
    return (state & (MF_GRAYED | MF_DISABLED)) == 0;
}

void Program::ClickTab(int tab) const {
    RECT bounds{};
    const HWND strip = Control(ID_frmStart_TabStrip1);
    OnUi([&](frmStart&) { TabCtrl_GetItemRect(strip, tab - 1, &bounds); });
    PostClick(strip, MAKELPARAM((bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2));
    Settle();
}

void Program::LeaveAndComeBack() const {
    OnUi([](frmStart&) {
        const HWND in_front = GetActiveWindow();
        const HWND other =
            CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
        EXPECT_EQ(SetActiveWindow(other), in_front);
        EXPECT_EQ(GetActiveWindow(), other);
        EXPECT_EQ(SetActiveWindow(in_front), other);
        EXPECT_EQ(GetActiveWindow(), in_front);
        DestroyWindow(other);
    });
    Settle();
}

int Program::WaitForEnd() {
    // The ear is the last window that the thread destroys.
    WaitUntil("the program to end", [this] { return !IsWindow(ear_); });
    thread_.join();
    ended_ = true;
    return exit_code_;
}

void PrintTo(const MainState& state, std::ostream* out) {
    *out << "\n  title \"" << Narrow(state.Title) << "\" tab " << state.SelectedTab << " row "
         << state.SelectedRow << " modified " << state.Modified << " file \"" << Narrow(state.OpenedFile)
         << "\"\n  tabs";
    for (const auto& tab : state.Tabs) *out << " [" << Narrow(tab) << "]";
    *out << "\n  rows";
    for (const auto& row : state.Rows)
        *out << " [" << Narrow(row.first) << " | " << Narrow(row.second) << "]";
    *out << "\n  checked";
    for (const int position : state.Checked) *out << " " << position;
    *out << "\n  status";
    for (const auto& panel : state.Status) *out << " [" << Narrow(panel) << "]";
    *out << "\n  fields [" << Narrow(state.txtSite) << "] [" << Narrow(state.txtURL) << "]\n";
}

}  // namespace lindrel::testing
