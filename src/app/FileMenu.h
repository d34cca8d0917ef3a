// The commands of the file menu that open, save and close the book, and the question whether to save it.
#pragma once

#include <optional>
#include <string>

#include "app/BookView.h"
#include "book/OpenBook.h"
#include "files/Files.h"

namespace lindrel {

// The two titles of the question whether to save. Their spellings differ, as users have always seen them.
enum class SaveQuestion { Command, Closing };

// What came of the question.
enum class SaveAnswer {
    NotSaved,   // there was nothing to save, or the user does not want it saved
    Saved,      // the user said Yes, even when the save dialog was then cancelled and the changes are lost
    CalledOff,  // the user cancelled, or the book could not be written: what asked must not go on
};

class FileMenu {
  public:
    FileMenu(OpenBook& open, BookView& view) : open_(open), view_(view) {}

    // The window that bears the title and owns the boxes.
    void Attach(HWND window) { window_ = window; }
    // WM_COMMAND of the window. True when the id is that of one of these commands.
    bool OnCommand(int id);

    // Puts an empty book in the place of the open one.
    void ResetBook();
    // Opens the book of a path, with the question whether to save, as mnuOpen does with the chosen one.
    void OpenDropped(const std::wstring& path);
    // Asks when there are unsaved changes, and saves the book on Yes.
    SaveAnswer OfferToSave(SaveQuestion question);

  private:
    void mnuNew_Click() { ResetAfterOffer(); }
    void mnuClose_Click() { ResetAfterOffer(); }
    void mnuOpen_Click();
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void mnuExit_Click();

    void ResetAfterOffer();
    void OpenChosenBook();
    // Shows the book of OpenedFile. When it cannot be read, tells why and puts `before` in its place.
    void OpenBookFile(const std::wstring& before);
    // What the file dialog is shown for. The first save of a book may meet another file of that name, and
    // then it is the dialog that asks; Save As asks by itself.
    enum class Choice { Open, FirstSave, SaveAs };
    // Returns whether a file was picked; OpenedFile is its path then.
    bool ChooseBookFile(Choice choice);
    // Reads a book, sets the title and clears Modified. On failure tells why, changes nothing and returns
    // false.
    bool LoadBook(const std::wstring& path);
    // Writes the book, clears Modified and tells the user. On failure tells why, changes nothing and returns
    // false, as it does when the user does not want to replace what another program has written.
    bool SaveBook(const std::wstring& path);
    // False when another program has changed the book's file and the user wants to keep that.
    bool MayReplace(const std::wstring& path) const;
    // Saves to the path that the user has just chosen, and shows its name in the title. When that fails the
    // book belongs to the path before, so that the next save does not run into the same wall.
    void SaveUnderNewName(const std::wstring& before);
    void SetTitle(const std::wstring& title) const;

    OpenBook& open_;
    BookView& view_;
    HWND window_ = nullptr;
    // The file that the book was read from or written to last, as it was then.
    std::wstring known_file_;
    std::optional<FileState> known_state_;
};

}  // namespace lindrel
