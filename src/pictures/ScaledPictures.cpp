#include "pictures/ScaledPictures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

namespace lindrel {

namespace {

// Where a pixel of the scaled picture falls on the drawn one: between two neighbours, or on one at the edge.
struct Between {
    int First;
    int Second;
    double PartOfSecond;  // 0..1
};

Between PlaceOf(int at, int size, int drawn_size) {
    const double middle = (at + 0.5) * drawn_size / size - 0.5;
    const double place = std::clamp(middle, 0.0, drawn_size - 1.0);
    const int first = static_cast<int>(place);
    return {first, std::min(first + 1, drawn_size - 1), place - first};
}

// Adds up colours, each by its share. What cannot be seen has no colour to give.
class Blend {
  public:
    void Add(std::uint32_t pixel, double share) {
        const double opacity = share * (pixel >> 24U);
        opacity_ += opacity;
        for (unsigned i = 0; i < colours_.size(); ++i) colours_.at(i) += opacity * (pixel >> 8 * i & 0xFFU);
    }
    std::uint32_t Pixel() const {
        if (opacity_ == 0) return 0;
        std::uint32_t pixel = Byte(opacity_) << 24U;
        for (unsigned i = 0; i < colours_.size(); ++i) pixel |= Byte(colours_.at(i) / opacity_) << 8 * i;
        return pixel;
    }

  private:
    static std::uint32_t Byte(double value) {
        return static_cast<std::uint32_t>(std::clamp(std::lround(value), 0L, 255L));
    }

    double opacity_ = 0;
    std::array<double, 3> colours_{};  // blue, green, red
};

}  // namespace

PixelBitmap Scaled(const PixelBitmap& strip, int size) {
    const int drawn_size = strip.Height();
    PixelBitmap result(strip.Width() / drawn_size * size, size);
    for (int y = 0; y < result.Height(); ++y) {
        const Between rows = PlaceOf(y, size, drawn_size);
        for (int x = 0; x < result.Width(); ++x) {
            const int left = x / size * drawn_size;
            const Between columns = PlaceOf(x % size, size, drawn_size);
            Blend blend;
            for (const auto& [row, row_share] :
                 {std::pair{rows.First, 1 - rows.PartOfSecond}, std::pair{rows.Second, rows.PartOfSecond}}) {
                blend.Add(strip.At(left + columns.First, row), row_share * (1 - columns.PartOfSecond));
                blend.Add(strip.At(left + columns.Second, row), row_share * columns.PartOfSecond);
            }
            result.At(x, y) = blend.Pixel();
        }
    }
    return result;
}

}  // namespace lindrel
