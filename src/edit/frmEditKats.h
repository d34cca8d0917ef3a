// Renames the twelve categories.
#pragma once

#include "book/OpenBook.h"
#include "edit/BookField.h"
#include "resources/resource.h"
#include "window/Dialog.h"

namespace lindrel {

class frmEditKats : public Dialog {
  public:
    explicit frmEditKats(OpenBook& open) : Dialog(IDD_frmEditKats), open_(open) {}

    // Whether the names were stored, changed or not.
    bool Renamed() const { return renamed_; }

  private:
    void Form_Load() override;
    void OnCommand(int id, int event) override;
    void cmdOK_Click();
    void cmdCancel_Click() { Unload(); }

    OpenBook& open_;
    PerCategory<BookField> names_;
    bool renamed_ = false;
};

}  // namespace lindrel
