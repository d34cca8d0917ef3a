// The search box, the button that opens the shown address, and the find dialog.

#include "app/frmStart.h"
#include "controls/MsgBox.h"
#include "find/frmFind.h"

namespace lindrel {

void frmStart::mnuFind_Click() {
    // Category 12 is not looked at (intended): with entries only there the command refuses.
    if (TheBook.CategoryStarts(kCategories) == 1) {
        MsgBox(handle_, L"Az adatbázisban még nincsenek címek");
        return;
    }
    SaveCheckMarks(SelectedCategory());
    frmFind(*this).ShowModal(handle_);
    FillAddressList(SelectedCategory());
    RestoreCheckMarks(SelectedCategory());
}

}  // namespace lindrel
