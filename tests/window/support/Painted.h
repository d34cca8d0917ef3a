// Whether what a window shows is what it should show.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>

#include "tests/window/support/Drawn.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {

// The bounds of what changes in a window of the program when everything in it is painted anew, which means it
// was painted wrongly or not at all; empty when nothing changes. In pixels from the window's corner.
inline RECT StalePart(const Program& program, HWND window) {
    RECT stale{};
    program.OnUi([&](frmStart&) {
        RECT bounds{};
        EXPECT_TRUE(GetWindowRect(window, &bounds));
        const int width = static_cast<int>(bounds.right - bounds.left);
        const int height = static_cast<int>(bounds.bottom - bounds.top);
        // What is on the screen, child windows included; nothing is painted for it.
        const auto picture = [&] {
            return Drawn(width, height, [&](HDC canvas) {
                const HDC source = GetDCEx(window, nullptr, DCX_WINDOW | DCX_CACHE);
                EXPECT_TRUE(BitBlt(canvas, 0, 0, width, height, source, 0, 0, SRCCOPY));
                ReleaseDC(window, source);
            });
        };
        // What the window knows to be out of date, it may still paint.
        RedrawWindow(window, nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
        const auto shown = picture();
        RedrawWindow(window, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
        const auto anew = picture();
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const auto at = static_cast<std::size_t>(y * width + x);
                const RECT pixel{x, y, x + 1, y + 1};
                const RECT so_far = stale;
                if (shown[at] != anew[at]) UnionRect(&stale, &so_far, &pixel);
            }
    });
    return stale;
}

}  // namespace lindrel::testing
