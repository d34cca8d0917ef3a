// The system's setting of larger letters.
#pragma once

#include "window/Windows.h"

namespace lindrel::testing {

// Makes the letters of the user's message font so many pixels high, and puts the old font back at the end.
// Windows learn of it by WM_SETTINGCHANGE, which the test sends.
class MessageFontOf {
  public:
    explicit MessageFontOf(int pixels);
    ~MessageFontOf();
    MessageFontOf(const MessageFontOf&) = delete;
    MessageFontOf& operator=(const MessageFontOf&) = delete;

  private:
    NONCLIENTMETRICSW before_{};
};

}  // namespace lindrel::testing
