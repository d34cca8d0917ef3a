#include "export/frmExport.h"

#include <filesystem>
#include <initializer_list>

#include "book/Files.h"
#include "controls/MsgBox.h"
#include "controls/Shell.h"
#include "export/ExportedEntries.h"
#include "export/Favorites.h"
#include "export/TextList.h"
#include "export/frmSelectFavoritDir.h"
#include "resources/resource.h"

namespace lindrel {

namespace {

constexpr std::initializer_list<int> kPageFrame = {
    ID_frmExport_Frame3,   ID_frmExport_lblTitle,   ID_frmExport_txtTitle,
    ID_frmExport_lblColor, ID_frmExport_optColor_0, ID_frmExport_optColor_1,
    ID_frmExport_Label3,   ID_frmExport_cmbTheme,   ID_frmExport_cmdBrowse};
constexpr std::initializer_list<int> kFavoritesFrame = {ID_frmExport_Frame2, ID_frmExport_optColor_2,
                                                        ID_frmExport_optColor_3};

}  // namespace

frmExport::frmExport(frmStart& main) : Dialog(IDD_frmExport), main_(main) {}

void frmExport::Form_Load() {
    ExportKinds = {L"weblap - HTML", L"szövegfájl - txt", L"IE kedvencek - url"};
    const auto cmbType = Get<ComboBox>(ID_frmExport_cmbType);
    for (const std::wstring& kind : ExportKinds) cmbType.Add(kind);
    cmbType.Select(WebPage);
    const auto lstSource = Get<ListBox>(ID_frmExport_lstSource);
    for (int c = 1; c <= kCategories; ++c)
        if (IsExported(main_.TheBook, c))
            lstSource.Add(FromBookText(main_.TheBook.CategoryNames(c)) + L" (" +
                          std::to_wstring(main_.TheBook.SavedCheckCounts(c)) + L")");
    Get<CheckBox>(ID_frmExport_optColor_0).SetChecked(true);
    Get<CheckBox>(ID_frmExport_optColor_2).SetChecked(true);
    FillThemes();
    SetToolTip(ID_frmExport_txtTitle, L"<TITLE>?\?\?</TITLE>");
    cmbType_Click();
}

void frmExport::FillThemes() const {
    const std::filesystem::path styles = ProgramFolder() + L"\\styles";
    std::error_code error;
    // Without the folder, or the right to make it, there are just no themes.
    if (std::filesystem::create_directory(styles, error)) return;
    const auto cmbTheme = Get<ComboBox>(ID_frmExport_cmbTheme);
    for (const std::wstring& file : FilesMatching((styles / L"*.aut").wstring()))
        cmbTheme.Add((styles / file).wstring());
    cmbTheme.WidenList();
}

// Also when a fault ends the dialog: the book's save dialog may follow it.
frmExport::~frmExport() {
    main_.CommonDialog1.Filter = kBookFilter;
}

void frmExport::OnCommand(int id, int event) {
    switch (id) {
        case ID_frmExport_cmbType:
            if (event == CBN_SELCHANGE) cmbType_Click();
            return;
        case ID_frmExport_cmbTheme: {
            const auto cmbTheme = Get<ComboBox>(id);
            if (event == CBN_SELCHANGE && cmbTheme.Selected() >= 0)
                cmbTheme_Change(cmbTheme.Item(cmbTheme.Selected()));
            if (event == CBN_EDITCHANGE) cmbTheme_Change(cmbTheme.Text());
            if (event == CBN_KILLFOCUS) cmbTheme_LostFocus();
            return;
        }
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

// The colours too, whatever theme is named (intended): until its text or the focus changes, it has no say.
void frmExport::SetPageOptionsEnabled(bool disable) const {
    for (const int id : kPageFrame) Get<Control>(id).Enable(!disable);
}

// A theme, once named, decides the colours.
void frmExport::cmbTheme_Change(const std::wstring& theme) const {
    constexpr std::size_t kShortestTheme = 5;
    for (const int id : {ID_frmExport_optColor_0, ID_frmExport_optColor_1})
        Get<Control>(id).Enable(theme.size() < kShortestTheme);
}

// For a text that came without a change being told.
void frmExport::cmbTheme_LostFocus() const {
    cmbTheme_Change(Text(ID_frmExport_cmbTheme));
}

void frmExport::cmdBrowse_Click() {
    CommonDialog& dialog = main_.CommonDialog1;
    dialog.Filter = L"arculatfájlok (*.aut)|*.aut";
    dialog.FileName.clear();
    dialog.DialogTitle = L"Arculatfájl kiválasztása";
    try {
        dialog.ShowOpen(Handle());
    } catch (const Fault&) {
        return;  // cancelled: the theme stays as it was
    }
    Get<Control>(ID_frmExport_cmbTheme).SetText(dialog.FileName);
    cmbTheme_Change(dialog.FileName);
}

void frmExport::cmdOK_Click() {
    if (Get<ListBox>(ID_frmExport_lstSource).SelectedCount() == 0) {
        MsgBox(Handle(), L"Kérem válassza ki, mely kategóriá(k)ból kíván exportálni.");
        FocusOn(ID_frmExport_lstSource);
        return;
    }
    const Kind kind = ChosenKind();
    main_.CommonDialog1.Filter = kind == TextFile ? L"szövegfájlok (*.txt)|*.txt" : L"weblapok (*.htm)|*.htm";
    main_.CommonDialog1.DefaultExt = kind == TextFile ? L"txt" : L"htm";
    bool completed = false;
    if (kind == Favorites) {
        // Its failures are not caught here (intended): they end in the run-time error report.
        completed = ExportToFavorites();
    } else {
        try {
            completed = ExportToFile(kind);
        } catch (const Fault& fault) {
            // A failure while writing closes the dialog without a message (intended).
            if (fault.Number() != kDialogCancelled) Unload();
            return;
        }
    }
    if (!completed) return;
    for (int c = 1; c <= kCategories; ++c) main_.TheBook.SavedCheckCounts(c) = 0;
    Unload();
}

// False when the user does not want the existing file overwritten. Throws what choosing or writing throws.
bool frmExport::ExportToFile(Kind kind) {
    std::wstring path;
    if (!ChooseFile(path)) return false;
    DropCategoriesNotChosen();
    if (kind == WebPage)
        WriteHtmlPage(path);
    else
        WriteTextList(path);
    return true;
}

bool frmExport::ChooseFile(std::wstring& path) {
    CommonDialog& dialog = main_.CommonDialog1;
    dialog.FileName.clear();
    dialog.DialogTitle = L"Exportálás";
    dialog.ShowSave(Handle());
    path = dialog.FileName;
    return !FileIsThere(path) ||
           MsgBox(Handle(), L"Felülírjam a már létező állományt ?", MB_OKCANCEL | MB_ICONEXCLAMATION,
                  L"Figyelem: már van ilyen fájl!") == IDOK;
}

// A line of the list stands for the category of the same rank among those with checked entries.
void frmExport::DropCategoriesNotChosen() {
    const auto lstSource = Get<ListBox>(ID_frmExport_lstSource);
    int line = 0;
    for (int c = 1; c <= kCategories; ++c)
        if (IsExported(main_.TheBook, c) && !lstSource.IsSelected(line++))
            main_.TheBook.SavedCheckCounts(c) = 0;
}

// False when the choice of the folder was cancelled; the categories not chosen are dropped then all the same
// (intended).
bool frmExport::ExportToFavorites() {
    DropCategoriesNotChosen();
    frmSelectFavoritDir picker(*this);
    picker.startDir(FavoritesPath());
    picker.ShowModal(Handle());
    if (favorPath.empty()) return false;
    saveTo_fav();
    return true;
}

void frmExport::saveTo_fav() {
    lindrel::saveTo_fav(main_.TheBook, favorPath, Get<CheckBox>(ID_frmExport_optColor_3).IsChecked());
}

void frmExport::WriteTextList(const std::wstring& fileName) {
    OutputFile file{std::filesystem::path(fileName)};
    lindrel::WriteTextList(main_.TheBook, [&file](std::string_view bytes) { file.Write(bytes); });
    file.Close();
}

void frmExport::WriteHtmlPage(const std::wstring& fileName) {
    PageStyle style;
    ReadTheme(style.Title, style.Background, style.Text);
    style.ThemeParts = ThemeParts;
    style.ThemeApplied = ThemeApplied;
    OutputFile file{std::filesystem::path(fileName)};
    lindrel::WriteHtmlPage(main_.TheBook, style, [&file](std::string_view bytes) { file.Write(bytes); });
    file.Close();
}

void frmExport::ReadTheme(std::wstring& title, std::string& background, std::string& text) {
    constexpr std::size_t kTooShortForATheme = 3;
    ThemeParts = DefaultThemeParts();
    ThemeApplied = false;
    const std::wstring theme = Text(ID_frmExport_cmbTheme);
    if (theme.size() > kTooShortForATheme) {
        std::error_code error;  // a name that no file can have is not there either
        if (std::filesystem::is_regular_file(theme, error)) {
            const std::vector<char> bytes = ReadFileBytes(theme);
            ThemeParts = ApplyTheme(ThemeParts, {bytes.data(), bytes.size()});
            ThemeApplied = true;
        } else {
            MsgBox(Handle(),
                   L"Salynálom, de a " + theme +
                       L" arculatfájl nem létezik. Igy azt az exportfájlra nem lehet alkalmazni.",
                   MB_OK | MB_ICONINFORMATION, kErrorTitle);
        }
    }
    title = Text(ID_frmExport_txtTitle);
    const bool white = Get<CheckBox>(ID_frmExport_optColor_0).IsChecked();
    background = white ? "white" : "Black";
    text = white ? "black" : "white";
}

}  // namespace lindrel
