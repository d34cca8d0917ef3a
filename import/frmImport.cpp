#include "import/frmImport.h"

#include <exception>
#include <filesystem>
#include <utility>

#include "book/Files.h"
#include "controls/BookField.h"
#include "controls/MsgBox.h"
#include "controls/Shell.h"
#include "controls/WaitCursor.h"
#include "import/PageText.h"
#include "import/Shortcuts.h"
#include "import/frmI_Fav.h"
#include "resources/resource.h"

namespace lindrel {

frmImport::frmImport(frmStart& main) : Dialog(IDD_frmImport), main_(main) {}

void frmImport::Form_Load() {
    Get<CheckBox>(ID_frmImport_from_0).SetChecked(true);
    FillWithCategories(Get<ComboBox>(ID_frmImport_cmbKateg), main_.TheBook, main_.SelectedCategory());
    SetToolTip(ID_frmImport_cmbKateg, L"az új címek ebbe a kategóriába importálódnak");
}

void frmImport::Form_Unload() {
    if (imported_) main_.FillAddressList(main_.SelectedCategory());
    main_.CommonDialog1.Filter = kBookFilter;
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

// The menu opens as soon as the mouse goes down, like any menu; by the keyboard the button is clicked.
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
    const HMENU bar = LoadMenuW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDR_frmImport));
    const HMENU menu = GetSubMenu(bar, 0);
    // Without the menu the choice stays as it is.
    if (menu == nullptr) return;
    const UINT chosen = choice_ == LinkChoice::Online ? ID_mnuOnline : ID_mnuAll;
    static_cast<void>(CheckMenuRadioItem(menu, ID_mnuOnline, ID_mnuAll, chosen, MF_BYCOMMAND));
    RECT button{};
    static_cast<void>(GetWindowRect(Item(ID_frmImport_Label2), &button));
    // The item chosen arrives as a command.
    static_cast<void>(
        TrackPopupMenu(menu, TPM_LEFTALIGN | TPM_TOPALIGN, button.left, button.bottom, 0, Handle(), nullptr));
    static_cast<void>(DestroyMenu(bar));
}

void frmImport::cmdOK_Click() {
    constexpr wchar_t kFailed[] = L"Az importálás nem sikerült.";
    // Failures of the folder import are not caught here (intended): they end in the run-time error report.
    if (!Get<CheckBox>(ID_frmImport_from_0).IsChecked()) return ImportFavoritesFolder();

    CommonDialog& dialog = main_.CommonDialog1;
    dialog.Filter = L"weblapok (*.htm)|*.htm";
    dialog.DialogTitle = L"Válasszon ki egy weblapot";
    dialog.FileName.clear();
    try {
        do dialog.ShowOpen(Handle());
        while (!FileExists(Handle(), dialog.FileName));
        ImportHtmlLinks(dialog.FileName);
        dialog.Filter = kBookFilter;
    } catch (const OverflowFault&) {
        MsgBox(Handle(), kFailed, MB_OK, L"Túl sok címet tartalmaz a weblap");
    } catch (const EndOfFileFault&) {
        MsgBox(Handle(), kFailed, MB_OK, L"Hibás a weblap");
    } catch (const std::exception&) {
        // The cancelled file dialog, a page that cannot be read or is too large for the memory, an address
        // without quotation mark: no message (intended).
        return;
    }
}

void frmImport::ImportHtmlLinks(const std::wstring& fileName) {
    std::vector<NewEntry> links;
    {
        const WaitCursor hourglass;
        const std::vector<char> page = BookTextOfPage(ReadFileBytes(fileName));
        links = LinksOfPage({page.data(), page.size()}, choice_);
    }
    const std::size_t count = links.size();
    AddToChosenCategory(std::move(links));
    ShowResult(count);
    imported_ = true;
}

void frmImport::ImportFavoritesFolder() {
    frmI_Fav picker(*this);
    picker.startDir(FavoritesPath());
    picker.ShowModal(Handle());
    // The empty path of a cancelled choice is none either.
    std::error_code unknown;
    if (!std::filesystem::is_directory(chosen_folder_, unknown)) return;

    std::vector<NewEntry> entries = ShortcutsOfFolder(chosen_folder_);
    if (entries.empty()) {
        MsgBox(Handle(), L"Salynálom, de a megadott könyvtárban nem találtam kedvenc weblapokat");
        return;
    }
    ShowResult(entries.size());
    AddToChosenCategory(std::move(entries));
    imported_ = true;
}

void frmImport::AddToChosenCategory(std::vector<NewEntry> entries) {
    struct Staging {
        explicit Staging(Book& target) : book(target) {}
        ~Staging() { book.NewEntries.clear(); }
        Staging(const Staging&) = delete;
        Staging& operator=(const Staging&) = delete;
        Book& book;
    };
    const Staging staging(main_.TheBook);
    if (entries.empty()) return;
    main_.TheBook.NewEntries = std::move(entries);
    main_.TheBook.AddEntry(Get<ComboBox>(ID_frmImport_cmbKateg).Selected() + 1);
    main_.Modified = true;
}

void frmImport::ShowResult(std::size_t count) const {
    MsgBox(Handle(), L"Az importálás eredménye: " + std::to_wstring(count) + L" új cím");
}

}  // namespace lindrel
