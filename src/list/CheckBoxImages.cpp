#include "list/CheckBoxImages.h"

#include <cstdint>

#include "faults/Faults.h"
#include "pictures/PixelBitmap.h"

namespace lindrel {

namespace {

// The functions for image lists and device contexts give no error number.
void Require(bool done) {
    if (!done) throw SystemFault(L"a jelölőnégyzetek megrajzolása", 0);
}

// A picture of an image list on a background of one colour, `top` pixels below the upper edge.
PixelBitmap DrawnOn(std::uint32_t background, HIMAGELIST pictures, int index, int width, int height,
                    int top) {
    PixelBitmap bitmap(width, height);
    std::ranges::fill(bitmap.Pixels(), background);
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ before = SelectObject(dc, bitmap.Handle());
    const bool drawn = ImageList_Draw(pictures, index, dc, 0, top, ILD_TRANSPARENT) && GdiFlush();
    SelectObject(dc, before);
    DeleteDC(dc);
    Require(drawn);
    return bitmap;
}

// The pixel with its alpha, from what it looks like on black and on white.
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

Owned<HIMAGELIST> NoPictures(int height) {
    Owned<HIMAGELIST> pictures(ImageList_Create(1, height, ILC_COLOR32, 0, 1));
    Require(pictures != nullptr);
    return pictures;
}

Owned<HIMAGELIST> InMiddleOf(HIMAGELIST pictures, int height) {
    constexpr std::uint32_t kBlack = 0;
    constexpr std::uint32_t kWhite = 0xFFFFFF;
    int width = 0;
    int own_height = 0;
    Require(ImageList_GetIconSize(pictures, &width, &own_height));
    const int top = (height - own_height) / 2;
    const int count = ImageList_GetImageCount(pictures);
    Owned<HIMAGELIST> higher(ImageList_Create(width, height, ILC_COLOR32, count, 0));
    for (int i = 0; i < count; ++i) {
        const PixelBitmap picture = DrawnOn(kBlack, pictures, i, width, height, top);
        const PixelBitmap on_white = DrawnOn(kWhite, pictures, i, width, height, top);
        std::ranges::transform(picture.Pixels(), on_white.Pixels(), picture.Pixels().begin(), WithAlpha);
        Require(ImageList_Add(higher.get(), picture.Handle(), nullptr) != -1);
    }
    return higher;
}

}  // namespace lindrel
