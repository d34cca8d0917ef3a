// What the dialogs that add and edit an entry share: the fields for name, category and address, how they are
// filled and checked.
#pragma once

#include <string>

#include "book/OpenBook.h"
#include "window/Dialog.h"

namespace lindrel {

class EntryDialog : public Dialog {
  protected:
    // Ids of the three fields in the dialog's own template.
    struct Fields {
        int txtDesc;
        int cmbKateg;
        int txtURL;
    };
    EntryDialog(int template_id, const Fields& fields, OpenBook& open)
        : Dialog(template_id), fields_(fields), open_(open) {}

    OpenBook& OpenedBook() const { return open_; }
    TextBox txtDesc() const { return Get<TextBox>(fields_.txtDesc); }
    TextBox txtURL() const { return Get<TextBox>(fields_.txtURL); }
    // The chosen category, 1..12.
    int ChosenCategory() const { return Get<ComboBox>(fields_.cmbKateg).Selected() + 1; }

    // The twelve names, with the shown category chosen.
    void FillCategories() const;
    // Whether name and address can be stored. If not, tells why and puts the focus where the user can mend
    // it.
    bool FieldsAreGood() const;

  private:
    Fields fields_;
    OpenBook& open_;
};

}  // namespace lindrel
