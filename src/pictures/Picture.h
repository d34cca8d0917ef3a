// Pictures from the program's resources, in the size that the screen's resolution asks for.
#pragma once

#include <span>

#include "window/Owned.h"
#include "window/Windows.h"

namespace lindrel {

// The side of a picture on a button, in pixels: 16 at 96 dots per inch.
int PictureSize(UINT dpi);
// And of one that stands for itself, as on the toolbar: 24.
int LargePictureSize(UINT dpi);

// An icon that is destroyed with its owner.
class Picture {
  public:
    Picture() = default;
    // An icon of the resources, `size` pixels wide and high; scaled from the nearest size if that is not
    // among them. Throws SystemFault when there is no such icon.
    Picture(HINSTANCE instance, int id, int size);
    HICON Handle() const { return handle_.get(); }

  private:
    Owned<HICON> handle_;
};

// How a list shows its pictures. Those of disabled buttons are grey and faint.
enum class PictureLook { Enabled, Disabled };

// Pictures side by side in a bitmap of the resources, each as wide as the bitmap is high.
struct PictureStrip {
    int Id;
    int Size;  // of each picture, in pixels
};

// Pictures of one size, for controls that show several. Destroyed with its owner.
class PictureList {
  public:
    PictureList() = default;
    // The pictures of the strip that was drawn in this size, or else scaled from the next larger one, or from
    // the largest. The strips show the same in growing sizes; there is at least one. Throws SystemFault
    // when one is missing.
    PictureList(HINSTANCE instance, std::span<const PictureStrip> strips, int size, PictureLook look);
    HIMAGELIST Handle() const { return handle_.get(); }

  private:
    Owned<HIMAGELIST> handle_;
};

}  // namespace lindrel
