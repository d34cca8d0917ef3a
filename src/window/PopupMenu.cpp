#include "window/PopupMenu.h"

#include "faults/LastError.h"

namespace lindrel {

namespace {

void Append(HMENU menu, HMENU bar, int command) {
    wchar_t caption[128] = L"";
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_FTYPE | MIIM_ID | MIIM_STATE | MIIM_STRING;
    item.fType = MFT_SEPARATOR;
    item.dwTypeData = caption;
    item.cch = 128;
    if ((command != 0 && !GetMenuItemInfoW(bar, static_cast<UINT>(command), FALSE, &item)) ||
        !InsertMenuItemW(menu, static_cast<UINT>(GetMenuItemCount(menu)), TRUE, &item))
        ThrowLastError(L"menü létrehozása");
}

}  // namespace

PopupMenu::PopupMenu(HINSTANCE instance, int id) {
    const Owned<HMENU> loaded(LoadMenuW(instance, MAKEINTRESOURCEW(id)));
    menu_.reset(GetSubMenu(loaded.get(), 0));
    // Removed from the loaded menu, the popup belongs to this object only.
    if (menu_ == nullptr || !RemoveMenu(loaded.get(), 0, MF_BYPOSITION))
        ThrowLastError(L"menü betöltése", std::to_wstring(id));
}

PopupMenu::PopupMenu(HMENU bar, std::span<const int> commands) : menu_(CreatePopupMenu()) {
    for (const int command : commands) Append(menu_.get(), bar, command);
    SetMenuDefaultItem(menu_.get(), 0, TRUE);
}

void PopupMenu::OpenAt(POINT at, HWND owner) const {
    TrackPopupMenuEx(menu_.get(), TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RIGHTBUTTON, at.x, at.y, owner, nullptr);
}

void PopupMenu::OpenBelow(const RECT& control, HWND owner) const {
    TPMPARAMS beside{};
    beside.cbSize = sizeof beside;
    beside.rcExclude = control;
    TrackPopupMenuEx(menu_.get(), TPM_LEFTALIGN | TPM_TOPALIGN | TPM_VERTICAL, control.left, control.bottom,
                     owner, &beside);
}

}  // namespace lindrel
