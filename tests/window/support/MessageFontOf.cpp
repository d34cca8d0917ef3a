#include "tests/window/support/MessageFontOf.h"

#include <gtest/gtest.h>

namespace lindrel::testing {

MessageFontOf::MessageFontOf(int pixels) {
    before_.cbSize = sizeof before_;
    EXPECT_TRUE(SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof before_, &before_, 0));
    NONCLIENTMETRICSW changed = before_;
    changed.lfMessageFont.lfHeight = -pixels;
    EXPECT_TRUE(SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof changed, &changed, 0));
}

MessageFontOf::~MessageFontOf() {
    EXPECT_TRUE(SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof before_, &before_, 0));
}

}  // namespace lindrel::testing
