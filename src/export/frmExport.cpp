#include "export/frmExport.h"

#include <initializer_list>

#include "export/ExportedEntries.h"
#include "export/Favorites.h"
#include "export/TextList.h"
#include "faults/Faults.h"
#include "files/Files.h"
#include "files/Folder.h"
#include "resources/resource.h"
#include "system/FileDialog.h"
#include "system/FolderDialog.h"
#include "system/MsgBox.h"
#include "system/Shell.h"
#include "text/BookText.h"

namespace lindrel {

namespace {

// By Kind.
constexpr const wchar_t* kExportKinds[] = {L"weblap - HTML", L"szövegfájl - txt", L"IE kedvencek - url"};

constexpr std::initializer_list<int> kPageFrame = {
    ID_frmExport_Frame3,   ID_frmExport_lblTitle,   ID_frmExport_txtTitle,
    ID_frmExport_lblColor, ID_frmExport_optColor_0, ID_frmExport_optColor_1,
    ID_frmExport_Label3,   ID_frmExport_cmbTheme,   ID_frmExport_cmdBrowse};
constexpr std::initializer_list<int> kFavoritesFrame = {ID_frmExport_Frame2, ID_frmExport_optColor_2,
                                                        ID_frmExport_optColor_3};

}  // namespace

frmExport::frmExport(OpenBook& open) : Dialog(IDD_frmExport), open_(open) {}

void frmExport::Form_Load() {
    const auto cmbType = Get<ComboBox>(ID_frmExport_cmbType);
    for (const wchar_t* const kind : kExportKinds) cmbType.Add(kind);
    cmbType.Select(WebPage);
    const auto lstSource = Get<ListBox>(ID_frmExport_lstSource);
    for (int c = 1; c <= kCategories; ++c)
        if (IsExported(open_.TheBook, c))
            lstSource.Add(FromBookText(open_.TheBook.CategoryNames(c)) + L" (" +
                          std::to_wstring(open_.TheBook.Marks.SavedCheckCounts(c)) + L")");
    Get<CheckBox>(ID_frmExport_optColor_0).SetChecked(true);
    Get<CheckBox>(ID_frmExport_optColor_2).SetChecked(true);
    FillThemes();
    SetToolTip(ID_frmExport_txtTitle, L"<TITLE>?\?\?</TITLE>");
    cmbType_Click();
}

void frmExport::FillThemes() const {
    const std::wstring styles = ProgramFolder() + L"\\styles";
    if (!FolderIsThere(styles)) {
        // Without the right to create the folder there are no themes either.
        static_cast<void>(CreateDirectoryW(styles.c_str(), nullptr));
        return;
    }
    const auto cmbTheme = Get<ComboBox>(ID_frmExport_cmbTheme);
    const std::wstring inside = styles + L'\\';
    for (const std::wstring& file : FilesMatching(inside + L"*.aut")) cmbTheme.Add(inside + file);
    cmbTheme.WidenList();
}

void frmExport::OnCommand(int id, int event) {
    switch (id) {
        case ID_frmExport_cmbType:
            if (event == CBN_SELCHANGE) cmbType_Click();
            return;
        case ID_frmExport_cmbTheme:
            return OnTheme(event);
        case ID_frmExport_cmdBrowse:
            return cmdBrowse_Click();
        case ID_frmExport_cmdOK:
            return cmdOK_Click();
        case ID_frmExport_cmdCancel:
        case IDCANCEL:
            return cmdCancel_Click();
        default:
            return;
    }
}

frmExport::Kind frmExport::ChosenKind() const {
    return static_cast<Kind>(Get<ComboBox>(ID_frmExport_cmbType).Selected());
}

void frmExport::cmbType_Click() {
    const Kind kind = ChosenKind();
    if (kind != Favorites) SetPageOptionsEnabled(kind == TextFile);
    for (const int id : kPageFrame) Get<Control>(id).Show(kind != Favorites);
    for (const int id : kFavoritesFrame) Get<Control>(id).Show(kind == Favorites);
}

// Enables the colours even if a theme is named, until cmbTheme_Change() disables them again.
void frmExport::SetPageOptionsEnabled(bool disable) const {
    for (const int id : kPageFrame) Get<Control>(id).Enable(!disable);
}

void frmExport::OnTheme(int event) const {
    const auto cmbTheme = Get<ComboBox>(ID_frmExport_cmbTheme);
    if (event == CBN_SELCHANGE && cmbTheme.Selected() >= 0)
        cmbTheme_Change(cmbTheme.Item(cmbTheme.Selected()));
    if (event == CBN_EDITCHANGE) cmbTheme_Change(cmbTheme.Text());
    if (event == CBN_KILLFOCUS) cmbTheme_LostFocus();
}

// A theme brings its own colours.
void frmExport::cmbTheme_Change(const std::wstring& theme) const {
    constexpr std::size_t kShortestTheme = 5;
    for (const int id : {ID_frmExport_optColor_0, ID_frmExport_optColor_1})
        Get<Control>(id).Enable(theme.size() < kShortestTheme);
}

// The text can change without a notification.
void frmExport::cmbTheme_LostFocus() const {
    cmbTheme_Change(Text(ID_frmExport_cmbTheme));
}

void frmExport::cmdBrowse_Click() {
    std::optional<std::wstring> theme;
    try {
        theme = ChooseFileToOpen(
            Handle(), {.Title = L"Arculatfájl kiválasztása", .Filter = L"arculatfájlok (*.aut)|*.aut"});
    } catch (const SystemFault&) {
        return;  // the user has been told
    }
    if (!theme) return;
    Get<Control>(ID_frmExport_cmbTheme).SetText(*theme);
    cmbTheme_Change(*theme);
}

void frmExport::cmdOK_Click() {
    if (Get<ListBox>(ID_frmExport_lstSource).SelectedCount() == 0) {
        MsgBox(Handle(), L"Kérem válassza ki, mely kategóriá(k)ból kíván exportálni.");
        FocusOn(ID_frmExport_lstSource);
        return;
    }
    if (!Export(ChosenKind())) return;
    open_.TheBook.Marks.ForgetAll();
    Unload();
}

bool frmExport::Export(Kind kind) {
    // Faults of this kind have always ended in the run-time error report.
    if (kind == Favorites) return ExportToFavorites();
    try {
        return ExportToFile(kind);
    } catch (const Fault&) {
        // A failure to write has always closed the dialog without a message.
        Unload();
        return false;
    }
}

bool frmExport::ExportToFile(Kind kind) {
    const std::optional<std::wstring> path = ChooseFile(kind);
    if (!path) return false;
    DropCategoriesNotChosen();
    if (kind == WebPage)
        WriteHtmlPage(*path);
    else
        WriteTextList(*path);
    return true;
}

// Nothing if the user cancels the dialog or does not want to overwrite the file.
std::optional<std::wstring> frmExport::ChooseFile(Kind kind) const {
    const bool text = kind == TextFile;
    std::optional<std::wstring> path = ChooseFileToSave(
        Handle(), {.Title = L"Exportálás",
                   .Filter = text ? L"szövegfájlok (*.txt)|*.txt" : L"weblapok (*.htm)|*.htm",
                   .DefaultExt = text ? L"txt" : L"htm"});
    if (!path || !FileIsThere(*path)) return path;
    const int answer = MsgBox(Handle(), L"Felülírjam a már létező állományt ?",
                              MB_OKCANCEL | MB_ICONEXCLAMATION, L"Figyelem: már van ilyen fájl!");
    return answer == IDOK ? path : std::nullopt;
}

// The lines of the list are the categories with checked entries, in their order.
void frmExport::DropCategoriesNotChosen() {
    const auto lstSource = Get<ListBox>(ID_frmExport_lstSource);
    int line = 0;
    for (int c = 1; c <= kCategories; ++c)
        if (IsExported(open_.TheBook, c) && !lstSource.IsSelected(line++)) open_.TheBook.Marks.Forget(c);
}

// The categories that were not chosen stay dropped even if the user cancels.
bool frmExport::ExportToFavorites() {
    DropCategoriesNotChosen();
    FolderDialog frmSelectFavoritDir(
        IDD_frmSelectFavoritDir,
        {ID_frmSelectFavoritDir_Dir1, ID_frmSelectFavoritDir_cmdOk, ID_frmSelectFavoritDir_cmdCancel},
        FavoritesPath());
    frmSelectFavoritDir.ShowModal(Handle());
    const std::wstring& folder = frmSelectFavoritDir.ChosenFolder();
    if (folder.empty()) return false;
    const bool folder_for_each_category = Get<CheckBox>(ID_frmExport_optColor_3).IsChecked();
    saveTo_fav(open_.TheBook, folder, folder_for_each_category);
    return true;
}

void frmExport::WriteTextList(const std::wstring& fileName) const {
    const TextList list = TextListOf(open_.TheBook);
    WriteFileBytes(fileName, list.Text);
    if (!list.Complete) throw ArgumentFault();
}

void frmExport::WriteHtmlPage(const std::wstring& fileName) const {
    WriteFileBytes(fileName, HtmlPageOf(open_.TheBook, ReadTheme()));
}

PageStyle frmExport::ReadTheme() const {
    constexpr std::size_t kTooShortForATheme = 3;
    PageStyle style;
    const std::wstring theme = Text(ID_frmExport_cmbTheme);
    if (theme.size() > kTooShortForATheme) {
        if (IsFile(theme)) {
            const std::vector<char> bytes = ReadFileBytes(theme);
            style.ThemeParts = ApplyTheme(DefaultThemeParts(), {bytes.data(), bytes.size()});
            style.ThemeApplied = true;
        } else {
            MsgBox(Handle(),
                   L"Salynálom, de a " + theme +
                       L" arculatfájl nem létezik. Igy azt az exportfájlra nem lehet alkalmazni.",
                   MB_OK | MB_ICONINFORMATION, kErrorTitle);
        }
    }
    style.Title = Text(ID_frmExport_txtTitle);
    const bool white = Get<CheckBox>(ID_frmExport_optColor_0).IsChecked();
    style.Background = white ? "white" : "Black";
    style.Text = white ? "black" : "white";
    return style;
}

}  // namespace lindrel
