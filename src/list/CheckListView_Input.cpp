// What the user does in the list with keys and mouse.

#include "list/CheckListView.h"

namespace lindrel {

namespace {

constexpr WPARAM kControlC = 3;

// Which the list asks for itself, before the keyboard navigation presses the default button.
bool IsEnter(const MSG* key) {
    return key != nullptr && key->message == WM_KEYDOWN && key->wParam == VK_RETURN;
}

}  // namespace

void CheckListView::Toggle(int position) {
    SetChecked(position, !IsChecked(position));
    TellScreenReaders(position);
    if (ItemCheck) ItemCheck(position);
}

void CheckListView::ToggleFocused() {
    const int focused = Focused();
    if (focused >= 1 && focused <= Count()) Toggle(focused);
}

bool CheckListView::ToggledByMouse(LPARAM point) {
    UINT where = 0;
    const int row = RowAt({GET_X_LPARAM(point), GET_Y_LPARAM(point)}, where);
    if (row == 0 || (where & LVHT_ONITEM) != LVHT_ONITEMSTATEICON) return false;
    if (!HasFocus()) SetFocus();
    Toggle(row);
    return true;
}

int CheckListView::RowAt(POINT point, UINT& where) const {
    LVHITTESTINFO hit{};
    hit.pt = point;
    const int row = ListView_HitTest(Handle(), &hit) + 1;
    where = hit.flags;
    return row;
}

bool CheckListView::AskForMenu(LPARAM place) {
    constexpr LPARAM kByKeys = -1;
    POINT at{GET_X_LPARAM(place), GET_Y_LPARAM(place)};
    if (place == kByKeys) {
        at = BelowSelectedRow();
    } else {
        POINT inside = at;
        RECT client{};
        GetClientRect(Handle(), &client);
        // On a scroll bar the menu is the system's.
        if (!ScreenToClient(Handle(), &inside) || !PtInRect(&client, inside)) return false;
        UINT where = 0;
        if (const int row = RowAt(inside, where); row != 0) Select(row);
    }
    if (MenuAsked) MenuAsked(at);
    return true;
}

// In screen coordinates; below the header when no row is selected.
POINT CheckListView::BelowSelectedRow() const {
    RECT place{};
    if (const int row = Selected(); row != 0) {
        ListView_EnsureVisible(Handle(), row - 1, FALSE);
        ListView_GetItemRect(Handle(), row - 1, &place, LVIR_LABEL);
    } else {
        GetClientRect(ListView_GetHeader(Handle()), &place);
    }
    POINT below{place.left, place.bottom};
    ClientToScreen(Handle(), &below);
    return below;
}

std::optional<LRESULT> CheckListView::OnInput(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            // Taken before the control sees it: a click on the box does not select the row.
            if (ToggledByMouse(lparam)) return 0;
            return std::nullopt;
        case WM_KEYDOWN:
            if (wparam != VK_SPACE || GetKeyState(VK_CONTROL) < 0) return std::nullopt;
            ToggleFocused();
            return 0;
        case WM_CHAR:
            if (wparam == kControlC && Copy) Copy();
            // Not letters to search for.
            if (wparam == L' ' || wparam == L'\r' || wparam == kControlC) return 0;
            return std::nullopt;
        case WM_GETDLGCODE:
            if (!IsEnter(reinterpret_cast<const MSG*>(lparam))) return std::nullopt;
            return subclass_.Default(message, wparam, lparam) | DLGC_WANTMESSAGE;
        case WM_CONTEXTMENU:
            // The header is a window of its own.
            if (reinterpret_cast<HWND>(wparam) != Handle() || !AskForMenu(lparam)) return std::nullopt;
            return 0;
        default:
            return std::nullopt;
    }
}

}  // namespace lindrel
