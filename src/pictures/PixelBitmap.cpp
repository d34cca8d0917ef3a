#include "pictures/PixelBitmap.h"

#include "faults/Faults.h"

namespace lindrel {

PixelBitmap::PixelBitmap(int width, int height) : width_(width), height_(height) {
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = width;
    format.bmiHeader.biHeight = -height;  // from the top
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    handle_.reset(CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (handle_ == nullptr) throw SystemFault(L"bitkép létrehozása", GetLastError());
    pixels_ = {static_cast<std::uint32_t*>(bits),
               static_cast<std::size_t>(width) * static_cast<std::size_t>(height)};
}

}  // namespace lindrel
