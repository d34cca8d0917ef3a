#include "list/CheckBoxImages.h"

#include <algorithm>
#include <cstdint>

#include "faults/Faults.h"
#include "pictures/PixelBitmap.h"

namespace lindrel {

namespace {

constexpr wchar_t kAskedFor[] = L"a jelölőnégyzetek rajzolása";

struct Size {
    int Width;
    int Height;
};

// A picture on a ground of one colour.
PixelBitmap DrawOn(std::uint32_t ground, HIMAGELIST pictures, int index, const Size& size, int top) {
    PixelBitmap bitmap(size.Width, size.Height);
    const HDC canvas = CreateCompatibleDC(nullptr);
    if (canvas == nullptr) throw SystemFault(kAskedFor, GetLastError());
    std::ranges::fill(bitmap.Pixels(), ground);
    const HGDIOBJ before = SelectObject(canvas, bitmap.Handle());
    const bool drawn = ImageList_Draw(pictures, index, canvas, 0, top, ILD_TRANSPARENT) && GdiFlush();
    SelectObject(canvas, before);
    DeleteDC(canvas);
    if (!drawn) throw SystemFault(kAskedFor, GetLastError());
    return bitmap;
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

}  // namespace

Owned<HIMAGELIST> InMiddleOf(HIMAGELIST pictures, int height) {
    constexpr std::uint32_t kBlack = 0;
    constexpr std::uint32_t kWhite = 0xFFFFFF;
    Size size{0, 0};
    if (!ImageList_GetIconSize(pictures, &size.Width, &size.Height))
        throw SystemFault(kAskedFor, GetLastError());
    const int top = (height - size.Height) / 2;
    size.Height = height;
    const int count = ImageList_GetImageCount(pictures);
    Owned<HIMAGELIST> higher(ImageList_Create(size.Width, height, ILC_COLOR32, count, 0));
    for (int i = 0; i < count; ++i) {
        const PixelBitmap picture = DrawOn(kBlack, pictures, i, size, top);
        const PixelBitmap on_white = DrawOn(kWhite, pictures, i, size, top);
        std::ranges::transform(picture.Pixels(), on_white.Pixels(), picture.Pixels().begin(), WithAlpha);
        if (ImageList_Add(higher.get(), picture.Handle(), nullptr) == -1)
            throw SystemFault(kAskedFor, GetLastError());
    }
    return higher;
}

}  // namespace lindrel
