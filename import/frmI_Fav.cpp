#include "import/frmI_Fav.h"

#include "import/frmImport.h"
#include "resources/resource.h"

namespace lindrel {

frmI_Fav::frmI_Fav(frmImport& importing) : Dialog(IDD_frmI_Fav), import_(importing) {}

void frmI_Fav::Form_Load() {
    Dir1.Attach(Item(ID_frmI_Fav_Dir1));
    Dir1.SetPath(start_Dir);
}

void frmI_Fav::OnCommand(int id, int) {
    switch (id) {
        case ID_frmI_Fav_cmdImport:
            return cmdImport_Click();
        case ID_frmI_Fav_cmdCancel:
        case IDCANCEL:
            return cmdCancel_Click();
        default:
            return;
    }
}

LRESULT frmI_Fav::OnNotify(const NMHDR& header) {
    return header.hwndFrom == Dir1.Handle() ? Dir1.Notify(header) : 0;
}

void frmI_Fav::cmdImport_Click() {
    import_.chosenFolder(Dir1.Path());
    Unload();
}

void frmI_Fav::cmdCancel_Click() {
    import_.chosenFolder(L"");
    Unload();
}

}  // namespace lindrel
