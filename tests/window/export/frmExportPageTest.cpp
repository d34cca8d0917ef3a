// The exported web pages, plain and shaped by a theme.

#include "tests/window/export/ExportSession.h"

namespace lindrel::testing {
namespace {

class frmExportPageTest : public ExportSession {
  protected:
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
};

TEST_F(frmExportPageTest, AWebPageWithTitleAndBlackGround) {
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

TEST_F(frmExportPageTest, AWebPageGetsItsExtensionAlsoWhenATextWasWantedBefore) {
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
}

TEST_F(frmExportPageTest, ATypedThemeShapesThePage) {
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

TEST_F(frmExportPageTest, AMissingThemeIsReportedAndThePageWrittenWithoutIt) {
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

TEST_F(frmExportPageTest, AThemeWithoutFieldsStillTakesFontAndColoursAway) {
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

TEST_F(frmExportPageTest, AThemeNameWithWildcardsIsNoFile) {
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

TEST_F(frmExportPageTest, AThemeTextOfThreeCharactersIsNone) {
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 1);
    SetWindowTextW(dialog.Control(ID_frmExport_cmbTheme), L"abc");
    Export(dialog, folder.File(L"lap.htm"), kPages);
    dialog.WaitForClose();
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"lap.htm")), PlainPage());
}

TEST_F(frmExportPageTest, ASeventhFieldClosesTheDialogBeforeAFileIsMade) {
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

}  // namespace
}  // namespace lindrel::testing
