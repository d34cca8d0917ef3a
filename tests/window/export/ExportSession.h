// A book with checked entries in two categories, and the export dialog on it.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "resources/resource.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {

// The files below a folder: relative paths and bytes.
using Files = std::map<std::wstring, std::string>;
inline Files FilesBelow(const std::filesystem::path& folder) {
    Files files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (!entry.is_directory())
            files.emplace(entry.path().lexically_relative(folder).wstring(),
                          TemporaryFolder::Read(entry.path().wstring()));
    return files;
}

class ExportSession : public ::testing::Test {
  protected:
    // Entries in the categories 2 and 5, all but one checked.
    ExportSession() {
        program.OnUi([](frmStart& form) { form.OpenedBook().TheBook.SetCategoryName(2, "H\xEDrek"); });
        program.Add(2,
                    {{L"Első", L"http://elso.hu"}, {L"Második", L"http://masodik.hu"}, {L"Harmadik", L"x"}});
        program.Add(5, {{L"a:b", L"http://ab.hu"}});
        program.ClickTab(5);
        program.ClickBox(1);
        program.ClickTab(2);
        program.ClickBox(3);
        program.ClickBox(1);
    }

    // Opens the dialog and selects lines of its list (0-based): 0 is category 2, 1 is category 5.
    DialogOnScreen Open(const std::vector<int>& lines = {}) const {
        program.Choose(ID_mnuExport);
        const DialogOnScreen dialog = program.Dialog(L"Exportálás");
        for (const int line : lines)
            SendMessageW(dialog.Control(ID_frmExport_lstSource), LB_SETSEL, TRUE, line);
        return dialog;
    }
    static void Leave(const DialogOnScreen& dialog) {
        dialog.Cancel();
        dialog.WaitForClose();
    }
    // The number of checked entries to export, of each category.
    std::vector<int> Counts() const {
        std::vector<int> counts;
        program.OnUi([&](frmStart& form) {
            for (int c = 1; c <= 12; ++c)
                counts.push_back(form.OpenedBook().TheBook.Marks.SavedCheckCounts(c));
        });
        return counts;
    }
    static std::vector<int> CountsOf(int second, int fifth) {
        std::vector<int> counts(12, 0);
        counts[1] = second;
        counts[4] = fifth;
        return counts;
    }
    // Changes the book behind the user's back.
    void Change(const std::function<void(Book&)>& change) const {
        program.OnUi([&](frmStart& form) { change(form.OpenedBook().TheBook); });
    }
    // Presses the export button and answers the save dialog.
    void Export(const DialogOnScreen& dialog, const std::wstring& path, const std::wstring& filter) const {
        dialog.Click(ID_frmExport_cmdOK);
        const FileDialogOnScreen file = program.FileDialog();
        EXPECT_EQ(file.Title(), L"Exportálás");
        EXPECT_EQ(file.Filters(), std::vector<std::wstring>{filter});
        file.Accept(path);
    }
    const std::wstring kPages = L"weblapok (*.htm)";
    const std::wstring kTexts = L"szövegfájlok (*.txt)";

    TemporaryFolder folder;
    Program program;
};

}  // namespace lindrel::testing
