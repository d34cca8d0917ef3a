// What screen readers are told: name, role, state and shortcut of every control of every window. The system
// gives the answers; a role is named only if it is not that of a plain window (as Wine gives to most
// controls).

#include <gtest/gtest.h>
#include <oleacc.h>

#include <algorithm>
#include <string>
#include <vector>

#include "Version.h"
#include "resources/resource.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/Text.h"

namespace lindrel::testing {
namespace {

// One line for a control: class, 'name', what else is known of it.
using Lines = std::vector<std::string>;

std::string NarrowText(BSTR text) {
    const std::string narrow = text != nullptr ? Narrow(text) : "";
    SysFreeString(text);
    return narrow;
}

std::string RoleOf(IAccessible& object, const VARIANT& self) {
    VARIANT role{};
    if (object.get_accRole(self, &role) != S_OK) return " without a role";
    // The system has an answer of its own for text boxes, and one for all other windows.
    if (role.lVal == ROLE_SYSTEM_CLIENT) return "";
    return role.lVal == ROLE_SYSTEM_TEXT ? " text" : " of another role";
}

std::string StateOf(IAccessible& object, const VARIANT& self) {
    static const std::pair<LONG, const char*> kStates[] = {{STATE_SYSTEM_UNAVAILABLE, " unavailable"},
                                                           {STATE_SYSTEM_READONLY, " read-only"},
                                                           {STATE_SYSTEM_INVISIBLE, " invisible"},
                                                           {STATE_SYSTEM_PROTECTED, " protected"}};
    VARIANT state{};
    if (object.get_accState(self, &state) != S_OK) return " without a state";
    std::string words;
    for (const auto& [bit, word] : kStates)
        if ((state.lVal & bit) != 0) words += word;
    return words;
}

// The label just before a list or combo box, which Windows takes for its name (Wine takes the contents).
std::string LabelOf(HWND window) {
    const HWND before = GetWindow(window, GW_HWNDPREV);
    if (before == nullptr || (SendMessageW(before, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) == 0) return "";
    return " labelled '" + Narrow(lindrel::TextOf(before)) + "'";
}

std::string LineOf(HWND window) {
    IAccessible* object = nullptr;
    if (AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                   reinterpret_cast<void**>(&object)) != S_OK)
        return "no answer";
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    BSTR name = nullptr;
    BSTR key = nullptr;
    object->get_accName(self, &name);
    object->get_accKeyboardShortcut(self, &key);
    const std::wstring kind = ClassOf(window);
    std::string line =
        Narrow(kind) + " '" + NarrowText(name) + "'" + RoleOf(*object, self) + StateOf(*object, self);
    if (kind == L"ComboBox" || kind == L"ListBox" || kind == L"SysListView32" || kind == L"SysTreeView32")
        line += LabelOf(window);
    if (const std::string shortcut = NarrowText(key); !shortcut.empty()) line += " " + shortcut;
    object->Release();
    return line;
}

// The rows of a list.
Lines RowsOf(const ListOnScreen& list) {
    const std::vector<int> checked = list.Checked();
    Lines rows;
    for (int row = 1; row <= list.Count(); ++row) {
        const bool is_checked = std::find(checked.begin(), checked.end(), row) != checked.end();
        rows.push_back("'" + Narrow(list.Cell(row, 0)) + "' '" + Narrow(list.Cell(row, 1)) + "'" +
                       (is_checked ? " checked" : "") + (list.Selected() == row ? " selected" : ""));
    }
    return rows;
}

class AccessibilityTest : public ::testing::Test {
  protected:
    // A window and its controls, in the order in which they are read.
    Lines Heard(HWND window) const {
        Lines lines;
        program.OnUi([&](frmStart&) {
            lines.push_back(LineOf(window));
            for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
                 child = GetWindow(child, GW_HWNDNEXT))
                lines.push_back(LineOf(child));
        });
        return lines;
    }
    void ExpectHeard(const DialogOnScreen& dialog, const std::wstring& caption, Lines controls) const {
        controls.insert(controls.begin(), "#32770 '" + Narrow(caption) + "'");
        EXPECT_EQ(Heard(dialog.Handle()), controls);
    }
    // Opens a dialog in which there are these controls, and leaves it.
    void ExpectDialog(int command, const std::wstring& caption, const Lines& controls) const {
        program.Choose(command);
        const DialogOnScreen dialog = program.Dialog(caption);
        ExpectHeard(dialog, caption, controls);
        dialog.Cancel();
        program.Settle();
    }
    // Two entries, one selected and one checked.
    void AddSelectedAndChecked() const {
        program.Add(1, {{L"Egy", L"http://egy.hu"}, {L"Kettő", L"http://ketto.hu"}});
        program.ClickRow(1);
        program.ClickBox(2);
    }

    const Program program;
};

TEST_F(AccessibilityTest, TheMainWindow) {
    AddSelectedAndChecked();
    EXPECT_EQ(Heard(program.Main()),
              (Lines{"frmStart 'Lindrel '", "ToolbarWindow32 'Eszköztár'", "SysTabControl32 'Kategóriák'",
                     "SysListView32 'Címek'", "msctls_statusbar32 'http://egy.hu'", "Static 'Webhely neve'",
                     "Edit 'Webhely neve' text read-only", "Static 'URL'", "Edit 'URL' text read-only",
                     "Button 'Ugorj a web oldalra'", "Button 'keresés' Alt+k",
                     "ComboBox '' labelled '&keresés'", "Static 'keresett szöveg' invisible",
                     "Edit 'keresett szöveg' text", "Button 'Keresés'", "TrayArea '' invisible"}));
    EXPECT_EQ(RowsOf(program.List()),
              (Lines{"'Egy' 'http://egy.hu' selected", "'Kettő' 'http://ketto.hu' checked"}));
    // The text in an empty list is not one of its rows.
    program.ClickTab(2);
    EXPECT_EQ(RowsOf(program.List()), Lines{});
}

TEST_F(AccessibilityTest, TheDialogOfTheCategories) {
    Lines controls;
    for (int k = 1; k <= 12; ++k) {
        controls.push_back("Static '" + std::to_string(k) + "'");
        controls.push_back("Edit '" + std::to_string(k) + "' text");
    }
    controls.insert(controls.end(), {"Button 'OK'", "Button 'Mégse' Alt+M"});
    ExpectDialog(ID_mnuKat, L"Kategóriák nevei", controls);
}

TEST_F(AccessibilityTest, TheDialogOfANewEntry) {
    ExpectDialog(
        ID_mnuAdd, L"Új oldal hozzáadása",
        {"Button ' Az oldal adatai '", "Static 'az oldal neve' Alt+n", "Edit 'az oldal neve' text Alt+n",
         "Static 'kategória' Alt+k", "ComboBox 'Project1' labelled '&kategória'",
         "Static 'ebbe a kategóriában lesz létrehozva'", "Static 'URL címe' Alt+U",
         "Edit 'URL címe' text Alt+U", "Button '@'", "Button 'OK'", "Button 'Mégse' Alt+M"});
}

TEST_F(AccessibilityTest, TheDialogOfAnEntry) {
    AddSelectedAndChecked();
    ExpectDialog(
        ID_mnuEdit, L"Cím módosítása",
        {"Button ' Az oldal adatai '", "Static 'az oldal neve' Alt+n", "Edit 'az oldal neve' text Alt+n",
         "Static 'kategória' Alt+k", "ComboBox 'Project1' labelled '&kategória'",
         "Static 'ebbe a kategóriába lesz áthelyezve'", "Static 'URL címe' Alt+U",
         "Edit 'URL címe' text Alt+U", "Button 'OK'", "Button 'Mégse' Alt+M"});
}

TEST_F(AccessibilityTest, TheDialogThatMoves) {
    AddSelectedAndChecked();
    ExpectDialog(ID_mnuMove, L"A kiválasztott címek áthelyezése",
                 {"Static 'ebbe a kategóriába lesz(nek) áthelyezve'",
                  "ComboBox 'Project1' labelled 'ebbe a kategóriába lesz(nek) áthelyezve'", "Button 'OK'",
                  "Button 'Mégse' Alt+M"});
}

TEST_F(AccessibilityTest, TheDialogThatExports) {
    AddSelectedAndChecked();
    ExpectDialog(
        ID_mnuExport, L"Exportálás",
        {"Button ' exportálva lesz(nek)'", "Static 'Válassza ki, mely kategóriákból kíván exportálni'",
         "ListBox '' labelled 'Válassza ki, mely kategóriákból kíván exportálni'", "Static 'fájltipus' Alt+f",
         "ComboBox 'weblap - HTML' labelled '&fájltipus'", "Button ' weblap tulajdonságai '",
         "Static 'a weblap címe'", "Edit 'a weblap címe' text", "Static 'háttérszín :'", "Button 'fehér'",
         "Button 'fekete'", "Static 'arculat'", "ComboBox '' labelled 'arculat'", "Button 'Tallózz ..'",
         "Button ' hozzáadás a MS IE kedvencekhez beállitások' invisible",
         "Button 'tegye az összes címet egy mappa alá' invisible",
         "Button 'létrehozni a kategóriák neveivel új mappákat' invisible", "Button 'Exportálj ...' Alt+E",
         "Button 'Mégse' Alt+M"});
}

TEST_F(AccessibilityTest, TheDialogThatImports) {
    ExpectDialog(ID_mnuImport, L"Importálás",
                 {"Button ' forrás '", "Button 'weblap - HTML'", "Button 'MS IE kedvencek - URL'",
                  "Button ' >>'", "Static 'a cimeket helyezd ebbe a kategóriába'",
                  "ComboBox 'Project1' labelled 'a cimeket helyezd ebbe a kategóriába'",
                  "Button 'Importálj' Alt+I", "Button 'Mégse' Alt+M"});
}

TEST_F(AccessibilityTest, TheAboutBox) {
    ExpectDialog(ID_mnuAbout, L"Lindrel névjegye",
                 {"Static ''", "Static 'Lindrel'", "Static 'Version " LINDREL_VERSION_TEXT "'", "Static ''",
                  "Static '© 2026 Lindrel'", "SysLink '<a>https://lindrel.example/</a>'", "Static ''",
                  "Static 'Figyelmeztetés: Jelen számítógépes program a szerzői jog és nemzetközi "
                  "szerződések védelme alatt áll.'",
                  "Button 'OK'"});
}

TEST_F(AccessibilityTest, TheFindDialogAndItsHits) {
    AddSelectedAndChecked();
    program.Choose(ID_mnuFind);
    const DialogOnScreen dialog = program.Dialog(L"Keresés");
    ExpectHeard(dialog, L"Keresés",
                {"Static 'Amit keres' Alt+A", "Edit 'Amit keres' text Alt+A", "Static 'utótagúakat' Alt+u",
                 "Edit 'utótagúakat' text Alt+u", "Static 'szűkíti a keresést'",
                 "Button 'Keresés indítása' Alt+K", "Static '0'", "Static 'keresés eredménye :'",
                 "SysListView32 '' labelled 'keresés eredménye :'", "Static ''", "Button 'Mindent kijelöl'",
                 "Button 'Kijelölés megszüntetése'", "Button 'A kijelölt címek törlése'"});
    dialog.SetText(ID_frmFind_txtWhat, L"e");
    dialog.Click(ID_frmFind_cmdFind);
    program.Settle();
    const ListOnScreen hits(dialog.Control(ID_frmFind_ListView));
    hits.ClickBox(1);
    hits.ClickRow(2);
    program.Settle();
    EXPECT_EQ(RowsOf(hits), (Lines{"'Egy' 'Project1' checked", "'Kettő' 'Project1' selected"}));
    dialog.Cancel();
    program.Settle();
}

TEST_F(AccessibilityTest, TheDialogsThatChooseAFolder) {
    AddSelectedAndChecked();
    program.Choose(ID_mnuImport);
    const DialogOnScreen import = program.Dialog(L"Importálás");
    import.Click(ID_frmImport_from_1);
    import.Click(ID_frmImport_cmdOK);
    const DialogOnScreen source = program.Dialog(L"Importálás a kedvencekből");
    ExpectHeard(source, L"Importálás a kedvencekből",
                {"Static 'Kérem válassza ki az azt a mappát, amelyből exportálni kíván'",
                 "SysTreeView32 '' labelled 'Kérem válassza ki az azt a mappát, amelyből exportálni kíván'",
                 "Static 'A kiválasztott könyvtárból lesznek importálva az ott található (*.url) fájlokból a "
                 "címek.'",
                 "Button 'Importálás' Alt+I", "Button 'Mégse' Alt+M"});
    source.Cancel();
    source.WaitForClose();
    import.Cancel();
    program.Settle();

    program.Choose(ID_mnuExport);
    const DialogOnScreen exporting = program.Dialog(L"Exportálás");
    SendMessageW(exporting.Control(ID_frmExport_lstSource), LB_SETSEL, TRUE, 0);
    exporting.Pick(ID_frmExport_cmbType, 2);
    exporting.Click(ID_frmExport_cmdOK);
    const DialogOnScreen target = program.Dialog(L"Exportálás a kedvencekbe");
    ExpectHeard(target, L"Exportálás a kedvencekbe",
                {"Static 'Kérem válassza ki azt a mappát, amelybe exportálni kíván'",
                 "SysTreeView32 '' labelled 'Kérem válassza ki azt a mappát, amelybe exportálni kíván'",
                 "Static 'Az Ön által kiválasztott címek hozzáadódnak az Internet Explorer kedvenc lapok "
                 "listájához'",
                 "Button 'Export'", "Button 'Mégse'"});
    target.Cancel();
    target.WaitForClose();
    exporting.Cancel();
    program.Settle();
}

}  // namespace
}  // namespace lindrel::testing
