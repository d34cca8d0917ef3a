#include "edit/frmEditRec.h"

#include <utility>

#include "resources/resource.h"

namespace lindrel {

frmEditRec::frmEditRec(OpenBook& open, SelectedRow selected_row)
    : EntryDialog(IDD_frmEditRec, {ID_frmEditRec_txtDesc, ID_frmEditRec_cmbKateg, ID_frmEditRec_txtURL},
                  open),
      selected_row_(std::move(selected_row)) {}

void frmEditRec::Form_Load() {
    OriginalCategory = OpenedBook().CurrentCategory;
    FillCategories();
    name_.Show(txtDesc(), OpenedBook().TheBook.SiteNames(Index()));
    address_.Show(txtURL(), OpenedBook().TheBook.SiteURLs(Index()));
}

void frmEditRec::OnCommand(int id, int) {
    switch (id) {
        case ID_frmEditRec_cmdOk:
            return cmdOk_Click();
        case ID_frmEditRec_Command1:
        case IDCANCEL:
            return Command1_Click();
        default:
            return;
    }
}

void frmEditRec::cmdOk_Click() {
    if (!FieldsAreGood()) return;
    Book& book = OpenedBook().TheBook;
    book.SetSiteName(Index(), name_.Text());
    book.SetSiteURL(Index(), address_.Text());
    const int chosen = ChosenCategory();
    if (chosen != OriginalCategory) {
        book.MoveEntry(OriginalCategory, Position() - 1, chosen);
        // The saved positions would now mean other entries.
        book.Marks.Forget(OriginalCategory);
    }
    OpenedBook().Modified = true;
    OpenedBook().ResultTag = kStored;
    Unload();
}

}  // namespace lindrel
