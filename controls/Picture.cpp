#include "controls/Picture.h"

#include <new>

#include "controls/Display.h"

namespace lindrel {

int PictureSize(UINT dpi) {
    constexpr int kTwips = 240;
    return PixelsOf(kTwips, dpi);
}

Picture::Picture(HINSTANCE instance, int id, int size)
    : handle_(static_cast<HICON>(
          LoadImageW(instance, MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, LR_DEFAULTCOLOR))) {
    if (handle_ == nullptr) throw std::bad_alloc();
}

PictureList::PictureList(HINSTANCE instance, std::span<const int> ids, int size)
    : handle_(ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, static_cast<int>(ids.size()), 0)) {
    if (handle_ == nullptr) throw std::bad_alloc();
    for (const int id : ids)
        if (ImageList_AddIcon(Handle(), Picture(instance, id, size).Handle()) < 0) throw std::bad_alloc();
}

}  // namespace lindrel
