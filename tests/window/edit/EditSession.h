// The boxes of the dialogs that change entries and categories.
#pragma once

#include <string>
#include <vector>

#include "resources/resource.h"
#include "tests/window/app/ExpectBox.h"
#include "tests/window/support/Expectations.h"

namespace lindrel::testing {

class EditSession : public ::testing::Test {
  protected:
    void ExpectMissingFields() const {
        ExpectBox(program, {L"Nem töltött ki minden mezőt", L"Kérem előbb töltse ki a szükséges mezőket!"});
        program.Settle();
    }
    // `shown` is the character as the box names it.
    void ExpectForeignCharacter(const std::wstring& shown) const {
        ExpectBox(program,
                  {L"Hiba", L"Ezt a karaktert a könyv nem tudja tárolni:\r\n\r\n" + shown, BoxIcon::Error});
        program.Settle();
    }
    static void Leave(const DialogOnScreen& dialog) {
        dialog.Cancel();
        dialog.WaitForClose();
    }
    // Leaves a dialog: nothing may have changed.
    void ExpectUnchangedAfter(const DialogOnScreen& dialog, const MainState& before) const {
        Leave(dialog);
        ExpectState(program, before);
    }
    // A command that must neither open nor change anything.
    void ExpectNothingDone(int command) const {
        const MainState before = program.State();
        program.Choose(command);
        ExpectState(program, before);
    }
    // Entries whose addresses are made of their names.
    void AddNamed(int category, const std::vector<std::wstring>& names) const {
        program.Add(category, RowsNamed(names));
    }
    static std::vector<Row> RowsNamed(const std::vector<std::wstring>& names) {
        std::vector<Row> rows;
        for (const std::wstring& name : names) rows.emplace_back(name, L"http://" + name + L".hu");
        return rows;
    }
    // What the window shows of a changed book with these entries in the category of a tab.
    static MainState Changed(int tab, const std::vector<Row>& rows, std::size_t total) {
        MainState state = EmptyState();
        state.SelectedTab = tab;
        state.Rows = rows;
        state.Status[1] =
            L"megjelenítve (" + std::to_wstring(rows.size()) + L" / " + std::to_wstring(total) + L")";
        state.Modified = true;
        return state;
    }

    Program program;
};

}  // namespace lindrel::testing
