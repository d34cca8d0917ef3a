// The button with a picture, on a window that lets it draw itself.

#include "controls/PictureButton.h"

#include <gtest/gtest.h>

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
    std::vector<COLORREF> Look() const {
        return Drawn(kSide, [this](HDC canvas) {
            DRAWITEMSTRUCT item{};
            item.CtlType = ODT_BUTTON;
            item.hwndItem = window;
            item.hDC = canvas;
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
