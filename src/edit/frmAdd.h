// Adds an entry. If there is an address on the clipboard, proposes it.
#pragma once

#include "edit/EntryDialog.h"
#include "resources/resource.h"

namespace lindrel {

class frmAdd : public EntryDialog {
  public:
    explicit frmAdd(OpenBook& open)
        : EntryDialog(IDD_frmAdd, {ID_frmAdd_txtDesc, ID_frmAdd_cmbKateg, ID_frmAdd_txtURL}, open) {}

    // Whether an entry was added.
    bool Added() const { return added_; }

  private:
    void Form_Load() override;
    void OnCommand(int id, int event) override;
    void txtURL_GotFocus() const;
    void cmdEmail_Click() const;
    void cmdOK_Click();
    void cmdCancel_Click() { Unload(); }

    bool ClipboardUsed = false;  // the proposed address came from the clipboard
    bool added_ = false;
};

}  // namespace lindrel
