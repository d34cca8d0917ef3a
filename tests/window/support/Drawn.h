// What something looks like when it is drawn.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <vector>

#include "window/Windows.h"

namespace lindrel::testing {

// The colours of a rectangle after something was drawn on it, line by line from the top; black where nothing
// was.
inline std::vector<COLORREF> Drawn(int width, int height, const std::function<void(HDC canvas)>& draw) {
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = width;
    format.bmiHeader.biHeight = -height;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    const HDC canvas = CreateCompatibleDC(nullptr);
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(canvas, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ before = SelectObject(canvas, bitmap);
    draw(canvas);
    EXPECT_TRUE(GdiFlush());
    std::vector<COLORREF> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    const auto* pixel = static_cast<const RGBQUAD*>(bits);
    for (COLORREF& colour : pixels) {
        colour = RGB(pixel->rgbRed, pixel->rgbGreen, pixel->rgbBlue);
        ++pixel;
    }
    SelectObject(canvas, before);
    DeleteObject(bitmap);
    DeleteDC(canvas);
    return pixels;
}

// The same of a square.
inline std::vector<COLORREF> Drawn(int side, const std::function<void(HDC canvas)>& draw) {
    return Drawn(side, side, draw);
}

}  // namespace lindrel::testing
