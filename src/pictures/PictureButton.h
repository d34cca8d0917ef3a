// A button that shows a picture in the place of its text. The text stays its name for screen readers.
#pragma once

#include <optional>

#include "pictures/Picture.h"
#include "window/Control.h"
#include "window/Subclass.h"

namespace lindrel {

class PictureButton : public Control {
  public:
    // Wraps a button that was made with kStyle. Its parent sends WM_DRAWITEM back to the control that it
    // is for (hwndItem), which draws itself. Throws SystemFault when the system cannot.
    void Attach(HWND button);
    static constexpr DWORD kStyle = BS_OWNERDRAW;

    // Shows an icon of the resources at a size in pixels. Throws SystemFault when there is none.
    void SetPicture(int icon_id, int size);

  private:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wparam, LPARAM lparam);
    void Draw(const DRAWITEMSTRUCT& item) const;
    // The picture stays as it is while the mouse holds the button; only the border tells.
    void MouseDown() const { ShowBorder(true); }
    void MouseUp() const { ShowBorder(false); }
    void ShowBorder(bool shown) const;

    Subclass subclass_;
    Picture picture_;
    int size_ = 0;
};

}  // namespace lindrel
