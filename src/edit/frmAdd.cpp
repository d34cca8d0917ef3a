#include "edit/frmAdd.h"

#include "edit/ClipboardAddress.h"
#include "resources/resource.h"
#include "system/Clipboard.h"
#include "text/BookText.h"

namespace lindrel {

namespace {
constexpr wchar_t kBareWebAddress[] = L"http://";
constexpr wchar_t kBareMailAddress[] = L"mailto:";
}  // namespace

frmAdd::frmAdd(OpenBook& open)
    : EntryDialog(IDD_frmAdd, {ID_frmAdd_txtDesc, ID_frmAdd_cmbKateg, ID_frmAdd_txtURL}, open) {}

void frmAdd::Form_Load() {
    FillCategories();
    SetToolTip(ID_frmAdd_cmdEmail, L"váltás a http:// és a mailto: előtag között");
    const std::optional<std::wstring> address = AddressFromClipboard(ClipboardText(Handle()));
    ClipboardUsed = address.has_value();
    txtURL().SetText(address.value_or(kBareWebAddress));
}

void frmAdd::OnCommand(int id, int event) {
    switch (id) {
        case ID_frmAdd_txtURL:
            if (event == EN_SETFOCUS) txtURL_GotFocus();
            return;
        case ID_frmAdd_cmdEmail:
            return cmdEmail_Click();
        case ID_frmAdd_cmdOK:
            return cmdOK_Click();
        case ID_frmAdd_cmdCancel:
        case IDCANCEL:
            return cmdCancel_Click();
        default:
            return;
    }
}

void frmAdd::txtURL_GotFocus() const {
    // Past the end of the default text; the text box clamps it.
    constexpr int kBehindTheText = 121;
    if (ClipboardUsed)
        txtURL().SelectAll();
    else
        txtURL().Select(kBehindTheText, 0);
}

// Swaps only the bare prefixes; a typed address stays.
void frmAdd::cmdEmail_Click() const {
    const std::wstring address = txtURL().Text();
    if (address == kBareWebAddress)
        txtURL().SetText(kBareMailAddress);
    else if (address == kBareMailAddress)
        txtURL().SetText(kBareWebAddress);
}

void frmAdd::cmdOK_Click() {
    if (!FieldsAreGood()) return;
    OpenedBook().TheBook.AddEntry(ChosenCategory(),
                                  {{ToBookText(txtDesc().Text()), ToBookText(txtURL().Text())}});
    OpenedBook().Modified = true;
    OpenedBook().ResultTag = kStored;
    Unload();
}

}  // namespace lindrel
