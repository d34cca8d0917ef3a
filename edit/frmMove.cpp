#include "edit/frmMove.h"

#include "controls/BookField.h"
#include "edit/CheckedRuns.h"
#include "resources/resource.h"

namespace lindrel {

frmMove::frmMove(frmStart& main) : Dialog(IDD_frmMove), main_(main) {}

void frmMove::Form_Load() {
    FillWithCategories(Get<ComboBox>(ID_frmMove_cmbKateg), main_.TheBook, main_.SelectedCategory());
}

void frmMove::OnCommand(int id, int) {
    switch (id) {
        case ID_frmMove_cmdOk:
            return cmdOk_Click();
        case ID_frmMove_cmdCancel:
        case IDCANCEL:
            return cmdCancel_Click();
        default:
            return;
    }
}

void frmMove::cmdOk_Click() {
    const int source = main_.SelectedCategory();
    const int destination = Get<ComboBox>(ID_frmMove_cmbKateg).Selected() + 1;
    const bool nothing_chosen = main_.TheBook.CheckedCount == 0 && main_.ListURLs.Selected() == 0;
    Unload();
    if (destination == source || nothing_chosen) return;

    if (main_.TheBook.CheckedCount == 0)
        MoveSelected(source, destination);
    else
        MoveChecked(source, destination);
    main_.Modified = true;
    main_.FillAddressList(source);
}

void frmMove::MoveSelected(int source, int destination) {
    main_.TheBook.MoveEntry(source, main_.ListURLs.Selected() - 1, destination);
}

void frmMove::MoveChecked(int source, int destination) {
    Book& book = main_.TheBook;
    MoveRuns(book, source, main_.CheckedRunsOf(source), destination);
    book.CheckedCount = 0;
}

}  // namespace lindrel
