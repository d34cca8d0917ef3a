#include "controls/Picture.h"

#include <cstdint>
#include <new>

#include "controls/Display.h"

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

// The colours of a square icon, as a bitmap of its own.
Owned<HBITMAP> FaintAndGrey(HBITMAP colours, int size) {
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = size;
    format.bmiHeader.biHeight = size;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    Owned<HBITMAP> result(CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
    const HDC screen = GetDC(nullptr);
    const bool copied =
        result != nullptr && screen != nullptr &&
        GetDIBits(screen, colours, 0, static_cast<UINT>(size), bits, &format, DIB_RGB_COLORS) == size;
    ReleaseDC(nullptr, screen);
    if (!copied) throw std::bad_alloc();
    const std::span<std::uint32_t> pixels(static_cast<std::uint32_t*>(bits),
                                          static_cast<std::size_t>(size * size));
    for (std::uint32_t& pixel : pixels) pixel = FaintAndGrey(pixel);
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
    if (handle_ == nullptr) throw std::bad_alloc();
}

PictureList::PictureList(HINSTANCE instance, std::span<const int> ids, int size, PictureLook look)
    : handle_(ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, static_cast<int>(ids.size()), 0)) {
    if (handle_ == nullptr) throw std::bad_alloc();
    for (const int id : ids) {
        const Picture picture(instance, id, size);
        if (look == PictureLook::Disabled)
            AddDisabled(picture.Handle(), size);
        else if (ImageList_AddIcon(Handle(), picture.Handle()) < 0)
            throw std::bad_alloc();
    }
}

void PictureList::AddDisabled(HICON icon, int size) {
    ICONINFO parts{};
    if (!GetIconInfo(icon, &parts)) throw std::bad_alloc();
    const Owned<HBITMAP> colours(parts.hbmColor);
    const Owned<HBITMAP> mask(parts.hbmMask);
    const Owned<HBITMAP> faint = FaintAndGrey(colours.get(), size);
    if (ImageList_Add(Handle(), faint.get(), mask.get()) < 0) throw std::bad_alloc();
}

}  // namespace lindrel
