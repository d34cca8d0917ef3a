// The end of the Windows session while the program runs: the questions, the reason that the system shows, and
// what is left after it.

#include <ostream>

#include "tests/window/app/FileSession.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

constexpr wchar_t kUnsavedBook[] = L"A könyv módosításai még nincsenek mentve.";
constexpr wchar_t kOpenDialog[] = L"Egy párbeszédablak még nyitva van.";

// A reason that was given or, without a text, taken back.
struct Reason {
    HWND Window = nullptr;
    std::wstring Text;
    bool WindowIsVisible = false;
    bool operator==(const Reason&) const = default;
};

void PrintTo(const Reason& reason, std::ostream* out) {
    *out << reason.Window << " " << ::testing::PrintToString(reason.Text) << " " << reason.WindowIsVisible;
}

std::vector<Reason> reasons;
bool icon_is_shown = false;

// Replaces the system's functions from before the program's start until after its end. They are called on its
// thread only.
class RecordingSystem {
  public:
    RecordingSystem() {
        reasons.clear();
        icon_is_shown = false;
    }

  private:
    static BOOL WINAPI Give(HWND window, const wchar_t* text) {
        reasons.push_back({window, text, IsWindowVisible(window) != FALSE});
        return TRUE;
    }
    static BOOL WINAPI TakeBack(HWND window) {
        reasons.push_back({window, L"", IsWindowVisible(window) != FALSE});
        return TRUE;
    }
    static BOOL WINAPI NotifyIcon(DWORD operation, NOTIFYICONDATAA*) {
        if (operation == NIM_ADD) icon_is_shown = true;
        if (operation == NIM_DELETE) icon_is_shown = false;
        return TRUE;
    }
    ReplacedImport give_{&ShutdownBlockReasonCreate, &Give};
    ReplacedImport take_back_{&ShutdownBlockReasonDestroy, &TakeBack};
    ReplacedImport shell_{&Shell_NotifyIconA, &NotifyIcon};
};

// The first base, so that the recorder outlives the program.
class SessionEndTest : private RecordingSystem, public FileSession {
  protected:
    std::vector<Reason> Reasons() const {
        return program.Ask<std::vector<Reason>>([](frmStart&) { return reasons; });
    }
    Reason Given(const wchar_t* text) const { return {program.Main(), text, true}; }
    Reason TakenBack() const { return {program.Main(), L"", true}; }
    void ExpectReasonGivenAndTakenBack() const {
        EXPECT_EQ(Reasons(), (std::vector{Given(kUnsavedBook), TakenBack()}));
    }
    bool InTray() const {
        return !IsWindowVisible(program.Main()) && program.Ask<bool>([](frmStart&) { return icon_is_shown; });
    }
    // For a window that answers without a question.
    static LRESULT Query(HWND window) { return AnswerToEndSession(window); }
    // The message that follows the answers of all windows.
    static void End(HWND window, bool ending) {
        SendMessageW(window, WM_ENDSESSION, ending ? TRUE : FALSE, 0);
    }
    void AnswerWhileAsked(int answer, LRESULT expected) {
        std::future<LRESULT> asked = QueryEndSession();
        program.Box();  // the reason comes before the question
        EXPECT_EQ(Reasons(), std::vector{Given(kUnsavedBook)});
        EXPECT_TRUE(IsWindowVisible(program.Main()));
        EXPECT_FALSE(InTray());
        ExpectSaveQuestion(kAtClosing, answer);
        EXPECT_EQ(asked.get(), expected);
    }
    // Whether the window that takes input in the program is this one.
    bool TakesInput(HWND window) const {
        return GetLastActivePopup(program.Main()) == window && IsWindowEnabled(window) != FALSE;
    }
};

TEST_F(SessionEndTest, WithoutChangesNothingIsAskedAndTheTrayStays) {
    EXPECT_EQ(Query(program.Main()), TRUE);
    program.Run(ID_mnuTray);
    EXPECT_EQ(Query(program.Main()), TRUE);
    EXPECT_TRUE(InTray());
    EXPECT_EQ(Reasons(), std::vector<Reason>{});
    End(program.Main(), false);
    EXPECT_TRUE(InTray());
    End(program.Main(), true);
    EXPECT_EQ(program.WaitForEnd(), 0);
    EXPECT_FALSE(icon_is_shown);
}

TEST_F(SessionEndTest, NoLetsTheSessionEndAndTheEndAsksNothingMore) {
    Change();
    AnswerWhileAsked(IDNO, TRUE);
    ExpectReasonGivenAndTakenBack();
    ExpectState(ChangedState());
    End(program.Main(), false);  // another program has refused
    ExpectState(ChangedState());
    End(program.Main(), true);
    EXPECT_EQ(program.WaitForEnd(), 0);
}

TEST_F(SessionEndTest, YesSavesBeforeTheSessionEnds) {
    Change();
    const std::wstring path = folder.File(L"könyv.lnd");
    SetOpenedFile(path);
    std::future<LRESULT> asked = QueryEndSession();
    ExpectSaveQuestion(kAtClosing, IDYES);
    ExpectSaved(path);
    EXPECT_EQ(asked.get(), TRUE);
    ExpectReasonGivenAndTakenBack();
    End(program.Main(), true);
    EXPECT_EQ(program.WaitForEnd(), 0);
    EXPECT_EQ(TemporaryFolder::Read(path), ChangedBook());
}

TEST_F(SessionEndTest, AfterCancelTheReasonStaysUntilTheEndIsCalledOff) {
    Change();
    AnswerWhileAsked(IDCANCEL, FALSE);
    EXPECT_EQ(Reasons(), std::vector{Given(kUnsavedBook)});
    End(program.Main(), false);
    ExpectReasonGivenAndTakenBack();
    ExpectState(ChangedState());
}

TEST_F(SessionEndTest, ABookThatCannotBeSavedHoldsTheSession) {
    Change();
    const std::wstring nowhere = folder.File(L"nincs\\könyv.lnd");
    SetOpenedFile(nowhere);
    std::future<LRESULT> asked = QueryEndSession();
    ExpectSaveQuestion(kAtClosing, IDYES);
    ExpectFailure(nowhere);
    EXPECT_EQ(asked.get(), FALSE);
    EXPECT_EQ(Reasons(), std::vector{Given(kUnsavedBook)});
}

TEST_F(SessionEndTest, FromTheTrayTheWindowComesBackBeforeItAsks) {
    for (const int answer : {IDCANCEL, IDNO}) {
        reasons.clear();
        SetModified(false);
        program.Run(ID_mnuTray);
        SetModified(true);
        ASSERT_TRUE(InTray());
        AnswerWhileAsked(answer, answer == IDNO ? TRUE : FALSE);
        EXPECT_TRUE(IsWindowVisible(program.Main()));
        EXPECT_FALSE(InTray());
        End(program.Main(), false);
    }
    End(program.Main(), true);
    EXPECT_EQ(program.WaitForEnd(), 0);
}

TEST_F(SessionEndTest, AQuestionThatIsOpenIsNotAskedTwice) {
    Change();
    program.Close();
    const BoxOnScreen question = program.Box();
    EXPECT_EQ(Query(program.Main()), FALSE);
    EXPECT_EQ(Reasons(), std::vector{Given(kUnsavedBook)});
    EXPECT_TRUE(TakesInput(question.Handle()));
    End(program.Main(), false);
    ExpectReasonGivenAndTakenBack();
    ExpectSaveQuestion(kAtClosing, IDCANCEL);
    ExpectState(ChangedState());
    // The next time it is asked as usual.
    reasons.clear();
    AnswerWhileAsked(IDCANCEL, FALSE);
}

TEST_F(SessionEndTest, ABoxOverAnUnchangedBookAndTheAboutBoxHoldNothing) {
    program.Choose(ID_mnuFind);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(Query(program.Main()), TRUE);
    EXPECT_EQ(Query(box.Handle()), TRUE);
    box.Press(IDOK);
    program.Choose(ID_mnuAbout);
    const DialogOnScreen about = program.Dialog(L"Lindrel névjegye");
    EXPECT_EQ(Query(program.Main()), TRUE);
    EXPECT_EQ(Query(about.Handle()), TRUE);
    EXPECT_EQ(Reasons(), std::vector<Reason>{});
    about.Cancel();
}

TEST_F(SessionEndTest, ADialogThatIsOpenHoldsTheSessionAndKeepsWhatIsTypedInIt) {
    program.Choose(ID_mnuAdd);
    const DialogOnScreen dialog = program.Dialog(L"Új oldal hozzáadása");
    dialog.SetText(ID_frmAdd_txtDesc, L"félig");
    EXPECT_EQ(Query(program.Main()), TRUE);  // the book itself has no changes
    EXPECT_EQ(Query(dialog.Handle()), FALSE);
    const Reason given{dialog.Handle(), kOpenDialog, true};
    const Reason taken_back{dialog.Handle(), L"", true};
    EXPECT_EQ(Reasons(), std::vector{given});
    EXPECT_TRUE(TakesInput(dialog.Handle()));
    End(dialog.Handle(), false);
    EXPECT_EQ(Reasons(), (std::vector{given, taken_back}));
    EXPECT_EQ(dialog.Text(ID_frmAdd_txtDesc), L"félig");
    dialog.Cancel();
    program.Settle();
    EXPECT_EQ(Query(program.Main()), TRUE);
}

TEST_F(SessionEndTest, OverAChangedBookADialogIsNotInterrupted) {
    Change();
    program.Choose(ID_mnuAdd);
    const DialogOnScreen dialog = program.Dialog(L"Új oldal hozzáadása");
    EXPECT_EQ(Query(program.Main()), FALSE);
    EXPECT_EQ(Query(dialog.Handle()), FALSE);
    EXPECT_EQ(Reasons(), (std::vector{Given(kUnsavedBook), Reason{dialog.Handle(), kOpenDialog, true}}));
    EXPECT_TRUE(TakesInput(dialog.Handle()));
    dialog.Cancel();
    program.Settle();
    reasons.clear();
    std::future<LRESULT> asked = QueryEndSession();
    ExpectSaveQuestion(kAtClosing, IDNO);
    EXPECT_EQ(asked.get(), TRUE);
    EXPECT_EQ(Reasons(), (std::vector{TakenBack(), Given(kUnsavedBook), TakenBack()}));
}

// Another program may close a window that the user does not see, and the question would come from nowhere.
TEST_F(SessionEndTest, AWindowThatIsClosedInTheTrayComesBackBeforeItAsks) {
    Change();
    program.Run(ID_mnuTray);
    ASSERT_TRUE(InTray());
    program.Close();
    const BoxOnScreen question = program.Box();
    EXPECT_TRUE(IsWindowVisible(program.Main()));
    EXPECT_FALSE(InTray());
    EXPECT_TRUE(TakesInput(question.Handle()));
    ExpectSaveQuestion(kAtClosing, IDCANCEL);
    ExpectState(ChangedState());
}

// The user has chosen in the system's own question to lose what is open.
TEST_F(SessionEndTest, AnEndThatIsForcedOnAnOpenBoxCausesNoFault) {
    Change();
    program.Close();
    const BoxOnScreen question = program.Box();
    EXPECT_EQ(Query(program.Main()), FALSE);
    End(program.Main(), true);
    EXPECT_TRUE(TakesInput(question.Handle()));
    ExpectSaveQuestion(kAtClosing, IDCANCEL);
    ExpectState(ChangedState());
}

}  // namespace
}  // namespace lindrel::testing
