// The texts that appear while the mouse rests on a control.

#include "window/ToolTips.h"

#include <string>

#include "resources/resource.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/RealInput.h"
#include "tests/window/support/ToolTipOf.h"
#include "window/Control.h"

namespace lindrel::testing {
namespace {

class ToolTipsTest : public ::testing::Test {
  protected:
    ~ToolTipsTest() override { DestroyWindow(window); }

    HWND Control(int id) const {
        return CreateWindowExW(0, WC_STATICW, L"", WS_CHILD, 0, 0, 10, 10, window,
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    }

    const HWND window = CreateWindowExW(0, WC_STATICW, L"", WS_POPUP, 0, 0, 100, 20, nullptr, nullptr,
                                        GetModuleHandleW(nullptr), nullptr);
    const HWND first = Control(1);
    const HWND second = Control(2);
    ToolTips tips;
};

TEST_F(ToolTipsTest, AreMadeWhenTheMouseComes) {
    tips.Set(window, first, L"egy");
    tips.Set(window, second, L"kettő");
    EXPECT_EQ(TipWindowsOf(window).size(), 0U);
    tips.OnSetCursor(window);
    EXPECT_EQ(TipWindowsOf(window).size(), 1U);
    EXPECT_EQ(TipFor(first), L"egy");
    EXPECT_EQ(TipFor(second), L"kettő");
    tips.OnSetCursor(window);
    EXPECT_EQ(TipWindowsOf(window).size(), 1U);
}

TEST_F(ToolTipsTest, TheLastTextCountsBeforeTheMouseAndAfter) {
    tips.Set(window, first, L"egy");
    tips.Set(window, first, L"");
    tips.Set(window, second, L"kettő");
    tips.Set(window, second, L"három");
    tips.OnSetCursor(window);
    EXPECT_EQ(TipFor(first), L"");
    EXPECT_EQ(TipFor(second), L"három");
    tips.Set(window, first, L"négy");
    tips.Set(window, second, L"");
    EXPECT_EQ(TipFor(first), L"négy");
    EXPECT_EQ(TipFor(second), L"");
}

TEST_F(ToolTipsTest, AWindowWithoutTipsGetsNone) {
    tips.Set(window, first, L"egy");
    tips.Set(window, first, L"");
    tips.OnSetCursor(window);
    EXPECT_EQ(TipWindowsOf(window).size(), 0U);
}

std::wstring TextOfVisible(HWND window) {
    for (const HWND tips : TipWindowsOf(window))
        if (IsWindowVisible(tips)) return TextOf(tips);
    return L"";
}

TEST_F(ToolTipsTest, ARestingMouseShowsThem) {
    const Program program;
    const RealInput hands(program);
    hands.Move(program.Control(ID_frmStart_picGo), {8, 8});
    WaitUntil("the tip of the main window",
              [&] { return TextOfVisible(program.Main()) == L"Ugorj a web oldalra"; });

    program.Choose(ID_mnuAdd);
    const DialogOnScreen dialog = program.Dialog(L"Új oldal hozzáadása");
    hands.Move(dialog.Control(ID_frmAdd_cmdEmail), {8, 8});
    WaitUntil("the tip of the dialog", [&] {
        return TextOfVisible(dialog.Handle()) == L"váltás a http:// és a mailto: előtag között";
    });
    dialog.Cancel();
}

}  // namespace
}  // namespace lindrel::testing
