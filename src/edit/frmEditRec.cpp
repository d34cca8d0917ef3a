#include "edit/frmEditRec.h"

namespace lindrel {

void frmEditRec::Form_Load() {
    FillCategories();
    name_.Show(txtDesc(), OpenedBook().TheBook.SiteNames(Index()));
    address_.Show(txtURL(), OpenedBook().TheBook.SiteURLs(Index()));
}

void frmEditRec::OnCommand(int id, int) {
    if (id == ID_frmEditRec_cmdOk) cmdOk_Click();
    if (id == ID_frmEditRec_Command1 || id == IDCANCEL) Command1_Click();
}

void frmEditRec::cmdOk_Click() {
    if (!FieldsAreGood()) return;
    Book& book = OpenedBook().TheBook;
    book.SetSiteName(Index(), name_.Text());
    book.SetSiteURL(Index(), address_.Text());
    const int chosen = ChosenCategory();
    if (chosen != OriginalCategory) {
        book.MoveEntry(OriginalCategory, selected_row_ - 1, chosen);
        // The saved positions would now mean other entries.
        book.Marks.Forget(OriginalCategory);
    }
    OpenedBook().Modified = true;
    changed_ = true;
    Unload();
}

}  // namespace lindrel
