// Keeps the controls of a dialog that can be resized in step with it. The template is the dialog at its
// smallest; what it grows beyond that goes to the controls that stretch.
#pragma once

#include <initializer_list>
#include <vector>

#include "controls/Windows.h"

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

    // Takes the places that the controls have now for those of the smallest dialog. Controls that are not
    // named stay.
    void Remember(HWND dialog, std::initializer_list<Control> controls);

    // To be called for WM_SIZE, WM_GETMINMAXINFO and, before the dialog manager's own handling,
    // WM_DPICHANGED. Before Remember() they do nothing.
    void Place() const;
    void LimitSize(MINMAXINFO& info) const;
    void ChangeResolution(UINT dpi);

  private:
    struct Remembered {
        Control control;
        RECT place;
    };
    SIZE ClientSize() const;

    HWND dialog_ = nullptr;
    UINT dpi_ = USER_DEFAULT_SCREEN_DPI;
    SIZE least_client_{};
    SIZE least_window_{};
    std::vector<Remembered> controls_;
};

}  // namespace lindrel
