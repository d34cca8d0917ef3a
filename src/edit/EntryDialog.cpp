#include "edit/EntryDialog.h"

#include "system/MsgBox.h"
#include "text/BookText.h"

namespace lindrel {

bool EntryDialog::FieldsAreGood() const {
    // The bare "http://" is long enough: an entry may be stored before its address is known.
    constexpr std::size_t kShortestAddress = 3;
    if (Trim(txtDesc().Text()).empty() || Trim(txtURL().Text()).size() < kShortestAddress) {
        MsgBox(Handle(), L"Kérem előbb töltse ki a szükséges mezőket!", MB_OK,
               L"Nem töltött ki minden mezőt");
        FocusOn(fields_.txtDesc);
        return false;
    }
    return FitsBook(*this, fields_.txtDesc) && FitsBook(*this, fields_.txtURL);
}

}  // namespace lindrel
