// A report list with a check box before each row. It stores check marks but no rows: it asks for the texts of
// the rows on the screen, so that 32,767 rows cost no more than ten. All positions are 1-based.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "list/EmptyListText.h"
#include "list/ListColumns.h"
#include "window/Control.h"
#include "window/Subclass.h"

namespace lindrel {

class CheckListView : public Control {
  public:
    // Text of a cell; column 0 or 1. Asked when a row is painted or searched by its first letters.
    using CellText = std::function<std::wstring(int position, int column)>;

    // Wraps a list view that was made with kStyles. Its parent passes the WM_NOTIFY messages of the control
    // to Notify(). Throws SystemFault when the system cannot.
    void Attach(HWND list);
    static constexpr DWORD kStyles = LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS;

    // The columns share the list's width (list/ListColumns.h).
    void AddColumn(const std::wstring& caption, int share) { columns_.Add(caption, share); }
    // Makes new check boxes, and scales what has a size of its own. New colours and themes give new check
    // boxes by themselves, if the parent passes WM_SYSCOLORCHANGE on.
    void ApplyResolution(UINT dpi);

    // Shows `count` rows, none checked, none selected, scrolled to the first.
    void SetRows(int count, CellText text);
    int Count() const { return static_cast<int>(checked_.size()); }

    bool IsChecked(int position) const { return checked_.at(static_cast<std::size_t>(position - 1)); }
    // Raises no ItemCheck.
    void SetChecked(int position, bool checked);
    void SetAllChecked(bool checked);
    // Checks the rows at these positions as well. Throws std::out_of_range for one that is not there.
    void CheckRows(std::span<const std::int16_t> positions);

    // 0 when no row is selected.
    int Selected() const;
    // Raises no ItemClick. The row gets the focus rectangle too.
    void Select(int position);
    void EnsureVisible(int position);
    // The row where the arrow keys start, selected or not; 0 for none.
    int Focused() const;
    // Sets where the arrow keys start without selecting a row. A position past the end means the last row.
    void Focus(int position);

    void ShowGridLines(bool shown);
    // What the list says while it has no rows (list/EmptyListText.h).
    void SetEmptyText(const std::wstring& text) { empty_text_.Set(text); }

    // What the user does.
    std::function<void()> ItemClick;              // a row was selected or clicked, by mouse or keys
    std::function<void(int position)> ItemCheck;  // a check box was toggled, by mouse or space bar
    std::function<void()> ColumnClick;
    std::function<void()> Activate;  // the selected row was double-clicked, or Enter pressed
    std::function<void()> Copy;      // Ctrl+C
    // A menu was asked for, at a point of the screen, by mouse or keys. A row under the mouse is selected.
    std::function<void(POINT at)> MenuAsked;

    LRESULT Notify(const NMHDR& header);

  private:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wparam, LPARAM lparam);
    void AfterMessage(UINT message, WPARAM wparam);
    std::optional<LRESULT> OnInput(UINT message, WPARAM wparam, LPARAM lparam);
    // The row at a point of the client area, 0 for none; `where` gets the LVHT_ flags.
    int RowAt(POINT point, UINT& where) const;
    bool ToggledByMouse(LPARAM point);
    // False when the place is none of the list's own.
    bool AskForMenu(LPARAM place);
    POINT BelowSelectedRow() const;
    void MakeCheckBoxes(UINT dpi);
    void SpaceCheckBoxes(UINT dpi) const;
    void ToggleFocused();
    void Toggle(int position);
    void Repaint() const;
    void TellScreenReaders(LONG row) const;  // 1-based; CHILDID_SELF for all
    void FillCell(NMLVDISPINFOW& cell) const;
    LRESULT FindRow(const NMLVFINDITEMW& search) const;

    Subclass subclass_;
    ListColumns columns_;
    EmptyListText empty_text_;
    std::vector<bool> checked_;
    CellText text_;
    bool selecting_ = false;  // the program itself changes the selection
};

}  // namespace lindrel
