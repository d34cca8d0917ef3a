#include "edit/frmEditKats.h"

namespace lindrel {

namespace {

// The id of the field of a category (1..12). The fields are numbered from 0.
constexpr int txtKateg(int category) {
    return ID_frmEditKats_txtKateg_0 + category - 1;
}

}  // namespace

void frmEditKats::Form_Load() {
    for (int k = 1; k <= kCategories; ++k)
        names_(k).Show(Get<TextBox>(txtKateg(k)), open_.TheBook.CategoryNames(k));
}

void frmEditKats::OnCommand(int id, int) {
    if (id == ID_frmEditKats_cmdOk) cmdOK_Click();
    if (id == ID_frmEditKats_cmdCancel || id == IDCANCEL) cmdCancel_Click();
}

void frmEditKats::cmdOK_Click() {
    for (int k = 1; k <= kCategories; ++k)
        if (!FitsBook(*this, txtKateg(k))) return;
    // Names may be empty, and equal to each other.
    for (int k = 1; k <= kCategories; ++k) open_.TheBook.SetCategoryName(k, names_(k).Text());
    open_.Modified = true;
    renamed_ = true;
    Unload();
}

}  // namespace lindrel
