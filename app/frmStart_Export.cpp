// Export, and the shortcut on the desktop.

#include <shlobj.h>

#include <filesystem>

#include "app/frmStart.h"
#include "book/BookText.h"
#include "book/Files.h"
#include "controls/MsgBox.h"
#include "controls/Shell.h"
#include "export/ExportedEntries.h"
#include "export/Shortcut.h"
#include "export/frmExport.h"

namespace lindrel {

void frmStart::mnuExport_Click() {
    SaveCheckMarks(SelectedCategory());
    bool something_checked = false;
    for (int c = 1; c <= kCategories; ++c) something_checked = something_checked || IsExported(TheBook, c);
    if (!something_checked) {
        MsgBox(handle_,
               L"Kérem jelölje be (pipazza ki) az exportálni kívánt címeket /akár több kategóriából is/.",
               MB_OK, L"Nincsenek kijelölve címek");
        return;
    }
    frmExport(*this).ShowModal(handle_);
}

void frmStart::mnuToDesktop_Click() {
    constexpr wchar_t kNotCreated[] = L"Nem jött létre a parancsikon";
    const int position = ListURLs.Selected();
    if (position == 0) return;
    const int entry = TheBook.IndexOf(SelectedCategory(), position);
    const std::wstring question =
        L"Létrehozzam a < " + FromBookText(TheBook.SiteNames(entry)) + L" > cím parancsikonját az Asztalon ?";
    if (MsgBox(handle_, question, MB_OKCANCEL | MB_ICONQUESTION) != IDOK) return;

    const std::optional<std::wstring> desktop = ShellFolder(CSIDL_DESKTOPDIRECTORY);
    if (!desktop) {
        MsgBox(handle_, kNotCreated, MB_OK | MB_ICONEXCLAMATION, kErrorTitle);
        return;
    }
    // The name changes in the book too; list and Modified stay as they are (intended).
    std::string name(TheBook.SiteNames(entry));
    MakeShortcutFileName(name);
    TheBook.SetSiteName(entry, name);
    try {
        WriteFileBytes(DesktopPath(*desktop) + L"\\" + FromBookText(name) + L".url",
                       ShortcutFile(TheBook.SiteURLs(entry)));
    } catch (const FileFault&) {
        MsgBox(handle_, kNotCreated, MB_OK | MB_ICONEXCLAMATION, kErrorTitle);
    }
}

}  // namespace lindrel
