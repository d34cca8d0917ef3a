#include "controls/ContextMenu.h"

#include <new>

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
    if (command != 0 && !GetMenuItemInfoW(bar, static_cast<UINT>(command), FALSE, &item))
        throw std::bad_alloc();
    if (!InsertMenuItemW(menu, static_cast<UINT>(GetMenuItemCount(menu)), TRUE, &item))
        throw std::bad_alloc();
}

}  // namespace

ContextMenu::ContextMenu(HMENU bar, std::span<const int> commands) : menu_(CreatePopupMenu()) {
    for (const int command : commands) Append(menu_.get(), bar, command);
    SetMenuDefaultItem(menu_.get(), 0, TRUE);
}

void ContextMenu::Open(POINT at, HWND owner) const {
    TrackPopupMenuEx(menu_.get(), TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RIGHTBUTTON, at.x, at.y, owner, nullptr);
}

}  // namespace lindrel
