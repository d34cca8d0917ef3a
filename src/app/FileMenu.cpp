#include "app/FileMenu.h"

#include <utility>

#include "app/BookFileBoxes.h"
#include "app/MenuCommands.h"
#include "book/BookFile.h"
#include "files/Files.h"
#include "resources/resource.h"
#include "system/FileDialog.h"
#include "system/MsgBox.h"
#include "system/Shell.h"
#include "system/WaitCursor.h"

namespace lindrel {

namespace {

// No blank after the dash, as users know the title.
std::wstring TitleOf(const std::wstring& path) {
    return L"Lindrel -" + FileNameOf(path);
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
    known_file_.clear();
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
    if (ChooseBookFile(Choice::Open)) OpenBookFile(before);
}

void FileMenu::OpenDropped(const std::wstring& path) {
    if (OfferToSave(SaveQuestion::Command) != SaveAnswer::NotSaved || !FileExists(window_, path)) return;
    OpenBookFile(std::exchange(open_.OpenedFile, path));
}

void FileMenu::OpenBookFile(const std::wstring& before) {
    if (!LoadBook(open_.OpenedFile)) {
        open_.OpenedFile = before;
        return;
    }
    view_.UpdateTabCaptions();
    view_.FillAddressList(open_.CurrentCategory);
}

void FileMenu::mnuSave_Click() {
    if (!open_.Modified) return;
    if (open_.OpenedFile.empty()) {
        if (ChooseBookFile(Choice::FirstSave)) SaveUnderNewName({});
    } else {
        SaveBook(open_.OpenedFile);
    }
}

void FileMenu::mnuSaveAs_Click() {
    // Category 12 is ignored: for a book with entries only there the command has never done anything.
    if (open_.TheBook.CategoryStarts(kCategories) == 1) return;
    const std::wstring before = open_.OpenedFile;
    int answer = IDYES;
    do {
        // The path is the book's from now on, even when the user then refuses to overwrite: later saves go
        // there.
        if (!ChooseBookFile(Choice::SaveAs)) return;
        answer = IDYES;
        if (FileIsThere(open_.OpenedFile))
            answer =
                MsgBox(window_, L"A " + open_.OpenedFile + L" már létezik.\r\nFelülírjam a már létező fájlt?",
                       MB_YESNOCANCEL | MB_ICONQUESTION);
    } while (answer == IDNO);
    if (answer == IDYES) SaveUnderNewName(before);
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
    const std::wstring before = open_.OpenedFile;
    if (before.empty() && !ChooseBookFile(Choice::FirstSave)) return SaveAnswer::Saved;
    if (SaveBook(open_.OpenedFile)) return SaveAnswer::Saved;
    open_.OpenedFile = before;
    return SaveAnswer::CalledOff;
}

bool FileMenu::ChooseBookFile(Choice choice) {
    const bool open = choice == Choice::Open;
    FileDialogOptions options;
    options.Title = open ? L"File megnyitása" : L"File mentése";
    options.Filter = L"Lindrel fájlok (*.lnd)|*.lnd";
    options.FileName = open ? L"" : FileNameOf(open_.OpenedFile);
    options.DefaultExt = L"lnd";
    options.InitDir = ProgramFolder() + L"\\";  // a drive alone would mean its current folder
    options.AskToOverwrite = choice == Choice::FirstSave;
    try {
        const std::optional<std::wstring> path =
            open ? ChooseExistingFile(window_, std::move(options)) : ChooseFileToSave(window_, options);
        if (path) open_.OpenedFile = *path;
        return path.has_value();
    } catch (const SystemFault&) {
        return false;  // the user has been told
    }
}

bool FileMenu::LoadBook(const std::wstring& path) {
    // Before the file is read, so that a change in between is not missed.
    const std::optional<FileState> state = StateOf(path);
    BookFromFile read;
    try {
        const WaitCursor hourglass;
        read = ReadBook(open_.TheBook, ReadFileBytes(path));
    } catch (...) {
        TellWhyNotRead(window_);
        return false;
    }
    if (!MayOpenInDoubt(window_, read.Doubtful)) return false;
    open_.TheBook = std::move(read.TheBook);
    known_file_ = path;
    known_state_ = state;
    SetTitle(TitleOf(path));
    TellWhatIsMissing(window_, read);
    view_.ShowCheckedCount();
    open_.Modified = false;
    return true;
}

bool FileMenu::SaveBook(const std::wstring& path) {
    if (!MayReplace(path)) return false;
    try {
        const WaitCursor hourglass;
        ReplaceFileBytes(path, lindrel::SaveBook(open_.TheBook));
    } catch (const FileFault&) {
        MsgBox(window_, CurrentFault().Meaning(), MB_OK | MB_ICONERROR, kErrorTitle);
        return false;
    } catch (...) {
        MsgBox(window_, path + L"\r\n" + CurrentFault().Meaning(), MB_OK | MB_ICONERROR, kErrorTitle);
        return false;
    }
    known_file_ = path;
    known_state_ = StateOf(path);
    open_.Modified = false;
    MsgBox(window_, L"Elmentve : " + open_.OpenedFile);
    WarnOfHeaderLookalikes(window_, open_.TheBook);
    return true;
}

bool FileMenu::MayReplace(const std::wstring& path) const {
    if (path != known_file_) return true;
    const std::optional<FileState> now = StateOf(path);
    if (!now || now == known_state_) return true;
    return MsgBox(window_,
                  path +
                      L"\r\n\r\nEzt a fájlt egy másik program megváltoztatta, mióta a könyvet megnyitotta "
                      L"vagy elmentette.\r\nFelülírjam a másik program változtatásait?",
                  MB_YESNO | MB_ICONWARNING | MB_DEFBUTTON2, kWarningTitle) == IDYES;
}

void FileMenu::SaveUnderNewName(const std::wstring& before) {
    if (SaveBook(open_.OpenedFile))
        SetTitle(TitleOf(open_.OpenedFile));
    else
        open_.OpenedFile = before;
}

void FileMenu::SetTitle(const std::wstring& title) const {
    SetWindowTextW(window_, title.c_str());
}

}  // namespace lindrel
