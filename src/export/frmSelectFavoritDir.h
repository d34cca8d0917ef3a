// Lets the user choose the folder into which shortcut files are exported.
#pragma once

#include "system/FolderDialog.h"

namespace lindrel {

class frmSelectFavoritDir : public FolderDialog {
  public:
    explicit frmSelectFavoritDir(std::wstring startDir);
};

}  // namespace lindrel
