// Handles of Windows that are released with their owner: Owned<HBITMAP>, Owned<HFONT>, Owned<HICON>,
// Owned<HIMAGELIST>, Owned<HMENU> and Owned<HRGN>.
#pragma once

#include <memory>
#include <type_traits>

#include "window/Windows.h"

namespace lindrel {

struct ReleaseHandle {
    void operator()(HBITMAP bitmap) const noexcept { DeleteObject(bitmap); }
    void operator()(HFONT font) const noexcept { DeleteObject(font); }
    void operator()(HRGN region) const noexcept { DeleteObject(region); }
    void operator()(HICON icon) const noexcept { DestroyIcon(icon); }
    void operator()(HIMAGELIST list) const noexcept { ImageList_Destroy(list); }
    void operator()(HMENU menu) const noexcept { DestroyMenu(menu); }
};

template <typename Handle>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, ReleaseHandle>;

}  // namespace lindrel
