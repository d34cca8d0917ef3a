#include "edit/frmMove.h"

#include <utility>

#include "edit/BookField.h"
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
    Unload();
    if (destination == source) return;
    if (!checked_runs_.empty()) {
        MoveRuns(open_.TheBook, source, checked_runs_, destination);
        open_.TheBook.Marks.SetCheckedCount(0);
    } else if (selected_row_ != 0) {
        open_.TheBook.MoveEntry(source, selected_row_ - 1, destination);
    } else {
        return;
    }
    open_.Modified = true;
    moved_ = true;
}

}  // namespace lindrel
