#include "pictures/PictureButton.h"

namespace lindrel {

void PictureButton::Attach(HWND button) {
    Wrap(button);
    subclass_.Attach(button, [this](UINT message, WPARAM wparam, LPARAM lparam) {
        return OnMessage(message, wparam, lparam);
    });
}

void PictureButton::SetPicture(int icon_id, int size) {
    picture_ = Picture(GetModuleHandleW(nullptr), icon_id, size);
    size_ = size;
    InvalidateRect(Handle(), nullptr, TRUE);
}

void PictureButton::Draw(const DRAWITEMSTRUCT& item) const {
    RECT bounds = item.rcItem;
    FillRect(item.hDC, &bounds, GetSysColorBrush(COLOR_BTNFACE));
    const int left = (bounds.left + bounds.right - size_) / 2;
    const int top = (bounds.top + bounds.bottom - size_) / 2;
    if (picture_.Handle() != nullptr)
        DrawIconEx(item.hDC, left, top, picture_.Handle(), size_, size_, 0, nullptr, DI_NORMAL);
    if ((item.itemState & ODS_FOCUS) == 0) return;
    // The frame of a default button: Enter presses this one.
    FrameRect(item.hDC, &bounds, GetSysColorBrush(COLOR_HIGHLIGHT));
    InflateRect(&bounds, -1, -1);
    if ((item.itemState & ODS_NOFOCUSRECT) == 0) DrawFocusRect(item.hDC, &bounds);
}

void PictureButton::ShowBorder(bool shown) const {
    const LONG_PTR style = GetWindowLongPtrW(Handle(), GWL_STYLE);
    const LONG_PTR wanted = shown ? style | WS_BORDER : style & ~static_cast<LONG_PTR>(WS_BORDER);
    if (wanted == style) return;
    SetWindowLongPtrW(Handle(), GWL_STYLE, wanted);
    SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    InvalidateRect(Handle(), nullptr, TRUE);
}

std::optional<LRESULT> PictureButton::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_DRAWITEM:
            Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lparam));
            return TRUE;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            ShowBorder(true);
            return std::nullopt;
        case WM_LBUTTONUP:
        case WM_CAPTURECHANGED:  // without WM_LBUTTONUP when another window takes the mouse
            ShowBorder(false);
            return std::nullopt;
        case WM_GETDLGCODE:
            // Enter presses the button that has the focus.
            return DLGC_BUTTON | (HasFocus() ? DLGC_DEFPUSHBUTTON : DLGC_UNDEFPUSHBUTTON);
        case BM_SETSTYLE:
            // The keyboard navigation turns it into a default or a plain push button, which would draw
            // itself without the picture.
            return subclass_.Default(message, (wparam & ~WPARAM{BS_TYPEMASK}) | kStyle, lparam);
        case WM_NCDESTROY:
            Wrap(nullptr);
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

}  // namespace lindrel
