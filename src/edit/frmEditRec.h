// Changes the selected entry, and moves it if another category is chosen.
#pragma once

#include "edit/EntryDialog.h"
#include "resources/resource.h"

namespace lindrel {

class frmEditRec : public EntryDialog {
  public:
    // `selected_row` is the position of the entry in the shown category. Form_Load throws RangeFault if the
    // book has no such entry.
    frmEditRec(OpenBook& open, int selected_row)
        : EntryDialog(IDD_frmEditRec, {ID_frmEditRec_txtDesc, ID_frmEditRec_cmbKateg, ID_frmEditRec_txtURL},
                      open),
          selected_row_(selected_row),
          OriginalCategory(open.CurrentCategory) {}

    // Whether the entry was stored, changed or not.
    bool Changed() const { return changed_; }

  private:
    void Form_Load() override;
    void OnCommand(int id, int event) override;
    void cmdOk_Click();
    void Command1_Click() { Unload(); }

    // The index of the entry in the book.
    int Index() const { return OpenedBook().TheBook.IndexOf(OriginalCategory, selected_row_); }

    int selected_row_;
    int OriginalCategory;
    BookField name_, address_;
    bool changed_ = false;
};

}  // namespace lindrel
