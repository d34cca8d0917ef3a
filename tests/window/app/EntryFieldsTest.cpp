// Name and address of the entry that was picked last; opening and copying the address.

#include <gtest/gtest.h>

#include <algorithm>

#include "resources/resource.h"
#include "tests/window/app/ExpectBox.h"
#include "tests/window/support/Drawn.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/RealClipboard.h"
#include "tests/window/support/RecordedShell.h"
#include "tests/window/support/ToolTipOf.h"

namespace lindrel::testing {
namespace {

class EntryFieldsTest : public ::testing::Test {
  protected:
    EntryFieldsTest() {
        program.Add(
            1, {{L"Egy", L"http://egy.hu"}, {L"Kettő", L"http://ketto.hu"}, {L"Három", L"http://harom.hu"}});
    }
    void PressGo() const {
        PostMessageW(program.Control(ID_frmStart_picGo), BM_CLICK, 0, 0);
        program.Settle();
    }
    void DoubleClickAddress() const {
        const HWND field = program.Control(ID_frmStart_txtURL);
        PostMessageW(field, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
        PostMessageW(field, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
        program.Settle();
    }

    Program program;
};

TEST_F(EntryFieldsTest, TheButtonShowsTheLargePicture) {
    constexpr int kSide = 48;
    program.OnUi([&](frmStart&) {
        const HWND button = program.Control(ID_frmStart_picGo);
        const std::vector<COLORREF> pixels = Drawn(kSide, [&](HDC canvas) {
            DRAWITEMSTRUCT item{};
            item.hDC = canvas;
            item.rcItem = {0, 0, kSide, kSide};
            SendMessageW(button, WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
        });
        int first = kSide;
        int last = -1;
        for (int at = 0; at < kSide * kSide; ++at) {
            if (pixels[static_cast<std::size_t>(at)] == GetSysColor(COLOR_BTNFACE)) continue;
            first = std::min(first, at / kSide);
            last = std::max(last, at / kSide);
        }
        // 24 pixels, with a rim of its own.
        EXPECT_GE(first, 12);
        EXPECT_LT(last, 36);
        EXPECT_GT(last - first, 16);
    });
}

TEST_F(EntryFieldsTest, TheButtonOpensTheShownAddress) {
    const RecordedShell shell;
    program.Add(6, {{L"út", L"https://pelda.hu/két szó/ÁRVÍZTŰRŐ?a=1&b=%20"}});
    program.ClickTab(6);
    PressGo();  // the fields are empty
    program.ClickRow(1);
    PressGo();
    EXPECT_EQ(shell.NextAddress(), L"https://pelda.hu/két szó/ÁRVÍZTŰRŐ?a=1&b=%20");
    program.ClickTab(1);
    program.Run(ID_mnuGoto);  // the fields are empty again
    program.ClickRow(3);
    const MainState before = program.State();
    program.Run(ID_mnuGoto);
    EXPECT_EQ(shell.NextAddress(), L"http://harom.hu");
    EXPECT_EQ(shell.Addresses().size(), 2u);
    EXPECT_EQ(program.State(), before);
}

TEST_F(EntryFieldsTest, AnAddressThatTheShellCannotOpenShowsNothing) {
    program.Add(6, {{L"semmi", L"C:\\nincs ilyen\\fájl.html"}});
    program.ClickTab(6);
    program.ClickRow(1);
    const MainState before = program.State();
    PressGo();
    ExpectState(program, before);
}

TEST_F(EntryFieldsTest, ADoubleClickOnTheAddressCopiesItAndAnEmptyOneLeavesTheClipboard) {
    PutClipboardText(L"régi");
    DoubleClickAddress();
    EXPECT_EQ(TextOnClipboard(), L"régi");
    program.ClickRow(2);
    DoubleClickAddress();
    EXPECT_EQ(TextOnClipboard(), L"http://ketto.hu");
}

TEST_F(EntryFieldsTest, ControlCInTheAddressCopiesTheSelectionAlsoAnEmptyOne) {
    program.ClickRow(2);
    const HWND field = program.Control(ID_frmStart_txtURL);
    SendMessageW(field, EM_SETSEL, 7, 12);
    const auto control_c = [&] {
        PostMessageW(field, WM_CHAR, 3, 1);
        program.Settle();
    };
    PutClipboardText(L"régi");
    control_c();
    EXPECT_EQ(TextOnClipboard(), L"ketto");
    SendMessageW(field, EM_SETSEL, 3, 3);
    control_c();
    EXPECT_EQ(TextOnClipboard(), L"");
}

TEST_F(EntryFieldsTest, CopyingLeavesAPictureOnTheClipboard) {
    const std::string picture = "II*\0kép";
    PutClipboardBytes(CF_TIFF, picture);
    program.ClickRow(2);
    DoubleClickAddress();
    EXPECT_EQ(TextOnClipboard(), L"http://ketto.hu");
    EXPECT_EQ(BytesOnClipboard(CF_TIFF), picture);
}

TEST_F(EntryFieldsTest, OnlyATextThatDoesNotFitHasItselfAsItsTip) {
    const std::wstring name = L"Egy nagyon hosszú név & még annál is hosszabb";
    const std::wstring address = L"http://pelda.hu/" + std::wstring(84, L'a');
    program.Add(2, {{name, L"http://b.hu"}, {L"rövid", address}});
    const auto tips = [this] {
        return std::pair(ToolTipOf(program, program.Control(ID_frmStart_txtSite)),
                         ToolTipOf(program, program.Control(ID_frmStart_txtURL)));
    };
    using Tips = std::pair<std::wstring, std::wstring>;
    EXPECT_EQ(tips(), (Tips{L"", L""}));
    program.ClickTab(2);
    program.ClickRow(1);
    EXPECT_EQ(tips(), (Tips{name, L""}));
    program.ClickRow(2);
    EXPECT_EQ(tips(), (Tips{L"", address}));
    // A field that is wide enough needs none.
    const HWND field = program.Control(ID_frmStart_txtURL);
    program.OnUi([&](frmStart& form) {
        SetWindowPos(field, nullptr, 0, 0, 2000, 21, SWP_NOMOVE | SWP_NOZORDER);
        form.View().SelectRow(1);
    });
    program.ClickRow(2);
    EXPECT_EQ(tips(), (Tips{L"", L""}));
    // The window's layout makes it narrow again.
    SetWindowPos(program.Main(), nullptr, 0, 0, 1000, 600, SWP_NOMOVE | SWP_NOZORDER);
    program.Settle();
    EXPECT_EQ(tips(), (Tips{L"", address}));
    program.ClickTab(1);
    EXPECT_EQ(tips(), (Tips{L"", L""}));
}

TEST_F(EntryFieldsTest, ATipThatIsLongerThanALineHasSeveral) {
    const std::wstring line(100, L'b');
    program.Add(2, {{L"rövid", line + line + L"c"}, {L"két sor", line + line}});
    program.ClickTab(2);
    program.ClickRow(1);
    const HWND field = program.Control(ID_frmStart_txtURL);
    EXPECT_EQ(ToolTipOf(program, field), line + L"\r\n" + line + L"\r\nc");
    program.ClickRow(2);
    EXPECT_EQ(ToolTipOf(program, field), line + L"\r\n" + line);
}

}  // namespace
}  // namespace lindrel::testing
