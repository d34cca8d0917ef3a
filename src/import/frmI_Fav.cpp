#include "import/frmI_Fav.h"

#include "resources/resource.h"

namespace lindrel {

frmI_Fav::frmI_Fav(std::wstring startDir)
    : FolderDialog(IDD_frmI_Fav, {ID_frmI_Fav_Dir1, ID_frmI_Fav_cmdImport, ID_frmI_Fav_cmdCancel},
                   std::move(startDir)) {}

}  // namespace lindrel
