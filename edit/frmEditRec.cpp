#include "edit/frmEditRec.h"

#include "book/BookText.h"
#include "resources/resource.h"

namespace lindrel {

frmEditRec::frmEditRec(frmStart& main)
    : EntryDialog(IDD_frmEditRec, {ID_frmEditRec_txtDesc, ID_frmEditRec_cmbKateg, ID_frmEditRec_txtURL},
                  main) {}

void frmEditRec::Form_Load() {
    OriginalCategory = static_cast<std::uint8_t>(Main().SelectedCategory());
    FillCategories();
    txtDesc().SetText(FromBookText(Main().TheBook.SiteNames(Index())));
    txtURL().SetText(FromBookText(Main().TheBook.SiteURLs(Index())));
}

void frmEditRec::OnCommand(int id, int) {
    switch (id) {
        case ID_frmEditRec_cmdOk:
            return cmdOk_Click();
        case ID_frmEditRec_Command1:
        case IDCANCEL:
            return Command1_Click();
        default:
            return;
    }
}

void frmEditRec::cmdOk_Click() {
    if (!FieldsAreGood()) return;
    Book& book = Main().TheBook;
    const NewEntry typed = TypedEntry();
    book.SetSiteName(Index(), typed.SiteName);
    book.SetSiteURL(Index(), typed.URL);
    const int chosen = ChosenCategory();
    if (chosen != OriginalCategory) {
        book.MoveEntry(OriginalCategory, Position() - 1, chosen);
        // The remembered positions would be those of other entries now.
        book.SavedCheckCounts(OriginalCategory) = 0;
    }
    Main().Modified = true;
    Main().ResultTag = kStored;
    Unload();
}

}  // namespace lindrel
