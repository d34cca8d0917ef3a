// A list view of the program, read and used from the test's thread. Rows are 1-based, columns 0-based. Clicks
// return at once; settle the program.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "window/Windows.h"

namespace lindrel::testing {

// A click of the left mouse button on a point of a window's client area, as messages.
inline void PostClick(HWND window, LPARAM point, UINT down = WM_LBUTTONDOWN) {
    PostMessageW(window, down, MK_LBUTTON, point);
    PostMessageW(window, WM_LBUTTONUP, 0, point);
}

class ListOnScreen {
  public:
    explicit ListOnScreen(HWND list) : list_(list) {}
    HWND Handle() const { return list_; }
    int Count() const { return ListView_GetItemCount(list_); }
    std::vector<std::wstring> Columns() const {
        std::vector<std::wstring> captions;
        const int count = Header_GetItemCount(ListView_GetHeader(list_));
        for (int column = 0; column < count; ++column) {
            wchar_t text[256] = L"";
            LVCOLUMNW description{};
            description.mask = LVCF_TEXT;
            description.pszText = text;
            description.cchTextMax = 256;
            ListView_GetColumn(list_, column, &description);
            captions.emplace_back(text);
        }
        return captions;
    }
    std::wstring Cell(int row, int column) const {
        std::wstring text(4096, L'\0');
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        text.resize(static_cast<std::size_t>(SendMessageW(
            list_, LVM_GETITEMTEXTW, static_cast<WPARAM>(row - 1), reinterpret_cast<LPARAM>(&item))));
        return text;
    }
    // The first two columns.
    std::vector<std::pair<std::wstring, std::wstring>> Rows() const {
        std::vector<std::pair<std::wstring, std::wstring>> rows;
        for (int row = 1; row <= Count(); ++row) rows.emplace_back(Cell(row, 0), Cell(row, 1));
        return rows;
    }
    // Ascending.
    std::vector<int> Checked() const {
        std::vector<int> checked;
        for (int row = 1; row <= Count(); ++row)
            if (ListView_GetCheckState(list_, row - 1)) checked.push_back(row);
        return checked;
    }
    // 0 for none.
    int Selected() const { return ListView_GetNextItem(list_, -1, LVNI_SELECTED) + 1; }
    bool HasGridLines() const { return (ListView_GetExtendedListViewStyle(list_) & LVS_EX_GRIDLINES) != 0; }

    // On the row's text or its check box, scrolled into view.
    void ClickRow(int row) const { PostClick(list_, PointOf(row, LVIR_LABEL, 6)); }
    void DoubleClickRow(int row) const {
        ClickRow(row);
        PostClick(list_, PointOf(row, LVIR_LABEL, 6), WM_LBUTTONDBLCLK);
    }
    // The check box is just before the row's label.
    void ClickBox(int row) const { PostClick(list_, PointOf(row, LVIR_ICON, -8)); }
    // Of the first column.
    void ClickHeader() const { PostClick(ListView_GetHeader(list_), MAKELPARAM(20, 8)); }

  private:
    // In the middle of a row's height, from the left edge of a part of the row.
    LPARAM PointOf(int row, int part, int from_left) const {
        ListView_EnsureVisible(list_, row - 1, FALSE);
        RECT bounds{};
        ListView_GetItemRect(list_, row - 1, &bounds, part);
        return MAKELPARAM(bounds.left + from_left, (bounds.top + bounds.bottom) / 2);
    }

    HWND list_;
};

}  // namespace lindrel::testing
