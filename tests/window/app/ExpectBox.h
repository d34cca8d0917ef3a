// A message box that a test expects, compared as a whole and answered.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/window/support/Program.h"

namespace lindrel::testing {

struct ExpectedBox {
    std::wstring Title = L"Lindrel";
    std::wstring Text;
    BoxIcon Icon = BoxIcon::None;
    std::vector<int> Buttons = {IDOK};
};

// Waits for the box and presses a button. Does not wait for what the program does after that.
inline void ExpectBox(const Program& program, const ExpectedBox& expected, int answer = IDOK) {
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), expected.Title);
    EXPECT_EQ(box.Text(), expected.Text);
    EXPECT_EQ(box.Icon(), expected.Icon);
    EXPECT_EQ(box.Buttons(), expected.Buttons);
    box.Press(answer);
}

// The questions before entries are deleted.
inline void ExpectDeleteQuestion(const Program& program, int answer) {
    ExpectBox(program,
              {L"Törlés engedélyezése",
               L"Tényleg ki akarja törölni ezt a web címet ?",
               BoxIcon::Question,
               {IDOK, IDCANCEL}},
              answer);
    program.Settle();
}
inline void ExpectDeleteQuestion(const Program& program, int checked, int answer) {
    ExpectBox(program,
              {L"Törlés engedélyezése",
               L"Töröljem a (" + std::to_wstring(checked) + L") bejelölt címet?",
               BoxIcon::Question,
               {IDYES, IDNO}},
              answer);
    program.Settle();
}

// Waits until the program has nothing to do: only the main window is open then, in this state.
inline void ExpectState(const Program& program, const MainState& expected) {
    program.Settle();
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State(), expected);
}

}  // namespace lindrel::testing
