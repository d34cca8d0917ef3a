// A report list with a check box before each row. It stores check marks but no rows: it asks for the texts of
// the rows on the screen, so 32,767 rows cost no more than ten. Positions of rows are 1-based.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "list/ListColumns.h"
#include "window/Control.h"
#include "window/Subclass.h"

namespace lindrel {

class CheckListView : public Control {
  public:
    // The text of a cell; column 0 or 1. Called when a row is drawn or searched by its first letters.
    using CellText = std::function<std::wstring(int position, int column)>;

    // For a list view created with kStyles, whose parent passes its WM_NOTIFY messages to Notify(). Throws
    // SystemFault if there is no such window.
    void Attach(HWND list);
    static constexpr DWORD kStyles = LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS;

    // `share` is the column's part of the list's width (list/ListColumns.h). Throws SystemFault.
    void AddColumn(const std::wstring& caption, int share) { columns_.Add(caption, share); }
    // Scales check boxes and columns. Check boxes also change with colours and themes, if the parent passes
    // WM_SYSCOLORCHANGE on. Throws SystemFault if Windows cannot draw the check boxes.
    void ApplyResolution(UINT dpi);

    // Shows `count` rows, none of them checked or selected, scrolled to the first.
    void SetRows(int count, CellText text);
    int Count() const { return static_cast<int>(checked_.size()); }

    // These throw std::out_of_range for a position outside 1..Count(). They do not call ItemCheck.
    bool IsChecked(int position) const { return checked_.at(static_cast<std::size_t>(position - 1)); }
    void SetChecked(int position, bool checked);
    // Checks these rows too; throws before the list is redrawn, with the earlier ones checked.
    void CheckRows(std::span<const std::int16_t> positions);
    void SetAllChecked(bool checked);

    // 0 if no row is selected.
    int Selected() const { return ListView_GetNextItem(Handle(), -1, LVNI_SELECTED) + 1; }
    // Also moves the focus rectangle to the row; does not call ItemClick. There must be such a row.
    void Select(int position);
    // Scrolls to a row; does nothing if there is no such row.
    void EnsureVisible(int position) { ListView_EnsureVisible(Handle(), position - 1, FALSE); }
    // The row where the arrow keys start, selected or not; 0 for none.
    int Focused() const { return ListView_GetNextItem(Handle(), -1, LVNI_FOCUSED) + 1; }
    // Sets where the arrow keys start, without selecting a row. A position past the end means the last row;
    // one before the first changes nothing.
    void Focus(int position);

    void ShowGridLines(bool shown) {
        ListView_SetExtendedListViewStyleEx(Handle(), LVS_EX_GRIDLINES, shown ? LVS_EX_GRIDLINES : 0);
    }
    // The text that the list shows while it has no rows, in one or several lines; none if it is empty. It is
    // not a row: keys, check marks and screen readers find an empty list.
    void SetEmptyText(const std::wstring& text);

    // What the user does.
    std::function<void()> ItemClick;  // selected or clicked a row, by mouse or keys
    // Toggled a check box, by mouse, space bar or a program that serves the disabled.
    std::function<void(int position)> ItemCheck;
    std::function<void()> ColumnClick;
    std::function<void()> DblClick;  // double-clicked a row
    std::function<void()> Enter;     // pressed Enter; not set, Enter presses the window's default button
    std::function<void()> Copy;      // pressed Ctrl+C
    // Asked for a menu by mouse or keys, at a point of the screen. A row under the mouse is selected first.
    std::function<void(POINT at)> MenuAsked;

    // WM_NOTIFY from the list; the result is the answer to it.
    LRESULT Notify(const NMHDR& header);

  private:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wparam, LPARAM lparam);
    void AfterMessage(UINT message, WPARAM wparam);
    std::optional<LRESULT> OnInput(UINT message, WPARAM wparam, LPARAM lparam);
    bool ShowsEmptyText() const { return !empty_text_.empty() && ListView_GetItemCount(Handle()) == 0; }
    void DrawEmptyText(HDC dc) const;
    class Unscrolled;
    // LVM_SETITEMSTATE from another program; the index is 0-based, or -1 for all rows.
    void SetByMessage(int index, const LVITEMW& item);
    // What is at a point of the client area.
    LVHITTESTINFO HitAt(POINT point) const;
    bool ToggledByMouse(POINT point);
    // `point` is the lparam of WM_CONTEXTMENU. False for a point outside the client area.
    bool AskForMenu(LPARAM point);
    POINT BelowSelectedRow() const;
    void MakeCheckBoxes(UINT dpi);
    void Toggle(int position);
    // ListView_RedrawItems would visit every row, on the screen or not.
    void Repaint() const { InvalidateRect(Handle(), nullptr, TRUE); }
    void TellScreenReaders(LONG row) const;  // 1-based; CHILDID_SELF for all
    void FillCell(NMLVDISPINFOW& cell) const;
    LRESULT FindRow(const NMLVFINDITEMW& search) const;

    Subclass subclass_;
    ListColumns columns_;
    std::wstring empty_text_;
    std::vector<bool> checked_;
    CellText text_;
    bool selecting_ = false;   // the program itself is changing the selection
    bool unscrolled_ = false;  // the height of the rows is changing
};

}  // namespace lindrel
