// Adding, editing, moving and deleting entries, renaming categories.

#include "app/frmStart.h"
#include "book/frmEditKats.h"
#include "edit/CheckedRuns.h"
#include "edit/DeleteQuestions.h"
#include "edit/frmAdd.h"
#include "edit/frmEditRec.h"
#include "edit/frmMove.h"

namespace lindrel {

void frmStart::mnuKat_Click() {
    frmEditKats(*this).ShowModal(handle_);
}

void frmStart::mnuAdd_Click() {
    SaveCheckMarks(SelectedCategory());
    frmAdd(*this).ShowModal(handle_);
    if (ResultTag.empty()) return;
    // The row at the same place is selected again, not the new one (intended).
    const int position = ListURLs.Selected();
    ResultTag.clear();
    FillAddressList(SelectedCategory());
    RestoreCheckMarks(SelectedCategory());
    SelectRow(position);
}

void frmStart::mnuEdit_Click() {
    if (ListURLs.Selected() == 0) return;
    SaveCheckMarks(SelectedCategory());
    frmEditRec(*this).ShowModal(handle_);
    if (ResultTag.empty()) return;
    int position = ListURLs.Selected();
    FillAddressList(SelectedCategory());
    if (ResultTag == L"m")
        SetAllChecks(false);
    else
        RestoreCheckMarks(SelectedCategory());
    ResultTag.clear();
    // The last row may have been moved away.
    if (ListURLs.Count() < position) --position;
    SelectRow(position);
}

void frmStart::SelectRow(int position) {
    if (position < 1 || position > ListURLs.Count()) return;
    ListURLs.EnsureVisible(position);
    ListURLs.Select(position);
}

void frmStart::mnuMove_Click() {
    const bool something_chosen = TheBook.CheckedCount != 0 || !txtURL.IsEmpty();
    if (something_chosen && ListURLs.Count() != 0) frmMove(*this).ShowModal(handle_);
}

void frmStart::mnuDel_Click() {
    // There the Del key is for the text.
    if (txtFind.HasFocus()) return;
    const bool checked = TheBook.CheckedCount != 0;
    if (!checked && (txtURL.IsEmpty() || ListURLs.Selected() == 0)) return;

    if (checked) {
        if (!MayDeleteChecked(handle_, TheBook.CheckedCount)) return;
        DeleteCheckedEntries();
    } else {
        if (!MayDeleteSelected(handle_)) return;
        TheBook.DeleteEntry(SelectedCategory(), ListURLs.Selected(), 1);
        TheBook.CheckedCount = 0;
    }
    const int place = ListURLs.Focused();
    FillAddressList(SelectedCategory());
    ListURLs.Focus(place);
    Modified = true;
}

void frmStart::DeleteCheckedEntries() {
    DeleteRuns(TheBook, SelectedCategory(), CheckedRunsOf(SelectedCategory()));
    TheBook.CheckedCount = 0;
}

std::vector<RowRun> frmStart::CheckedRunsOf(int category) const {
    return CheckedRuns(TheBook.CategoryCounts(category),
                       [this](int position) { return ListURLs.IsChecked(position); });
}

}  // namespace lindrel
