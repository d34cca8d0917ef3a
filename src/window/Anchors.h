// Moves and stretches the controls of a resizable dialog as it grows. The template is the dialog at its
// smallest.
#pragma once

#include <initializer_list>
#include <vector>

#include "window/Windows.h"

namespace lindrel {

// What a control does along one direction when the dialog grows: stays, moves with the far side, or
// stretches.
enum class Growth { Stays, Moves, Stretches };

class Anchors {
  public:
    struct Control {
        int Id;
        Growth Across;
        Growth Down;
    };

    // Takes the current places of all controls as those in the smallest dialog. Controls that are not named
    // stay where they are as it grows.
    void Remember(HWND dialog, std::initializer_list<Control> controls);

    // For WM_SIZE, WM_GETMINMAXINFO and, before the dialog manager handles it, WM_DPICHANGED. The manager
    // scales the window and each control, in an order of its own: when it is done, Place() is to be called
    // again. They do nothing before Remember().
    void Place() const;
    void LimitSize(MINMAXINFO& info) const;
    void ChangeResolution(UINT dpi);

  private:
    struct Remembered {
        HWND control;
        Growth across;
        Growth down;
        RECT place;
    };
    SIZE ClientSize() const;
    // A length of the remembered dialog at the resolution that it has now.
    LONG Scaled(LONG length) const;

    HWND dialog_ = nullptr;
    UINT remembered_dpi_ = USER_DEFAULT_SCREEN_DPI;
    UINT dpi_ = USER_DEFAULT_SCREEN_DPI;
    SIZE least_client_{};
    SIZE least_window_{};
    std::vector<Remembered> controls_;
};

}  // namespace lindrel
