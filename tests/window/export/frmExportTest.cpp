// The export dialog in all its branches, with real files.

#include <filesystem>

#include "book/Files.h"
#include "controls/Shell.h"
#include "tests/window/export/ExportSession.h"
#include "tests/window/support/Expectations.h"
#include "tests/window/support/ToolTipOf.h"

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

class frmExportTest : public ExportSession {
  protected:
    // Replaces the theme's text as a program would: nothing is typed.
    static void PutTheme(const DialogOnScreen& dialog, const std::wstring& theme) {
        SendMessageW(dialog.Control(ID_frmExport_cmbTheme), WM_SETTEXT, 0,
                     reinterpret_cast<LPARAM>(theme.c_str()));
    }
    // The page of the second of the checked categories, as it is when nothing was changed in the dialog.
    static std::string PlainPage() {
        return "<!DOCTYPE HTML PUBLIC \"-/W3C/DTD HTML 4.0 Transitional/EN\">\r\n<html><head>\r\n"
               "<TITLE></TITLE>\r\n"
               "<meta http-equiv=Content-Type content=text/html; charset=iso-8859-2>\r\n"
               "<META NAME=\"GENERATOR\" content=\"Lindrel - https://lindrel.example/\">\r\n"
               "<BASEFONT FACE=\"Arial,Helvetica\">\r\n"
               "</HEAD><BODY BGCOLOR=white link=\"#725E50\" vlink=\"#990000\" alink=\"#ff0000\" "
               "text=black><BR><BR>\r\n"
               "<table border=0 cellspacing=0 cellpadding=1 bgcolor=#155BBB>\r\n"
               "<tr><td bgcolor=#655BBB><font color=#FFFFFF size=1 face=\"verdana,arial, "
               "helvetica\"><b>Project5<B></FONT>\r\n"
               "</TD></TR>\r\n<TR><TD>\r\n"
               "<table width=100% bgcolor=\"FFFFFF\" cellpadding=5 cellspacing=0 "
               "border=0>\r\n<tr><td>\r\n<tr><td>\r\n"
               "<A HREF=http://ab.hu>a:b</A><BR>\r\n"
               "</td></tr></table></TD></TR>\r\n</TABLE><BR><BR><BR></BODY></HTML>";
    }
    static void ExpectColours(const DialogOnScreen& dialog, bool enabled) {
        EXPECT_EQ(dialog.IsEnabled(ID_frmExport_optColor_0), enabled);
        EXPECT_EQ(dialog.IsEnabled(ID_frmExport_optColor_1), enabled);
    }
};

TEST_F(frmExportTest, WithNothingCheckedAsksForMarksAndOpensNothing) {
    program.Run(ID_mnuSelectAll);  // clears those of category 2
    program.ClickTab(5);
    program.Run(ID_mnuSelectAll);
    const MainState before = program.State();
    program.Choose(ID_mnuExport);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Nincsenek kijelölve címek");
    EXPECT_EQ(box.Text(),
              L"Kérem jelölje be (pipazza ki) az exportálni kívánt címeket /akár több kategóriából is/.");
    EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
    box.Press(IDOK);
    program.Settle();
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State(), before);
}

TEST_F(frmExportTest, OpensWithTheWebPageAndALineForEachCategoryWithMarks) {
    const DialogOnScreen dialog = Open();
    EXPECT_EQ(Lines(dialog), (std::vector<std::wstring>{L"Hírek (2)", L"Project5 (1)"}));
    EXPECT_EQ(SendMessageW(dialog.Control(ID_frmExport_lstSource), LB_GETSELCOUNT, 0, 0), 0);
    EXPECT_EQ(dialog.ComboItems(ID_frmExport_cmbType),
              (std::vector<std::wstring>{L"weblap - HTML", L"szövegfájl - txt", L"IE kedvencek - url"}));
    EXPECT_EQ(dialog.Picked(ID_frmExport_cmbType), 0);
    EXPECT_EQ(dialog.Text(ID_frmExport_lblText), L"Válassza ki, mely kategóriákból kíván exportálni");
    EXPECT_EQ(dialog.Text(ID_frmExport_Frame1), L" exportálva lesz(nek)");
    EXPECT_EQ(dialog.Text(ID_frmExport_Label2), L"&fájltipus");
    EXPECT_EQ(dialog.Text(ID_frmExport_Frame2), L" hozzáadás a MS IE kedvencekhez beállitások");
    EXPECT_EQ(dialog.Text(ID_frmExport_Frame3), L" weblap tulajdonságai ");
    EXPECT_EQ(dialog.Text(ID_frmExport_lblTitle), L"a weblap címe");
    EXPECT_EQ(ToolTipOf(program, dialog.Control(ID_frmExport_txtTitle)), L"<TITLE>?\?\?</TITLE>");
    EXPECT_EQ(dialog.Text(ID_frmExport_lblColor), L"háttérszín :");
    EXPECT_EQ(dialog.Text(ID_frmExport_optColor_0), L"fehér");
    EXPECT_EQ(dialog.Text(ID_frmExport_optColor_1), L"fekete");
    EXPECT_EQ(dialog.Text(ID_frmExport_optColor_2), L"tegye az összes címet egy mappa alá");
    EXPECT_EQ(dialog.Text(ID_frmExport_optColor_3), L"létrehozni a kategóriák neveivel új mappákat");
    EXPECT_EQ(dialog.Text(ID_frmExport_Label3), L"arculat");
    EXPECT_EQ(dialog.Text(ID_frmExport_cmdBrowse), L"Tallózz ..");
    EXPECT_EQ(dialog.Text(ID_frmExport_cmdOK), L"&Exportálj ...");
    EXPECT_EQ(dialog.Text(ID_frmExport_cmdCancel), L"&Mégse");
    EXPECT_EQ(dialog.Text(ID_frmExport_txtTitle), L"");
    EXPECT_EQ(dialog.Text(ID_frmExport_cmbTheme), L"");
    EXPECT_TRUE(dialog.IsChecked(ID_frmExport_optColor_0));
    EXPECT_FALSE(dialog.IsChecked(ID_frmExport_optColor_1));
    EXPECT_TRUE(dialog.IsChecked(ID_frmExport_optColor_2));
    EXPECT_FALSE(dialog.IsChecked(ID_frmExport_optColor_3));
    dialog.Cancel();
    dialog.WaitForClose();
}

TEST_F(frmExportTest, TheKindShowsItsOwnOptions) {
    const DialogOnScreen dialog = Open();
    const auto expect = [&](int kind, bool page_shown, bool page_enabled, bool favorites_shown) {
        dialog.Pick(ID_frmExport_cmbType, kind);
        for (const int id : {ID_frmExport_Frame3, ID_frmExport_optColor_0, ID_frmExport_optColor_1,
                             ID_frmExport_cmdBrowse, ID_frmExport_lblColor, ID_frmExport_lblTitle,
                             ID_frmExport_Label3, ID_frmExport_txtTitle, ID_frmExport_cmbTheme}) {
            EXPECT_EQ(dialog.IsShown(id), page_shown) << id;
            if (page_shown) {
                EXPECT_EQ(dialog.IsEnabled(id), page_enabled) << id;
            }
        }
        for (const int id : {ID_frmExport_Frame2, ID_frmExport_optColor_2, ID_frmExport_optColor_3})
            EXPECT_EQ(dialog.IsShown(id), favorites_shown) << id;
    };
    expect(0, true, true, false);
    expect(1, true, false, false);
    expect(2, false, false, true);
    expect(0, true, true, false);
    dialog.Cancel();
    dialog.WaitForClose();
}

TEST_F(frmExportTest, ANamedThemeGreysTheColours) {
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
    dialog.Cancel();
    dialog.WaitForClose();
}

TEST_F(frmExportTest, LeavingTheThemeDecidesTheColoursToo) {
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
    dialog.Cancel();
    dialog.WaitForClose();
}

TEST_F(frmExportTest, BackAtTheWebPageTheColoursCanBeChosenUntilTheThemeIsLookedAtAgain) {
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
    dialog.Cancel();
    dialog.WaitForClose();
}

TEST_F(frmExportTest, WithoutAChosenCategoryTheListIsAskedFor) {
    const DialogOnScreen dialog = Open();
    dialog.Click(ID_frmExport_cmdOK);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Lindrel");
    EXPECT_EQ(box.Text(), L"Kérem válassza ki, mely kategóriá(k)ból kíván exportálni.");
    EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
    EXPECT_EQ(box.Icon(), BoxIcon::None);
    box.Press(IDOK);
    program.Settle();
    EXPECT_EQ(dialog.Focus(), ID_frmExport_lstSource);
    EXPECT_EQ(Counts(), CountsOf(2, 1));
    dialog.Cancel();
    dialog.WaitForClose();
    EXPECT_EQ(Counts(), CountsOf(2, 1));
}

TEST_F(frmExportTest, ATextListOfBothCategoriesInListOrder) {
    const MainState before = program.State();
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 0);
    SelectLine(dialog, 1);
    dialog.Pick(ID_frmExport_cmbType, 1);
    Export(dialog, folder.File(L"lista"), kTexts);  // the extension is added
    dialog.WaitForClose();
    program.Settle();
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"lista.txt")),
              Header("H\xEDrek") + "\xB0 Els\xF5\r\n  http://elso.hu\r\n\xB0 Harmadik\r\n  x\r\n" +
                  Header("Project5") + "\xB0 a:b\r\n  http://ab.hu\r\n");
    EXPECT_EQ(Counts(), CountsOf(0, 0));
    EXPECT_EQ(FilterOfMain(), L"Lindrel fájlok (*.lnd)|*.lnd");
    EXPECT_EQ(program.State(), before);  // the boxes shown keep their marks
}

TEST_F(frmExportTest, OnlyTheChosenCategoryIsExported) {
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 1);
    dialog.Pick(ID_frmExport_cmbType, 1);
    Export(dialog, folder.File(L"lista.txt"), kTexts);
    dialog.WaitForClose();
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"lista.txt")),
              Header("Project5") + "\xB0 a:b\r\n  http://ab.hu\r\n");
    EXPECT_EQ(Counts(), CountsOf(0, 0));
}

TEST_F(frmExportTest, AWebPageWithTitleAndBlackGround) {
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 0);
    dialog.SetText(ID_frmExport_txtTitle, L"Címeim & <mások>");
    dialog.Click(ID_frmExport_optColor_1);
    program.Settle();
    Export(dialog, folder.File(L"lap.htm"), kPages);
    dialog.WaitForClose();
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"lap.htm")),
              "<!DOCTYPE HTML PUBLIC \"-/W3C/DTD HTML 4.0 Transitional/EN\">\r\n<html><head>\r\n"
              "<TITLE>C\xEDmeim &amp; &lt;m\xE1sok&gt;</TITLE>\r\n"
              "<meta http-equiv=Content-Type content=text/html; charset=iso-8859-2>\r\n"
              "<META NAME=\"GENERATOR\" content=\"Lindrel - https://lindrel.example/\">\r\n"
              "<BASEFONT FACE=\"Arial,Helvetica\">\r\n"
              "</HEAD><BODY BGCOLOR=Black link=\"#725E50\" vlink=\"#990000\" alink=\"#ff0000\" "
              "text=white><BR><BR>\r\n"
              "<table border=0 cellspacing=0 cellpadding=1 bgcolor=#155BBB>\r\n"
              "<tr><td bgcolor=#655BBB><font color=#FFFFFF size=1 face=\"verdana,arial, "
              "helvetica\"><b>H\xEDrek<B></FONT>\r\n"
              "</TD></TR>\r\n<TR><TD>\r\n"
              "<table width=100% bgcolor=\"FFFFFF\" cellpadding=5 cellspacing=0 "
              "border=0>\r\n<tr><td>\r\n<tr><td>\r\n"
              "<A HREF=http://elso.hu>Els\xF5</A><BR>\r\n<A HREF=x>Harmadik</A><BR>\r\n"
              "</td></tr></table></TD></TR>\r\n</TABLE><BR><BR><BR></BODY></HTML>");
    EXPECT_EQ(Counts(), CountsOf(0, 0));
}

TEST_F(frmExportTest, AWebPageGetsItsExtensionAlsoWhenATextWasWantedBefore) {
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 1);
    dialog.Pick(ID_frmExport_cmbType, 1);
    dialog.Click(ID_frmExport_cmdOK);
    program.FileDialog().Cancel();
    program.Settle();
    dialog.Pick(ID_frmExport_cmbType, 0);
    Export(dialog, folder.File(L"lap"), kPages);
    dialog.WaitForClose();
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"lap.htm"});
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"lap.htm")), PlainPage());
    // Some systems' dialogs append the filter's extension and only need to be told that one is wanted.
    EXPECT_EQ(program.Ask<std::wstring>([](frmStart& form) { return form.CommonDialog1.DefaultExt; }),
              L"htm");
}

TEST_F(frmExportTest, ATypedThemeShapesThePage) {
    const std::wstring theme = folder.Write(L"sajat.aut", "A^B^C^D<tr>^E^");
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 1);
    SetWindowTextW(dialog.Control(ID_frmExport_cmbTheme), theme.c_str());
    Export(dialog, folder.File(L"lap.htm"), kPages);
    dialog.WaitForClose();
    EXPECT_EQ(
        TemporaryFolder::Read(folder.File(L"lap.htm")),
        "<!DOCTYPE HTML PUBLIC \"-/W3C/DTD HTML 4.0 Transitional/EN\">\r\n<html><head>\r\n<TITLE></TITLE>\r\n"
        "<meta http-equiv=Content-Type content=text/html; charset=iso-8859-2>\r\n"
        "<META NAME=\"GENERATOR\" content=\"Lindrel - https://lindrel.example/\">\r\n"
        "</HEAD><BODY ><BR><BR>\r\nA\r\nBProject5C\r\n</TD></TR>\r\n<TR><TD>\r\nD<tr>\r\n<tr><td>\r\n"
        "<A HREF=http://ab.hu>a:b</A><BR>\r\nE</td></tr></table></TD></TR>\r\n"
        "</TABLE><BR><BR><BR></BODY></HTML>");
}

TEST_F(frmExportTest, AMissingThemeIsReportedAndThePageWrittenWithoutIt) {
    const std::wstring theme = folder.File(L"nincs.aut");
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 1);
    SetWindowTextW(dialog.Control(ID_frmExport_cmbTheme), theme.c_str());
    Export(dialog, folder.File(L"lap.htm"), kPages);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Hiba");
    EXPECT_EQ(box.Text(), L"Salynálom, de a " + theme +
                              L" arculatfájl nem létezik. Igy azt az exportfájlra nem lehet alkalmazni.");
    EXPECT_EQ(box.Icon(), BoxIcon::Information);
    box.Press(IDOK);
    dialog.WaitForClose();
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"lap.htm")), PlainPage());
    EXPECT_EQ(Counts(), CountsOf(0, 0));
}

TEST_F(frmExportTest, AThemeWithoutFieldsStillTakesFontAndColoursAway) {
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 1);
    SetWindowTextW(dialog.Control(ID_frmExport_cmbTheme), folder.Write(L"jel.aut", "nincs jel").c_str());
    Export(dialog, folder.File(L"lap.htm"), kPages);
    dialog.WaitForClose();
    const std::string page = TemporaryFolder::Read(folder.File(L"lap.htm"));
    EXPECT_EQ(page.substr(page.find("<META")),
              "<META NAME=\"GENERATOR\" content=\"Lindrel - https://lindrel.example/\">\r\n"
              "</HEAD><BODY ><BR><BR>\r\n"
              "<table border=0 cellspacing=0 cellpadding=1 bgcolor=#155BBB>\r\n"
              "<tr><td bgcolor=#655BBB><font color=#FFFFFF size=1 face=\"verdana,arial, "
              "helvetica\"><b>Project5<B></FONT>\r\n"
              "</TD></TR>\r\n<TR><TD>\r\n"
              "<table width=100% bgcolor=\"FFFFFF\" cellpadding=5 cellspacing=0 border=0>\r\n"
              "<tr><td>\r\n<tr><td>\r\n"
              "<A HREF=http://ab.hu>a:b</A><BR>\r\n"
              "</td></tr></table></TD></TR>\r\n"
              "</TABLE><BR><BR><BR></BODY></HTML>");
}

TEST_F(frmExportTest, AThemeNameWithWildcardsIsNoFile) {
    folder.Write(L"van.aut", "A^");
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 1);
    SetWindowTextW(dialog.Control(ID_frmExport_cmbTheme), folder.File(L"*.aut").c_str());
    Export(dialog, folder.File(L"lap.htm"), kPages);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Text(), L"Salynálom, de a " + folder.File(L"*.aut") +
                              L" arculatfájl nem létezik. Igy azt az exportfájlra nem lehet alkalmazni.");
    box.Press(IDOK);
    dialog.WaitForClose();
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"lap.htm")), PlainPage());
}

TEST_F(frmExportTest, AThemeTextOfThreeCharactersIsNone) {
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 1);
    SetWindowTextW(dialog.Control(ID_frmExport_cmbTheme), L"abc");
    Export(dialog, folder.File(L"lap.htm"), kPages);
    dialog.WaitForClose();
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"lap.htm")), PlainPage());
}

TEST_F(frmExportTest, ASeventhFieldClosesTheDialogBeforeAFileIsMade) {
    const std::wstring theme = folder.Write(L"sok.aut", "1^2^3^4^5^6^7^");
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 0);
    SetWindowTextW(dialog.Control(ID_frmExport_cmbTheme), theme.c_str());
    Export(dialog, folder.File(L"lap.htm"), kPages);
    dialog.WaitForClose();
    program.Settle();
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"sok.aut"});
    EXPECT_EQ(Counts(), CountsOf(2, 0));  // the one that was not chosen is dropped, the other is not
}

TEST_F(frmExportTest, AMissingFolderForThemesIsMadeAndOffersNone) {
    const MissingStyles missing;
    const DialogOnScreen dialog = Open();
    EXPECT_EQ(dialog.ComboItems(ID_frmExport_cmbTheme), std::vector<std::wstring>{});
    EXPECT_TRUE(std::filesystem::is_directory(MissingStyles::Folder()));
    std::error_code error;
    EXPECT_TRUE(std::filesystem::is_empty(MissingStyles::Folder(), error)) << error.message();
    dialog.Cancel();
    dialog.WaitForClose();
}

TEST_F(frmExportTest, TheThemesBesideTheProgramAreOfferedByTheirPaths) {
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
    dialog.Cancel();
    dialog.WaitForClose();
}

TEST_F(frmExportTest, BrowsingTakesAThemeFromAnywhereAndCancellingLeavesTheText) {
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
    dialog.Cancel();
    dialog.WaitForClose();
    EXPECT_EQ(FilterOfMain(), L"Lindrel fájlok (*.lnd)|*.lnd");
}

TEST_F(frmExportTest, DecliningToOverwriteLeavesEverything) {
    const std::wstring path = folder.Write(L"lista.txt", "régi");
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 1);
    dialog.Pick(ID_frmExport_cmbType, 1);
    Export(dialog, path, kTexts);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Figyelem: már van ilyen fájl!");
    EXPECT_EQ(box.Text(), L"Felülírjam a már létező állományt ?");
    EXPECT_EQ(box.Buttons(), (std::vector<int>{IDOK, IDCANCEL}));
    EXPECT_EQ(box.Icon(), BoxIcon::Exclamation);
    box.Press(IDCANCEL);
    program.Settle();
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(Counts(), CountsOf(2, 1));
    EXPECT_EQ(TemporaryFolder::Read(path), "régi");
    Export(dialog, path, kTexts);
    program.Box().Press(IDOK);
    dialog.WaitForClose();
    EXPECT_EQ(TemporaryFolder::Read(path), Header("Project5") + "\xB0 a:b\r\n  http://ab.hu\r\n");
    EXPECT_EQ(Counts(), CountsOf(0, 0));
}

TEST_F(frmExportTest, CancelChangesNothing) {
    ExpectCancelChangesNothing(
        program, [this] { return Open(); },
        [](const DialogOnScreen& dialog) {
            SelectLine(dialog, 0);
            dialog.Pick(ID_frmExport_cmbType, 2);
        },
        ID_frmExport_cmdCancel);
    EXPECT_EQ(Counts(), CountsOf(2, 1));
    EXPECT_EQ(FilterOfMain(), L"Lindrel fájlok (*.lnd)|*.lnd");
}

TEST_F(frmExportTest, ACancelledSaveDialogLeavesTheDialogAndTheCounts) {
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 0);
    dialog.Click(ID_frmExport_cmdOK);
    program.FileDialog().Cancel();
    program.Settle();
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(Counts(), CountsOf(2, 1));
    dialog.Cancel();
    dialog.WaitForClose();
}

TEST_F(frmExportTest, AFailureWhileWritingClosesTheDialogWithoutAMessage) {
    program.OnUi([](frmStart& form) { form.TheBook.SetCategoryName(5, std::string(121, 'n')); });
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 1);
    dialog.Pick(ID_frmExport_cmbType, 1);
    Export(dialog, folder.File(L"lista.txt"), kTexts);
    dialog.WaitForClose();
    program.Settle();
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(Counts(), CountsOf(0, 1));
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"lista.txt")), "");
    EXPECT_EQ(FilterOfMain(), L"Lindrel fájlok (*.lnd)|*.lnd");
}

TEST_F(frmExportTest, AFileThatCannotBeCreatedClosesTheDialogWithoutAMessage) {
    const std::wstring path = folder.Write(L"foglalt.txt", "old");
    // Another program keeps it to itself.
    const HANDLE other = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(other, INVALID_HANDLE_VALUE);
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 1);
    dialog.Pick(ID_frmExport_cmbType, 1);
    Export(dialog, path, kTexts);
    program.Box().Press(IDOK);
    dialog.WaitForClose();
    program.Settle();
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(Counts(), CountsOf(0, 1));
    ASSERT_TRUE(CloseHandle(other));
    EXPECT_EQ(TemporaryFolder::Read(path), "old");
}

}  // namespace
}  // namespace lindrel::testing
