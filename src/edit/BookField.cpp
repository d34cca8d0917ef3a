#include "edit/BookField.h"

#include <cwchar>

#include "system/MsgBox.h"
#include "text/BookText.h"
#include "text/Characters.h"

namespace lindrel {

namespace {

// "U+0151"; the character may be a surrogate pair.
std::wstring CodeOf(std::wstring_view character) {
    std::size_t offset = 0;
    const auto code = static_cast<unsigned long>(NextCharacter(character, offset));
    wchar_t text[16];
    const int length = std::swprintf(text, 16, L"U+%04lX", code);
    return {text, static_cast<std::size_t>(length)};
}

}  // namespace

void BookField::Show(const TextBox& box, std::string_view text) {
    box_ = box;
    text_ = text;
    box_.SetText(FromBookText(text));
    shown_ = box_.Text();
}

std::string BookField::Text() const {
    const std::wstring typed = box_.Text();
    return typed == shown_ ? text_ : ToBookText(typed);
}

bool FitsBook(const Dialog& dialog, int field_id) {
    const TextBox field(GetDlgItem(dialog.Handle(), field_id));
    const std::wstring text = field.Text();
    const std::optional<std::wstring> foreign = FirstForeignCharacter(text);
    if (!foreign) return true;
    // On a line of its own, so that the code is not wrapped.
    MsgBox(
        dialog.Handle(),
        L"Ezt a karaktert a könyv nem tudja tárolni:\r\n\r\n„" + *foreign + L"” (" + CodeOf(*foreign) + L")",
        MB_OK | MB_ICONERROR, kErrorTitle);
    dialog.FocusOn(field_id);
    field.Select(static_cast<int>(text.find(*foreign)), static_cast<int>(foreign->size()));
    return false;
}

void FillWithCategories(const ComboBox& combo, const Book& book, int chosen) {
    for (int k = 1; k <= kCategories; ++k) combo.Add(FromBookText(book.CategoryNames(k)));
    combo.Select(chosen - 1);
}

}  // namespace lindrel
