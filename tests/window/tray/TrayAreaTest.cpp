// What the tray icon tells the shell, and its properties.

#include "tray/TrayArea.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/window/tray/TraySession.h"

namespace lindrel::testing {
namespace {

class TrayAreaTest : public TraySession {
  protected:
    // Messages that windows were told to let through from programs with fewer rights.
    using Filter = std::pair<HWND, UINT>;
    static inline std::vector<Filter> allowed;
    static BOOL WINAPI RecordFilter(HWND window, UINT message, DWORD action, CHANGEFILTERSTRUCT*) {
        if (action == MSGFLT_ALLOW) allowed.emplace_back(window, message);
        return TRUE;
    }
};

TEST_F(TrayAreaTest, ANewControlIsEmptyAndTellsTheShellNothing) {
    EXPECT_EQ(control->SavedProperties(), (TrayArea::Properties{HICON{}, L"", false}));
    EXPECT_EQ(control->Icon(), TrayArea::Picture(HICON{}));
    EXPECT_EQ(control->ToolTip(), L"");
    EXPECT_FALSE(control->Visible());
    EXPECT_EQ(Taken(), std::vector<Call>{});
    EXPECT_EQ(changed, Texts{});
    EXPECT_FALSE(IsWindowVisible(window));
    EXPECT_EQ(GetParent(window), owner.Handle());
}

TEST_F(TrayAreaTest, ShowingAddsTheIconWithItsToolTipOnce) {
    control->SetIcon(icon);
    control->SetToolTip(L"  Lindrel  ");
    Taken();
    changed.clear();
    control->SetVisible(true);
    control->SetVisible(true);
    const std::vector<Call> added = Taken();
    ASSERT_EQ(added.size(), 1u);
    EXPECT_GE(added[0].Identifier, 1u);
    EXPECT_LE(added[0].Identifier, 65535u);
    EXPECT_EQ(added[0], Expected(NIM_ADD, added[0].Identifier, 7, 512, icon, Padded("Lindrel")));
    EXPECT_EQ(changed, Texts{L"Visible"});
    EXPECT_TRUE(control->Visible());
}

TEST_F(TrayAreaTest, ShowingSendsOnlyWhatIsSet) {
    const UINT bare = [&] {
        control->SetVisible(true);
        const std::vector<Call> added = Taken();
        EXPECT_EQ(added, std::vector{Expected(NIM_ADD, added.at(0).Identifier, 1, 512, nullptr, no_tip)});
        return added.at(0).Identifier;
    }();
    control->SetVisible(false);
    EXPECT_EQ(Taken(), std::vector{Expected(NIM_DELETE, bare, 1, 512, nullptr, no_tip)});

    control->SetIcon(icon);
    control->SetVisible(true);
    const std::vector<Call> with_icon = Taken();
    EXPECT_EQ(with_icon, std::vector{Expected(NIM_ADD, with_icon.at(0).Identifier, 3, 512, icon, no_tip)});
    control->SetVisible(false);
    Taken();

    control->SetIcon(std::nullopt);
    control->SetToolTip(L"Súgó");
    Taken();
    control->SetVisible(true);
    const std::vector<Call> with_tip = Taken();
    ASSERT_EQ(GetACP(), 1250u);
    EXPECT_EQ(with_tip,
              std::vector{Expected(NIM_ADD, with_tip.at(0).Identifier, 5, 512, icon, Padded("S\xFAg\xF3"))});
}

TEST_F(TrayAreaTest, HidingRemovesTheIconAsTheRecordStandsOnce) {
    control->SetIcon(icon);
    const UINT identifier = Show();
    control->SetVisible(false);
    control->SetVisible(false);
    EXPECT_EQ(Taken(), std::vector{Expected(NIM_DELETE, identifier, 3, 512, icon, no_tip)});
    EXPECT_EQ(changed, Texts{L"Visible"});
    EXPECT_FALSE(control->Visible());
}

TEST_F(TrayAreaTest, EachShowingDrawsANewIdentifierAndKeepsTheToolTip) {
    control->SetIcon(icon);
    control->SetToolTip(L"Lindrel");
    Taken();
    std::set<UINT> identifiers;
    for (int showing = 0; showing < 20; ++showing) {
        control->SetVisible(true);
        const std::vector<Call> added = Taken();
        ASSERT_EQ(added.size(), 1u);
        const UINT identifier = added[0].Identifier;
        EXPECT_TRUE(identifier >= 1 && identifier <= 65535) << identifier;
        EXPECT_EQ(added[0], Expected(NIM_ADD, identifier, 7, 512, icon, Padded("Lindrel")));
        identifiers.insert(identifier);
        control->SetVisible(false);
        EXPECT_EQ(Taken(), std::vector{Expected(NIM_DELETE, identifier, 7, 512, icon, Padded("Lindrel"))});
    }
    // Twenty draws of 65535 that come to fewer than fifteen numbers are no draws.
    EXPECT_GE(identifiers.size(), 15u);
}

TEST_F(TrayAreaTest, ANewIconOfAShownOneModifiesIt) {
    control->SetIcon(icon);
    EXPECT_EQ(Taken(), std::vector<Call>{});
    EXPECT_EQ(changed, Texts{L"Icon"});
    control->SetToolTip(L"x");
    Taken();
    const UINT identifier = Show();
    control->SetIcon(other_icon);
    EXPECT_EQ(Taken(), std::vector{Expected(NIM_MODIFY, identifier, 2, 512, other_icon, Padded("x"))});
    control->SetIcon(HICON{});
    EXPECT_EQ(Taken(), std::vector{Expected(NIM_MODIFY, identifier, 2, 512, nullptr, Padded("x"))});
    EXPECT_EQ(changed, (Texts{L"Icon", L"Icon"}));
    EXPECT_TRUE(control->Visible());
}

TEST_F(TrayAreaTest, AChangeIsAnnouncedWhenTheShellHasHeardOfIt) {
    using Announced = std::vector<std::pair<std::wstring, std::vector<DWORD>>>;
    Announced announced;
    control->PropertyChanged = [&announced](const wchar_t* name) {
        std::vector<DWORD> operations;
        for (const Call& call : Taken()) operations.push_back(call.Operation);
        announced.emplace_back(name, operations);
    };
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
    EXPECT_EQ(Taken(), std::vector<Call>{});
}

TEST_F(TrayAreaTest, NoPictureAtAllRemovesTheShownIcon) {
    control->SetIcon(icon);
    const UINT identifier = Show();
    control->SetIcon(std::nullopt);
    EXPECT_EQ(Taken(), std::vector{Expected(NIM_DELETE, identifier, 3, 512, icon, no_tip)});
    EXPECT_FALSE(control->Visible());
    EXPECT_EQ(control->Icon(), std::nullopt);
    EXPECT_EQ(changed, (Texts{L"Visible", L"Icon"}));
    changed.clear();
    control->SetIcon(std::nullopt);
    EXPECT_EQ(Taken(), std::vector<Call>{});
    EXPECT_EQ(changed, Texts{L"Icon"});
}

TEST_F(TrayAreaTest, AToolTipGoesToTheShellShownOrNot) {
    control->SetToolTip(L"  két szó ");
    EXPECT_EQ(control->ToolTip(), L"két szó");
    EXPECT_EQ(Taken(), std::vector{Expected(NIM_MODIFY, 0, 4, 0, nullptr, Padded("k\xE9t sz\xF3"))});
    EXPECT_EQ(changed, Texts{L"ToolTip"});
    const UINT identifier = Show();
    control->SetToolTip(L"új");
    EXPECT_EQ(Taken(), std::vector{Expected(NIM_MODIFY, identifier, 4, 512, nullptr, Padded("\xFAj"))});
    control->SetToolTip(L"   ");
    EXPECT_EQ(control->ToolTip(), L"");
    EXPECT_EQ(Taken(), std::vector{Expected(NIM_MODIFY, identifier, 4, 512, nullptr, Padded(""))});
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
    EXPECT_EQ(control->ToolTip(), std::wstring(99999, L'x') + L"ő");
}

TEST_F(TrayAreaTest, SavedPropertiesAreStoredWithoutACallToTheShell) {
    control->ReadProperties({icon, L" mentett ", true});
    EXPECT_EQ(Taken(), std::vector<Call>{});
    EXPECT_EQ(changed, Texts{});
    EXPECT_EQ(control->SavedProperties(), (TrayArea::Properties{icon, L" mentett ", true}));
    // Not from false: no icon appears, nor with a new taskbar.
    control->SetVisible(true);
    SendMessageW(owner.Handle(), RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
    EXPECT_EQ(Taken(), std::vector<Call>{});
    EXPECT_EQ(changed, Texts{});
    control->SetVisible(false);
    EXPECT_EQ(Taken(), std::vector{Expected(NIM_DELETE, 0, 0, 0, nullptr, no_tip)});
    control->SetVisible(true);
    const std::vector<Call> added = Taken();
    EXPECT_EQ(added,
              std::vector{Expected(NIM_ADD, added.at(0).Identifier, 7, 512, icon, Padded(" mentett "))});
}

TEST_F(TrayAreaTest, ANewTaskbarGetsAShownIconAgain) {
    const UINT created = RegisterWindowMessageW(L"TaskbarCreated");
    SendMessageW(owner.Handle(), created, 0, 0);
    EXPECT_EQ(Taken(), std::vector<Call>{});
    control->SetIcon(icon);
    control->SetToolTip(L"Lindrel");
    Taken();
    const UINT identifier = Show();
    control->SetIcon(other_icon);
    control->SetToolTip(L"Lindrel 2");
    Taken();
    SendMessageW(owner.Handle(), created, 0, 0);
    // Refused, for the taskbar may still have the icon: then it can be changed.
    EXPECT_EQ(Taken(),
              (std::vector{Expected(NIM_ADD, identifier, 7, 512, other_icon, Padded("Lindrel 2")),
                           Expected(NIM_MODIFY, identifier, 7, 512, other_icon, Padded("Lindrel 2"))}));
    control->SetVisible(false);
    Taken();
    SendMessageW(owner.Handle(), created, 0, 0);
    EXPECT_EQ(Taken(), std::vector<Call>{});
}

TEST_F(TrayAreaTest, TheBroadcastOfANewTaskbarReachesTheControlOfAHiddenWindow) {
    Show();
    DWORD_PTR result = 0;
    SendMessageTimeoutW(HWND_BROADCAST, RegisterWindowMessageW(L"TaskbarCreated"), 0, 0, SMTO_ABORTIFHUNG,
                        kDeadlineInMilliseconds, &result);
    const std::vector<Call> again = Taken();
    ASSERT_EQ(again.size(), 2u);
    EXPECT_EQ(again[0].Operation, static_cast<DWORD>(NIM_ADD));
    EXPECT_EQ(again[1].Operation, static_cast<DWORD>(NIM_MODIFY));
}

TEST_F(TrayAreaTest, ANewTaskbarThatNeitherTakesNorHasTheIconHasLostIt) {
    const UINT created = RegisterWindowMessageW(L"TaskbarCreated");
    int lost = 0;
    control->IconLost = [&lost] { ++lost; };
    SendMessageW(owner.Handle(), created, 0, 0);
    EXPECT_EQ(lost, 0);  // it is not shown
    Show();
    SendMessageW(owner.Handle(), created, 0, 0);
    EXPECT_EQ(lost, 1);
    EXPECT_TRUE(control->Visible());
    EXPECT_FALSE(control->IsTaken());

    Accept({NIM_MODIFY});
    SendMessageW(owner.Handle(), created, 0, 0);
    EXPECT_EQ(lost, 1);
    EXPECT_TRUE(control->IsTaken());

    Taken();
    Accept({NIM_ADD});
    SendMessageW(owner.Handle(), created, 0, 0);
    EXPECT_EQ(lost, 1);
    EXPECT_TRUE(control->IsTaken());
    EXPECT_EQ(Taken().size(), 1u);
}

TEST_F(TrayAreaTest, AShellWithFewerRightsIsHeard) {
    allowed.clear();
    const ReplacedImport filter(&ChangeWindowMessageFilterEx, &RecordFilter);
    const OwnerWindow other;
    TrayArea placed;
    placed.Place(other.Handle());
    EXPECT_EQ(allowed, (std::vector{Filter{other.Handle(), RegisterWindowMessageW(L"TaskbarCreated")},
                                    Filter{placed.Handle(), 512}}));
}

TEST_F(TrayAreaTest, TheEndOfTheControlAlwaysRemovesItsIcon) {
    const UINT identifier = Show();
    control.reset();
    EXPECT_EQ(Taken(), std::vector{Expected(NIM_DELETE, identifier, 1, 512, nullptr, no_tip)});
    EXPECT_FALSE(IsWindow(window));
    SendMessageW(owner.Handle(), RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
    EXPECT_EQ(Taken(), std::vector<Call>{});

    control = std::make_unique<TrayArea>();
    control->Place(owner.Handle());
    window = control->Handle();
    control.reset();  // never shown
    EXPECT_EQ(Taken(), std::vector{Expected(NIM_DELETE, 0, 0, 0, nullptr, no_tip)});
}

TEST_F(TrayAreaTest, TheEndOfTheOwnerRemovesTheIconOnce) {
    const UINT identifier = Show();
    owner.Close();
    EXPECT_EQ(Taken(), std::vector{Expected(NIM_DELETE, identifier, 1, 512, nullptr, no_tip)});
    EXPECT_EQ(control->Handle(), nullptr);
    control.reset();
    EXPECT_EQ(Taken(), std::vector<Call>{});
}

TEST_F(TrayAreaTest, TheControlKeepsTheSizeOfItsPicture) {
    const auto size = [this] {
        RECT place{};
        EXPECT_TRUE(GetWindowRect(window, &place));
        return std::make_pair(place.right - place.left, place.bottom - place.top);
    };
    const auto picture =
        std::make_pair<LONG, LONG>(GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON));
    EXPECT_EQ(size(), picture);
    for (const int side : {0, 5, 300}) {
        SetWindowPos(window, nullptr, 0, 0, side, side + 1, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        EXPECT_EQ(size(), picture) << side;
    }
}

TEST_F(TrayAreaTest, WhileTheWindowIsDesignedNoIconIsAddedButRemoved) {
    const OwnerWindow drawing_board;
    auto designed = std::make_unique<TrayArea>();
    designed->PropertyChanged = [this](const wchar_t* name) { changed.emplace_back(name); };
    designed->Place(drawing_board.Handle(), TrayArea::Environment::Design);
    EXPECT_EQ(GetParent(designed->Handle()), drawing_board.Handle());
    EXPECT_NE(GetWindowLongW(designed->Handle(), GWL_STYLE) & WS_VISIBLE, 0);
    designed->SetVisible(true);
    EXPECT_EQ(Taken(), std::vector<Call>{});
    EXPECT_EQ(changed, Texts{L"Visible"});
    EXPECT_TRUE(designed->Visible());

    const std::vector removed{Call{NIM_DELETE, kSize, designed->Handle(), 0, 0, 0, nullptr, no_tip}};
    designed->SetVisible(false);
    EXPECT_EQ(Taken(), removed);
    EXPECT_EQ(changed, (Texts{L"Visible", L"Visible"}));
    designed.reset();
    EXPECT_EQ(Taken(), removed);
}

}  // namespace
}  // namespace lindrel::testing
