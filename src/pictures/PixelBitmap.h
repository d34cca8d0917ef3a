// A bitmap whose pixels the program reads and writes itself.
#pragma once

#include <cstdint>
#include <span>

#include "window/Owned.h"

namespace lindrel {

class PixelBitmap {
  public:
    // All pixels are 0. Throws SystemFault if Windows cannot create a bitmap of this size.
    PixelBitmap(int width, int height);

    HBITMAP Handle() const { return handle_.get(); }
    int Width() const { return width_; }
    int Height() const { return height_; }
    // Line by line from the top; 0xAARRGGBB. What was drawn on the bitmap can be read after GdiFlush().
    std::span<std::uint32_t> Pixels() const { return pixels_; }
    // x and y are 0-based and must be in the bitmap.
    std::uint32_t& At(int x, int y) const {
        return pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                       static_cast<std::size_t>(x)];
    }

  private:
    int width_;
    int height_;
    Owned<HBITMAP> handle_;
    std::span<std::uint32_t> pixels_;
};

// A strip of square pictures, each as wide as the strip is high, with each picture scaled to `size` by `size`
// pixels. Colours are interpolated within a picture, not between neighbours. Throws SystemFault.
PixelBitmap Scaled(const PixelBitmap& strip, int size);

}  // namespace lindrel
