// The find dialog.

#include <gtest/gtest.h>

#include <algorithm>

#include "resources/resource.h"
#include "tests/window/support/RandomUser.h"
#include "tests/window/support/Text.h"

namespace lindrel::testing {

void RandomUser::Find() {
    Note("find");
    program_.Choose(ID_mnuFind);
    if (lists_.SeemsEmpty()) {
        const BoxOnScreen box = program_.Box();
        EXPECT_EQ(box.Text(), L"Az adatbázisban még nincsenek címek");
        return box.Press(IDOK);
    }
    const FindDialog dialog(program_, program_.Dialog(L"Keresés"));
    hits_.clear();
    hit_checked_.clear();
    hit_deleted_ = false;
    for (int left = texts_.Roll(6); left > 0; --left) {
        static constexpr void (RandomUser::*kSteps[])(const FindDialog&) = {
            &RandomUser::Search,       &RandomUser::CheckHit, &RandomUser::CheckHit,
            &RandomUser::CheckAllHits, &RandomUser::ClickHit, &RandomUser::DeleteHits,
        };
        (this->*(hits_.empty() ? &RandomUser::Search : kSteps[texts_.Roll(6)]))(dialog);
        program_.Settle();
        ExpectHits(dialog);
    }
    dialog.Close();
    lists_.CloseFind(CheckedHits(), hit_deleted_);
}

void RandomUser::Search(const FindDialog& dialog) {
    static constexpr const wchar_t* kNames[] = {L"", L"n", L"HÍR", L"ő", L"&", L"Ω", L" "};
    static constexpr const wchar_t* kEndings[] = {L"", L"", L"hu", L"COM", L"hu/", L"Ő"};
    what_ = kNames[texts_.Roll(7)];
    ending_ = kEndings[texts_.Roll(6)];
    Note("  search \"" + Narrow(what_) + "\" with ending \"" + Narrow(ending_) + "\"");
    dialog.Search(what_, ending_);
    ShowHitsAnew();
}

void RandomUser::ShowHitsAnew() {
    hits_ = lists_.Find(what_, ending_);
    hit_checked_.assign(hits_.size(), false);
}

void RandomUser::CheckHit(const FindDialog& dialog) {
    const int row = texts_.Roll(static_cast<int>(hits_.size())) + 1;
    Note("  box of hit " + std::to_string(row));
    dialog.Check({row});
    hit_checked_[static_cast<std::size_t>(row - 1)].flip();
}

void RandomUser::CheckAllHits(const FindDialog& dialog) {
    const bool check = OneIn(2);
    Note(check ? "  check all hits" : "  uncheck all hits");
    dialog.Press(check ? ID_frmFind_Command2 : ID_frmFind_Command3);
    hit_checked_.assign(hits_.size(), check);
}

void RandomUser::ClickHit(const FindDialog& dialog) {
    const int row = texts_.Roll(static_cast<int>(hits_.size())) + 1;
    Note("  hit " + std::to_string(row));
    dialog.ClickHit(row);
    EXPECT_EQ(dialog.Text(ID_frmFind_lblURL), lists_.At(hits_[static_cast<std::size_t>(row - 1)]).second);
    EXPECT_EQ(dialog.List().Selected(), row);
}

void RandomUser::DeleteHits(const FindDialog& dialog) {
    const int selected = dialog.List().Selected();
    std::vector<TwelveLists::Place> gone = CheckedHits();
    if (OneIn(2)) {
        Note("  delete the checked hits");
        dialog.Click(ID_frmFind_cmdDel);
        if (gone.empty() || !AnswerDeletion(static_cast<int>(gone.size()))) return;
    } else {
        Note("  delete hit " + std::to_string(selected));
        dialog.ListKey(VK_DELETE);
        if (selected == 0 || !AnswerDeletion(0)) return;
        gone = {hits_[static_cast<std::size_t>(selected - 1)]};
    }
    lists_.DeleteFound(gone);
    hit_deleted_ = true;
    ShowHitsAnew();
}

std::vector<TwelveLists::Place> RandomUser::CheckedHits() const {
    std::vector<TwelveLists::Place> checked;
    for (std::size_t i = 0; i < hits_.size(); ++i)
        if (hit_checked_[i]) checked.push_back(hits_[i]);
    return checked;
}

void RandomUser::ExpectHits(const FindDialog& dialog) const {
    std::vector<Row> rows;
    std::vector<int> checked;
    for (std::size_t i = 0; i < hits_.size(); ++i) {
        rows.emplace_back(lists_.At(hits_[i]).first, lists_.Of(hits_[i].Category).Name);
        if (hit_checked_[i]) checked.push_back(static_cast<int>(i) + 1);
    }
    EXPECT_EQ(dialog.List().Rows(), rows);
    EXPECT_EQ(dialog.List().Checked(), checked);
    EXPECT_EQ(dialog.Text(ID_frmFind_lblSum_1), std::to_wstring(rows.size()));
}

}  // namespace lindrel::testing
