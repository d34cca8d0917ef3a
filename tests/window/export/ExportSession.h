// A book with checked entries in two categories, and the export dialog on it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "resources/resource.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {

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

    DialogOnScreen Open() const {
        program.Choose(ID_mnuExport);
        return program.Dialog(L"Exportálás");
    }
    static void SelectLine(const DialogOnScreen& dialog, int line) {
        SendMessageW(dialog.Control(ID_frmExport_lstSource), LB_SETSEL, TRUE, line);
    }
    static std::vector<std::wstring> Lines(const DialogOnScreen& dialog) {
        const HWND list = dialog.Control(ID_frmExport_lstSource);
        std::vector<std::wstring> lines;
        for (int line = 0; line < SendMessageW(list, LB_GETCOUNT, 0, 0); ++line) {
            wchar_t text[256] = L"";
            SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(text));
            lines.emplace_back(text);
        }
        return lines;
    }
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
    // Presses the export button and answers the save dialog.
    void Export(const DialogOnScreen& dialog, const std::wstring& path, const std::wstring& filter) const {
        dialog.Click(ID_frmExport_cmdOK);
        const FileDialogOnScreen file = program.FileDialog();
        EXPECT_EQ(file.Title(), L"Exportálás");
        EXPECT_EQ(file.Filters(), std::vector<std::wstring>{filter});
        file.Accept(path);
    }
    static std::string Header(const std::string& name) {
        return "\xF7\xF7\xF7\xF7\xF7< " + name + std::string(120 - name.size(), '-') + "\r\n";
    }
    const std::wstring kPages = L"weblapok (*.htm)";
    const std::wstring kTexts = L"szövegfájlok (*.txt)";

    TemporaryFolder folder;
    Program program;
};

}  // namespace lindrel::testing
