#include "export/frmSelectFavoritDir.h"

#include "export/frmExport.h"
#include "resources/resource.h"

namespace lindrel {

frmSelectFavoritDir::frmSelectFavoritDir(frmExport& exporting)
    : Dialog(IDD_frmSelectFavoritDir), export_(exporting) {}

void frmSelectFavoritDir::Form_Load() {
    Dir1.Attach(Item(ID_frmSelectFavoritDir_Dir1));
    Dir1.SetPath(start_Dir);
}

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

LRESULT frmSelectFavoritDir::OnNotify(const NMHDR& header) {
    return header.hwndFrom == Dir1.Handle() ? Dir1.Notify(header) : 0;
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
