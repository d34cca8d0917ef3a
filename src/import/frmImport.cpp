#include "import/frmImport.h"

#include <exception>

#include "edit/BookField.h"
#include "edit/IncompleteBook.h"
#include "files/Files.h"
#include "files/Folder.h"
#include "import/PageEncoding.h"
#include "import/Shortcuts.h"
#include "resources/resource.h"
#include "system/FileDialog.h"
#include "system/FolderDialog.h"
#include "system/MsgBox.h"
#include "system/Shell.h"
#include "system/WaitCursor.h"
#include "window/PopupMenu.h"

namespace lindrel {

frmImport::frmImport(OpenBook& open) : Dialog(IDD_frmImport), open_(open) {}

void frmImport::Form_Load() {
    Get<CheckBox>(ID_frmImport_from_0).SetChecked(true);
    FillWithCategories(Get<ComboBox>(ID_frmImport_cmbKateg), open_.TheBook, open_.CurrentCategory);
    SetToolTip(ID_frmImport_cmbKateg, L"az új címek ebbe a kategóriába importálódnak");
}

void frmImport::OnCommand(int id, int) {
    switch (id) {
        case ID_frmImport_from_0:
        case ID_frmImport_from_1:
            return from_Click();
        case ID_frmImport_Label2:
            return Label2_MouseDown();
        case ID_mnuOnline:
            return mnuOnline_Click();
        case ID_mnuAll:
            return mnuAll_Click();
        case ID_frmImport_cmdOK:
            return cmdOK_Click();
        case ID_frmImport_cmdCancel:
        case IDCANCEL:
            return cmdCancel_Click();
        default:
            return;
    }
}

// A mouse button opens a menu when it is pressed, not when it is released; the keyboard clicks the button.
bool frmImport::PreTranslate(const MSG& message) {
    const bool pressed = message.message == WM_LBUTTONDOWN || message.message == WM_LBUTTONDBLCLK;
    if (!pressed || message.hwnd != Item(ID_frmImport_Label2)) return false;
    FocusOn(ID_frmImport_Label2);
    Label2_MouseDown();
    return true;
}

void frmImport::from_Click() const {
    Get<Control>(ID_frmImport_Label2).Enable(Get<CheckBox>(ID_frmImport_from_0).IsChecked());
}

void frmImport::Label2_MouseDown() {
    if (!Get<CheckBox>(ID_frmImport_from_0).IsChecked()) return;
    const PopupMenu menu(GetModuleHandleW(nullptr), IDR_frmImport);
    menu.CheckRadio(ID_mnuOnline, ID_mnuAll, choice_ == LinkChoice::Online ? ID_mnuOnline : ID_mnuAll);
    RECT button{};
    GetWindowRect(Item(ID_frmImport_Label2), &button);
    menu.OpenBelow(button, Handle());
}

void frmImport::cmdOK_Click() {
    constexpr wchar_t kFailed[] = L"Az importálás nem sikerült.";
    // Faults of the folder import lead to the run-time error report.
    if (!Get<CheckBox>(ID_frmImport_from_0).IsChecked()) return ImportFavoritesFolder();

    try {
        const std::optional<std::wstring> page = ChooseExistingFile(
            Handle(), {.Title = L"Válasszon ki egy weblapot", .Filter = L"weblapok (*.htm)|*.htm;*.html"});
        if (page) ImportHtmlLinks(*page);
    } catch (const OverflowFault&) {
        MsgBox(Handle(), kFailed, MB_OK, L"Túl sok címet tartalmaz a weblap");
    } catch (const EndOfFileFault&) {
        MsgBox(Handle(), kFailed, MB_OK, L"Hibás a weblap");
    } catch (const std::exception&) {
        // No message for a page that cannot be read or does not fit in memory, or for an address without a
        // closing quotation mark.
        return;
    }
}

void frmImport::ImportHtmlLinks(const std::wstring& fileName) {
    std::vector<NewEntry> links;
    {
        const WaitCursor hourglass;
        const TextFile page = TextOfPage(ReadFileBytes(fileName));
        links = LinksOfPage(page.Text(), page.Encoding, choice_);
    }
    if (!AddToChosenCategory(links)) return;
    ShowResult(links.size());
    imported_ = true;
}

void frmImport::ImportFavoritesFolder() {
    FolderDialog frmI_Fav(IDD_frmI_Fav, {ID_frmI_Fav_Dir1, ID_frmI_Fav_cmdImport, ID_frmI_Fav_cmdCancel},
                          FavoritesPath());
    frmI_Fav.ShowModal(Handle());
    // A cancelled choice gives an empty path, which is no folder.
    if (!FolderIsThere(frmI_Fav.ChosenFolder())) return;

    const std::vector<NewEntry> entries = ShortcutsOfFolder(frmI_Fav.ChosenFolder());
    if (entries.empty()) {
        MsgBox(Handle(), L"Salynálom, de a megadott könyvtárban nem találtam kedvenc weblapokat");
        return;
    }
    ShowResult(entries.size());
    imported_ = AddToChosenCategory(entries) || imported_;
}

bool frmImport::AddToChosenCategory(const std::vector<NewEntry>& entries) {
    if (entries.empty()) return true;
    const int category = Get<ComboBox>(ID_frmImport_cmbKateg).Selected() + 1;
    Book& book = open_.TheBook;
    if (!AddedUnlessIncomplete(Handle(), book, [&] { book.AddEntry(category, entries); })) return false;
    open_.Modified = true;
    return true;
}

void frmImport::ShowResult(std::size_t count) const {
    MsgBox(Handle(), L"Az importálás eredménye: " + std::to_wstring(count) + L" új cím");
}

}  // namespace lindrel
