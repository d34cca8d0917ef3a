// A bitmap whose pixels the program reads and writes itself.
#pragma once

#include <cstdint>
#include <span>

#include "window/Owned.h"

namespace lindrel {

class PixelBitmap {
  public:
    // All pixels are 0. Throws SystemFault when the system cannot make it.
    PixelBitmap(int width, int height);

    HBITMAP Handle() const { return handle_.get(); }
    int Width() const { return width_; }
    int Height() const { return height_; }
    // From the top, line by line; 0xAARRGGBB. What was drawn on the bitmap is there after GdiFlush().
    std::span<std::uint32_t> Pixels() const { return pixels_; }
    // A pixel; 0-based.
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

}  // namespace lindrel
