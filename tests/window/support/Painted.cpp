#include "tests/window/support/Painted.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace lindrel::testing {

namespace {

struct WindowPicture {
    int Width = 0;
    std::vector<std::uint32_t> Pixels;  // line by line from the top
};

// What is on the screen, child windows included; nothing is drawn for it.
WindowPicture PictureOf(HWND window) {
    RECT place{};
    EXPECT_TRUE(GetWindowRect(window, &place));
    const int width = static_cast<int>(place.right - place.left);
    const int height = static_cast<int>(place.bottom - place.top);
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = width;
    format.bmiHeader.biHeight = -height;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    const HDC source = GetDCEx(window, nullptr, DCX_WINDOW | DCX_CACHE);
    const HDC canvas = CreateCompatibleDC(source);
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(canvas, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ before = SelectObject(canvas, bitmap);
    EXPECT_TRUE(BitBlt(canvas, 0, 0, width, height, source, 0, 0, SRCCOPY));
    GdiFlush();
    const auto* const first = static_cast<const std::uint32_t*>(bits);
    WindowPicture picture{width, {first, first + static_cast<std::ptrdiff_t>(width) * height}};
    SelectObject(canvas, before);
    DeleteObject(bitmap);
    DeleteDC(canvas);
    ReleaseDC(window, source);
    return picture;
}

RECT Difference(const WindowPicture& one, const WindowPicture& other) {
    constexpr std::uint32_t kColour = 0xFFFFFF;
    RECT all{};
    EXPECT_EQ(one.Pixels.size(), other.Pixels.size());
    for (std::size_t at = 0; at < std::min(one.Pixels.size(), other.Pixels.size()); ++at) {
        if (((one.Pixels[at] ^ other.Pixels[at]) & kColour) == 0) continue;
        const int x = static_cast<int>(at) % one.Width;
        const int y = static_cast<int>(at) / one.Width;
        const RECT pixel{x, y, x + 1, y + 1};
        const RECT so_far = all;
        UnionRect(&all, &so_far, &pixel);
    }
    return all;
}

}  // namespace

RECT StalePart(const Program& program, HWND window) {
    RECT stale{};
    program.OnUi([&](frmStart&) {
        // What the window knows to be out of date, it may still draw.
        RedrawWindow(window, nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
        const WindowPicture shown = PictureOf(window);
        RedrawWindow(window, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
        stale = Difference(shown, PictureOf(window));
    });
    return stale;
}

}  // namespace lindrel::testing
