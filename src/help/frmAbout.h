// The about box.
#pragma once

#include "pictures/Picture.h"
#include "window/Dialog.h"
#include "window/Display.h"

namespace lindrel {

class frmAbout : public Dialog {
  public:
    frmAbout();

  private:
    void Form_Load() override;
    void ApplyResolution(UINT dpi) override;
    void OnCommand(int id, int event) override;
    LRESULT OnNotify(const NMHDR& header) override;
    bool HoldsSession() const override { return false; }
    void cmdOK_Click() { Unload(); }
    void Label1_Click();

    Picture icon_;
    Font title_font_;
};

}  // namespace lindrel
