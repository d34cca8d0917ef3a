// Moves the main window to a screen of another resolution.
#pragma once

#include <optional>

#include "tests/window/support/Program.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {

// While it lives, every window of the process believes that it is on a screen of the resolution last moved
// to.
class OtherScreen {
  public:
    // In the thread of the program, so that it does not ask meanwhile.
    explicit OtherScreen(const Program& program) : program_(program) {
        dpi_ = 96;
        program_.OnUi([this](frmStart&) { replaced_.emplace(&GetDpiForWindow, &Answer); });
    }
    ~OtherScreen() {
        program_.OnUi([this](frmStart&) { replaced_.reset(); });
    }
    OtherScreen(const OtherScreen&) = delete;
    OtherScreen& operator=(const OtherScreen&) = delete;

    // As the system does when the user drags the window there; `bounds` is the size that it proposes.
    void Move(UINT dpi, const RECT& bounds = {0, 0, 1200, 900}) const {
        program_.OnUi([&](frmStart& form) {
            dpi_ = dpi;
            SendMessageW(form.Handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                         reinterpret_cast<LPARAM>(&bounds));
        });
        program_.Settle();
    }

  private:
    static UINT WINAPI Answer(HWND) { return dpi_; }
    static inline UINT dpi_ = 96;

    const Program& program_;
    std::optional<ReplacedImport> replaced_;
};

}  // namespace lindrel::testing
