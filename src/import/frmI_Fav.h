// Lets the user choose the folder whose shortcut files are imported.
#pragma once

#include "system/FolderDialog.h"

namespace lindrel {

class frmI_Fav : public FolderDialog {
  public:
    explicit frmI_Fav(std::wstring startDir);
};

}  // namespace lindrel
