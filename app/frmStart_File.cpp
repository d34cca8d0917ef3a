// The file menu: new, open, close, save, save as, exit.

#include "app/frmStart.h"
#include "book/BookFile.h"
#include "book/Files.h"
#include "controls/MsgBox.h"
#include "controls/Shell.h"

namespace lindrel {

namespace {

std::wstring TitleOf(const std::wstring& path) {
    return L"Lindrel -" + FileNameOf(path);  // no blank after the dash (intended)
}

}  // namespace

void frmStart::mnuNew_Click() {
    ResetAfterOffer();
}

void frmStart::mnuClose_Click() {
    ResetAfterOffer();
}

void frmStart::ResetAfterOffer() {
    // A save dialog cancelled after Yes loses the changes (intended: the answer was to be done with the
    // book).
    if (OfferToSave(SaveQuestion::Command) == SaveAnswer::Go) ResetBook();
}

void frmStart::mnuOpen_Click() {
    bool saved = false;
    // After Yes the command stops; the user chooses Open again (intended).
    if (OfferToSave(SaveQuestion::Command, &saved) == SaveAnswer::Go && !saved) OpenChosenBook();
}

void frmStart::OpenChosenBook() {
    const std::wstring before = OpenedFile;
    if (!ChooseBookFile(true)) return;
    if (!LoadBook(OpenedFile)) {
        OpenedFile = before;
        return;
    }
    UpdateTabCaptions();
    FillAddressList(SelectedCategory());
}

void frmStart::mnuSave_Click() {
    if (!Modified) return;
    if (!OpenedFile.empty()) {
        SaveBook(OpenedFile);
    } else if (ChooseBookFile(false)) {
        if (SaveBook(OpenedFile)) SetTitle(TitleOf(OpenedFile));
    }
}

void frmStart::mnuSaveAs_Click() {
    // Category 12 is not looked at (intended): a book whose entries are all there is not saved as.
    if (TheBook.CategoryStarts(kCategories) == 1) return;
    int answer = IDYES;
    do {
        // The chosen path is the book's at once, even when overwriting is then refused (intended).
        if (!ChooseBookFile(false)) return;
        answer = IDYES;
        if (FileIsThere(OpenedFile))
            answer = MsgBox(handle_, L"A " + OpenedFile + L" már létezik.\r\nFelülírjam a már létező fájlt?",
                            MB_YESNOCANCEL | MB_ICONQUESTION);
    } while (answer == IDNO);
    if (answer == IDYES && SaveBook(OpenedFile)) SetTitle(TitleOf(OpenedFile));
}

void frmStart::mnuExit_Click() {
    SendMessageW(handle_, WM_CLOSE, 0, 0);
}

// `saved`, when asked for, tells whether the answer was Yes.
frmStart::SaveAnswer frmStart::OfferToSave(SaveQuestion question, bool* saved) {
    if (!Modified) return SaveAnswer::Go;
    const wchar_t* const title = question == SaveQuestion::Command ? L"A file módosult" : L"A fájl módosult";
    const int answer =
        MsgBox(handle_, L"Kívánja menteni a módosításokat ?", MB_YESNOCANCEL | MB_ICONQUESTION, title);
    if (answer == IDCANCEL) return SaveAnswer::Cancelled;
    if (answer != IDYES) return SaveAnswer::Go;
    if (saved != nullptr) *saved = true;
    if (OpenedFile.empty() && !ChooseBookFile(false)) return SaveAnswer::Go;
    return SaveBook(OpenedFile) ? SaveAnswer::Go : SaveAnswer::SaveFailed;
}

// Shows the open or save dialog and keeps the picked path in OpenedFile. Returns whether one was picked.
bool frmStart::ChooseBookFile(bool open) {
    CommonDialog1.InitDir = ProgramFolder() + L"\\";  // a drive alone would mean its current folder
    CommonDialog1.DefaultExt = L"lnd";
    CommonDialog1.FileName = open ? L"" : FileNameOf(OpenedFile);
    try {
        do {
            CommonDialog1.DialogTitle = open ? L"File megnyitása" : L"File mentése";
            if (open)
                CommonDialog1.ShowOpen(handle_);
            else
                CommonDialog1.ShowSave(handle_);
        } while (open && !FileExists(handle_, CommonDialog1.FileName));
    } catch (const Fault&) {
        return false;  // cancelled, or not to be shown at all
    }
    OpenedFile = CommonDialog1.FileName;
    return true;
}

bool frmStart::LoadBook(const std::wstring& path) {
    constexpr wchar_t kTitle[] = L"Hiba a beolvasásnál";
    bool all_categories = true;
    try {
        all_categories = lindrel::LoadBook(TheBook, std::filesystem::path(path));
    } catch (const MalformedBook& malformed) {
        std::wstring text = malformed.Message();
        if (malformed.Line() != 0) text += L"\r\n(" + std::to_wstring(malformed.Line()) + L". sor)";
        MsgBox(handle_, text, MB_OK | MB_ICONERROR, kTitle);
        return false;
    } catch (...) {
        MsgBox(handle_, CurrentFault().Meaning(), MB_OK | MB_ICONERROR, kTitle);
        return false;
    }
    SetTitle(TitleOf(path));
    if (!all_categories)
        MsgBox(handle_, L"Nem sikerült beolvasni az összes kategóriát", MB_OK | MB_ICONERROR, kTitle);
    ShowCheckedCount();
    Modified = false;
    return true;
}

bool frmStart::SaveBook(const std::wstring& path) {
    try {
        lindrel::SaveBook(TheBook, std::filesystem::path(path));
    } catch (const FileFault&) {
        MsgBox(handle_, CurrentFault().Meaning(), MB_OK | MB_ICONERROR, kErrorTitle);
        return false;
    } catch (...) {
        MsgBox(handle_, path + L"\r\n" + CurrentFault().Meaning(), MB_OK | MB_ICONERROR, kErrorTitle);
        return false;
    }
    Modified = false;
    MsgBox(handle_, L"Elmentve : " + OpenedFile);
    WarnOfHeaderLookalikes();
    return true;
}

// A name or address that begins with "#" was written as it stands and will come back as a category's name.
void frmStart::WarnOfHeaderLookalikes() {
    const HeaderLookalikes found = FindHeaderLookalikes(TheBook);
    if (found.Count == 0) return;
    MsgBox(handle_,
           L"A könyvben " + std::to_wstring(found.Count) +
               L" olyan név vagy cím van, amely „#” jellel kezdődik. A következő megnyitáskor ezek "
               L"kategórianévként jönnek vissza. Az első:\r\n\r\n" +
               FromBookText(found.First),
           MB_OK | MB_ICONWARNING, L"Figyelem");
}

}  // namespace lindrel
