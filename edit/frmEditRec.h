// Changes the entry that is selected in the main window's list, and moves it when another category is chosen.
#pragma once

#include <cstdint>

#include "edit/EntryDialog.h"

namespace lindrel {

class frmEditRec : public EntryDialog {
  public:
    explicit frmEditRec(frmStart& main);

  private:
    void Form_Load() override;
    void OnCommand(int id, int event) override;
    void cmdOk_Click();
    void Command1_Click() { Unload(); }

    // 1-based position of the edited entry in its category, and its index in the book.
    int Position() const { return Main().ListURLs.Selected(); }
    int Index() const { return Main().TheBook.IndexOf(OriginalCategory, Position()); }

    std::uint8_t OriginalCategory = 1;
};

}  // namespace lindrel
