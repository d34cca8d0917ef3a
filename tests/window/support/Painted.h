// Whether what a window shows is what it should show.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>

#include "tests/window/support/Drawn.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {

// The bounds of what changes in a window of the program when something in it is painted; empty when nothing
// does. In pixels from the window's corner. `paint` runs on the program's thread.
inline RECT ChangedPart(const Program& program, HWND window, const std::function<void()>& paint) {
    RECT changed{};
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
        const auto before = picture();
        paint();
        const auto after = picture();
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const auto at = static_cast<std::size_t>(y * width + x);
                const RECT pixel{x, y, x + 1, y + 1};
                const RECT so_far = changed;
                if (before[at] != after[at]) UnionRect(&changed, &so_far, &pixel);
            }
    });
    return changed;
}

// The same when everything is painted anew: what was painted wrongly or not at all.
inline RECT StalePart(const Program& program, HWND window) {
    return ChangedPart(program, window, [window] {
        RedrawWindow(window, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    });
}

}  // namespace lindrel::testing
