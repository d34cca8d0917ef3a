// Where message boxes appear on the screen.

#include "system/MsgBox.h"

#include <gtest/gtest.h>

#include <optional>
#include <thread>
#include <vector>

#include "faults/Faults.h"
#include "resources/resource.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

RECT BoundsOf(HWND window) {
    RECT bounds{};
    EXPECT_TRUE(GetWindowRect(window, &bounds));
    return bounds;
}

POINT MiddleOf(HWND window) {
    const RECT bounds = BoundsOf(window);
    return {(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
}

RECT WorkArea() {
    RECT work{};
    EXPECT_TRUE(SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0));
    return work;
}

// Counts how often the program itself moves a box.
class Moves {
  public:
    Moves() {
        system = &SetWindowPos;
        move_.emplace(&SetWindowPos, &Move);
    }
    static inline int of_boxes = 0;

  private:
    static BOOL WINAPI Move(HWND window, HWND after, int x, int y, int width, int height, UINT flags) {
        if (IsMessageBox(window)) ++of_boxes;
        return system(window, after, x, y, width, height, flags);
    }
    static inline BOOL(WINAPI* system)(HWND, HWND, int, int, int, int, UINT);
    std::optional<ReplacedImport> move_;
};

int WINAPI RefuseBox(HWND, const wchar_t*, const wchar_t*, UINT) {
    SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    return 0;
}

class MsgBoxTest : public ::testing::Test {
  protected:
    // Moves the main window and has it show the box for an empty book.
    BoxOnScreen BoxOfMainAt(int left, int top, int width = 600, int height = 500) const {
        program.OnUi([=](frmStart& form) {
            SetWindowPos(form.Handle(), nullptr, left, top, width, height, SWP_NOZORDER);
        });
        program.Settle();
        program.Choose(ID_mnuFind);
        return SettledBox();
    }
    // It appears a moment before it is moved.
    BoxOnScreen SettledBox() const {
        const BoxOnScreen box = program.Box();
        program.Settle();
        return box;
    }
    static void ExpectOverMiddle(const BoxOnScreen& box, HWND owner, const char* name) {
        EXPECT_NEAR(MiddleOf(box.Handle()).x, MiddleOf(owner).x, 1) << name;
        EXPECT_NEAR(MiddleOf(box.Handle()).y, MiddleOf(owner).y, 1) << name;
    }

    Moves moves;
    Program program;
};

TEST_F(MsgBoxTest, ABoxStandsOverTheMiddleOfItsOwner) {
    for (const POINT at : {POINT{0, 0}, POINT{300, 150}, POINT{500, 250}}) {
        const BoxOnScreen box = BoxOfMainAt(at.x, at.y);
        ExpectOverMiddle(box, program.Main(), "the main window");
        box.Press(IDOK);
    }
}

TEST_F(MsgBoxTest, OfAnOwnerAtTheEdgeOfTheScreenTheBoxStaysOnIt) {
    const RECT work = WorkArea();
    const BoxOnScreen low = BoxOfMainAt(work.right - 20, work.bottom - 20);
    EXPECT_EQ(BoundsOf(low.Handle()).right, work.right);
    EXPECT_EQ(BoundsOf(low.Handle()).bottom, work.bottom);
    low.Press(IDOK);
    const BoxOnScreen high = BoxOfMainAt(-700, -600);
    EXPECT_EQ(BoundsOf(high.Handle()).left, work.left);
    EXPECT_EQ(BoundsOf(high.Handle()).top, work.top);
    high.Press(IDOK);
}

TEST_F(MsgBoxTest, ABoxThatTheUserHasMovedStays) {
    const BoxOnScreen box = BoxOfMainAt(100, 100);
    // The window manager may still be moving it.
    WaitUntil("the box to stay where it was moved", [&] {
        SetWindowPos(box.Handle(), nullptr, 3, 4, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        program.Settle();
        return BoundsOf(box.Handle()).left == 3;
    });
    program.LeaveAndComeBack();
    EXPECT_EQ(BoundsOf(box.Handle()).left, 3);
    EXPECT_EQ(BoundsOf(box.Handle()).top, 4);
    box.Press(IDOK);
}

TEST_F(MsgBoxTest, ABoxOfADialogStandsOverTheDialog) {
    // At the edge of the screen, where the dialog is not in the middle of the main window.
    BoxOfMainAt(900, 600).Press(IDOK);
    program.Choose(ID_mnuAdd);
    const DialogOnScreen dialog = program.Dialog(L"Új oldal hozzáadása");
    program.Settle();
    EXPECT_GT(MiddleOf(program.Main()).x, MiddleOf(dialog.Handle()).x + 50);
    dialog.Click(ID_frmAdd_cmdOK);
    const BoxOnScreen box = SettledBox();
    ExpectOverMiddle(box, dialog.Handle(), "the dialog");
    box.Press(IDOK);
    dialog.Cancel();
}

TEST_F(MsgBoxTest, ABoxOverABoxStandsOverItsOwnOwnerAndTheNextOneToo) {
    const BoxOnScreen outer = BoxOfMainAt(-400, -350);
    const RECT bounds = BoundsOf(outer.Handle());
    EXPECT_LT(MiddleOf(program.Main()).x, 0);
    EXPECT_EQ(bounds.left, WorkArea().left);
    const std::wstring text = L"belső";
    std::thread opening([&] { program.OnUi([&](frmStart&) { MsgBox(outer.Handle(), text); }); });
    EXPECT_TRUE(Eventually([&] { return program.Box().Text() == text; }));
    const BoxOnScreen inner = SettledBox();
    ExpectOverMiddle(inner, outer.Handle(), "the outer box");
    inner.Press(IDOK);
    opening.join();
    outer.Press(IDOK);
    const BoxOnScreen next = BoxOfMainAt(-400, -350);
    const RECT next_bounds = BoundsOf(next.Handle());
    EXPECT_TRUE(EqualRect(&next_bounds, &bounds));
    next.Press(IDOK);
}

// Windows puts it in the middle of the screen then.
TEST_F(MsgBoxTest, WithoutAVisibleOwnerABoxStaysWhereWindowsPutsIt) {
    const auto moves_of_a_box = [this](int show) {
        program.OnUi([show](frmStart& form) { ShowWindow(form.Handle(), show); });
        program.Settle();
        program.OnUi([](frmStart&) { Moves::of_boxes = 0; });
        program.Choose(ID_mnuFind);
        SettledBox().Press(IDOK);
        return program.Ask<int>([](frmStart&) { return Moves::of_boxes; });
    };
    EXPECT_EQ(moves_of_a_box(SW_SHOW), 1);
    EXPECT_EQ(moves_of_a_box(SW_MINIMIZE), 0);
    EXPECT_EQ(moves_of_a_box(SW_RESTORE), 1);
    EXPECT_EQ(moves_of_a_box(SW_HIDE), 0);
    EXPECT_EQ(moves_of_a_box(SW_SHOW), 1);
}

TEST_F(MsgBoxTest, ABoxThatCannotBeShownIsReportedAsThatAndNotAsALackOfMemory) {
    const ReplacedImport refused(&MessageBoxW, &RefuseBox);
    try {
        MsgBox(nullptr, L"szöveg");
        ADD_FAILURE() << "no fault";
    } catch (const SystemFault& fault) {
        EXPECT_EQ(fault.Number(), ERROR_INVALID_WINDOW_HANDLE);
        EXPECT_EQ(fault.Meaning(), L"A Windows ezt nem tudta teljesíteni: üzenetablak megjelenítése");
    }
}

}  // namespace
}  // namespace lindrel::testing
