// A book with checked entries, and the import dialog on it.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "resources/resource.h"
#include "tests/window/support/Program.h"
#include "text/BookText.h"

namespace lindrel::testing {

// The main window and all of the book, also what no window shows of it.
struct WholeState {
    MainState Main;
    std::string Book;  // as its file would be
    bool operator==(const WholeState&) const = default;
};

inline void PrintTo(const WholeState& state, std::ostream* out) {
    PrintTo(state.Main, out);
    *out << state.Book;
}

class ImportSession : public ::testing::Test {
  protected:
    // Entries in the categories 2 and 5; category 2 is shown with two rows checked and one selected.
    ImportSession() {
        program.OnUi([](frmStart& form) {
            form.OpenedBook().TheBook.SetCategoryName(2, ToBookText(L"Hírek"));
            form.View().UpdateTabCaptions();
        });
        program.Add(2,
                    {{L"Első", L"http://elso.hu"}, {L"Második", L"http://masodik.hu"}, {L"Harmadik", L"x"}});
        program.Add(5, {{L"Ötödik", L"http://otodik.hu"}});
        program.ClickTab(2);
        program.ClickBox(3);
        program.ClickBox(1);
        program.ClickRow(2);
    }

    // What the window shows after the import of these rows into the shown category and of others elsewhere,
    // where one entry is already.
    static MainState WithImported(MainState state, const std::vector<Row>& rows, std::size_t elsewhere = 0) {
        state.Rows.insert(state.Rows.end(), rows.begin(), rows.end());
        state.SelectedRow = 0;
        state.txtSite = state.txtURL = state.Status[0] = L"";
        state.Status[1] = L"megjelenítve (" + std::to_wstring(state.Rows.size()) + L" / " +
                          std::to_wstring(state.Rows.size() + 1 + elsewhere) + L")";
        state.Modified = true;
        return state;
    }
    DialogOnScreen Open() const {
        program.Choose(ID_mnuImport);
        return program.Dialog(L"Importálás");
    }
    void Leave(const DialogOnScreen& dialog) const {
        dialog.ClickAndWaitForClose(ID_frmImport_cmdCancel);
        program.Settle();
    }
    // Answers a box that has a text and a single button.
    void AnswerBox(const std::wstring& title, const std::wstring& text) const {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), title);
        EXPECT_EQ(box.Text(), text);
        EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
        EXPECT_EQ(box.Icon(), BoxIcon::None);
        box.Press(IDOK);
        program.Settle();
    }
    void AnswerResult(int count) const {
        AnswerBox(L"Lindrel", L"Az importálás eredménye: " + std::to_wstring(count) + L" új cím");
    }
    // Fills the book to a number of entries; the new ones are its last.
    void FillBookTo(int entries) const {
        program.OnUi([&](frmStart& form) {
            Book& book = form.OpenedBook().TheBook;
            const auto missing = static_cast<std::size_t>(entries - book.EntryCount());
            book.AddEntry(12, std::vector<NewEntry>(missing, {"n", "http://n.hu"}));
        });
    }
    WholeState Whole() const { return {program.State(), program.BookBytes()}; }

    TemporaryFolder folder;
    Program program;
};

}  // namespace lindrel::testing
