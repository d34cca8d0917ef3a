#include "pictures/PixelBitmap.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "faults/LastError.h"

namespace lindrel {

PixelBitmap::PixelBitmap(int width, int height) : width_(width), height_(height) {
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = width;
    format.bmiHeader.biHeight = -height;  // negative: the first line is the top one
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    handle_.reset(CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (handle_ == nullptr) ThrowLastError(L"bitkép létrehozása");
    pixels_ = {static_cast<std::uint32_t*>(bits),
               static_cast<std::size_t>(width) * static_cast<std::size_t>(height)};
}

namespace {

// Where a pixel of the scaled picture falls on the original: between two neighbours, or on one at the edge.
struct Between {
    int First;
    int Second;
    double ShareOfSecond;  // 0..1
};

Between PositionOn(int original_size, int at, int size) {
    const double middle = (at + 0.5) * original_size / size - 0.5;
    const double position = std::clamp(middle, 0.0, original_size - 1.0);
    const int first = static_cast<int>(position);
    return {first, std::min(first + 1, original_size - 1), position - first};
}

// Adds up colours, each weighted by its share and its alpha.
class Blend {
  public:
    void Add(std::uint32_t pixel, double share) {
        const double alpha = share * (pixel >> 24U);
        alpha_ += alpha;
        for (unsigned i = 0; i < colours_.size(); ++i) colours_.at(i) += alpha * (pixel >> 8 * i & 0xFFU);
    }
    std::uint32_t Pixel() const {
        if (alpha_ == 0) return 0;
        std::uint32_t pixel = Byte(alpha_) << 24U;
        for (unsigned i = 0; i < colours_.size(); ++i) pixel |= Byte(colours_.at(i) / alpha_) << 8 * i;
        return pixel;
    }

  private:
    static std::uint32_t Byte(double value) {
        return static_cast<std::uint32_t>(std::clamp(std::lround(value), 0L, 255L));
    }

    double alpha_ = 0;
    std::array<double, 3> colours_{};  // blue, green, red
};

}  // namespace

PixelBitmap Scaled(const PixelBitmap& strip, int size) {
    const int original_size = strip.Height();
    PixelBitmap result(strip.Width() / original_size * size, size);
    for (int y = 0; y < size; ++y) {
        const Between rows = PositionOn(original_size, y, size);
        for (int x = 0; x < result.Width(); ++x) {
            const int left = x / size * original_size;
            const Between columns = PositionOn(original_size, x % size, size);
            Blend blend;
            for (const auto& [row, share] : {std::pair{rows.First, 1 - rows.ShareOfSecond},
                                             std::pair{rows.Second, rows.ShareOfSecond}}) {
                blend.Add(strip.At(left + columns.First, row), share * (1 - columns.ShareOfSecond));
                blend.Add(strip.At(left + columns.Second, row), share * columns.ShareOfSecond);
            }
            result.At(x, y) = blend.Pixel();
        }
    }
    return result;
}

}  // namespace lindrel
