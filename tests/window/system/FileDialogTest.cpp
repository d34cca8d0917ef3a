// What the program asks of the file dialogs of Windows, and what it makes of their answers.

#include "system/FileDialog.h"

#include <cderr.h>
#include <commdlg.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <optional>

#include "resources/resource.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

struct Asked {
    bool Save = false;
    std::wstring Title, Filter, FileName, DefaultExt, InitDir;
    DWORD Flags = 0;
    bool operator==(const Asked&) const = default;
};

// The last request, and the answer: a path, or nullptr and the system's error number, 0 for a user who
// cancels. The program's thread writes them; they are read when it has settled.
Asked asked;
const wchar_t* answer = nullptr;
DWORD reason = 0;
std::wstring folder_left;  // the current folder that the dialog leaves; none if empty

std::wstring Text(const wchar_t* text) {
    return text == nullptr ? std::wstring() : std::wstring(text);
}

BOOL Answer(bool save, OPENFILENAMEW* dialog) {
    const wchar_t* end = dialog->lpstrFilter;
    while (end[0] != 0 || end[1] != 0) ++end;
    std::wstring filter(dialog->lpstrFilter, end);
    std::replace(filter.begin(), filter.end(), L'\0', L'|');
    asked = {save,
             Text(dialog->lpstrTitle),
             filter,
             Text(dialog->lpstrFile),
             Text(dialog->lpstrDefExt),
             Text(dialog->lpstrInitialDir),
             dialog->Flags};
    if (!folder_left.empty()) std::filesystem::current_path(folder_left);
    if (answer == nullptr) return FALSE;
    std::copy_n(answer, std::wcslen(answer) + 1, dialog->lpstrFile);
    return TRUE;
}

BOOL WINAPI OpenDialog(OPENFILENAMEW* dialog) {
    return Answer(false, dialog);
}
BOOL WINAPI SaveDialog(OPENFILENAMEW* dialog) {
    return Answer(true, dialog);
}
DWORD WINAPI Reason() {
    return reason;
}

decltype(&GetProcAddress) find_function = nullptr;

FARPROC WINAPI FindFunction(HMODULE module, LPCSTR name) {
    if (IS_INTRESOURCE(name)) return find_function(module, name);
    if (std::strcmp(name, "GetOpenFileNameW") == 0)
        return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&OpenDialog));
    if (std::strcmp(name, "GetSaveFileNameW") == 0)
        return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&SaveDialog));
    if (std::strcmp(name, "CommDlgExtendedError") == 0)
        return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&Reason));
    return find_function(module, name);
}

class FileDialogTest : public ::testing::Test {
  protected:
    static constexpr DWORD kAlways = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_ENABLESIZING;
    static constexpr wchar_t kBooks[] = L"Lindrel fájlok (*.lnd)|*.lnd";

    FileDialogTest() {
        asked = {};
        answer = nullptr;
        reason = 0;
        folder_left.clear();
        program.Add(1, {{L"Név", L"http://nev.hu"}});
        program.ClickBox(1);
        program.Settle();
        find_function = &GetProcAddress;
        functions_.emplace(&GetProcAddress, &FindFunction);
    }
    Asked AskedBy(int command) {
        program.Run(command);
        return asked;
    }
    Asked AskedBy(const DialogOnScreen& dialog, int button) const {
        dialog.Click(button);
        program.Settle();
        return asked;
    }
    DialogOnScreen OpenImport() const {
        program.Choose(ID_mnuImport);
        return program.Dialog(L"Importálás");
    }
    // With a category selected.
    DialogOnScreen OpenExport() const {
        program.Choose(ID_mnuExport);
        const DialogOnScreen dialog = program.Dialog(L"Exportálás");
        SendMessageW(dialog.Control(ID_frmExport_lstSource), LB_SETSEL, TRUE, 0);
        return dialog;
    }
    void ExpectBox(const std::wstring& text, BoxIcon icon) const {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Hiba");
        EXPECT_EQ(box.Text(), text);
        EXPECT_EQ(box.Icon(), icon);
        answer = nullptr;
        box.Press(IDOK);
        program.Settle();
    }
    void ExpectFailureIsTold() const {
        ExpectBox(L"A Windows ezt nem tudta teljesíteni: a fájlválasztó ablak megnyitása\r\nHibakód: 2",
                  BoxIcon::Error);
    }

    Program program;

  private:
    std::optional<ReplacedImport> functions_;
};

TEST_F(FileDialogTest, BooksPagesTextsAndThemesAreAskedForByTheirPatterns) {
    constexpr DWORD kSave = kAlways | OFN_PATHMUSTEXIST;
    wchar_t program_file[MAX_PATH] = L"";
    EXPECT_NE(GetModuleFileNameW(nullptr, program_file, MAX_PATH), 0u);
    const std::wstring folder = std::filesystem::path(program_file).parent_path().wstring() + L"\\";
    const Asked open{false, L"File megnyitása", kBooks, L"", L"", folder, kAlways};
    EXPECT_EQ(AskedBy(ID_mnuOpen), open);

    const DialogOnScreen import = OpenImport();
    const Asked import_page{
        false, L"Válasszon ki egy weblapot", L"weblapok (*.htm)|*.htm;*.html", L"", L"", L"", kAlways};
    EXPECT_EQ(AskedBy(import, ID_frmImport_cmdOK), import_page);
    import.ClickAndWaitForClose(ID_frmImport_cmdCancel);

    const DialogOnScreen dialog = OpenExport();
    const Asked theme{false,  L"Arculatfájl kiválasztása", L"arculatfájlok (*.aut)|*.aut", L"", L"", L"",
                      kAlways};
    EXPECT_EQ(AskedBy(dialog, ID_frmExport_cmdBrowse), theme);
    const Asked page{true, L"Exportálás", L"weblapok (*.htm)|*.htm", L"", L"htm", L"", kSave};
    const Asked text{true, L"Exportálás", L"szövegfájlok (*.txt)|*.txt", L"", L"txt", L"", kSave};
    for (const int kind : {0, 1, 0}) {
        dialog.Pick(ID_frmExport_cmbType, kind);
        EXPECT_EQ(AskedBy(dialog, ID_frmExport_cmdOK), kind == 0 ? page : text);
    }
    dialog.ClickAndWaitForClose(ID_frmExport_cmdCancel);

    EXPECT_EQ(AskedBy(ID_mnuOpen), open);
    Asked save{true, L"File mentése", kBooks, L"", L"lnd", folder, kSave};
    EXPECT_EQ(AskedBy(ID_mnuSaveAs), save);
    program.OnUi([](frmStart& form) { form.OpenedBook().Modified = true; });
    save.Flags |= OFN_OVERWRITEPROMPT;
    EXPECT_EQ(AskedBy(ID_mnuSave), save);
}

TEST_F(FileDialogTest, AMissingFileIsProposedAgain) {
    answer = L"C:\\nincs ilyen.lnd";
    program.Choose(ID_mnuOpen);
    ExpectBox(L"A megadott fájl nem létezik", BoxIcon::None);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(asked.FileName, L"C:\\nincs ilyen.lnd");
}

TEST_F(FileDialogTest, TheCurrentFolderStaysWhateverADialogDoes) {
    const TemporaryFolder folder;
    const std::filesystem::path before = std::filesystem::current_path();
    const std::wstring book = folder.File(L"a.lnd");
    folder_left = std::filesystem::path(book).parent_path().wstring();
    for (const int command : {ID_mnuOpen, ID_mnuSaveAs}) {
        EXPECT_EQ(AskedBy(command).Save, command == ID_mnuSaveAs);  // cancelled
        EXPECT_EQ(std::filesystem::current_path(), before);
        reason = CDERR_INITIALIZATION;
        program.Choose(command);
        ExpectFailureIsTold();
        EXPECT_EQ(std::filesystem::current_path(), before);
        reason = 0;
    }
    answer = book.c_str();
    program.Choose(ID_mnuSaveAs);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Text(), L"Elmentve : " + book);
    EXPECT_EQ(std::filesystem::current_path(), before);
    box.Press(IDOK);
    EXPECT_EQ(AskedBy(ID_mnuOpen).Save, false);
    EXPECT_EQ(program.State().Title, L"Lindrel -a.lnd");
    EXPECT_EQ(std::filesystem::current_path(), before);
    std::filesystem::current_path(before);
}

TEST_F(FileDialogTest, ADialogThatFailsIsToldOfAndChangesNothing) {
    const MainState before = program.State();
    reason = CDERR_INITIALIZATION;
    for (const int command : {ID_mnuOpen, ID_mnuSaveAs}) {
        program.Choose(command);
        ExpectFailureIsTold();
    }
    const DialogOnScreen import = OpenImport();
    import.Click(ID_frmImport_cmdOK);
    ExpectFailureIsTold();
    import.ClickAndWaitForClose(ID_frmImport_cmdCancel);

    const DialogOnScreen dialog = OpenExport();
    for (const int button : {ID_frmExport_cmdBrowse, ID_frmExport_cmdOK}) {
        EXPECT_EQ(dialog.Text(ID_frmExport_cmbTheme), L"");
        dialog.Click(button);
        ExpectFailureIsTold();
    }
    dialog.WaitForClose();  // as after any failure of the export
    program.Settle();
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State(), before);
}

}  // namespace
}  // namespace lindrel::testing
