// Measures of the screen: resolution, lengths in twips (1/1440 inch) and the user's message font.
#pragma once

#include "window/Owned.h"
#include "window/Windows.h"

namespace lindrel {

// From pixels to twips (rounded towards 0), and from twips to pixels (to the nearest, or up).
constexpr int TwipsOf(int pixels, UINT dpi) {
    return static_cast<int>(static_cast<long long>(pixels) * 1440 / static_cast<long long>(dpi));
}
constexpr int PixelsOf(int twips, UINT dpi) {
    return static_cast<int>(
        (static_cast<long long>(twips) * static_cast<long long>(dpi) + (twips < 0 ? -720 : 720)) / 1440);
}
constexpr int PixelsAtLeast(int twips, UINT dpi) {
    return static_cast<int>((static_cast<long long>(twips) * static_cast<long long>(dpi) + 1439) / 1440);
}

// Dots per inch of the screen that a window is on; 96 when there is no such window.
UINT DpiOf(HWND window);

// The font that the user has chosen for messages, at a resolution.
LOGFONTW MessageFont(UINT dpi);

// What the user's settings make of windows at a resolution: their fonts and the measures of their parts.
class WindowMetrics {
  public:
    WindowMetrics() = default;  // of no resolution
    explicit WindowMetrics(UINT dpi);
    bool operator==(const WindowMetrics& other) const;

  private:
    UINT dpi_ = 0;
    NONCLIENTMETRICSW values_{};
};

// For WM_SYSCOLORCHANGE of a window: its controls learn of new colours from their parent.
void PassOnColours(HWND window);

// A font that is deleted with its owner.
class Font {
  public:
    Font() = default;
    explicit Font(const LOGFONTW& description);
    HFONT Handle() const { return handle_.get(); }
    // Of a line of text, in pixels; 0 without a font.
    int LineHeight() const;

  private:
    Owned<HFONT> handle_;
};

// Centres a window on its owner, but keeps it in the screen's work area.
void CentreOnOwner(HWND window, HWND owner);

}  // namespace lindrel
