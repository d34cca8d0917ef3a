#include "pictures/Picture.h"

#include <algorithm>
#include <cstdint>

#include "faults/LastError.h"
#include "pictures/PixelBitmap.h"

namespace lindrel {

namespace {

PixelBitmap Load(HINSTANCE instance, int id) {
    constexpr wchar_t kAskedFor[] = L"kép betöltése";
    const Owned<HBITMAP> loaded(static_cast<HBITMAP>(
        LoadImageW(instance, MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    if (loaded == nullptr) ThrowLastError(kAskedFor, std::to_wstring(id));
    DIBSECTION parts{};
    if (GetObjectW(loaded.get(), sizeof parts, &parts) != sizeof parts || parts.dsBm.bmBitsPixel != 32)
        throw SystemFault(kAskedFor, 0);
    PixelBitmap result(parts.dsBm.bmWidth, parts.dsBm.bmHeight);
    // Bitmaps of the resources begin with their lowest line.
    const auto* const bits = static_cast<const std::uint32_t*>(parts.dsBm.bmBits);
    for (int y = 0; y < result.Height(); ++y)
        std::copy_n(bits + static_cast<std::ptrdiff_t>(y) * result.Width(), result.Width(),
                    &result.At(0, result.Height() - 1 - y));
    return result;
}

}  // namespace

Picture::Picture(HINSTANCE instance, int id, int size)
    : handle_(static_cast<HICON>(
          LoadImageW(instance, MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, LR_DEFAULTCOLOR))) {
    if (handle_ == nullptr) ThrowLastError(L"ikon betöltése", std::to_wstring(id));
}

PictureList::PictureList(HINSTANCE instance, std::span<const PictureStrip> strips, int size) {
    const auto found = std::ranges::find_if(strips, [size](const auto& strip) { return strip.Size >= size; });
    PixelBitmap pictures = Load(instance, found != strips.end() ? found->Id : strips.back().Id);
    if (pictures.Height() != size) pictures = Scaled(pictures, size);
    handle_.reset(ImageList_Create(size, size, ILC_COLOR32, pictures.Width() / size, 0));
    if (handle_ == nullptr || ImageList_Add(Handle(), pictures.Handle(), nullptr) < 0)
        throw SystemFault(L"képlista létrehozása", 0);
}

}  // namespace lindrel
