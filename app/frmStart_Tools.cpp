// Import, export, the page of the shown entry.

#include "app/frmStart.h"
#include "controls/MsgBox.h"
#include "export/ExportedEntries.h"
#include "export/frmExport.h"
#include "import/frmImport.h"

namespace lindrel {

void frmStart::mnuImport_Click() {
    view_.SaveCheckMarks(open_.CurrentCategory);
    frmImport dialog(open_, CommonDialog1);
    dialog.ShowModal(Handle());
    if (dialog.Imported()) view_.FillAddressList(open_.CurrentCategory);
    view_.RestoreCheckMarks(open_.CurrentCategory);
}

void frmStart::mnuExport_Click() {
    view_.SaveCheckMarks(open_.CurrentCategory);
    bool something_checked = false;
    for (int c = 1; c <= kCategories; ++c)
        something_checked = something_checked || IsExported(open_.TheBook, c);
    if (!something_checked) {
        MsgBox(Handle(),
               L"Kérem jelölje be (pipazza ki) az exportálni kívánt címeket /akár több kategóriából is/.",
               MB_OK, L"Nincsenek kijelölve címek");
        return;
    }
    frmExport(open_, CommonDialog1).ShowModal(Handle());
}

void frmStart::mnuGoto_Click() {
    fields_.picGo_Click();
}

}  // namespace lindrel
