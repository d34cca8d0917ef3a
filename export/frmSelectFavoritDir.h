// Lets the user choose the folder into which shortcut files are exported.
#pragma once

#include "controls/FolderDialog.h"

namespace lindrel {

class frmExport;

class frmSelectFavoritDir : public FolderDialog {
  public:
    explicit frmSelectFavoritDir(frmExport& exporting);

  private:
    void OnCommand(int id, int event) override;
    void cmdOk_Click();
    void cmdCancel_Click();

    frmExport& export_;
};

}  // namespace lindrel
