#include "app/FileMenu.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

#include "app/BookFileBoxes.h"
#include "book/BookFile.h"
#include "faults/Faults.h"
#include "files/Files.h"
#include "resources/resource.h"
#include "system/FileDialog.h"
#include "system/MsgBox.h"
#include "system/Shell.h"
#include "system/WaitCursor.h"

namespace lindrel {

namespace {

// The spellings differ, and users know both.
constexpr wchar_t kModifiedAtCommand[] = L"A file módosult";
constexpr wchar_t kModifiedAtClosing[] = L"A fájl módosult";

FileDialogOptions BookFileOptions(const wchar_t* title) {
    return {.Title = title,
            .Filter = L"Lindrel fájlok (*.lnd)|*.lnd",
            .DefaultExt = L"lnd",
            .InitDir = ProgramFolder() + L"\\"};  // a drive alone would mean its current folder
}

// Of two contents that differ by chance the sums hardly ever are the same.
std::size_t SumOf(std::string_view bytes) {
    return std::hash<std::string_view>()(bytes);
}

}  // namespace

bool FileMenu::OnCommand(int id) {
    struct Command {
        int Id;
        void (FileMenu::*Handler)();
    };
    static constexpr Command kCommands[] = {
        {ID_mnuNew, &FileMenu::mnuNew_Click},       {ID_mnuOpen, &FileMenu::mnuOpen_Click},
        {ID_mnuClose, &FileMenu::mnuClose_Click},   {ID_mnuSave, &FileMenu::mnuSave_Click},
        {ID_mnuSaveAs, &FileMenu::mnuSaveAs_Click}, {ID_mnuExit, &FileMenu::mnuExit_Click},
    };
    const auto* const command = std::ranges::find(kCommands, id, &Command::Id);
    if (command == std::end(kCommands)) return false;
    (this->*command->Handler)();
    return true;
}

void FileMenu::ResetBook() {
    open_.TheBook.Reset();
    open_.Modified = false;
    open_.OpenedFile.clear();
    known_file_.clear();
    view_.ShowEmptyBook();
    SetWindowTextW(window_, L"Lindrel ");  // the blank at its end is part of the title
}

void FileMenu::ResetAfterOffer() {
    if (OfferToSave(kModifiedAtCommand) != Offer::CalledOff) ResetBook();
}

void FileMenu::mnuOpen_Click() {
    // Yes saves and opens nothing, as users know it: they choose Open again.
    if (OfferToSave(kModifiedAtCommand) != Offer::NotSaved) return;
    std::optional<std::wstring> path;
    try {
        path = ChooseExistingFile(window_, BookFileOptions(L"File megnyitása"));
    } catch (const SystemFault&) {
        return;  // the user has been told
    }
    if (path) OpenBookFile(*path);
}

void FileMenu::OpenDropped(const std::wstring& path) {
    if (OfferToSave(kModifiedAtCommand) == Offer::NotSaved && FileExists(window_, path)) OpenBookFile(path);
}

void FileMenu::mnuSave_Click() {
    if (!open_.Modified) return;
    if (!open_.OpenedFile.empty()) {
        SaveBook(open_.OpenedFile);
        return;
    }
    const std::optional<std::wstring> path = ChooseFileToSave(true);
    if (path && SaveBook(*path)) ShowFileNameInTitle();
}

void FileMenu::mnuSaveAs_Click() {
    // Category 12 is ignored: for a book with entries only there the command has never done anything.
    if (open_.TheBook.CategoryStarts(kCategories) == 1) return;
    const std::wstring before = open_.OpenedFile;
    int answer = IDNO;
    while (answer == IDNO) {
        const std::optional<std::wstring> path = ChooseFileToSave(false);
        if (!path) return;
        // Even if the user then refuses to overwrite the file, later saves use it.
        open_.OpenedFile = *path;
        answer = !FileIsThere(*path)
                     ? IDYES
                     : MsgBox(window_, L"A " + *path + L" már létezik.\r\nFelülírjam a már létező fájlt?",
                              MB_YESNOCANCEL | MB_ICONQUESTION);
    }
    if (answer != IDYES) return;
    if (WriteBook(open_.OpenedFile))  // the user has agreed already, whoever has changed the file
        ShowFileNameInTitle();
    else
        open_.OpenedFile = before;  // or the next save would fail in the same way
}

void FileMenu::mnuExit_Click() {
    SendMessageW(window_, WM_CLOSE, 0, 0);
}

bool FileMenu::MayClose() {
    return OfferToSave(kModifiedAtClosing) != Offer::CalledOff;
}

FileMenu::Offer FileMenu::OfferToSave(const wchar_t* title) {
    if (!open_.Modified) return Offer::NotSaved;
    const int answer =
        MsgBox(window_, L"Kívánja menteni a módosításokat ?", MB_YESNOCANCEL | MB_ICONQUESTION, title);
    if (answer == IDCANCEL) return Offer::CalledOff;
    if (answer != IDYES) return Offer::NotSaved;
    std::optional<std::wstring> path = open_.OpenedFile;
    if (path->empty()) path = ChooseFileToSave(true);
    return !path || SaveBook(*path) ? Offer::Saved : Offer::CalledOff;
}

std::optional<std::wstring> FileMenu::ChooseFileToSave(bool ask_to_overwrite) const {
    FileDialogOptions options = BookFileOptions(L"File mentése");
    options.FileName = FileNameOf(open_.OpenedFile);
    options.AskToOverwrite = ask_to_overwrite;
    try {
        return lindrel::ChooseFileToSave(window_, options);
    } catch (const SystemFault&) {
        return std::nullopt;  // the user has been told
    }
}

void FileMenu::OpenBookFile(const std::wstring& path) {
    BookFromFile read;
    std::size_t content = 0;
    try {
        const WaitCursor hourglass;
        std::vector<char> bytes = ReadFileBytes(path);
        content = SumOf({bytes.data(), bytes.size()});
        read = ReadBook(open_.TheBook, std::move(bytes));
    } catch (...) {
        return TellWhyNotRead(window_);
    }
    if (!MayOpenInDoubt(window_, read.Doubtful)) return;
    open_.TheBook = std::move(read.TheBook);
    open_.OpenedFile = path;
    known_file_ = path;
    known_content_ = content;
    ShowFileNameInTitle();
    TellWhatIsMissing(window_, read);
    open_.Modified = false;
    view_.UpdateTabCaptions();
    view_.FillAddressList(open_.CurrentCategory);
}

bool FileMenu::WriteBook(const std::wstring& path) {
    try {
        const WaitCursor hourglass;
        NamingTheFile(path, [&] {
            const std::string bytes = lindrel::SaveBook(open_.TheBook);
            ReplaceFileBytes(path, bytes);
            known_content_ = SumOf(bytes);
        });
    } catch (const FileFault&) {
        return TellWhyNotSaved();
    }
    open_.OpenedFile = path;
    known_file_ = path;
    open_.Modified = false;
    MsgBox(window_, L"Elmentve : " + path);
    WarnOfHeaderLookalikes(window_, open_.TheBook);
    return true;
}

bool FileMenu::MayReplace(const std::wstring& path) const {
    try {
        if (path != known_file_ || !HasChanged(path)) return true;
    } catch (const FileFault&) {
        return TellWhyNotSaved();
    }
    return MsgBox(window_,
                  path +
                      L"\r\n\r\nEzt a fájlt egy másik program megváltoztatta, mióta a könyvet megnyitotta "
                      L"vagy elmentette.\r\nFelülírjam a másik program változtatásait?",
                  MB_YESNO | MB_ICONWARNING | MB_DEFBUTTON2, kWarningTitle) == IDYES;
}

bool FileMenu::HasChanged(const std::wstring& path) const {
    const WaitCursor hourglass;
    return NamingTheFile(path, [&] {
        if (!IsFile(path)) return false;
        const std::vector<char> bytes = ReadFileBytes(path);
        return SumOf({bytes.data(), bytes.size()}) != known_content_;
    });
}

bool FileMenu::TellWhyNotSaved() const {
    MsgBox(window_, CurrentFault().Meaning(), MB_OK | MB_ICONERROR, kErrorTitle);
    return false;
}

void FileMenu::ShowFileNameInTitle() const {
    SetWindowTextW(window_, (L"Lindrel -" + FileNameOf(open_.OpenedFile)).c_str());
}

}  // namespace lindrel
