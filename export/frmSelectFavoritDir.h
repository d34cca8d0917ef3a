// Lets the user choose the folder into which shortcut files are exported.
#pragma once

#include <string>

#include "controls/Dialog.h"
#include "controls/DirList.h"

namespace lindrel {

class frmExport;

class frmSelectFavoritDir : public Dialog {
  public:
    explicit frmSelectFavoritDir(frmExport& exporting);

    // The folder that the list shows first.
    void startDir(const std::wstring& path) { start_Dir = path; }

  private:
    void Form_Load() override;
    void OnCommand(int id, int event) override;
    LRESULT OnNotify(const NMHDR& header) override;
    void cmdOk_Click();
    void cmdCancel_Click();

    frmExport& export_;
    std::wstring start_Dir;
    DirList Dir1;
};

}  // namespace lindrel
