// Measures of the screen: resolution, lengths in twips (1/1440 inch), and the user's fonts.
#pragma once

#include <string_view>

#include "window/Owned.h"
#include "window/Windows.h"

namespace lindrel {

// From pixels to twips, rounded towards 0.
constexpr int TwipsOf(int pixels, UINT dpi) {
    return static_cast<int>(static_cast<long long>(pixels) * 1440 / static_cast<long long>(dpi));
}
// From twips to pixels, rounded to the nearest.
constexpr int PixelsOf(int twips, UINT dpi) {
    return static_cast<int>(
        (static_cast<long long>(twips) * static_cast<long long>(dpi) + (twips < 0 ? -720 : 720)) / 1440);
}
// From twips to pixels, rounded up; not for negative lengths.
constexpr int PixelsAtLeast(int twips, UINT dpi) {
    return static_cast<int>((static_cast<long long>(twips) * static_cast<long long>(dpi) + 1439) / 1440);
}

// Dots per inch of the screen that a window is on; 96 if there is no such window.
UINT DpiOf(HWND window);

// The font that the user has chosen for messages, at a resolution.
LOGFONTW MessageFont(UINT dpi);

// The user's settings for windows at a resolution: fonts and sizes of frames, bars and menus.
class WindowMetrics {
  public:
    WindowMetrics() = default;  // equal to none that was read
    explicit WindowMetrics(UINT dpi);
    bool operator==(const WindowMetrics& other) const;

  private:
    NONCLIENTMETRICSW values_{};
};

// Sends WM_SYSCOLORCHANGE on to the child windows, which hear of new colours only from their parent.
void PassOnColours(HWND window);

// Width and height of a line of text in pixels; zeros if Windows cannot tell. A null font is the system's.
SIZE TextSize(HFONT font, std::wstring_view text);

class Font {
  public:
    Font() = default;
    explicit Font(const LOGFONTW& description) : handle_(CreateFontIndirectW(&description)) {}
    HFONT Handle() const { return handle_.get(); }
    // In pixels; 0 without a font.
    int LineHeight() const;

  private:
    Owned<HFONT> handle_;
};

// The part of the screen around a place that taskbars leave free; the place itself if Windows cannot tell.
RECT WorkAreaOf(const RECT& place);

// Gives a window bounds, as far as the work area has room for them.
void PlaceInWorkArea(HWND window, const RECT& bounds);

// The part of a size that the work area of a window has room for.
POINT WithinWorkArea(HWND window, POINT size);

// Moves a window over the middle of its owner, but keeps it in the work area. Of a window larger than that,
// the end stays in view, where the buttons are.
void CentreOnOwner(HWND window, HWND owner);

}  // namespace lindrel
