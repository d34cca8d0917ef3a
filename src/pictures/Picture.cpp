#include "pictures/Picture.h"

#include <algorithm>
#include <cstdint>

#include "faults/Faults.h"
#include "pictures/PixelBitmap.h"
#include "pictures/ScaledPictures.h"
#include "window/Display.h"

namespace lindrel {

namespace {

// A pixel with 8 bits for each of opacity, red, green and blue, from the highest to the lowest.
std::uint32_t FaintAndGrey(std::uint32_t pixel) {
    const std::uint32_t red = pixel >> 16U & 0xFFU;
    const std::uint32_t green = pixel >> 8U & 0xFFU;
    const std::uint32_t blue = pixel & 0xFFU;
    const std::uint32_t grey = (red * 54 + green * 183 + blue * 19) / 256;  // as bright as the colour looks
    const std::uint32_t opacity = (pixel >> 24U) * 2 / 5;
    return opacity << 24U | grey << 16U | grey << 8U | grey;
}

PixelBitmap Load(HINSTANCE instance, const PictureStrip& strip) {
    const Owned<HBITMAP> loaded(static_cast<HBITMAP>(
        LoadImageW(instance, MAKEINTRESOURCEW(strip.Id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    DIBSECTION parts{};
    if (GetObjectW(loaded.get(), sizeof parts, &parts) != sizeof parts || parts.dsBm.bmBitsPixel != 32)
        throw SystemFault(L"kép betöltése (" + std::to_wstring(strip.Id) + L")", GetLastError());
    PixelBitmap result(parts.dsBm.bmWidth, parts.dsBm.bmHeight);
    // From the bottom, as resources are.
    const auto* const bits = static_cast<const std::uint32_t*>(parts.dsBm.bmBits);
    for (int y = 0; y < result.Height(); ++y)
        std::copy_n(bits + static_cast<std::ptrdiff_t>(y) * result.Width(), result.Width(),
                    &result.At(0, result.Height() - 1 - y));
    return result;
}

}  // namespace

int PictureSize(UINT dpi) {
    constexpr int kTwips = 240;
    return PixelsOf(kTwips, dpi);
}

int LargePictureSize(UINT dpi) {
    constexpr int kTwips = 360;
    return PixelsOf(kTwips, dpi);
}

Picture::Picture(HINSTANCE instance, int id, int size)
    : handle_(static_cast<HICON>(
          LoadImageW(instance, MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, LR_DEFAULTCOLOR))) {
    if (handle_ == nullptr)
        throw SystemFault(L"ikon betöltése (" + std::to_wstring(id) + L")", GetLastError());
}

PictureList::PictureList(HINSTANCE instance, std::span<const PictureStrip> strips, int size,
                         PictureLook look) {
    const auto fits = [size](const PictureStrip& strip) { return strip.Size >= size; };
    const auto found = std::ranges::find_if(strips, fits);
    PixelBitmap pictures = Load(instance, found != strips.end() ? *found : strips.back());
    if (pictures.Height() != size) pictures = Scaled(pictures, size);
    if (look == PictureLook::Disabled)
        for (std::uint32_t& pixel : pictures.Pixels()) pixel = FaintAndGrey(pixel);
    handle_.reset(ImageList_Create(size, size, ILC_COLOR32, pictures.Width() / size, 0));
    if (handle_ == nullptr || ImageList_Add(Handle(), pictures.Handle(), nullptr) < 0)
        throw SystemFault(L"képlista létrehozása", GetLastError());
}

}  // namespace lindrel
