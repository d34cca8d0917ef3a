// The web page that the dialog exports, without and with a theme.

#include "export/HtmlPage.h"
#include "tests/window/export/ExportSession.h"

namespace lindrel::testing {
namespace {

class frmExportPageTest : public ExportSession {
  protected:
    static PageStyle Plain() {
        PageStyle style;
        style.Background = "white";
        style.Text = "black";
        return style;
    }
    // Exports category 5 to lap.htm, with a text in the box of the theme.
    DialogOnScreen ExportWith(const std::wstring& theme) const {
        const DialogOnScreen dialog = Open({1});
        SetWindowTextW(dialog.Control(ID_frmExport_cmbTheme), theme.c_str());
        Export(dialog, folder.File(L"lap.htm"), kPages);
        return dialog;
    }
    // The page of category 5.
    void ExpectPage(const PageStyle& style) const {
        Book book;
        book.AddEntry(5, {{"a:b", "http://ab.hu"}});
        book.Marks.Save(5, {1});
        EXPECT_EQ(TemporaryFolder::Read(folder.File(L"lap.htm")), HtmlPageOf(book, style));
    }
    void ExpectThemeNotFound(const std::wstring& theme) const {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Hiba");
        EXPECT_EQ(box.Text(), L"Salynálom, de a " + theme +
                                  L" arculatfájl nem létezik. Igy azt az exportfájlra nem lehet alkalmazni.");
        EXPECT_EQ(box.Icon(), BoxIcon::Information);
        box.Press(IDOK);
    }
};

TEST_F(frmExportPageTest, AWebPageWithTitleAndBlackGround) {
    const DialogOnScreen dialog = Open({0});
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
    const DialogOnScreen dialog = Open({1});
    dialog.Pick(ID_frmExport_cmbType, 1);
    dialog.Click(ID_frmExport_cmdOK);
    program.FileDialog().Cancel();
    program.Settle();
    dialog.Pick(ID_frmExport_cmbType, 0);
    Export(dialog, folder.File(L"lap"), kPages);
    dialog.WaitForClose();
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"lap.htm"});
    ExpectPage(Plain());
}

TEST_F(frmExportPageTest, ATypedThemeShapesThePage) {
    ExportWith(folder.Write(L"sajat.aut", "A^B^C^D<tr>^E^")).WaitForClose();
    PageStyle style;
    style.ThemeParts = {"A", "B", "C", "D<tr>", "E"};
    style.ThemeApplied = true;
    ExpectPage(style);
}

TEST_F(frmExportPageTest, AMissingThemeIsReportedAndThePageWrittenWithoutIt) {
    const DialogOnScreen dialog = ExportWith(folder.File(L"nincs.aut"));
    ExpectThemeNotFound(folder.File(L"nincs.aut"));
    dialog.WaitForClose();
    ExpectPage(Plain());
    EXPECT_EQ(Counts(), CountsOf(0, 0));
}

TEST_F(frmExportPageTest, AThemeWithoutFieldsStillTakesFontAndColoursAway) {
    ExportWith(folder.Write(L"jel.aut", "nincs jel")).WaitForClose();
    PageStyle style;
    style.ThemeApplied = true;
    ExpectPage(style);
}

TEST_F(frmExportPageTest, AThemeNameWithWildcardsIsNoFile) {
    folder.Write(L"van.aut", "A^");
    const DialogOnScreen dialog = ExportWith(folder.File(L"*.aut"));
    ExpectThemeNotFound(folder.File(L"*.aut"));
    dialog.WaitForClose();
    ExpectPage(Plain());
}

TEST_F(frmExportPageTest, AThemeTextOfThreeCharactersIsNone) {
    ExportWith(L"abc").WaitForClose();
    ExpectPage(Plain());
}

TEST_F(frmExportPageTest, ASeventhFieldClosesTheDialogBeforeAFileIsMade) {
    ExportWith(folder.Write(L"sok.aut", "1^2^3^4^5^6^7^")).WaitForClose();
    program.Settle();
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"sok.aut"});
    EXPECT_EQ(Counts(), CountsOf(0, 1));  // only the category that was not chosen is dropped
}

}  // namespace
}  // namespace lindrel::testing
