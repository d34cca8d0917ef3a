// Dialog fields for what is in a book.
#pragma once

#include <string>
#include <string_view>

#include "book/Book.h"
#include "window/Control.h"
#include "window/Dialog.h"

namespace lindrel {

// A text box that shows a text of the book. It cannot show everything: a window's text ends at a NUL, and
// files that were damaged can hold one.
class BookField {
  public:
    void Show(const TextBox& box, std::string_view text);
    // What the book is to store: the text as typed, or the shown one as it was when the user left it alone.
    std::string Text() const;

  private:
    TextBox box_;
    std::string text_;
    std::wstring shown_;
};

// Whether a book can store the text of a text box. If not, tells the user which character it cannot store,
// and selects that character in the box.
bool FitsBook(const Dialog& dialog, int field_id);

// Fills a combo box with the names of the twelve categories and chooses one (1..12).
void FillWithCategories(const ComboBox& combo, const Book& book, int chosen);

}  // namespace lindrel
