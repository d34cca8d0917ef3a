// The commands of the menus, without those of the file menu.

#include <shlobj.h>

#include <algorithm>

#include "app/frmStart.h"
#include "edit/CheckedRuns.h"
#include "edit/DeleteQuestions.h"
#include "edit/frmAdd.h"
#include "edit/frmEditKats.h"
#include "edit/frmEditRec.h"
#include "edit/frmMove.h"
#include "export/ExportedEntries.h"
#include "export/Shortcut.h"
#include "export/frmExport.h"
#include "files/Files.h"
#include "find/frmFind.h"
#include "help/HTMLHelp.h"
#include "help/HomePage.h"
#include "help/frmAbout.h"
#include "import/frmImport.h"
#include "resources/resource.h"
#include "system/MsgBox.h"
#include "system/Shell.h"
#include "text/BookText.h"

namespace lindrel {

namespace {
constexpr wchar_t kStored[] = L"init";  // as ResultTag
}

void frmStart::mnuKat_Click() {
    frmEditKats dialog(open_);
    dialog.ShowModal(Handle());
    if (dialog.Renamed()) view_.UpdateTabCaptions();
}

void frmStart::mnuAdd_Click() {
    view_.SaveCheckMarks(open_.CurrentCategory);
    frmAdd dialog(open_);
    dialog.ShowModal(Handle());
    if (dialog.Added()) ResultTag = kStored;
    if (ResultTag.empty()) return;
    // The row that was selected stays selected, not the new one.
    const int position = view_.SelectedRow();
    ResultTag.clear();
    view_.FillAddressList(open_.CurrentCategory);
    view_.RestoreCheckMarks(open_.CurrentCategory);
    view_.SelectRow(position);
}

void frmStart::mnuEdit_Click() {
    const int position = view_.SelectedRow();
    if (position == 0) return;
    view_.SaveCheckMarks(open_.CurrentCategory);
    frmEditRec dialog(open_, position);
    dialog.ShowModal(Handle());
    if (dialog.Changed()) ResultTag = kStored;
    if (ResultTag.empty()) return;
    view_.FillAddressList(open_.CurrentCategory);
    if (ResultTag == L"m")
        view_.SetAllChecks(false);
    else
        view_.RestoreCheckMarks(open_.CurrentCategory);
    ResultTag.clear();
    // The last row may have been moved to another category.
    view_.SelectRow(std::min(position, view_.RowCount()));
}

void frmStart::mnuFind_Click() {
    // Category 12 is ignored: the command has always refused a book with entries only there.
    if (open_.TheBook.CategoryStarts(kCategories) == 1) {
        MsgBox(Handle(), L"Az adatbázisban még nincsenek címek");
        return;
    }
    view_.SaveCheckMarks(open_.CurrentCategory);
    frmFind(open_).ShowModal(Handle());
    view_.FillAddressList(open_.CurrentCategory);
    view_.RestoreCheckMarks(open_.CurrentCategory);
}

void frmStart::mnuMove_Click() {
    const bool any_chosen = open_.TheBook.Marks.CheckedCount() != 0 || fields_.HasAddress();
    if (!any_chosen || view_.RowCount() == 0) return;
    frmMove dialog(open_, view_.SelectedRow(), view_.CheckedRows());
    dialog.ShowModal(Handle());
    if (dialog.Moved()) view_.FillAddressList(open_.CurrentCategory);
}

void frmStart::mnuDel_Click() {
    // In the search box the Del key deletes text.
    if (search_box_.HasFocus()) return;
    const int checked = open_.TheBook.Marks.CheckedCount();
    if (checked == 0 && (!fields_.HasAddress() || view_.SelectedRow() == 0)) return;

    if (checked != 0) {
        if (!MayDeleteChecked(Handle(), checked)) return;
        DeleteRuns(open_.TheBook, open_.CurrentCategory, view_.CheckedRows());
    } else {
        if (!MayDeleteSelected(Handle())) return;
        open_.TheBook.DeleteEntry(open_.CurrentCategory, view_.SelectedRow(), 1);
    }
    open_.TheBook.Marks.SetCheckedCount(0);
    const int focused = view_.FocusedRow();
    view_.FillAddressList(open_.CurrentCategory);
    view_.FocusRow(focused);
    open_.Modified = true;
}

void frmStart::mnuSelectAll_Click() {
    // Category 12 is ignored: for a book with entries only there the command has never done anything.
    if (open_.TheBook.CategoryStarts(kCategories) == 1) return;
    view_.SetAllChecks(open_.TheBook.Marks.CheckedCount() == 0);
}

void frmStart::mnuToDesktop_Click() {
    const auto tell_failure = [this] {
        MsgBox(Handle(), L"Nem jött létre a parancsikon", MB_OK | MB_ICONEXCLAMATION, kErrorTitle);
    };
    Book& book = open_.TheBook;
    const int position = view_.SelectedRow();
    if (position == 0) return;
    const int entry = book.IndexOf(open_.CurrentCategory, position);
    const std::wstring question =
        L"Létrehozzam a < " + FromBookText(book.SiteNames(entry)) + L" > cím parancsikonját az Asztalon ?";
    if (MsgBox(Handle(), question, MB_OKCANCEL | MB_ICONQUESTION) != IDOK) return;

    const std::optional<std::wstring> desktop = ShellFolder(CSIDL_DESKTOPDIRECTORY);
    if (!desktop) return tell_failure();
    // The entry is renamed to the name of its file. Neither the list nor Modified shows it: users have never
    // been asked to save because of a shortcut.
    std::string name(book.SiteNames(entry));
    MakeShortcutFileName(name);
    book.SetSiteName(entry, name);
    try {
        WriteFileBytes(DesktopPath(*desktop) + L"\\" + FromBookText(name) + L".url",
                       ShortcutFile(book.SiteURLs(entry)));
    } catch (const FileFault&) {
        tell_failure();
    }
}

void frmStart::mnuGridLines_Click() {
    const HMENU menu = GetMenu(Handle());
    const bool shown = (GetMenuState(menu, ID_mnuGridLines, MF_BYCOMMAND) & MF_CHECKED) == 0;
    CheckMenuItem(menu, ID_mnuGridLines, shown ? MF_CHECKED : MF_UNCHECKED);
    view_.ShowGridLines(shown);
}

void frmStart::mnuTray_Click() {
    RememberFocus();  // Windows takes it away in hiding the window
    ShowWindow(Handle(), SW_HIDE);
    TrayArea.SetToolTip(kApplicationTitle);
    TrayArea.SetVisible(true);
    // Without an icon the user could not get the window back.
    if (!TrayArea.IsTaken()) LeaveTray();
}

void frmStart::LeaveTray() {
    ShowWindow(Handle(), SW_SHOW);
    // Fails while another program keeps the foreground; the window is shown all the same.
    static_cast<void>(SetForegroundWindow(Handle()));
    TrayArea.SetVisible(false);
}

void frmStart::mnuImport_Click() {
    view_.SaveCheckMarks(open_.CurrentCategory);
    frmImport dialog(open_);
    dialog.ShowModal(Handle());
    if (dialog.Imported()) view_.FillAddressList(open_.CurrentCategory);
    view_.RestoreCheckMarks(open_.CurrentCategory);
}

void frmStart::mnuExport_Click() {
    view_.SaveCheckMarks(open_.CurrentCategory);
    bool any_checked = false;
    for (int c = 1; c <= kCategories; ++c) any_checked = any_checked || IsExported(open_.TheBook, c);
    if (!any_checked) {
        MsgBox(Handle(),
               L"Kérem jelölje be (pipazza ki) az exportálni kívánt címeket /akár több kategóriából is/.",
               MB_OK, L"Nincsenek kijelölve címek");
        return;
    }
    frmExport(open_).ShowModal(Handle());
}

void frmStart::mnuHelp_Click() {
    constexpr std::int16_t kHelpOfTheProgram = 1;
    if (!FileIsThere(HelpFilePath(kHelpOfTheProgram))) {
        MsgBox(Handle(), L"Nem találom az lnd.chm fájlt", MB_OK, kErrorTitle);
        return;
    }
    ShowHelp(kHelpOfTheProgram, L"main");
}

void frmStart::mnuGoHome_Click() {
    OpenAddress(Handle(), kHomePage);
}

void frmStart::mnuAbout_Click() {
    frmAbout().ShowModal(Handle());
}

}  // namespace lindrel
