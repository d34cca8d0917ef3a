// The main window shows all of itself after every change of its size.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/window/support/Painted.h"

namespace lindrel::testing {
namespace {

class frmStartPaintingTest : public ::testing::Test {
  protected:
    frmStartPaintingTest() {
        std::vector<Row> rows;
        for (int i = 1; i <= 40; ++i)
            rows.emplace_back(L"oldal " + std::to_wstring(i), L"http://" + std::to_wstring(i) + L".hu/");
        program.Add(1, rows);
        program.ClickRow(2);
        program.Settle();
    }
    void ExpectPainted(const std::string& when) const {
        program.Settle();
        const RECT stale = StalePart(program, program.Main());
        EXPECT_TRUE(IsRectEmpty(&stale)) << when << ": (" << stale.left << ", " << stale.top << ")-("
                                         << stale.right << ", " << stale.bottom << ")";
    }
    void Resize(int width, int height) const {
        program.OnUi([=](frmStart& form) {
            ASSERT_TRUE(SetWindowPos(form.Handle(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER));
        });
        ExpectPainted(std::to_string(width) + " x " + std::to_string(height));
    }

    Program program;
};

TEST_F(frmStartPaintingTest, AGrowingAndAShrinkingWindowLeaveNoGhosts) {
    const std::pair<int, int> sizes[] = {{800, 600},  {1300, 700}, {1400, 900},
                                         {1300, 700}, {1000, 620}, {520, 360}};
    for (const auto& [width, height] : sizes) Resize(width, height);
}

TEST_F(frmStartPaintingTest, DraggingByAFewPixelsLeavesNoTraces) {
    for (int step = 0; step < 12; ++step) Resize(700 + 7 * step, 500 + 5 * step);
    for (int step = 12; step > 0; --step) Resize(700 + 7 * step, 500 + 5 * step);
}

TEST_F(frmStartPaintingTest, MaximisingAndRestoringShowsEverything) {
    program.OnUi([](frmStart& form) { ShowWindow(form.Handle(), SW_MAXIMIZE); });
    ExpectPainted("maximised");
    program.OnUi([](frmStart& form) { ShowWindow(form.Handle(), SW_RESTORE); });
    ExpectPainted("restored");
}

}  // namespace
}  // namespace lindrel::testing
