// What the dialogs that add and edit an entry share: the fields for name, category and address.
#pragma once

#include "book/OpenBook.h"
#include "edit/BookField.h"
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

    // Fills the field with the twelve names, and chooses the shown category.
    void FillCategories() const {
        FillWithCategories(Get<ComboBox>(fields_.cmbKateg), open_.TheBook, open_.CurrentCategory);
    }
    // Whether neither name nor address is missing, and whether a book can store them. If not, tell the user;
    // FieldsFitBook() then selects the character that it cannot store. They throw SystemFault if the box
    // cannot be shown.
    bool FieldsAreFilled() const;
    bool FieldsFitBook() const { return FitsBook(*this, fields_.txtDesc) && FitsBook(*this, fields_.txtURL); }

  private:
    Fields fields_;
    OpenBook& open_;
};

}  // namespace lindrel
