#include "controls/PopupMenu.h"

#include <new>

namespace lindrel {

PopupMenu::PopupMenu(HINSTANCE instance, int id) : menu_(LoadMenuW(instance, MAKEINTRESOURCEW(id))) {
    if (Popup() == nullptr) throw std::bad_alloc();
}

void PopupMenu::CheckRadio(int first, int last, int chosen) const {
    CheckMenuRadioItem(Popup(), static_cast<UINT>(first), static_cast<UINT>(last), static_cast<UINT>(chosen),
                       MF_BYCOMMAND);
}

void PopupMenu::OpenBelow(const RECT& control, HWND owner) const {
    TPMPARAMS beside{};
    beside.cbSize = sizeof beside;
    beside.rcExclude = control;
    TrackPopupMenuEx(Popup(), TPM_LEFTALIGN | TPM_TOPALIGN | TPM_VERTICAL, control.left, control.bottom,
                     owner, &beside);
}

}  // namespace lindrel
