#include "edit/frmEditRec.h"

#include "edit/IncompleteBook.h"

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
    if (!FieldsAreFilled() || !FieldsFitBook()) return;
    Book& book = OpenedBook().TheBook;
    const int chosen = ChosenCategory();
    int index = Index();
    if (chosen != OriginalCategory) {
        const auto move = [&] { book.MoveEntry(OriginalCategory, selected_row_ - 1, chosen); };
        if (!AddedUnlessIncomplete(Handle(), book, move)) return;
        index = book.IndexOf(chosen, book.CategoryCounts(chosen));
        // The saved positions would now mean other entries.
        book.Marks.Forget(OriginalCategory);
    }
    book.SetSiteName(index, name_.Text());
    book.SetSiteURL(index, address_.Text());
    OpenedBook().Modified = true;
    changed_ = true;
    Unload();
}

}  // namespace lindrel
