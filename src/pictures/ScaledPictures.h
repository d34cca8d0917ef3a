// Pictures in sizes that nobody drew.
#pragma once

#include "pictures/PixelBitmap.h"

namespace lindrel {

// A strip of square pictures, each as wide as the strip is high, with each picture made `size` pixels wide
// and high. Colours are blended, without those of a neighbour. Throws SystemFault.
PixelBitmap Scaled(const PixelBitmap& strip, int size);

}  // namespace lindrel
