#include "edit/EntryDialog.h"

#include "system/MsgBox.h"
#include "text/BookText.h"

namespace lindrel {

bool EntryDialog::FieldsAreFilled() const {
    // The bare "http://" is long enough: an entry may be stored before its address is known.
    constexpr std::size_t kShortestAddress = 3;
    if (!Trim(txtDesc().Text()).empty() && Trim(txtURL().Text()).size() >= kShortestAddress) return true;
    MsgBox(Handle(), L"Kérem előbb töltse ki a szükséges mezőket!", MB_OK, L"Nem töltött ki minden mezőt");
    return false;
}

}  // namespace lindrel
