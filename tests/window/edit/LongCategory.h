// A category with more rows than the list has room for, and the row that is selected in it scrolled out of
// view.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/window/support/Program.h"

namespace lindrel::testing {

class LongCategory {
  public:
    static constexpr int kRows = 200;

    // Fills the category, which must be empty, shows it and selects a row (1-based) far down.
    LongCategory(const Program& program, int category, int selected)
        : program_(program), list_(program.List().Handle()) {
        std::vector<Row> rows;
        for (int k = 1; k <= kRows; ++k) rows.emplace_back(std::to_wstring(k), L"http://a.hu");
        program_.Add(category, rows);
        program_.ClickTab(category);
        program_.ClickRow(selected);
        program_.OnUi([this](frmStart&) {
            ListView_EnsureVisible(list_, 0, FALSE);
            EXPECT_TRUE(SetWindowSubclass(list_, &WatchSelection, 0, reinterpret_cast<DWORD_PTR>(this)));
        });
        EXPECT_EQ(program_.State().SelectedRow, selected);
        EXPECT_FALSE(IsInView(selected, ListView_GetTopIndex(list_)));
    }
    ~LongCategory() {
        program_.OnUi([this](frmStart&) { EXPECT_TRUE(RemoveWindowSubclass(list_, &WatchSelection, 0)); });
    }
    LongCategory(const LongCategory&) = delete;
    LongCategory& operator=(const LongCategory&) = delete;

    // The state now, but with nothing shown of the selected row, as it is after a change in the list.
    MainState WithoutFields() const {
        MainState state = program_.State();
        state.txtSite = state.txtURL = state.Status[0] = L"";
        return state;
    }
    // The row is in view, and was so before it was selected: some systems scroll to a row that is being
    // selected, others do not.
    void ExpectScrolledIntoView(int row) const {
        EXPECT_TRUE(IsInView(row, ListView_GetTopIndex(list_)));
        EXPECT_EQ(last_selected_, row);
        EXPECT_TRUE(IsInView(row, top_before_selecting_));
    }

  private:
    bool IsInView(int row, int top) const {
        return top < row && row <= top + ListView_GetCountPerPage(list_);
    }
    static LRESULT CALLBACK WatchSelection(HWND list, UINT message, WPARAM first, LPARAM second, UINT_PTR,
                                           DWORD_PTR data) {
        if (message == LVM_SETITEMSTATE &&
            (reinterpret_cast<const LVITEMW*>(second)->state & LVIS_SELECTED) != 0) {
            auto* const self = reinterpret_cast<LongCategory*>(data);
            self->last_selected_ = static_cast<int>(first) + 1;
            self->top_before_selecting_ = ListView_GetTopIndex(list);
        }
        return DefSubclassProc(list, message, first, second);
    }

    const Program& program_;
    HWND list_;
    int last_selected_ = 0;          // 1-based, 0 for none
    int top_before_selecting_ = -1;  // first row in view when it was selected, 0-based
};

}  // namespace lindrel::testing
