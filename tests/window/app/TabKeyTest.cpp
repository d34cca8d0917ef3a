// The main window under real keys: Tab and Shift+Tab through all its controls, and Enter in the search box.
// What the dialog manager does to the controls on such a way, setting the focus does not.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/window/support/Drawn.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/RealKeys.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

constexpr int kPictureButtons[] = {ID_frmStart_picGo, ID_frmStart_Image1};

// What is seen of a picture button, and what the system holds it for.
struct Look {
    std::vector<COLORREF> Pixels;
    LONG_PTR Style = 0;
    bool operator==(const Look&) const = default;
};

HWND watched = nullptr;
std::wstring characters;  // those that reached the watched window itself
decltype(&DefSubclassProc) hand_on = nullptr;

LRESULT CALLBACK HandOn(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (window == watched && message == WM_CHAR) characters += static_cast<wchar_t>(wparam);
    return hand_on(window, message, wparam, lparam);
}

// As the loader knows it: the header does not say that the function is imported, so that its name in the code
// means a jump to it.
decltype(&DefSubclassProc) AddressOfDefSubclassProc() {
    return reinterpret_cast<decltype(&DefSubclassProc)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"comctl32.dll"), "DefSubclassProc")));
}

class TabKeyTest : public ::testing::Test {
  protected:
    TabKeyTest() {
        program.Add(1, {{L"kabát", L"http://1.hu"}, {L"szék", L"http://2.hu"}, {L"ablak", L"http://3.hu"}});
        WaitUntilInFront(program.Thread());
    }
    HWND Focus() const { return FocusOfThread(program.Thread()); }
    // Presses a key that moves the focus, and returns the control that has it then.
    int MoveFocus(const Stroke& stroke) const {
        const HWND before = Focus();
        PressRealKey(stroke);
        WaitUntil("the focus to move", [&] { return Focus() != nullptr && Focus() != before; });
        program.Settle();
        return GetDlgCtrlID(Focus());
    }
    void MoveFocusTo(int id, const Stroke& stroke) const {
        for (int presses = 0; MoveFocus(stroke) != id; ++presses)
            ASSERT_LT(presses, 20) << "there is no way to the control " << id;
    }
    // The controls on the way from the one that has the focus to it again.
    std::vector<int> Round(const Stroke& stroke) const {
        const int start = GetDlgCtrlID(Focus());
        std::vector<int> way{MoveFocus(stroke)};
        while (way.back() != start && way.size() < 20) way.push_back(MoveFocus(stroke));
        return way;
    }
    // From the screen, as the last paint has left it.
    Look LookOf(int id) const {
        const HWND button = program.Control(id);
        Look look{{}, GetWindowLongPtrW(button, GWL_STYLE)};
        program.OnUi([&](frmStart&) {
            RECT area{};
            GetClientRect(button, &area);
            const HDC shown = GetDC(button);
            look.Pixels = Drawn(area.bottom, [&](HDC canvas) {
                EXPECT_TRUE(BitBlt(canvas, 0, 0, area.right, area.bottom, shown, 0, 0, SRCCOPY));
            });
            ReleaseDC(button, shown);
        });
        return look;
    }
    std::vector<Look> Looks() const {
        std::vector<Look> looks;
        for (const int id : kPictureButtons) looks.push_back(LookOf(id));
        return looks;
    }

    Program program;
    const Stroke tab{VK_TAB};
    const Stroke shift_tab{VK_TAB, {VK_SHIFT}};
};

TEST_F(TabKeyTest, LeavesThePictureButtonsAsTheyWere) {
    const std::vector<Look> before = Looks();
    EXPECT_NE(before[0].Pixels, before[1].Pixels);
    const std::vector<int> way = Round(tab);
    for (const int id : kPictureButtons) EXPECT_EQ(std::count(way.begin(), way.end(), id), 1);
    EXPECT_EQ(Looks(), before);
    EXPECT_EQ(Round(tab), way);
    EXPECT_EQ(Looks(), before);
    std::vector<int> back(way.rbegin() + 1, way.rend());
    back.push_back(way.back());
    EXPECT_EQ(Round(shift_tab), back);
    EXPECT_EQ(Round(shift_tab), back);
    EXPECT_EQ(Looks(), before);
}

TEST_F(TabKeyTest, ShowsWhichPictureButtonHasTheFocus) {
    for (const int id : kPictureButtons) {
        const Look before = LookOf(id);
        MoveFocusTo(id, tab);
        const Look focused = LookOf(id);
        EXPECT_EQ(focused.Style, before.Style);
        EXPECT_NE(focused.Pixels, before.Pixels);
        MoveFocus(tab);
        MoveFocusTo(id, shift_tab);
        EXPECT_EQ(LookOf(id), focused);
    }
}

TEST_F(TabKeyTest, EnterPressesThePictureButtonThatItHasReached) {
    MoveFocusTo(ID_frmStart_txtFind, tab);
    TypeRealText(L"ab");
    MoveFocus(tab);
    PressRealKey({VK_RETURN});
    WaitUntil("the first hit", [this] { return program.List().Selected() == 1; });
    MoveFocusTo(ID_frmStart_Image1, tab);
    PressRealKey({VK_RETURN});
    WaitUntil("the second hit", [this] { return program.List().Selected() == 3; });
}

// A text box of one line answers the return character with a sound.
TEST_F(TabKeyTest, EnterInTheSearchBoxIsSilent) {
    MoveFocusTo(ID_frmStart_txtFind, tab);
    watched = Focus();
    characters.clear();
    hand_on = AddressOfDefSubclassProc();
    {
        const ReplacedImport watching(hand_on, &HandOn);
        TypeRealText(L"ab");
        PressRealKey({VK_RETURN});
        WaitUntil("the first hit", [this] { return program.List().Selected() == 1; });
        PressRealKey({VK_RETURN});
        WaitUntil("the second hit", [this] { return program.List().Selected() == 3; });
        program.Settle();
    }
    EXPECT_EQ(characters, L"ab");
    EXPECT_EQ(TextOf(watched), L"ab");
}

}  // namespace
}  // namespace lindrel::testing
