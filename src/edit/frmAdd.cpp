#include "edit/frmAdd.h"

#include "edit/ClipboardAddress.h"
#include "edit/IncompleteBook.h"
#include "system/Clipboard.h"
#include "text/BookText.h"

namespace lindrel {

namespace {
constexpr wchar_t kBareWebAddress[] = L"http://";
constexpr wchar_t kBareMailAddress[] = L"mailto:";
}  // namespace

void frmAdd::Form_Load() {
    FillCategories();
    SetToolTip(ID_frmAdd_cmdEmail, L"váltás a http:// és a mailto: előtag között");
    const std::optional<std::wstring> address = AddressFromClipboard(ClipboardText(Handle()));
    ClipboardUsed = address.has_value();
    txtURL().SetText(address.value_or(kBareWebAddress));
}

void frmAdd::OnCommand(int id, int event) {
    if (id == ID_frmAdd_txtURL && event == EN_SETFOCUS) txtURL_GotFocus();
    if (id == ID_frmAdd_cmdEmail) cmdEmail_Click();
    if (id == ID_frmAdd_cmdOK) cmdOK_Click();
    if (id == ID_frmAdd_cmdCancel || id == IDCANCEL) cmdCancel_Click();
}

void frmAdd::txtURL_GotFocus() const {
    constexpr int kAfterTheText = 121;  // clamped to the end by the text box
    if (ClipboardUsed)
        txtURL().SelectAll();
    else
        txtURL().Select(kAfterTheText, 0);
}

// Leaves anything but a bare prefix alone.
void frmAdd::cmdEmail_Click() const {
    const std::wstring address = txtURL().Text();
    if (address == kBareWebAddress)
        txtURL().SetText(kBareMailAddress);
    else if (address == kBareMailAddress)
        txtURL().SetText(kBareWebAddress);
}

void frmAdd::cmdOK_Click() {
    if (!FieldsAreFilled()) return FocusOn(ID_frmAdd_txtDesc);
    if (!FieldsFitBook()) return;
    Book& book = OpenedBook().TheBook;
    const std::vector<NewEntry> entry = {{ToBookText(txtDesc().Text()), ToBookText(txtURL().Text())}};
    if (!AddedUnlessIncomplete(Handle(), book, [&] { book.AddEntry(ChosenCategory(), entry); })) return;
    OpenedBook().Modified = true;
    added_ = true;
    Unload();
}

}  // namespace lindrel
