// Lets the user choose the folder whose shortcut files are imported.
#pragma once

#include "controls/FolderDialog.h"

namespace lindrel {

class frmImport;

class frmI_Fav : public FolderDialog {
  public:
    explicit frmI_Fav(frmImport& importing);

  private:
    void OnCommand(int id, int event) override;
    void cmdImport_Click();
    void cmdCancel_Click();

    frmImport& import_;
};

}  // namespace lindrel
