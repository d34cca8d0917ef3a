// Lets the user choose the folder whose shortcut files are imported.
#pragma once

#include <string>

#include "controls/Dialog.h"
#include "controls/DirList.h"

namespace lindrel {

class frmImport;

class frmI_Fav : public Dialog {
  public:
    explicit frmI_Fav(frmImport& importing);

    // The folder that the list shows first.
    void startDir(const std::wstring& path) { start_Dir = path; }

  private:
    void Form_Load() override;
    void OnCommand(int id, int event) override;
    LRESULT OnNotify(const NMHDR& header) override;
    void cmdImport_Click();
    void cmdCancel_Click();

    frmImport& import_;
    std::wstring start_Dir;
    DirList Dir1;
};

}  // namespace lindrel
