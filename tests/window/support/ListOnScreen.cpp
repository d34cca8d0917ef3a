#include "tests/window/support/ListOnScreen.h"

namespace lindrel::testing {

int ListOnScreen::Count() const {
    return ListView_GetItemCount(list_);
}

std::vector<std::wstring> ListOnScreen::Columns() const {
    std::vector<std::wstring> captions;
    const int count = Header_GetItemCount(ListView_GetHeader(list_));
    for (int column = 0; column < count; ++column) {
        wchar_t text[256] = L"";
        LVCOLUMNW description{};
        description.mask = LVCF_TEXT;
        description.pszText = text;
        description.cchTextMax = 256;
        SendMessageW(list_, LVM_GETCOLUMNW, static_cast<WPARAM>(column),
                     reinterpret_cast<LPARAM>(&description));
        captions.emplace_back(text);
    }
    return captions;
}

std::wstring ListOnScreen::Cell(int row, int column) const {
    std::wstring text(4096, L'\0');
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    text.resize(static_cast<std::size_t>(SendMessageW(list_, LVM_GETITEMTEXTW, static_cast<WPARAM>(row - 1),
                                                      reinterpret_cast<LPARAM>(&item))));
    return text;
}

std::vector<std::pair<std::wstring, std::wstring>> ListOnScreen::Rows() const {
    std::vector<std::pair<std::wstring, std::wstring>> rows;
    for (int row = 1; row <= Count(); ++row) rows.emplace_back(Cell(row, 0), Cell(row, 1));
    return rows;
}

std::vector<int> ListOnScreen::Checked() const {
    std::vector<int> checked;
    for (int row = 1; row <= Count(); ++row)
        if (ListView_GetCheckState(list_, row - 1)) checked.push_back(row);
    return checked;
}

int ListOnScreen::Selected() const {
    return ListView_GetNextItem(list_, -1, LVNI_SELECTED) + 1;
}

bool ListOnScreen::HasGridLines() const {
    return (ListView_GetExtendedListViewStyle(list_) & LVS_EX_GRIDLINES) != 0;
}

LPARAM ListOnScreen::PointOnText(int row) const {
    ListView_EnsureVisible(list_, row - 1, FALSE);
    RECT place{};
    ListView_GetItemRect(list_, row - 1, &place, LVIR_LABEL);
    return MAKELPARAM(place.left + 6, (place.top + place.bottom) / 2);
}

void ListOnScreen::ClickRow(int row) const {
    const LPARAM point = PointOnText(row);
    PostMessageW(list_, WM_LBUTTONDOWN, MK_LBUTTON, point);
    PostMessageW(list_, WM_LBUTTONUP, 0, point);
}

void ListOnScreen::DoubleClickRow(int row) const {
    ClickRow(row);
    const LPARAM point = PointOnText(row);
    PostMessageW(list_, WM_LBUTTONDBLCLK, MK_LBUTTON, point);
    PostMessageW(list_, WM_LBUTTONUP, 0, point);
}

void ListOnScreen::ClickBox(int row) const {
    ListView_EnsureVisible(list_, row - 1, FALSE);
    RECT place{};
    ListView_GetItemRect(list_, row - 1, &place, LVIR_ICON);
    // The check box stands just before the row's label.
    const LPARAM point = MAKELPARAM(place.left - 8, (place.top + place.bottom) / 2);
    PostMessageW(list_, WM_LBUTTONDOWN, MK_LBUTTON, point);
    PostMessageW(list_, WM_LBUTTONUP, 0, point);
}

void ListOnScreen::ClickHeader() const {
    const HWND header = ListView_GetHeader(list_);
    PostMessageW(header, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 8));
    PostMessageW(header, WM_LBUTTONUP, 0, MAKELPARAM(20, 8));
}

}  // namespace lindrel::testing
