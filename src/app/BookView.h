// The open book as the main window shows it: the categories as tabs, the entries of one of them in a list
// with check boxes, the counters in the status bar. What the user picks in the list appears in the fields
// beside it.
#pragma once

#include <functional>
#include <vector>

#include "app/EntryFields.h"
#include "book/OpenBook.h"
#include "edit/CheckedRuns.h"
#include "list/CheckListView.h"
#include "window/Control.h"

namespace lindrel {

class BookView {
  public:
    BookView(OpenBook& open, EntryFields& fields) : open_(open), fields_(fields) {}

    // Makes the controls on a window, in their tab order. Throws SystemFault when the system cannot.
    void Create(HWND window);
    void ApplyResolution(UINT dpi);
    // Places the status bar at the bottom of the window.
    void DockStatusBar() const;
    // In pixels.
    int StatusBarHeight() const;
    // WM_NOTIFY and WM_COMMAND of the window. True when the command is one of the tabs'.
    LRESULT Notify(const NMHDR& header);
    bool OnCommand(int id);

    // Categories are numbered 1..12.
    void UpdateTabCaptions() const;
    // Shows the entries of a category, none checked and none selected, and empties the fields.
    void FillAddressList(int category);
    // Shows a book without entries. The status bar's first panel keeps its text until the next fill.
    void ShowEmptyBook();

    // Remembers the check marks of the list now shown under a category, and puts them back after a fill.
    void SaveCheckMarks(int category);
    void RestoreCheckMarks(int category);
    void SetAllChecks(bool value);
    void ShowCheckedCount() const;
    // Runs of the checked rows, the last one first.
    std::vector<RowRun> CheckedRows() const;

    // Rows are numbered from 1; 0 means none.
    int RowCount() const { return ListURLs.Count(); }
    int SelectedRow() const { return ListURLs.Selected(); }
    // Selects a row and scrolls to it; nothing happens for one that is not there.
    void SelectRow(int position);
    // The row from which the arrow keys go on.
    int FocusedRow() const { return ListURLs.Focused(); }
    void FocusRow(int position) { ListURLs.Focus(position); }
    void SetFocus() const { ListURLs.SetFocus(); }
    void ShowGridLines(bool shown) { ListURLs.ShowGridLines(shown); }

    // The list was filled, with or without rows.
    std::function<void(bool has_rows)> Filled;

  private:
    void SelectTab(int category);
    void TabStrip1_Click();
    void ListURLs_ItemClick();
    void ListURLs_ItemCheck(int position);
    void ListURLs_ColumnClick();
    void ListURLs_DblClick();
    void ListURLs_Copy() const;
    void ListURLs_ContextMenu(POINT at);
    void ShowEntry(int index) const;
    void ShowTotals(int rows, int total) const;
    void SizeStatusPanels() const;

    OpenBook& open_;
    EntryFields& fields_;
    HWND window_ = nullptr;
    UINT dpi_ = USER_DEFAULT_SCREEN_DPI;
    TabStrip TabStrip1;
    CheckListView ListURLs;
    StatusBar StatusBar1;
};

}  // namespace lindrel
