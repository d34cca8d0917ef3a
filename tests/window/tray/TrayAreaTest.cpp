// The tray icon: what it tells the shell, its properties, and its mouse events.

#include "tray/TrayArea.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <ostream>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "faults/PendingFault.h"
#include "tests/window/support/Polling.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

// A call of the shell with everything that its record holds.
struct ShellCall {
    DWORD Operation = 0;
    DWORD Size = 0;
    HWND Window = nullptr;
    UINT Identifier = 0;
    UINT Flags = 0;
    UINT Message = 0;
    HICON Icon = nullptr;
    std::string Tip;  // the 64 characters of the field
    bool operator==(const ShellCall&) const = default;
};

void PrintTo(const ShellCall& call, std::ostream* out) {
    *out << "\n  operation " << call.Operation << " size " << call.Size << " window " << call.Window << " id "
         << call.Identifier << " flags " << call.Flags << " message " << call.Message << " icon " << call.Icon
         << " tip [" << ::testing::PrintToString(call.Tip) << "]";
}

using Calls = std::vector<ShellCall>;
using Texts = std::vector<std::wstring>;
const std::string kNoTip(64, '\0');

std::string Padded(const std::string& tip) {
    const std::string field = tip + '\0';
    return field + std::string(64 - field.size(), ' ');
}

// The icon on a window of its own. The shell is replaced by a recorder, which refuses all operations but
// those in `accepted`.
class TrayAreaTest : public ::testing::Test {
  protected:
    TrayAreaTest() {
        calls.clear();
        accepted.clear();
        PlaceControl(TrayArea::Environment::Running);
    }
    ~TrayAreaTest() override {
        control.reset();
        static_cast<void>(DestroyWindow(owner));  // fails where a test has destroyed it
    }

    void PlaceControl(TrayArea::Environment environment) {
        control = std::make_unique<TrayArea>();
        control->PropertyChanged = [this](const wchar_t* name) { changed.emplace_back(name); };
        control->Place(owner, environment);
        window = control->Handle();
        identifier = 0;
    }
    // The calls since the last time.
    static Calls Taken() { return std::exchange(calls, {}); }
    static std::vector<DWORD> TakenOperations() {
        std::vector<DWORD> operations;
        for (const ShellCall& call : Taken()) operations.push_back(call.Operation);
        return operations;
    }
    Texts TakenChanges() { return std::exchange(changed, {}); }

    // Sets Visible, which must add the icon in a single call under a valid identifier, and returns the call.
    ShellCall Show() {
        control->SetVisible(true);
        const Calls added = Taken();
        EXPECT_EQ(added.size(), 1u);
        identifier = added.at(0).Identifier;
        EXPECT_TRUE(identifier >= 1 && identifier <= 65535) << identifier;
        return added.at(0);
    }
    void ShowExpecting(UINT flags, HICON shown, const std::string& tip) {
        const ShellCall added = Show();
        EXPECT_EQ(added, Call(NIM_ADD, flags, shown, tip));
    }
    ShellCall Call(DWORD operation, UINT flags, HICON shown, const std::string& tip) const {
        return {operation, sizeof(void*) == 4 ? 88u : 104u, window, identifier,
                flags,     identifier == 0 ? 0u : 512u,     shown,  tip};
    }
    Calls OneCall(DWORD operation, UINT flags, HICON shown, const std::string& tip) const {
        return {Call(operation, flags, shown, tip)};
    }

    void AnnounceNewTaskbar() const { SendMessageW(owner, RegisterWindowMessageW(L"TaskbarCreated"), 0, 0); }

    void RecordEvents() {
        control->MouseMove = [this] { events.emplace_back(L"MouseMove"); };
        control->MouseDown = [this](std::int16_t& button) {
            events.push_back(L"MouseDown " + std::to_wstring(button));
        };
        control->MouseUp = [this](std::int16_t& button) {
            events.push_back(L"MouseUp " + std::to_wstring(button));
        };
        control->DblClick = [this] { events.emplace_back(L"DblClick"); };
    }
    Texts EventsOf(const std::vector<LPARAM>& messages) {
        for (const LPARAM message : messages) SendMessageW(window, 512, 4711, message);
        return std::exchange(events, {});
    }

    // Messages that windows were told to let through from programs with fewer rights.
    using Filter = std::pair<HWND, UINT>;
    static inline std::vector<Filter> allowed;
    static BOOL WINAPI RecordFilter(HWND window, UINT message, DWORD action, CHANGEFILTERSTRUCT*) {
        if (action == MSGFLT_ALLOW) allowed.emplace_back(window, message);
        return TRUE;
    }
    static BOOL WINAPI Record(DWORD operation, NOTIFYICONDATAA* record) {
        calls.push_back({operation, record->cbSize, record->hWnd, record->uID, record->uFlags,
                         record->uCallbackMessage, record->hIcon, std::string(record->szTip, 64)});
        EXPECT_EQ(record->szTip[64], '\0');  // for a reader that looks for a NUL
        return std::count(accepted.begin(), accepted.end(), operation) != 0;
    }
    static inline Calls calls;
    static inline std::vector<DWORD> accepted;
    std::optional<ReplacedImport> recorder{std::in_place, &Shell_NotifyIconA, &Record};

    const HICON icon = LoadIconW(nullptr, IDI_WARNING);
    const HICON other_icon = LoadIconW(nullptr, IDI_ERROR);
    const HWND owner = CreateWindowExW(0, L"STATIC", L"tulajdonos", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200,
                                       nullptr, nullptr, nullptr, nullptr);
    Texts changed;
    Texts events;
    std::unique_ptr<TrayArea> control;
    HWND window = nullptr;
    UINT identifier = 0;  // of the icon when it was last shown
};

TEST_F(TrayAreaTest, ANewControlIsEmptyAndTellsTheShellNothing) {
    EXPECT_EQ(control->SavedProperties(), (TrayArea::Properties{HICON{}, L"", false}));
    EXPECT_FALSE(control->Visible());
    EXPECT_EQ(Taken(), Calls{});
    EXPECT_EQ(changed, Texts{});
    EXPECT_FALSE(IsWindowVisible(window));
    EXPECT_EQ(GetParent(window), owner);
}

TEST_F(TrayAreaTest, ShowingAddsTheIconOnceAndHidingRemovesItOnce) {
    control->SetIcon(icon);
    control->SetToolTip(L"  Lindrel  ");
    Taken();
    TakenChanges();
    ShowExpecting(7, icon, Padded("Lindrel"));
    control->SetVisible(true);
    EXPECT_EQ(Taken(), Calls{});
    EXPECT_EQ(TakenChanges(), Texts{L"Visible"});
    EXPECT_TRUE(control->Visible());
    control->SetVisible(false);
    control->SetVisible(false);
    EXPECT_EQ(Taken(), OneCall(NIM_DELETE, 7, icon, Padded("Lindrel")));
    EXPECT_EQ(TakenChanges(), Texts{L"Visible"});
    EXPECT_FALSE(control->Visible());
}

TEST_F(TrayAreaTest, ShowingSendsOnlyWhatIsSet) {
    ShowExpecting(1, nullptr, kNoTip);
    control->SetVisible(false);
    EXPECT_EQ(Taken(), OneCall(NIM_DELETE, 1, nullptr, kNoTip));
    control->SetIcon(icon);
    ShowExpecting(3, icon, kNoTip);
    control->SetVisible(false);
    EXPECT_EQ(Taken(), OneCall(NIM_DELETE, 3, icon, kNoTip));
    control->SetIcon(std::nullopt);
    control->SetToolTip(L"Súgó");
    Taken();
    ASSERT_EQ(GetACP(), 1250u);
    ShowExpecting(5, icon, Padded("S\xFAg\xF3"));
}

TEST_F(TrayAreaTest, EachShowingDrawsANewIdentifierAndKeepsTheToolTip) {
    control->SetIcon(icon);
    control->SetToolTip(L"Lindrel");
    Taken();
    std::set<UINT> identifiers;
    for (int showing = 0; showing < 20; ++showing) {
        ShowExpecting(7, icon, Padded("Lindrel"));
        identifiers.insert(identifier);
        control->SetVisible(false);
        EXPECT_EQ(Taken(), OneCall(NIM_DELETE, 7, icon, Padded("Lindrel")));
    }
    // Twenty random numbers below 65536 hardly ever come to fewer than fifteen different ones.
    EXPECT_GE(identifiers.size(), 15u);
}

TEST_F(TrayAreaTest, ANewIconOfAShownOneModifiesIt) {
    control->SetIcon(icon);
    EXPECT_EQ(Taken(), Calls{});
    EXPECT_EQ(TakenChanges(), Texts{L"Icon"});
    control->SetToolTip(L"x");
    Taken();
    Show();
    TakenChanges();
    control->SetIcon(other_icon);
    EXPECT_EQ(Taken(), OneCall(NIM_MODIFY, 2, other_icon, Padded("x")));
    control->SetIcon(HICON{});
    EXPECT_EQ(Taken(), OneCall(NIM_MODIFY, 2, nullptr, Padded("x")));
    EXPECT_EQ(changed, (Texts{L"Icon", L"Icon"}));
    EXPECT_TRUE(control->Visible());
}

TEST_F(TrayAreaTest, AChangeIsAnnouncedAfterTheShellWasTold) {
    using Announced = std::vector<std::pair<std::wstring, std::vector<DWORD>>>;
    Announced announced;
    control->PropertyChanged = [&](const wchar_t* name) { announced.emplace_back(name, TakenOperations()); };
    control->SetToolTip(L"x");
    control->SetVisible(true);
    control->SetIcon(icon);
    control->SetVisible(false);
    control->SetVisible(true);
    control->SetIcon(std::nullopt);
    EXPECT_EQ(announced, (Announced{{L"ToolTip", {NIM_MODIFY}},
                                    {L"Visible", {NIM_ADD}},
                                    {L"Icon", {NIM_MODIFY}},
                                    {L"Visible", {NIM_DELETE}},
                                    {L"Visible", {NIM_ADD}},
                                    {L"Visible", {NIM_DELETE}},
                                    {L"Icon", {}}}));
    EXPECT_EQ(Taken(), Calls{});
}

TEST_F(TrayAreaTest, NoPictureAtAllRemovesTheShownIcon) {
    control->SetIcon(icon);
    Show();
    TakenChanges();
    control->SetIcon(std::nullopt);
    EXPECT_EQ(Taken(), OneCall(NIM_DELETE, 3, icon, kNoTip));
    EXPECT_EQ(control->SavedProperties(), (TrayArea::Properties{std::nullopt, L"", false}));
    EXPECT_EQ(TakenChanges(), (Texts{L"Visible", L"Icon"}));
    control->SetIcon(std::nullopt);
    EXPECT_EQ(Taken(), Calls{});
    EXPECT_EQ(changed, Texts{L"Icon"});
}

TEST_F(TrayAreaTest, AToolTipGoesToTheShellShownOrNot) {
    control->SetToolTip(L"  két szó ");
    EXPECT_EQ(control->SavedProperties().ToolTip, L"két szó");
    EXPECT_EQ(Taken(), OneCall(NIM_MODIFY, 4, nullptr, Padded("k\xE9t sz\xF3")));
    EXPECT_EQ(changed, Texts{L"ToolTip"});
    Show();
    TakenChanges();
    control->SetToolTip(L"új");
    EXPECT_EQ(Taken(), OneCall(NIM_MODIFY, 4, nullptr, Padded("\xFAj")));
    control->SetToolTip(L"   ");
    EXPECT_EQ(control->SavedProperties().ToolTip, L"");
    EXPECT_EQ(Taken(), OneCall(NIM_MODIFY, 4, nullptr, Padded("")));
    EXPECT_EQ(changed, (Texts{L"ToolTip", L"ToolTip"}));
}

TEST_F(TrayAreaTest, OfALongToolTipTheRecordHolds64Characters) {
    const auto tip_of = [this](std::size_t length) {
        control->SetToolTip(std::wstring(length - 1, L'x') + L"ő");
        return Taken().at(0).Tip;
    };
    EXPECT_EQ(tip_of(62), std::string(61, 'x') + '\xF5' + '\0' + ' ');
    EXPECT_EQ(tip_of(63), std::string(62, 'x') + '\xF5' + '\0');
    EXPECT_EQ(tip_of(64), std::string(63, 'x') + '\xF5');
    EXPECT_EQ(tip_of(65), std::string(64, 'x'));
    EXPECT_EQ(tip_of(100000), std::string(64, 'x'));
    EXPECT_EQ(control->SavedProperties().ToolTip, std::wstring(99999, L'x') + L"ő");
    control->SetToolTip(L"0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ.-+*");
    EXPECT_EQ(Taken().at(0).Tip, "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ.-");
}

TEST_F(TrayAreaTest, SavedPropertiesAreStoredWithoutACallToTheShell) {
    control->ReadProperties({icon, L" mentett ", true});
    EXPECT_EQ(control->SavedProperties(), (TrayArea::Properties{icon, L" mentett ", true}));
    // Visible was true already: no icon appears, nor with a new taskbar.
    control->SetVisible(true);
    AnnounceNewTaskbar();
    EXPECT_EQ(Taken(), Calls{});
    EXPECT_EQ(changed, Texts{});
    control->SetVisible(false);
    EXPECT_EQ(Taken(), OneCall(NIM_DELETE, 0, nullptr, kNoTip));
    ShowExpecting(7, icon, Padded(" mentett "));
}

TEST_F(TrayAreaTest, ANewTaskbarGetsAShownIconAgain) {
    AnnounceNewTaskbar();
    EXPECT_EQ(Taken(), Calls{});
    control->SetIcon(icon);
    control->SetToolTip(L"Lindrel");
    Taken();
    Show();
    control->SetIcon(other_icon);
    control->SetToolTip(L"Lindrel 2");
    Taken();
    AnnounceNewTaskbar();
    // A taskbar that has the icon already refuses to add it; then it can be modified.
    EXPECT_EQ(Taken(), (Calls{Call(NIM_ADD, 7, other_icon, Padded("Lindrel 2")),
                              Call(NIM_MODIFY, 7, other_icon, Padded("Lindrel 2"))}));
    control->SetVisible(false);
    Taken();
    AnnounceNewTaskbar();
    EXPECT_EQ(Taken(), Calls{});
}

TEST_F(TrayAreaTest, TheBroadcastOfANewTaskbarReachesTheControlOfAHiddenWindow) {
    Show();
    DWORD_PTR result = 0;
    SendMessageTimeoutW(HWND_BROADCAST, RegisterWindowMessageW(L"TaskbarCreated"), 0, 0, SMTO_ABORTIFHUNG,
                        kDeadlineInMilliseconds, &result);
    EXPECT_EQ(TakenOperations(), (std::vector<DWORD>{NIM_ADD, NIM_MODIFY}));
}

TEST_F(TrayAreaTest, ATaskbarThatNeitherAddsNorModifiesTheIconHasLostIt) {
    int lost = 0;
    control->IconLost = [&lost] { ++lost; };
    AnnounceNewTaskbar();
    EXPECT_EQ(lost, 0);  // it is not shown
    Show();
    AnnounceNewTaskbar();
    EXPECT_EQ(lost, 1);
    EXPECT_TRUE(control->Visible());
    EXPECT_FALSE(control->IsTaken());

    accepted = {NIM_MODIFY};
    AnnounceNewTaskbar();
    EXPECT_EQ(lost, 1);
    EXPECT_TRUE(control->IsTaken());

    Taken();
    accepted = {NIM_ADD};
    AnnounceNewTaskbar();
    EXPECT_EQ(lost, 1);
    EXPECT_TRUE(control->IsTaken());
    EXPECT_EQ(TakenOperations(), std::vector<DWORD>{NIM_ADD});
}

TEST_F(TrayAreaTest, MessagesOfAShellWithFewerRightsAreLetThrough) {
    allowed.clear();
    const ReplacedImport filter(&ChangeWindowMessageFilterEx, &RecordFilter);
    PlaceControl(TrayArea::Environment::Running);
    EXPECT_EQ(allowed,
              (std::vector{Filter{owner, RegisterWindowMessageW(L"TaskbarCreated")}, Filter{window, 512}}));
}

TEST_F(TrayAreaTest, TheEndOfTheControlAlwaysRemovesItsIcon) {
    Show();
    control.reset();
    EXPECT_EQ(Taken(), OneCall(NIM_DELETE, 1, nullptr, kNoTip));
    EXPECT_FALSE(IsWindow(window));
    AnnounceNewTaskbar();
    EXPECT_EQ(Taken(), Calls{});

    PlaceControl(TrayArea::Environment::Running);
    control.reset();  // never shown
    EXPECT_EQ(Taken(), OneCall(NIM_DELETE, 0, nullptr, kNoTip));
}

TEST_F(TrayAreaTest, TheEndOfTheOwnerRemovesTheIconOnce) {
    Show();
    EXPECT_TRUE(DestroyWindow(owner));
    EXPECT_EQ(Taken(), OneCall(NIM_DELETE, 1, nullptr, kNoTip));
    EXPECT_EQ(control->Handle(), nullptr);
    control.reset();
    EXPECT_EQ(Taken(), Calls{});
}

TEST_F(TrayAreaTest, TheControlKeepsTheSizeOfItsPicture) {
    const auto expect_its_size = [this] {
        RECT bounds{};
        EXPECT_TRUE(GetWindowRect(window, &bounds));
        EXPECT_EQ(bounds.right - bounds.left, GetSystemMetrics(SM_CXSMICON));
        EXPECT_EQ(bounds.bottom - bounds.top, GetSystemMetrics(SM_CYSMICON));
    };
    expect_its_size();
    for (const int side : {0, 5, 300}) {
        SetWindowPos(window, nullptr, 0, 0, side, side + 1, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        expect_its_size();
    }
}

TEST_F(TrayAreaTest, WhileTheWindowIsDesignedNoIconIsAddedButRemoved) {
    PlaceControl(TrayArea::Environment::Design);
    Taken();
    EXPECT_EQ(GetParent(window), owner);
    EXPECT_NE(GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE, 0);
    control->SetVisible(true);
    EXPECT_EQ(Taken(), Calls{});
    EXPECT_EQ(TakenChanges(), Texts{L"Visible"});
    EXPECT_TRUE(control->Visible());
    control->SetVisible(false);
    EXPECT_EQ(Taken(), OneCall(NIM_DELETE, 0, nullptr, kNoTip));
    EXPECT_EQ(changed, Texts{L"Visible"});
    control.reset();
    EXPECT_EQ(Taken(), OneCall(NIM_DELETE, 0, nullptr, kNoTip));
}

TEST_F(TrayAreaTest, EveryMouseMessageRaisesItsEventAndNoOtherNumberDoes) {
    RecordEvents();
    std::vector<LPARAM> messages;
    for (LPARAM message = 0; message <= 0x1FFFF; ++message) messages.push_back(message);
    // All bits of the parameter count.
    messages.push_back((20 << 16) | 513);
    if constexpr (sizeof(LPARAM) > 4) messages.push_back((LPARAM{1} << 32) | 513);
    EXPECT_EQ(EventsOf(messages), (Texts{L"MouseMove", L"MouseDown 1", L"MouseUp 1", L"DblClick",
                                         L"MouseDown 2", L"MouseUp 2", L"DblClick"}));
}

TEST_F(TrayAreaTest, EventsWithoutHandlersDoNothing) {
    EXPECT_EQ(EventsOf({512, 513, 514, 515, 516, 517, 518}), Texts{});
    EXPECT_EQ(Taken(), Calls{});
}

TEST_F(TrayAreaTest, AHandlerMayHideTheIconAndChangeItsButton) {
    Show();
    RecordEvents();
    control->MouseDown = [this, record = control->MouseDown](std::int16_t& button) {
        record(button);
        button = 7;
        control->SetVisible(false);
    };
    EXPECT_EQ(EventsOf({WM_LBUTTONDOWN, WM_LBUTTONUP}), (Texts{L"MouseDown 1", L"MouseUp 1"}));
    EXPECT_EQ(Taken(), OneCall(NIM_DELETE, 1, nullptr, kNoTip));
}

TEST_F(TrayAreaTest, WhatAHandlerThrowsDoesNotCrossTheWindowProcedure) {
    control->MouseDown = [](std::int16_t&) { throw std::runtime_error("hiba"); };
    EventsOf({WM_LBUTTONDOWN});
    EXPECT_THROW(ThrowPendingFault(), std::runtime_error);
}

// Dispatches the messages of this thread until the answer is true.
bool PumpEventually(const std::function<bool()>& answer) {
    return Eventually([&] {
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
        return answer();
    });
}

// The middle of the icon that the shell shows, in the window in which Wine keeps such icons.
std::optional<POINT> IconOnScreen() {
    const HWND tray = FindWindowW(nullptr, L"Wine System Tray");
    const HWND shown = tray == nullptr ? nullptr : GetWindow(tray, GW_CHILD);
    RECT bounds{};
    if (shown == nullptr || !IsWindowVisible(shown) || !GetWindowRect(shown, &bounds)) return std::nullopt;
    return POINT{(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
}

void Press(const std::vector<DWORD>& flags) {
    std::vector<INPUT> inputs(flags.size());
    for (std::size_t i = 0; i < flags.size(); ++i) {
        inputs[i].type = INPUT_MOUSE;
        inputs[i].mi.dwFlags = flags[i];
    }
    const auto count = static_cast<UINT>(inputs.size());
    ASSERT_EQ(SendInput(count, inputs.data(), sizeof(INPUT)), count);
}

TEST_F(TrayAreaTest, TheRealIconReportsBothButtonsAndDisappears) {
    recorder.reset();
    RecordEvents();
    int pointed_at = 0;
    control->MouseMove = [&] { ++pointed_at; };
    control->SetIcon(icon);
    control->SetToolTip(L"Lindrel");
    control->SetVisible(true);
    ASSERT_TRUE(PumpEventually([] { return IconOnScreen().has_value(); }));
    // The icon may still be moving to its position, and a click would miss it.
    constexpr int kAtRest = 10;
    int moves = 0;
    ASSERT_TRUE(PumpEventually([&] {
        if (const std::optional<POINT> middle = IconOnScreen()) {
            EXPECT_TRUE(SetCursorPos(middle->x + ++moves % 2, middle->y));
        }
        return pointed_at >= kAtRest;
    }));
    Press({MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP});
    ASSERT_TRUE(PumpEventually([this] { return events.size() >= 4; }));
    EXPECT_EQ(events, (Texts{L"MouseDown 1", L"MouseUp 1", L"MouseDown 2", L"MouseUp 2"}));
    control->SetVisible(false);
    EXPECT_TRUE(PumpEventually([] { return !IconOnScreen().has_value(); }));
}

}  // namespace
}  // namespace lindrel::testing
