// The choice of a theme in the export dialog, and the colours that depend on it.

#include <filesystem>

#include "files/Files.h"
#include "system/Shell.h"
#include "tests/window/export/ExportSession.h"

namespace lindrel::testing {
namespace {

// While one lives the folder of the themes is not there, unless the program makes it.
class MissingStyles {
  public:
    MissingStyles() {
        if (std::filesystem::exists(Kept())) BringBack();  // left there by a run that was broken off
        if (std::filesystem::exists(Folder())) std::filesystem::rename(Folder(), Kept());
    }
    ~MissingStyles() { EXPECT_TRUE(Eventually(&BringBack)); }
    MissingStyles(const MissingStyles&) = delete;
    MissingStyles& operator=(const MissingStyles&) = delete;
    static std::filesystem::path Folder() { return std::filesystem::path(ProgramFolder()) / L"styles"; }

  private:
    // False when another test program has just made the folder, as each does that opens the dialog.
    static bool BringBack() {
        std::error_code error;
        std::filesystem::remove_all(Folder(), error);
        if (std::filesystem::exists(Kept())) std::filesystem::rename(Kept(), Folder(), error);
        return !std::filesystem::exists(Kept());
    }
    static std::filesystem::path Kept() { return std::filesystem::path(ProgramFolder()) / L"styles kept"; }
};

class frmExportThemeTest : public ExportSession {
  protected:
    // Replaces the theme's text as a program would: nothing is typed.
    static void PutTheme(const DialogOnScreen& dialog, const std::wstring& theme) {
        SendMessageW(dialog.Control(ID_frmExport_cmbTheme), WM_SETTEXT, 0,
                     reinterpret_cast<LPARAM>(theme.c_str()));
    }
    static void ExpectColours(const DialogOnScreen& dialog, bool enabled) {
        EXPECT_EQ(dialog.IsEnabled(ID_frmExport_optColor_0), enabled);
        EXPECT_EQ(dialog.IsEnabled(ID_frmExport_optColor_1), enabled);
    }
};

TEST_F(frmExportThemeTest, ANamedThemeGreysTheColours) {
    const DialogOnScreen dialog = Open();
    const HWND edit = FindWindowExW(dialog.Control(ID_frmExport_cmbTheme), nullptr, L"Edit", nullptr);
    const auto enabled_with = [&](const std::wstring& theme) {
        SendMessageW(edit, EM_SETSEL, 0, -1);
        SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(theme.c_str()));
        program.Settle();
        const bool enabled = dialog.IsEnabled(ID_frmExport_optColor_0);
        EXPECT_EQ(dialog.IsEnabled(ID_frmExport_optColor_1), enabled);
        return enabled;
    };
    EXPECT_TRUE(enabled_with(L"abcd"));
    EXPECT_FALSE(enabled_with(L"abcde"));
    EXPECT_TRUE(enabled_with(L""));
    Leave(dialog);
}

TEST_F(frmExportThemeTest, LeavingTheThemeDecidesTheColoursToo) {
    const DialogOnScreen dialog = Open();
    const HWND combo = dialog.Control(ID_frmExport_cmbTheme);
    bool enabled = true;
    for (const wchar_t* const theme : {L"abcde", L"abcd", L"arculat.aut", L""}) {
        program.OnUi([&](frmStart&) {
            SetFocus(combo);
            EXPECT_EQ(GetParent(GetFocus()), combo);
        });
        PutTheme(dialog, theme);
        program.Settle();
        ExpectColours(dialog, enabled);  // nothing was typed
        program.OnUi([&](frmStart&) { SetFocus(dialog.Control(ID_frmExport_txtTitle)); });
        enabled = !enabled;
        ExpectColours(dialog, enabled);
    }
    Leave(dialog);
}

TEST_F(frmExportThemeTest, BackAtTheWebPageTheColoursCanBeChosenUntilTheThemeIsLookedAtAgain) {
    const DialogOnScreen dialog = Open();
    const auto look_at_the_theme = [&] {
        program.OnUi([&](frmStart&) {
            SetFocus(dialog.Control(ID_frmExport_cmbTheme));
            SetFocus(dialog.Control(ID_frmExport_txtTitle));
        });
    };
    PutTheme(dialog, L"abcde");
    look_at_the_theme();
    ExpectColours(dialog, false);
    dialog.Pick(ID_frmExport_cmbType, 1);
    ExpectColours(dialog, false);
    dialog.Pick(ID_frmExport_cmbType, 0);
    ExpectColours(dialog, true);
    look_at_the_theme();
    ExpectColours(dialog, false);
    Leave(dialog);
}

TEST_F(frmExportThemeTest, AMissingFolderForThemesIsMadeAndOffersNone) {
    const MissingStyles missing;
    const DialogOnScreen dialog = Open();
    EXPECT_EQ(dialog.ComboItems(ID_frmExport_cmbTheme), std::vector<std::wstring>{});
    EXPECT_TRUE(std::filesystem::is_directory(MissingStyles::Folder()));
    std::error_code error;
    EXPECT_TRUE(std::filesystem::is_empty(MissingStyles::Folder(), error)) << error.message();
    Leave(dialog);
}

TEST_F(frmExportThemeTest, TheThemesBesideTheProgramAreOfferedByTheirPaths) {
    const MissingStyles own;
    std::filesystem::create_directory(MissingStyles::Folder());
    for (const wchar_t* const name : {L"próba.aut", L"Más.aut", L"más.txt", L"aut"})
        WriteFileBytes(MissingStyles::Folder() / name, "A^");
    const std::wstring path = ProgramFolder() + L"\\styles\\próba.aut";
    const DialogOnScreen dialog = Open();
    EXPECT_EQ(dialog.ComboItems(ID_frmExport_cmbTheme),
              (std::vector<std::wstring>{ProgramFolder() + L"\\styles\\Más.aut", path}));
    EXPECT_EQ(dialog.Picked(ID_frmExport_cmbTheme), -1);
    EXPECT_EQ(dialog.Text(ID_frmExport_cmbTheme), L"");
    const HWND combo = dialog.Control(ID_frmExport_cmbTheme);
    const HDC screen = GetDC(combo);
    SelectObject(screen, reinterpret_cast<HFONT>(SendMessageW(combo, WM_GETFONT, 0, 0)));
    SIZE size{};
    GetTextExtentPoint32W(screen, path.c_str(), static_cast<int>(path.size()), &size);
    ReleaseDC(combo, screen);
    EXPECT_GE(SendMessageW(combo, CB_GETDROPPEDWIDTH, 0, 0), size.cx);  // a path is not cut off
    SendMessageW(combo, CB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(path.c_str()));
    SendMessageW(dialog.Handle(), WM_COMMAND, MAKEWPARAM(ID_frmExport_cmbTheme, CBN_SELCHANGE), 0);
    EXPECT_FALSE(dialog.IsEnabled(ID_frmExport_optColor_0));
    Leave(dialog);
}

TEST_F(frmExportThemeTest, BrowsingTakesAThemeFromAnywhereAndCancellingLeavesTheText) {
    const std::wstring theme = folder.Write(L"sajat.aut", "A^");
    const DialogOnScreen dialog = Open();
    dialog.Click(ID_frmExport_cmdBrowse);
    const FileDialogOnScreen file = program.FileDialog();
    EXPECT_EQ(file.Title(), L"Arculatfájl kiválasztása");
    EXPECT_EQ(file.Filters(), std::vector<std::wstring>{L"arculatfájlok (*.aut)"});
    file.Accept(theme);
    program.Settle();
    EXPECT_EQ(dialog.Text(ID_frmExport_cmbTheme), theme);
    EXPECT_FALSE(dialog.IsEnabled(ID_frmExport_optColor_0));
    dialog.Click(ID_frmExport_cmdBrowse);
    program.FileDialog().Cancel();
    program.Settle();
    EXPECT_EQ(dialog.Text(ID_frmExport_cmbTheme), theme);
    Leave(dialog);
}

}  // namespace
}  // namespace lindrel::testing
