#include "controls/CheckBoxImages.h"

#include <algorithm>
#include <cstdint>
#include <new>
#include <vector>

namespace lindrel {

namespace {

using Pixels = std::vector<std::uint32_t>;  // from the top; 0xAARRGGBB

struct Size {
    int Width;
    int Height;
};

// A picture in the middle of a ground of one colour.
Pixels DrawOn(std::uint32_t ground, HIMAGELIST pictures, int index, const Size& size, int top) {
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = size.Width;
    format.bmiHeader.biHeight = -size.Height;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const Owned<HBITMAP> bitmap(CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
    const HDC canvas = CreateCompatibleDC(nullptr);
    if (bitmap == nullptr || canvas == nullptr) {
        DeleteDC(canvas);
        throw std::bad_alloc();
    }
    const std::size_t count = static_cast<std::size_t>(size.Width) * static_cast<std::size_t>(size.Height);
    auto* const first = static_cast<std::uint32_t*>(bits);
    std::fill_n(first, count, ground);
    const HGDIOBJ before = SelectObject(canvas, bitmap.get());
    const bool drawn = ImageList_Draw(pictures, index, canvas, 0, top, ILD_TRANSPARENT) && GdiFlush();
    SelectObject(canvas, before);
    DeleteDC(canvas);
    if (!drawn) throw std::bad_alloc();
    return {first, first + count};
}

// What a pixel is made of that was seen on black and on white.
std::uint32_t WithAlpha(std::uint32_t on_black, std::uint32_t on_white) {
    const std::uint32_t alpha = 255 - ((on_white & 0xFF) - (on_black & 0xFF));
    if (alpha == 0) return 0;
    std::uint32_t pixel = alpha << 24;
    for (const int shift : {0, 8, 16}) {
        const std::uint32_t part = (on_black >> shift & 0xFF) * 255 / alpha;
        pixel |= std::min<std::uint32_t>(part, 255) << shift;
    }
    return pixel;
}

Owned<HICON> MadeOf(const Pixels& pixels, const Size& size) {
    const Owned<HBITMAP> colours(CreateBitmap(size.Width, size.Height, 1, 32, pixels.data()));
    // Where the picture is to be seen; each line of it takes whole words.
    const std::size_t words = (static_cast<std::size_t>(size.Width) + 15) / 16;
    std::vector<std::uint16_t> nothing_hidden(words * static_cast<std::size_t>(size.Height));
    const Owned<HBITMAP> mask(CreateBitmap(size.Width, size.Height, 1, 1, nothing_hidden.data()));
    ICONINFO parts{};
    parts.fIcon = TRUE;
    parts.hbmColor = colours.get();
    parts.hbmMask = mask.get();
    return Owned<HICON>(CreateIconIndirect(&parts));
}

}  // namespace

Owned<HIMAGELIST> InMiddleOf(HIMAGELIST pictures, int height) {
    constexpr std::uint32_t kBlack = 0;
    constexpr std::uint32_t kWhite = 0xFFFFFF;
    Size size{0, 0};
    if (!ImageList_GetIconSize(pictures, &size.Width, &size.Height)) throw std::bad_alloc();
    const int top = (height - size.Height) / 2;
    size.Height = height;
    const int count = ImageList_GetImageCount(pictures);
    Owned<HIMAGELIST> higher(ImageList_Create(size.Width, height, ILC_COLOR32 | ILC_MASK, count, 0));
    for (int i = 0; i < count; ++i) {
        Pixels pixels = DrawOn(kBlack, pictures, i, size, top);
        const Pixels on_white = DrawOn(kWhite, pictures, i, size, top);
        for (std::size_t at = 0; at < pixels.size(); ++at) pixels[at] = WithAlpha(pixels[at], on_white[at]);
        if (ImageList_AddIcon(higher.get(), MadeOf(pixels, size).get()) == -1) throw std::bad_alloc();
    }
    return higher;
}

}  // namespace lindrel
