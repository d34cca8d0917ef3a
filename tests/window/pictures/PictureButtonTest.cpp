// The button with a picture, in a window that lets it draw itself.

#include "pictures/PictureButton.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "resources/resource.h"
#include "tests/window/support/Drawn.h"

namespace lindrel::testing {
namespace {

class PictureButtonTest : public ::testing::Test {
  protected:
    static constexpr int kSide = 24;

    PictureButtonTest() {
        parent_ =
            CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr, nullptr, nullptr);
        reflecting_.Attach(parent_, [](UINT message, WPARAM wparam, LPARAM lparam) -> std::optional<LRESULT> {
            if (message != WM_DRAWITEM) return std::nullopt;
            return SendMessageW(reinterpret_cast<const DRAWITEMSTRUCT*>(lparam)->hwndItem, message, wparam,
                                lparam);
        });
        window = CreateWindowExW(0, WC_BUTTONW, L"Keresés", WS_CHILD | WS_VISIBLE | PictureButton::kStyle, 0,
                                 0, kSide, kSide, parent_, nullptr, nullptr, nullptr);
        button.Attach(window);
    }
    ~PictureButtonTest() override { DestroyWindow(parent_); }

    // What the parent gets drawn when the system asks it to draw the button.
    std::vector<COLORREF> Look(UINT state = 0) const {
        return Drawn(kSide, [&](HDC dc) {
            DRAWITEMSTRUCT item{};
            item.CtlType = ODT_BUTTON;
            item.itemState = state;
            item.hwndItem = window;
            item.hDC = dc;
            item.rcItem = {0, 0, kSide, kSide};
            EXPECT_EQ(SendMessageW(parent_, WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item)), TRUE);
        });
    }
    bool HasBorder() const { return (GetWindowLongPtrW(window, GWL_STYLE) & WS_BORDER) != 0; }

    PictureButton button;
    HWND window = nullptr;

  private:
    HWND parent_ = nullptr;
    Subclass reflecting_;
};

TEST_F(PictureButtonTest, DrawsThePictureThatItWasGivenLast) {
    const std::vector<COLORREF> face(kSide * kSide, GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(Look(), face);
    button.SetPicture(IDI_picGo, 16);
    const std::vector<COLORREF> go = Look();
    EXPECT_NE(go, face);
    button.SetPicture(IDI_Image1, 16);
    const std::vector<COLORREF> search = Look();
    EXPECT_NE(search, face);
    EXPECT_NE(search, go);
}

TEST_F(PictureButtonTest, HasAFrameInsideItsEdgeWhileItHasTheFocus) {
    const std::vector<COLORREF> plain = Look();
    const std::vector<COLORREF> focused = Look(ODS_FOCUS | ODS_NOFOCUSRECT);
    for (int at = 0; at < kSide * kSide; ++at) {
        const int x = at % kSide;
        const int y = at / kSide;
        const bool on_edge = x == 0 || y == 0 || x == kSide - 1 || y == kSide - 1;
        const auto pixel = static_cast<std::size_t>(at);
        ASSERT_EQ(focused[pixel], on_edge ? GetSysColor(COLOR_HIGHLIGHT) : plain[pixel]) << x << ' ' << y;
    }
    // The dotted line for keyboard users is inside the frame, not on it.
    const std::vector<COLORREF> dotted = Look(ODS_FOCUS);
    EXPECT_TRUE(std::equal(dotted.begin(), dotted.begin() + kSide, focused.begin()));
    EXPECT_NE(dotted, focused);
}

TEST_F(PictureButtonTest, StaysAPictureWhateverTheKeyboardNavigationMakesOfIt) {
    const std::vector<COLORREF> before = Look();
    for (const int style : {BS_DEFPUSHBUTTON, BS_PUSHBUTTON, BS_AUTOCHECKBOX}) {
        SendMessageW(window, BM_SETSTYLE, static_cast<WPARAM>(style), TRUE);
        EXPECT_EQ(GetWindowLongPtrW(window, GWL_STYLE) & BS_TYPEMASK, BS_OWNERDRAW);
    }
    EXPECT_EQ(Look(), before);
}

TEST_F(PictureButtonTest, HasABorderWhileTheMouseHoldsIt) {
    EXPECT_FALSE(HasBorder());
    for (const int press : {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK}) {
        SendMessageW(window, static_cast<UINT>(press), MK_LBUTTON, MAKELPARAM(5, 5));
        EXPECT_TRUE(HasBorder());
        SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
        EXPECT_FALSE(HasBorder());
    }
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ReleaseCapture();
    EXPECT_FALSE(HasBorder());
}

TEST_F(PictureButtonTest, IsGoneWithItsWindow) {
    EXPECT_EQ(button.Text(), L"Keresés");
    DestroyWindow(window);
    EXPECT_EQ(button.Handle(), nullptr);
}

}  // namespace
}  // namespace lindrel::testing
