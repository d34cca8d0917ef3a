// Moves and stretches the controls of a resizable dialog as it grows. The template has the dialog's smallest
// size.
#pragma once

#include <initializer_list>
#include <vector>

#include "window/Windows.h"

namespace lindrel {

// What a control does along one direction as the dialog grows: stays, moves with the far side, or stretches.
enum class Growth { Stays, Moves, Stretches };

class Anchors {
  public:
    struct Control {
        int Id;
        Growth Across;
        Growth Down;
    };

    // Takes the current bounds of all controls as those in the smallest dialog. Controls that are not listed
    // stay where they are as it grows.
    void Remember(HWND dialog, std::initializer_list<Control> controls);

    // For WM_SIZE, for WM_GETMINMAXINFO, and for WM_DPICHANGED before the dialog manager handles it. The
    // manager scales the dialog and its controls in an order of its own, so call Place() again when it is
    // done. They do nothing before Remember().
    void Place() const;
    void LimitSize(MINMAXINFO& info) const;
    void ChangeResolution(UINT dpi) { dpi_ = dpi; }

  private:
    struct Remembered {
        HWND control;
        Growth across;
        Growth down;
        RECT bounds;
    };
    SIZE ClientSize() const;
    // A length of the remembered dialog at the present resolution.
    LONG Scaled(LONG length) const;

    HWND dialog_ = nullptr;
    UINT remembered_dpi_ = USER_DEFAULT_SCREEN_DPI;
    UINT dpi_ = USER_DEFAULT_SCREEN_DPI;
    SIZE least_client_{};
    SIZE least_window_{};
    std::vector<Remembered> controls_;
};

}  // namespace lindrel
