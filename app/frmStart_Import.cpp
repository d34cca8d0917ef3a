// Import.

#include "app/frmStart.h"
#include "import/frmImport.h"

namespace lindrel {

void frmStart::mnuImport_Click() {
    SaveCheckMarks(SelectedCategory());
    frmImport(*this).ShowModal(handle_);
    RestoreCheckMarks(SelectedCategory());
}

}  // namespace lindrel
