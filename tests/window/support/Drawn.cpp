#include "tests/window/support/Drawn.h"

namespace lindrel::testing {

std::vector<COLORREF> Drawn(int side, const std::function<void(HDC)>& draw) {
    const HDC screen = GetDC(nullptr);
    const HDC canvas = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, side, side);
    const HGDIOBJ before = SelectObject(canvas, bitmap);
    draw(canvas);
    std::vector<COLORREF> pixels;
    for (int at = 0; at < side * side; ++at) pixels.push_back(GetPixel(canvas, at % side, at / side));
    SelectObject(canvas, before);
    DeleteObject(bitmap);
    DeleteDC(canvas);
    ReleaseDC(nullptr, screen);
    return pixels;
}

}  // namespace lindrel::testing
