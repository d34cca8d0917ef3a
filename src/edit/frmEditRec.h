// Changes the selected entry, and moves it when another category is chosen.
#pragma once

#include <cstdint>
#include <functional>

#include "edit/BookField.h"
#include "edit/EntryDialog.h"

namespace lindrel {

class frmEditRec : public EntryDialog {
  public:
    // Tells the 1-based position of the list's selected row; asked at each use.
    using SelectedRow = std::function<int()>;
    frmEditRec(OpenBook& open, SelectedRow selected_row);

  private:
    void Form_Load() override;
    void OnCommand(int id, int event) override;
    void cmdOk_Click();
    void Command1_Click() { Unload(); }

    // 1-based position of the edited entry in its category, and its index in the book.
    int Position() const { return selected_row_(); }
    int Index() const { return OpenedBook().TheBook.IndexOf(OriginalCategory, Position()); }

    SelectedRow selected_row_;
    BookField name_, address_;
    std::uint8_t OriginalCategory = 1;
};

}  // namespace lindrel
