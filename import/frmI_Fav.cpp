#include "import/frmI_Fav.h"

#include "import/frmImport.h"
#include "resources/resource.h"

namespace lindrel {

frmI_Fav::frmI_Fav(frmImport& importing) : FolderDialog(IDD_frmI_Fav, ID_frmI_Fav_Dir1), import_(importing) {}

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

void frmI_Fav::cmdImport_Click() {
    import_.chosenFolder(Dir1.Path());
    Unload();
}

void frmI_Fav::cmdCancel_Click() {
    import_.chosenFolder(L"");
    Unload();
}

}  // namespace lindrel
