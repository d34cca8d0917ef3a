#include "export/frmSelectFavoritDir.h"

#include "export/frmExport.h"
#include "resources/resource.h"

namespace lindrel {

frmSelectFavoritDir::frmSelectFavoritDir(frmExport& exporting)
    : FolderDialog(IDD_frmSelectFavoritDir, ID_frmSelectFavoritDir_Dir1), export_(exporting) {}

void frmSelectFavoritDir::OnCommand(int id, int) {
    switch (id) {
        case ID_frmSelectFavoritDir_cmdOk:
            return cmdOk_Click();
        case ID_frmSelectFavoritDir_cmdCancel:
        case IDCANCEL:
            return cmdCancel_Click();
        default:
            return;
    }
}

void frmSelectFavoritDir::cmdOk_Click() {
    export_.FavorithPath(Dir1.Path());
    Unload();
}

void frmSelectFavoritDir::cmdCancel_Click() {
    export_.FavorithPath(L"");
    Unload();
}

}  // namespace lindrel
