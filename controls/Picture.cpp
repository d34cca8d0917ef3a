#include "controls/Picture.h"

#include <new>
#include <utility>

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

Picture::~Picture() {
    // Fails only for an icon that is not ours; then there is nothing to give back.
    if (handle_ != nullptr) static_cast<void>(DestroyIcon(handle_));
}

Picture::Picture(Picture&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}

Picture& Picture::operator=(Picture&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
}

PictureList::PictureList(HINSTANCE instance, std::span<const int> ids, int size) {
    PictureList made;
    made.handle_ = ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, static_cast<int>(ids.size()), 0);
    if (made.handle_ == nullptr) throw std::bad_alloc();
    for (const int id : ids)
        if (ImageList_AddIcon(made.handle_, Picture(instance, id, size).Handle()) < 0) throw std::bad_alloc();
    std::swap(handle_, made.handle_);
}

PictureList::~PictureList() {
    // Fails only for a list that is not ours.
    if (handle_ != nullptr) static_cast<void>(ImageList_Destroy(handle_));
}

PictureList::PictureList(PictureList&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}

PictureList& PictureList::operator=(PictureList&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
}

}  // namespace lindrel
