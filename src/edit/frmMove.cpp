#include "edit/frmMove.h"

#include <utility>

#include "edit/BookField.h"
#include "edit/IncompleteBook.h"
#include "resources/resource.h"

namespace lindrel {

frmMove::frmMove(OpenBook& open, int selected_row, std::vector<RowRun> checked_runs)
    : Dialog(IDD_frmMove), open_(open), selected_row_(selected_row), checked_runs_(std::move(checked_runs)) {}

void frmMove::Form_Load() {
    FillWithCategories(Get<ComboBox>(ID_frmMove_cmbKateg), open_.TheBook, open_.CurrentCategory);
}

void frmMove::OnCommand(int id, int) {
    if (id == ID_frmMove_cmdOk) cmdOk_Click();
    if (id == ID_frmMove_cmdCancel || id == IDCANCEL) cmdCancel_Click();
}

void frmMove::cmdOk_Click() {
    const int source = open_.CurrentCategory;
    const int destination = Get<ComboBox>(ID_frmMove_cmbKateg).Selected() + 1;
    if (destination != source && (!checked_runs_.empty() || selected_row_ != 0)) {
        if (!AddedUnlessIncomplete(Handle(), open_.TheBook, [&] { MoveTo(destination); })) return;
        open_.Modified = true;
        moved_ = true;
    }
    Unload();
}

void frmMove::MoveTo(int destination) {
    if (checked_runs_.empty())
        return open_.TheBook.MoveEntry(open_.CurrentCategory, selected_row_ - 1, destination);
    MoveRuns(open_.TheBook, open_.CurrentCategory, checked_runs_, destination);
    open_.TheBook.Marks.SetCheckedCount(0);
}

}  // namespace lindrel
