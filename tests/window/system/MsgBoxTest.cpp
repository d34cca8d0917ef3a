// Where message boxes appear.

#include "system/MsgBox.h"

#include <gtest/gtest.h>

#include <optional>
#include <thread>
#include <vector>

#include "resources/resource.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

RECT PlaceOf(HWND window) {
    RECT place{};
    EXPECT_TRUE(GetWindowRect(window, &place));
    return place;
}

POINT MiddleOf(const RECT& place) {
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
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
    // It is there a moment before it has come to its place.
    BoxOnScreen SettledBox() const {
        const BoxOnScreen box = program.Box();
        program.Settle();
        return box;
    }
    static void ExpectMiddle(HWND box, const POINT& middle, const char* of) {
        const POINT got = MiddleOf(PlaceOf(box));
        EXPECT_NEAR(got.x, middle.x, 1) << of;
        EXPECT_NEAR(got.y, middle.y, 1) << of;
    }

    Moves moves;
    Program program;
};

TEST_F(MsgBoxTest, ABoxStandsOverTheMiddleOfItsOwner) {
    for (const POINT at : {POINT{0, 0}, POINT{300, 150}, POINT{500, 250}}) {
        const BoxOnScreen box = BoxOfMainAt(at.x, at.y);
        ExpectMiddle(box.Handle(), MiddleOf(PlaceOf(program.Main())), "the main window");
        box.Press(IDOK);
    }
}

TEST_F(MsgBoxTest, OfAnOwnerAtTheEdgeOfTheScreenTheBoxStaysOnIt) {
    const RECT work = WorkArea();
    for (const POINT at : {POINT{work.right - 20, work.bottom - 20}, POINT{-700, -600}}) {
        const BoxOnScreen box = BoxOfMainAt(at.x, at.y);
        const RECT place = PlaceOf(box.Handle());
        const bool far_edge = at.x > 0;
        EXPECT_EQ(far_edge ? place.right : place.left, far_edge ? work.right : work.left);
        EXPECT_EQ(far_edge ? place.bottom : place.top, far_edge ? work.bottom : work.top);
        box.Press(IDOK);
    }
}

TEST_F(MsgBoxTest, ABoxThatTheUserHasMovedStays) {
    const BoxOnScreen box = BoxOfMainAt(100, 100);
    // The window manager may still be placing it.
    WaitUntil("the box to stay where it was moved", [&] {
        SetWindowPos(box.Handle(), nullptr, 3, 4, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        program.Settle();
        return PlaceOf(box.Handle()).left == 3;
    });
    program.LeaveAndComeBack();
    EXPECT_EQ(PlaceOf(box.Handle()).left, 3);
    EXPECT_EQ(PlaceOf(box.Handle()).top, 4);
    box.Press(IDOK);
}

TEST_F(MsgBoxTest, ABoxOfADialogStandsOverTheDialog) {
    // At the edge of the screen, where the dialog is not in the middle of the main window.
    BoxOfMainAt(900, 600).Press(IDOK);
    program.Choose(ID_mnuAdd);
    const DialogOnScreen dialog = program.Dialog(L"Új oldal hozzáadása");
    program.Settle();
    EXPECT_GT(MiddleOf(PlaceOf(program.Main())).x, MiddleOf(PlaceOf(dialog.Handle())).x + 50);
    dialog.Click(ID_frmAdd_cmdOK);
    const BoxOnScreen box = SettledBox();
    ExpectMiddle(box.Handle(), MiddleOf(PlaceOf(dialog.Handle())), "the dialog");
    box.Press(IDOK);
    dialog.Cancel();
}

// The program's thread shows one while another is open, and its place must not be the other's.
TEST_F(MsgBoxTest, ABoxOverABoxStandsOverItsOwnOwnerAndTheNextOneToo) {
    const BoxOnScreen outer = BoxOfMainAt(-400, -350);
    const RECT place = PlaceOf(outer.Handle());
    EXPECT_LT(MiddleOf(PlaceOf(program.Main())).x, 0);
    EXPECT_EQ(place.left, WorkArea().left);
    const std::wstring text = L"belső";
    std::thread opening([&] { program.OnUi([&](frmStart&) { MsgBox(outer.Handle(), text); }); });
    EXPECT_TRUE(Eventually([&] { return program.Box().Text() == text; }));
    const BoxOnScreen inner = SettledBox();
    ExpectMiddle(inner.Handle(), MiddleOf(place), "the outer box");
    inner.Press(IDOK);
    opening.join();
    outer.Press(IDOK);
    const BoxOnScreen next = BoxOfMainAt(-400, -350);
    const RECT next_place = PlaceOf(next.Handle());
    EXPECT_TRUE(EqualRect(&next_place, &place));
    next.Press(IDOK);
}

// The system puts it into the middle of the screen then.
TEST_F(MsgBoxTest, WithoutAnOwnerToBeSeenABoxStaysWhereTheSystemPutsIt) {
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

}  // namespace
}  // namespace lindrel::testing
