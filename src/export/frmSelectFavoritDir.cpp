#include "export/frmSelectFavoritDir.h"

#include "resources/resource.h"

namespace lindrel {

frmSelectFavoritDir::frmSelectFavoritDir(std::wstring startDir)
    : FolderDialog(
          IDD_frmSelectFavoritDir,
          {ID_frmSelectFavoritDir_Dir1, ID_frmSelectFavoritDir_cmdOk, ID_frmSelectFavoritDir_cmdCancel},
          std::move(startDir)) {}

}  // namespace lindrel
