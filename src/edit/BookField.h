// Dialog fields that show and take texts of a book.
#pragma once

#include <string>
#include <string_view>

#include "book/Book.h"
#include "window/Control.h"
#include "window/Dialog.h"

namespace lindrel {

// A text box that shows a text of the book. It may not show all of it: the text of a window ends at a NUL,
// and a damaged file can hold one.
class BookField {
  public:
    void Show(const TextBox& box, std::string_view text);
    // The text to store: what the user typed, or all of the shown text if the user has not changed it. What
    // was typed must have passed FitsBook().
    std::string Text() const;

  private:
    TextBox box_;
    std::string text_;
    std::wstring shown_;
};

// Whether a book can store the text of a text box. If not, tells the user which character it cannot store and
// selects it. Throws SystemFault if the box cannot be shown.
bool FitsBook(const Dialog& dialog, int field_id);

// Fills an empty combo box with the names of the twelve categories and selects one (1..12).
void FillWithCategories(const ComboBox& combo, const Book& book, int chosen);

}  // namespace lindrel
