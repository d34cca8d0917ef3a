#include "edit/frmEditKats.h"

#include "resources/resource.h"

namespace lindrel {

namespace {

// The field of a category, 1..12; the fields are numbered from 0.
int txtKateg(int category) {
    return ID_frmEditKats_txtKateg_0 + category - 1;
}

}  // namespace

frmEditKats::frmEditKats(OpenBook& open) : Dialog(IDD_frmEditKats), open_(open) {}

void frmEditKats::Form_Load() {
    for (int k = 1; k <= kCategories; ++k)
        names_(k).Show(Get<TextBox>(txtKateg(k)), open_.TheBook.CategoryNames(k));
}

void frmEditKats::OnCommand(int id, int) {
    switch (id) {
        case ID_frmEditKats_cmdOk:
            return cmdOK_Click();
        case ID_frmEditKats_cmdCancel:
        case IDCANCEL:
            return cmdCancel_Click();
        default:
            return;
    }
}

void frmEditKats::cmdOK_Click() {
    for (int k = 1; k <= kCategories; ++k)
        if (!FitsBook(*this, txtKateg(k))) return;
    // Any other name is good: it may be empty, or equal to another.
    for (int k = 1; k <= kCategories; ++k) open_.TheBook.SetCategoryName(k, names_(k).Text());
    open_.Modified = true;
    renamed_ = true;
    Unload();
}

}  // namespace lindrel
