#include "app/FileMenu.h"

#include "app/MenuCommands.h"
#include "book/BookFile.h"
#include "book/BookText.h"
#include "book/Files.h"
#include "controls/MsgBox.h"
#include "controls/Shell.h"
#include "resources/resource.h"

namespace lindrel {

namespace {

constexpr wchar_t kLoadErrorTitle[] = L"Hiba a beolvasásnál";

// No blank after the dash, as users know the title.
std::wstring TitleOf(const std::wstring& path) {
    return L"Lindrel -" + FileNameOf(path);
}

std::wstring TextOf(const MalformedBook& malformed) {
    if (malformed.Line() == 0) return malformed.Message();
    return malformed.Message() + L"\r\n(" + std::to_wstring(malformed.Line()) + L". sor)";
}

}  // namespace

bool FileMenu::OnCommand(int id) {
    static constexpr MenuCommand<FileMenu> kCommands[] = {
        {ID_mnuNew, &FileMenu::mnuNew_Click},       {ID_mnuOpen, &FileMenu::mnuOpen_Click},
        {ID_mnuClose, &FileMenu::mnuClose_Click},   {ID_mnuSave, &FileMenu::mnuSave_Click},
        {ID_mnuSaveAs, &FileMenu::mnuSaveAs_Click}, {ID_mnuExit, &FileMenu::mnuExit_Click},
    };
    return RunMenuCommand<FileMenu>(*this, kCommands, id);
}

void FileMenu::ResetBook() {
    open_.TheBook.Reset();
    open_.Modified = false;
    open_.OpenedFile.clear();
    view_.ShowEmptyBook();
    SetTitle(L"Lindrel ");  // with a blank at its end, as users know it
}

void FileMenu::ResetAfterOffer() {
    if (OfferToSave(SaveQuestion::Command) != SaveAnswer::CalledOff) ResetBook();
}

void FileMenu::mnuOpen_Click() {
    // Yes saves and opens nothing: the user chooses Open again, as ever.
    if (OfferToSave(SaveQuestion::Command) == SaveAnswer::NotSaved) OpenChosenBook();
}

void FileMenu::OpenChosenBook() {
    const std::wstring before = open_.OpenedFile;
    if (!ChooseBookFile(true)) return;
    if (!LoadBook(open_.OpenedFile)) {
        open_.OpenedFile = before;
        return;
    }
    view_.UpdateTabCaptions();
    view_.FillAddressList(open_.CurrentCategory);
}

void FileMenu::mnuSave_Click() {
    if (!open_.Modified) return;
    if (!open_.OpenedFile.empty())
        SaveBook(open_.OpenedFile);
    else if (ChooseBookFile(false))
        SaveUnderNewName();
}

void FileMenu::mnuSaveAs_Click() {
    // Category 12 is ignored: for a book with entries only there the command has never done anything.
    if (open_.TheBook.CategoryStarts(kCategories) == 1) return;
    int answer = IDYES;
    do {
        // The path is the book's from now on, even when the user then refuses to overwrite: later saves go
        // there.
        if (!ChooseBookFile(false)) return;
        answer = IDYES;
        if (FileIsThere(open_.OpenedFile))
            answer =
                MsgBox(window_, L"A " + open_.OpenedFile + L" már létezik.\r\nFelülírjam a már létező fájlt?",
                       MB_YESNOCANCEL | MB_ICONQUESTION);
    } while (answer == IDNO);
    if (answer == IDYES) SaveUnderNewName();
}

void FileMenu::mnuExit_Click() {
    SendMessageW(window_, WM_CLOSE, 0, 0);
}

SaveAnswer FileMenu::OfferToSave(SaveQuestion question) {
    if (!open_.Modified) return SaveAnswer::NotSaved;
    const wchar_t* const title = question == SaveQuestion::Command ? L"A file módosult" : L"A fájl módosult";
    const int answer =
        MsgBox(window_, L"Kívánja menteni a módosításokat ?", MB_YESNOCANCEL | MB_ICONQUESTION, title);
    if (answer == IDCANCEL) return SaveAnswer::CalledOff;
    if (answer != IDYES) return SaveAnswer::NotSaved;
    if (open_.OpenedFile.empty() && !ChooseBookFile(false)) return SaveAnswer::Saved;
    return SaveBook(open_.OpenedFile) ? SaveAnswer::Saved : SaveAnswer::CalledOff;
}

bool FileMenu::ChooseBookFile(bool open) {
    CommonDialog1.InitDir = ProgramFolder() + L"\\";  // a drive alone would mean its current folder
    CommonDialog1.DefaultExt = L"lnd";
    CommonDialog1.FileName = open ? L"" : FileNameOf(open_.OpenedFile);
    try {
        do {
            CommonDialog1.DialogTitle = open ? L"File megnyitása" : L"File mentése";
            if (open)
                CommonDialog1.ShowOpen(window_);
            else
                CommonDialog1.ShowSave(window_);
        } while (open && !FileExists(window_, CommonDialog1.FileName));
    } catch (const Fault&) {
        return false;  // cancelled, or the dialog could not be shown
    }
    open_.OpenedFile = CommonDialog1.FileName;
    return true;
}

bool FileMenu::LoadBook(const std::wstring& path) {
    bool all_categories = true;
    try {
        all_categories = lindrel::LoadBook(open_.TheBook, std::filesystem::path(path));
    } catch (const MalformedBook& malformed) {
        MsgBox(window_, TextOf(malformed), MB_OK | MB_ICONERROR, kLoadErrorTitle);
        return false;
    } catch (...) {
        MsgBox(window_, CurrentFault().Meaning(), MB_OK | MB_ICONERROR, kLoadErrorTitle);
        return false;
    }
    SetTitle(TitleOf(path));
    if (!all_categories)
        MsgBox(window_, L"Nem sikerült beolvasni az összes kategóriát", MB_OK | MB_ICONERROR,
               kLoadErrorTitle);
    view_.ShowCheckedCount();
    open_.Modified = false;
    return true;
}

bool FileMenu::SaveBook(const std::wstring& path) {
    try {
        lindrel::SaveBook(open_.TheBook, std::filesystem::path(path));
    } catch (const FileFault&) {
        MsgBox(window_, CurrentFault().Meaning(), MB_OK | MB_ICONERROR, kErrorTitle);
        return false;
    } catch (...) {
        MsgBox(window_, path + L"\r\n" + CurrentFault().Meaning(), MB_OK | MB_ICONERROR, kErrorTitle);
        return false;
    }
    open_.Modified = false;
    MsgBox(window_, L"Elmentve : " + open_.OpenedFile);
    WarnOfHeaderLookalikes();
    return true;
}

void FileMenu::SaveUnderNewName() {
    if (SaveBook(open_.OpenedFile)) SetTitle(TitleOf(open_.OpenedFile));
}

// Names and addresses are saved as they stand, so one that begins with "#" comes back as a category's name.
void FileMenu::WarnOfHeaderLookalikes() const {
    const HeaderLookalikes found = FindHeaderLookalikes(open_.TheBook);
    if (found.Count == 0) return;
    MsgBox(window_,
           L"A könyvben " + std::to_wstring(found.Count) +
               L" olyan név vagy cím van, amely „#” jellel kezdődik. A következő megnyitáskor ezek "
               L"kategórianévként jönnek vissza. Az első:\r\n\r\n" +
               FromBookText(found.First),
           MB_OK | MB_ICONWARNING, L"Figyelem");
}

void FileMenu::SetTitle(const std::wstring& title) const {
    SetWindowTextW(window_, title.c_str());
}

}  // namespace lindrel
