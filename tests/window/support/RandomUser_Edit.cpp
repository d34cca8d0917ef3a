// The dialogs that add, edit, move, delete and rename.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/window/support/RandomUser.h"
#include "tests/window/support/Text.h"

namespace lindrel::testing {

void RandomUser::Type(const DialogOnScreen& dialog, int field, const std::wstring& text) {
    constexpr std::size_t kMostTyped = 30;
    if (text.size() > kMostTyped || text.empty() || OneIn(2)) return dialog.SetText(field, text);
    SendMessageW(dialog.Control(field), EM_SETSEL, 0, -1);
    for (const wchar_t character : text) PostMessageW(dialog.Control(field), WM_CHAR, character, 1);
    program_.Settle();
}

void RandomUser::Accept(const DialogOnScreen& dialog, int ok_button, int field) {
    if (OneIn(2))
        dialog.Click(ok_button);
    else
        PostMessageW(dialog.Control(field), WM_KEYDOWN, VK_RETURN, 1);
}

void RandomUser::Leave(const DialogOnScreen& dialog, int cancel_button) {
    Note("  cancel");
    if (OneIn(2))
        dialog.ClickAndWaitForClose(cancel_button);
    else
        dialog.Cancel();
}

void RandomUser::ExpectCategories(const DialogOnScreen& dialog, int combo) const {
    EXPECT_EQ(dialog.ComboItems(combo), lists_.Names());
    EXPECT_EQ(dialog.Picked(combo), lists_.Shown - 1);
}

int RandomUser::PickCategory(const DialogOnScreen& dialog, int combo) {
    if (OneIn(2)) return lists_.Shown;
    const int category = RollCategory();
    Note("  category " + std::to_string(category));
    dialog.Pick(combo, category - 1);
    return category;
}

void RandomUser::ExpectForeignCharacterRefused(const DialogOnScreen& dialog, int field,
                                               const std::wstring& text) {
    const BoxOnScreen box = program_.Box();
    EXPECT_EQ(box.Title(), L"Hiba");
    const bool omega = text.find(L'Ω') != std::wstring::npos;
    EXPECT_EQ(box.Text(), std::wstring(L"Ezt a karaktert a könyv nem tudja tárolni:\r\n\r\n") +
                              (omega ? L"„Ω” (U+03A9)" : L"„\xD83D\xDE00” (U+1F600)"));
    box.Press(IDOK);
    program_.Settle();
    EXPECT_EQ(dialog.Focus(), field);
}

void RandomUser::TryWrongTexts(const DialogOnScreen& dialog, int name_field, int address_field,
                               int ok_button) {
    const bool blank = OneIn(2);
    const bool foreign = !blank && OneIn(2);
    const std::wstring name = blank ? texts_.BlankName() : foreign ? texts_.ForeignText() : texts_.Name();
    const std::wstring address = blank || foreign ? texts_.Address()
                                 : OneIn(2)       ? texts_.ShortAddress()
                                                  : texts_.ForeignText();
    const bool missing = blank || (!foreign && address.size() < 8 && !address.starts_with(L"http"));
    Note("  wrong texts \"" + Narrow(name) + "\", \"" + Narrow(address) + "\"");
    Type(dialog, name_field, name);
    Type(dialog, address_field, address);
    Accept(dialog, ok_button, address_field);
    if (!missing)
        return ExpectForeignCharacterRefused(dialog, foreign ? name_field : address_field,
                                             foreign ? name : address);
    const BoxOnScreen box = program_.Box();
    EXPECT_EQ(box.Title(), L"Nem töltött ki minden mezőt");
    EXPECT_EQ(box.Text(), L"Kérem előbb töltse ki a szükséges mezőket!");
    box.Press(IDOK);
    program_.Settle();
    EXPECT_EQ(dialog.Focus(), name_field);
}

void RandomUser::Add() {
    Note("add");
    program_.Choose(ID_mnuAdd);
    const DialogOnScreen dialog = program_.Dialog(L"Új oldal hozzáadása");
    ExpectCategories(dialog, ID_frmAdd_cmbKateg);
    EXPECT_EQ(dialog.Text(ID_frmAdd_txtDesc), L"");
    EXPECT_EQ(dialog.Text(ID_frmAdd_txtURL), L"http://");
    Row row{texts_.Name(), L"http://"};
    const bool bare = OneIn(5);  // an address that is not known yet
    if (bare && OneIn(2)) {
        dialog.Click(ID_frmAdd_cmdEmail);
        row.second = L"mailto:";
    } else if (!bare && OneIn(5)) {
        TryWrongTexts(dialog, ID_frmAdd_txtDesc, ID_frmAdd_txtURL, ID_frmAdd_cmdOK);
    }
    const int category = PickCategory(dialog, ID_frmAdd_cmbKateg);
    Type(dialog, ID_frmAdd_txtDesc, row.first);
    if (!bare) Type(dialog, ID_frmAdd_txtURL, row.second = texts_.Address());
    Note("  \"" + Narrow(row.first) + "\", \"" + Narrow(row.second) + "\"");
    if (OneIn(6)) return Leave(dialog, ID_frmAdd_cmdCancel);
    Accept(dialog, ID_frmAdd_cmdOK, ID_frmAdd_txtURL);
    dialog.WaitForClose();
    lists_.Add(category, row);
}

void RandomUser::Edit() {
    Note("edit");
    if (lists_.Selected == 0) return program_.Run(ID_mnuEdit);
    program_.Choose(ID_mnuEdit);
    const DialogOnScreen dialog = program_.Dialog(L"Cím módosítása");
    ExpectCategories(dialog, ID_frmEditRec_cmbKateg);
    Row row = lists_.At({lists_.Shown, lists_.Selected});
    EXPECT_EQ(dialog.Text(ID_frmEditRec_txtDesc), row.first);
    EXPECT_EQ(dialog.Text(ID_frmEditRec_txtURL), row.second);
    const bool wrong = OneIn(5);
    if (wrong) TryWrongTexts(dialog, ID_frmEditRec_txtDesc, ID_frmEditRec_txtURL, ID_frmEditRec_cmdOk);
    const int category = PickCategory(dialog, ID_frmEditRec_cmbKateg);
    if (wrong || OneIn(2)) Type(dialog, ID_frmEditRec_txtDesc, row.first = texts_.Name());
    if (wrong || OneIn(2)) Type(dialog, ID_frmEditRec_txtURL, row.second = texts_.Address());
    Note("  \"" + Narrow(row.first) + "\", \"" + Narrow(row.second) + "\"");
    if (OneIn(6)) return Leave(dialog, ID_frmEditRec_Command1);
    Accept(dialog, ID_frmEditRec_cmdOk, ID_frmEditRec_txtDesc);
    dialog.WaitForClose();
    lists_.Edit(category, row);
}

void RandomUser::Move() {
    Note("move");
    const bool chosen = lists_.CheckedCount() != 0 || lists_.HasAddress();
    if (!chosen || lists_.RowCount() == 0) return program_.Run(ID_mnuMove);
    program_.Choose(ID_mnuMove);
    const DialogOnScreen dialog = program_.Dialog(L"A kiválasztott címek áthelyezése");
    ExpectCategories(dialog, ID_frmMove_cmbKateg);
    const int category = RollCategory();
    Note("  category " + std::to_string(category));
    dialog.Pick(ID_frmMove_cmbKateg, category - 1);
    if (OneIn(6)) return Leave(dialog, ID_frmMove_cmdCancel);
    Accept(dialog, ID_frmMove_cmdOk, ID_frmMove_cmbKateg);
    dialog.WaitForClose();
    lists_.Move(category);
}

bool RandomUser::AnswerDeletion(int count_of_checked) {
    const BoxOnScreen box = program_.Box();
    EXPECT_EQ(box.Title(), L"Törlés engedélyezése");
    EXPECT_EQ(box.Icon(), BoxIcon::Question);
    const bool agreed = !OneIn(3);
    Note(agreed ? "  yes" : "  no");
    if (count_of_checked != 0) {
        EXPECT_EQ(box.Text(), L"Töröljem a (" + std::to_wstring(count_of_checked) + L") bejelölt címet?");
        box.Press(agreed ? IDYES : IDNO);
    } else {
        EXPECT_EQ(box.Text(), L"Tényleg ki akarja törölni ezt a web címet ?");
        box.Press(agreed ? IDOK : IDCANCEL);
    }
    return agreed;
}

void RandomUser::Delete() {
    Note("delete");
    if (lists_.CheckedCount() == 0 && (!lists_.HasAddress() || lists_.Selected == 0))
        return program_.Run(ID_mnuDel);
    program_.Choose(ID_mnuDel);
    if (AnswerDeletion(lists_.CheckedCount())) lists_.DeleteRows();
}

void RandomUser::Rename() {
    Note("category names");
    program_.Choose(ID_mnuKat);
    const DialogOnScreen dialog = program_.Dialog(L"Kategóriák nevei");
    std::vector<std::wstring> names = lists_.Names();
    for (int k = 1; k <= 12; ++k) {
        std::wstring& name = names[static_cast<std::size_t>(k - 1)];
        const int field = ID_frmEditKats_txtKateg_0 + k - 1;
        EXPECT_EQ(dialog.Text(field), name);
        if (OneIn(10)) {
            const std::wstring foreign = texts_.ForeignText();
            Note("  wrong name \"" + Narrow(foreign) + "\"");
            Type(dialog, field, foreign);
            Accept(dialog, ID_frmEditKats_cmdOk, field);
            ExpectForeignCharacterRefused(dialog, field, foreign);
            Type(dialog, field, name);
        }
        if (OneIn(4)) Type(dialog, field, name = texts_.CategoryName());
    }
    if (OneIn(5)) return Leave(dialog, ID_frmEditKats_cmdCancel);
    Accept(dialog, ID_frmEditKats_cmdOk, ID_frmEditKats_txtKateg_0);
    dialog.WaitForClose();
    lists_.Rename(names);
}

}  // namespace lindrel::testing
