// Measures of the screen: resolution, lengths in twips (1/1440 inch) and the user's message font.
#pragma once

#include "controls/Owned.h"
#include "controls/Windows.h"

namespace lindrel {

// Twips of a number of pixels, and pixels of a number of twips (rounded to the nearest, or up).
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

// Dots per inch of the screen that a window is on.
UINT DpiOf(HWND window);

// The font in which the user reads messages, at a resolution.
LOGFONTW MessageFont(UINT dpi);

// A font that is deleted with its owner.
class Font {
  public:
    Font() = default;
    explicit Font(const LOGFONTW& description);
    HFONT Handle() const { return handle_.get(); }

  private:
    Owned<HFONT> handle_;
};

// Moves a window to the middle of its owner, and on to the screen's work area where it would stick out.
void CentreOnOwner(HWND window, HWND owner);

}  // namespace lindrel
