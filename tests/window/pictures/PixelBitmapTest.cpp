// Scaled pictures: their colours are interpolated within each picture.

#include "pictures/PixelBitmap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace lindrel::testing {
namespace {

constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kBlue = 0xFF0000FF;

PixelBitmap StripOf(int pictures, const std::vector<std::uint32_t>& pixels) {
    const int height = static_cast<int>(pixels.size()) / pictures;
    PixelBitmap strip(pictures * height, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < strip.Width(); ++x)
            strip.At(x, y) = pixels[static_cast<std::size_t>(x / height * height + y)];
    return strip;
}

std::vector<std::uint32_t> LineOf(const PixelBitmap& bitmap, int y) {
    std::vector<std::uint32_t> line;
    for (int x = 0; x < bitmap.Width(); ++x) line.push_back(bitmap.At(x, y));
    return line;
}

TEST(PixelBitmapTest, PicturesOfOneColourKeepItUpToTheirEdges) {
    // Two pictures of 2 by 2 pixels, a red one and a blue one.
    const PixelBitmap strip = StripOf(2, {kRed, kRed, kBlue, kBlue});
    for (const int size : {1, 2, 3, 5, 8}) {
        const PixelBitmap scaled = Scaled(strip, size);
        ASSERT_EQ(scaled.Width(), 2 * size);
        ASSERT_EQ(scaled.Height(), size);
        std::vector<std::uint32_t> line(static_cast<std::size_t>(size), kRed);
        line.insert(line.end(), static_cast<std::size_t>(size), kBlue);
        for (int y = 0; y < size; ++y) EXPECT_EQ(LineOf(scaled, y), line) << size << " at " << y;
    }
}

TEST(PixelBitmapTest, BetweenTwoPixelsTheirColoursAreBlended) {
    // Red above blue.
    const PixelBitmap scaled = Scaled(StripOf(1, {kRed, kBlue}), 4);
    EXPECT_EQ(scaled.At(0, 0), kRed);
    EXPECT_EQ(scaled.At(0, 1), 0xFFBF0040U);
    EXPECT_EQ(scaled.At(3, 2), 0xFF4000BFU);
    EXPECT_EQ(scaled.At(3, 3), kBlue);
}

TEST(PixelBitmapTest, WhatCannotBeSeenGivesNoColour) {
    // The invisible pixel has a green that must not shine through.
    const PixelBitmap scaled = Scaled(StripOf(1, {kRed, 0x0000FF00}), 4);
    EXPECT_EQ(LineOf(scaled, 1), std::vector<std::uint32_t>(4, 0xBFFF0000U));
    EXPECT_EQ(LineOf(scaled, 2), std::vector<std::uint32_t>(4, 0x40FF0000U));
    EXPECT_EQ(LineOf(scaled, 3), std::vector<std::uint32_t>(4, 0U));
}

TEST(PixelBitmapTest, AStripInItsOwnSizeStaysAsItIs) {
    const PixelBitmap strip = StripOf(2, {kRed, kBlue, kBlue, 0x80123456});
    const PixelBitmap scaled = Scaled(strip, 2);
    EXPECT_TRUE(std::ranges::equal(scaled.Pixels(), strip.Pixels()));
}

}  // namespace
}  // namespace lindrel::testing
