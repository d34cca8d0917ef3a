// Moves the checked entries of the shown category, or the selected one when none is checked, to another
// category.
#pragma once

#include "app/frmStart.h"
#include "controls/Dialog.h"

namespace lindrel {

class frmMove : public Dialog {
  public:
    explicit frmMove(frmStart& main);

  private:
    void Form_Load() override;
    void OnCommand(int id, int event) override;
    void cmdOk_Click();
    void cmdCancel_Click() { Unload(); }

    void MoveSelected(int source, int destination);
    void MoveChecked(int source, int destination);

    frmStart& main_;
};

}  // namespace lindrel
