// Programs that end others ask every window to close, also one that waits for a box or a dialog.

#include "tests/window/app/FileSession.h"

namespace lindrel::testing {
namespace {

class ClosedFromOutsideTest : public FileSession {
  protected:
    // Asks every window but the open box, which answers for itself. What should happen then has happened when
    // this returns.
    void CloseUnderBox() const {
        for (const HWND window : WindowsOf(program.Thread()))
            if (!IsMessageBox(window)) PostMessageW(window, WM_CLOSE, 0, 0);
        program.Settle();
    }
};

TEST_F(ClosedFromOutsideTest, AnOpenQuestionIsAnsweredFirst) {
    Change();
    program.Close();
    const BoxOnScreen question = program.Box();
    CloseUnderBox();
    EXPECT_TRUE(IsWindowEnabled(question.Handle()));
    EXPECT_EQ(GetLastActivePopup(program.Main()), question.Handle());
    ExpectSaveQuestion(kAtClosing, IDCANCEL);
    ExpectState(ChangedState());
}

TEST_F(ClosedFromOutsideTest, TheWindowStaysUnderADialogWhichCanBeCancelled) {
    Change();
    program.Choose(ID_mnuAdd);
    const DialogOnScreen dialog = program.Dialog(L"Új oldal hozzáadása");
    PostMessageW(program.Main(), WM_CLOSE, 0, 0);
    program.Settle();
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_TRUE(IsWindowEnabled(dialog.Handle()));
    PostMessageW(dialog.Handle(), WM_CLOSE, 0, 0);
    dialog.WaitForClose();
    ExpectState(ChangedState());
}

TEST_F(ClosedFromOutsideTest, ADialogWhoseBoxIsOpenKeepsWhatIsTypedInIt) {
    program.Choose(ID_mnuAdd);
    const DialogOnScreen dialog = program.Dialog(L"Új oldal hozzáadása");
    dialog.SetText(ID_frmAdd_txtURL, L"ab");
    dialog.Click(ID_frmAdd_cmdOK);
    const BoxOnScreen box = program.Box();
    CloseUnderBox();
    EXPECT_EQ(box.Text(), L"Kérem előbb töltse ki a szükséges mezőket!");
    box.Press(IDOK);
    program.Settle();
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(dialog.Text(ID_frmAdd_txtURL), L"ab");
    dialog.Cancel();
    ExpectState(EmptyState());
}

// The book in memory must never be saved over a file that could not be opened.
TEST_F(ClosedFromOutsideTest, AFileThatIsNoBookIsNotReplacedByTheOpenBook) {
    const std::string no_book = "#1\r\nez nem könyv\r\n";
    const std::wstring path = folder.Write(L"hibás.lnd", no_book);
    Change();
    ChooseAndAnswer(ID_mnuOpen, IDNO);
    program.FileDialog().Accept(path);
    const BoxOnScreen failure = program.Box();
    EXPECT_EQ(failure.Title(), L"Hiba a beolvasásnál");
    CloseUnderBox();
    failure.Press(IDOK);
    program.Settle();
    ExpectState(ChangedState());
    EXPECT_TRUE(program.NothingIsOpen());
    const std::wstring own = folder.File(L"saját.lnd");
    CloseAndAnswer(IDYES);
    program.FileDialog().Accept(own);
    ExpectSaved(own);
    EXPECT_EQ(program.WaitForEnd(), 0);
    EXPECT_EQ(TemporaryFolder::Read(path), no_book);
    EXPECT_EQ(TemporaryFolder::Read(own), ChangedBook());
}

TEST_F(ClosedFromOutsideTest, AnOpenMenuOfTheListIsNoObstacle) {
    program.Add(1, {{L"Név", L"http://nev.hu"}});
    program.ClickRow(1);
    const HWND list = program.Control(ID_frmStart_ListURLs);
    PostMessageW(list, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(list), -1);
    WaitUntil("the menu", [this] {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        return GetGUIThreadInfo(program.Thread(), &info) && (info.flags & GUI_INMENUMODE) != 0;
    });
    program.Close();
    EXPECT_EQ(program.WaitForEnd(), 0);
}

}  // namespace
}  // namespace lindrel::testing
