// A button that shows a picture instead of its text. Screen readers read the text.
#pragma once

#include <optional>

#include "pictures/Picture.h"
#include "window/Control.h"
#include "window/Subclass.h"

namespace lindrel {

class PictureButton : public Control {
  public:
    // For a button created with kStyle, whose parent sends WM_DRAWITEM back to the control that it is about
    // (hwndItem). Throws SystemFault if there is no such window.
    void Attach(HWND button);
    static constexpr DWORD kStyle = BS_OWNERDRAW;

    // Shows an icon of the resources at a size in pixels. Throws SystemFault if there is no such icon; the
    // old one stays then.
    void SetPicture(int icon_id, int size);

  private:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wparam, LPARAM lparam);
    void Draw(const DRAWITEMSTRUCT& item) const;
    // While the mouse holds the button, only its border shows that it is pressed.
    void ShowBorder(bool shown) const;

    Subclass subclass_;
    Picture picture_;
    int size_ = 0;
};

}  // namespace lindrel
