// Renames the twelve categories.
#pragma once

#include "app/frmStart.h"
#include "controls/Dialog.h"

namespace lindrel {

class frmEditKats : public Dialog {
  public:
    explicit frmEditKats(frmStart& main);

  private:
    void Form_Load() override;
    void OnCommand(int id, int event) override;
    void cmdOK_Click();
    void cmdCancel_Click() { Unload(); }

    frmStart& main_;
};

}  // namespace lindrel
