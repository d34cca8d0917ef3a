// The system's setting for larger letters.
#pragma once

#include <gtest/gtest.h>

#include "window/Windows.h"

namespace lindrel::testing {

// Sets the height of the user's message font in pixels, and restores the font in the end. The test sends the
// WM_SETTINGCHANGE by which windows learn of it.
class MessageFontOf {
  public:
    explicit MessageFontOf(int pixels) {
        before_.cbSize = sizeof before_;
        EXPECT_TRUE(SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof before_, &before_, 0));
        NONCLIENTMETRICSW changed = before_;
        changed.lfMessageFont.lfHeight = -pixels;
        EXPECT_TRUE(SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof changed, &changed, 0));
    }
    ~MessageFontOf() {
        EXPECT_TRUE(SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof before_, &before_, 0));
    }
    MessageFontOf(const MessageFontOf&) = delete;
    MessageFontOf& operator=(const MessageFontOf&) = delete;

  private:
    NONCLIENTMETRICSW before_{};
};

}  // namespace lindrel::testing
