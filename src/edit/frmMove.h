// Moves the checked entries of the shown category, or the selected one when none is checked, to another
// category.
#pragma once

#include <vector>

#include "book/OpenBook.h"
#include "edit/CheckedRuns.h"
#include "window/Dialog.h"

namespace lindrel {

class frmMove : public Dialog {
  public:
    // `selected_row` is 1-based, 0 for none; the runs are those of the checked rows, in the order of
    // CheckedRuns().
    frmMove(OpenBook& open, int selected_row, std::vector<RowRun> checked_runs);

    // Whether entries were moved to another category.
    bool Moved() const { return moved_; }

  private:
    void Form_Load() override;
    void OnCommand(int id, int event) override;
    void cmdOk_Click();
    void cmdCancel_Click() { Unload(); }
    void MoveTo(int destination);

    OpenBook& open_;
    int selected_row_;
    std::vector<RowRun> checked_runs_;
    bool moved_ = false;
};

}  // namespace lindrel
