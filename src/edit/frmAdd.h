// Adds an entry. The address is proposed from the clipboard when that holds one.
#pragma once

#include "edit/EntryDialog.h"

namespace lindrel {

class frmAdd : public EntryDialog {
  public:
    explicit frmAdd(OpenBook& open);

  private:
    void Form_Load() override;
    void OnCommand(int id, int event) override;
    void txtURL_GotFocus() const;
    void cmdEmail_Click() const;
    void cmdOK_Click();
    void cmdCancel_Click() { Unload(); }

    bool ClipboardUsed = false;  // the address came from the clipboard
};

}  // namespace lindrel
