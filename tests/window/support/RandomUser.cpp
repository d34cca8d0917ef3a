#include "tests/window/support/RandomUser.h"

#include <gtest/gtest.h>

#include "resources/resource.h"

namespace lindrel::testing {

namespace {
constexpr std::size_t kRememberedSteps = 40;
}

void RandomUser::Step() {
    struct Choice {
        int Weight;
        void (RandomUser::*Do)();
    };
    static constexpr Choice kChoices[] = {
        {20, &RandomUser::Add},       {8, &RandomUser::Edit},        {8, &RandomUser::Move},
        {5, &RandomUser::Delete},     {6, &RandomUser::Find},        {3, &RandomUser::Rename},
        {10, &RandomUser::ClickTab},  {10, &RandomUser::ClickRow},   {12, &RandomUser::ClickBoxes},
        {4, &RandomUser::PressArrow}, {5, &RandomUser::PressSpaces}, {4, &RandomUser::CheckAllOrNone},
        {1, &RandomUser::New},        {2, &RandomUser::Open},        {2, &RandomUser::Save},
        {2, &RandomUser::SaveAs},     {3, &RandomUser::ClickHeader},
    };
    int weights = 0;
    for (const Choice& choice : kChoices) weights += choice.Weight;
    int rolled = texts_.Roll(weights);
    const Choice* chosen = kChoices;
    while (rolled >= chosen->Weight) rolled -= chosen++->Weight;
    // A book of some dozen entries is large enough.
    const bool full = chosen->Do == &RandomUser::Add && lists_.Total() > 50;
    (this->*(full ? &RandomUser::Delete : chosen->Do))();
    Compare();
}

void RandomUser::Note(const std::string& step) {
    steps_.push_back(std::to_string(++steps_made_) + ": " + step);
    if (steps_.size() > kRememberedSteps) steps_.pop_front();
}

std::string RandomUser::LastSteps() const {
    std::string text;
    for (const std::string& step : steps_) text += step + "\n";
    return text;
}

void RandomUser::Compare() const {
    program_.Settle();
    EXPECT_TRUE(program_.NothingIsOpen());
    EXPECT_EQ(program_.State(), lists_.State());
    EXPECT_EQ(program_.BookBytes(), lists_.File());
    EXPECT_EQ(program_.CommandEnabled(ID_mnuToDesktop), lists_.RowCount() != 0);
}

// Mostly one of a few, so that they have many rows.
int RandomUser::RollCategory() {
    static constexpr int kFavourites[] = {1, 2, 7, 12};
    return OneIn(3) ? texts_.Roll(12) + 1 : kFavourites[texts_.Roll(4)];
}

void RandomUser::ClickTab() {
    const int category = RollCategory();
    Note("tab " + std::to_string(category));
    if (TabIsInView(category)) {
        program_.ClickTab(category);
        return lists_.ClickTab(category);
    }
    // Long names leave no room for all tabs; the keyboard reaches them.
    const bool forward = OneIn(2);
    while (lists_.Shown != category) {
        program_.Run(forward ? ID_NextTab : ID_PreviousTab);
        lists_.ClickTab((lists_.Shown + (forward ? 0 : 10)) % 12 + 1);
    }
}

bool RandomUser::TabIsInView(int category) const {
    const HWND strip = program_.Control(ID_frmStart_TabStrip1);
    return program_.Ask<bool>([&](frmStart&) {
        RECT tab{};
        RECT room{};
        if (!TabCtrl_GetItemRect(strip, category - 1, &tab) || !GetClientRect(strip, &room)) return false;
        // The arrows that scroll the tabs stand before the last ones.
        const HWND arrows = GetWindow(strip, GW_CHILD);
        if (arrows != nullptr && IsWindowVisible(arrows)) room.right -= 2 * GetSystemMetrics(SM_CXHSCROLL);
        return tab.left >= 0 && tab.right <= room.right;
    });
}

void RandomUser::ClickRow() {
    if (lists_.RowCount() == 0) return ClickTab();
    const int row = RollRow();
    Note("row " + std::to_string(row));
    program_.ClickRow(row);
    lists_.ClickRow(row);
}

void RandomUser::ClickBoxes() {
    if (lists_.RowCount() == 0) return ClickTab();
    for (int left = texts_.Roll(3) + 1; left > 0; --left) {
        const int row = RollRow();
        Note("box " + std::to_string(row));
        program_.ClickBox(row);
        lists_.ClickBox(row);
    }
}

void RandomUser::PressSpaces() {
    if (lists_.Selected == 0) return ClickRow();
    const int times = texts_.Roll(4) + 1;
    Note("space bar " + std::to_string(times) + " times");
    for (int time = 0; time < times; ++time) {
        program_.PressKey(program_.Control(ID_frmStart_ListURLs), VK_SPACE);
        lists_.ClickBox(lists_.Selected);
    }
}

void RandomUser::PressArrow() {
    if (lists_.Selected == 0) return ClickRow();
    const bool down = OneIn(2);
    Note(down ? "arrow down" : "arrow up");
    program_.PressKey(program_.Control(ID_frmStart_ListURLs), static_cast<WPARAM>(down ? VK_DOWN : VK_UP));
    const int row = lists_.Selected + (down ? 1 : -1);
    // At the ends of the list the key does nothing.
    if (row >= 1 && row <= lists_.RowCount()) lists_.ClickRow(row);
}

void RandomUser::ClickHeader() {
    Note("header of the list");
    program_.List().ClickHeader();
    lists_.ClickHeader();
}

void RandomUser::CheckAllOrNone() {
    Note("check all or none");
    program_.Run(ID_mnuSelectAll);
    lists_.CheckAllOrNone();
}

}  // namespace lindrel::testing
