// The open book as the main window shows it: the categories as tabs, the entries of one of them in a list
// with check boxes, the counters in the status bar. The entry that the user picks in the list appears in the
// EntryFields. Categories are 1..12 (RangeFault otherwise); rows are numbered from 1, and 0 means none.
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

    // Creates the controls on a window, in tab order. Throws SystemFault.
    void Create(HWND window);
    void ApplyResolution(UINT dpi);
    // Places the status bar at the bottom of the window.
    void DockStatusBar() const;
    // In pixels.
    int StatusBarHeight() const;
    // WM_NOTIFY and WM_COMMAND of the window. True if the command is the next or previous tab.
    LRESULT Notify(const NMHDR& header);
    bool OnCommand(int id);

    void UpdateTabCaptions() const;
    // Shows the entries of a category, none checked and none selected, and empties the fields.
    void FillAddressList(int category);
    // Shows a book without entries. The status bar's first panel keeps its text until the next fill.
    void ShowEmptyBook();

    // Saves the check marks of the list as those of a category; checks the saved rows again after a fill.
    void SaveCheckMarks(int category);
    void RestoreCheckMarks(int category) {
        ListURLs.CheckRows(open_.TheBook.Marks.SavedCheckLists(category));
    }
    void SetAllChecks(bool value);
    // Runs of the checked rows, the last one first.
    std::vector<RowRun> CheckedRows() const;

    int RowCount() const { return ListURLs.Count(); }
    int SelectedRow() const { return ListURLs.Selected(); }
    // Selects a row and scrolls to it. Does nothing if there is no such row.
    void SelectRow(int position);
    // The row that the arrow keys start from.
    int FocusedRow() const { return ListURLs.Focused(); }
    void FocusRow(int position) { ListURLs.Focus(position); }
    void SetFocus() const { ListURLs.SetFocus(); }
    void ShowGridLines(bool shown) { ListURLs.ShowGridLines(shown); }

    // Called when the list has been filled. To be set before the first fill.
    std::function<void(bool has_rows)> Filled;

  private:
    void TabStrip1_Click();
    void ListURLs_ItemClick();
    void ListURLs_ItemCheck(int position);
    void ListURLs_ColumnClick();
    void ListURLs_DblClick();
    void ListURLs_Copy() const;
    void ListURLs_ContextMenu(POINT at);
    // Shows the entry of a row in the fields and the status bar.
    void ShowEntry(int position) const;
    void ShowTotals(int rows, int total) const;
    void ShowCheckedCount() const;

    OpenBook& open_;
    EntryFields& fields_;
    HWND window_ = nullptr;
    UINT dpi_ = USER_DEFAULT_SCREEN_DPI;
    TabStrip TabStrip1;
    CheckListView ListURLs;
    StatusBar StatusBar1;
};

}  // namespace lindrel
