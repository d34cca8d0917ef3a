// Pictures from the program's resources, in the size for the screen's resolution.
#pragma once

#include <span>

#include "window/Display.h"
#include "window/Owned.h"
#include "window/Windows.h"

namespace lindrel {

// Width and height in pixels of a picture on a button: 16 at 96 dots per inch.
constexpr int PictureSize(UINT dpi) {
    return PixelsOf(240, dpi);
}
// And of one on the toolbar: 24.
constexpr int LargePictureSize(UINT dpi) {
    return PixelsOf(360, dpi);
}

class Picture {
  public:
    Picture() = default;
    // An icon of the resources, `size` pixels wide and high; scaled from the nearest size if it does not have
    // that one. Throws SystemFault if there is no such icon.
    Picture(HINSTANCE instance, int id, int size);
    HICON Handle() const { return handle_.get(); }

  private:
    Owned<HICON> handle_;
};

// Pictures side by side in a bitmap of the resources, each as wide as the bitmap is high.
struct PictureStrip {
    int Id;
    int Size;  // of each picture, in pixels
};

// Pictures of one size, for controls that show several.
class PictureList {
  public:
    PictureList() = default;
    // The pictures of the strip that was drawn in this size; if there is none, scaled from the next larger
    // strip, or from the largest. The strips show the same pictures in ascending sizes; there is at least
    // one. Throws SystemFault if the strip is missing or has no alpha channel.
    PictureList(HINSTANCE instance, std::span<const PictureStrip> strips, int size);
    HIMAGELIST Handle() const { return handle_.get(); }

  private:
    Owned<HIMAGELIST> handle_;
};

}  // namespace lindrel
