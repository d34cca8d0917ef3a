// Screens with less room than the one that the tests run on.
#pragma once

#include <optional>

#include "tests/window/support/Program.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {

// While it lives, every screen has the same work area.
class SmallScreen {
  public:
    // For a program that runs; in its thread, so that it does not ask meanwhile.
    SmallScreen(const Program& program, const RECT& work) : program_(&program) {
        program.OnUi([&](frmStart&) { Replace(work); });
    }
    // For programs that start and end while it lives.
    explicit SmallScreen(const RECT& work) { Replace(work); }
    ~SmallScreen() {
        if (program_ != nullptr) program_->OnUi([this](frmStart&) { replaced_.reset(); });
    }
    SmallScreen(const SmallScreen&) = delete;
    SmallScreen& operator=(const SmallScreen&) = delete;

  private:
    void Replace(const RECT& work) {
        work_ = work;
        replaced_.emplace(&GetMonitorInfoW, &Answer);
    }
    static BOOL WINAPI Answer(HMONITOR, MONITORINFO* info) {
        info->rcMonitor = info->rcWork = work_;
        info->dwFlags = MONITORINFOF_PRIMARY;
        return TRUE;
    }
    static inline RECT work_{};

    const Program* program_ = nullptr;
    std::optional<ReplacedImport> replaced_;
};

}  // namespace lindrel::testing
