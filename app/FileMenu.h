// The commands of the file menu that open, save and close the book, and the question whether to save it.
#pragma once

#include <string>

#include "app/BookView.h"
#include "book/OpenBook.h"
#include "controls/CommonDialog.h"

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
    FileMenu(OpenBook& open, BookView& view, CommonDialog& file_dialog)
        : open_(open), view_(view), CommonDialog1(file_dialog) {}

    // The window that bears the title and owns the boxes.
    void Attach(HWND window) { window_ = window; }
    // WM_COMMAND of the window. True when the id is that of one of these commands.
    bool OnCommand(int id);

    // Puts an empty book in the place of the open one.
    void ResetBook();
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
    // Shows the open or save dialog. Returns whether a file was picked; OpenedFile is its path then.
    bool ChooseBookFile(bool open);
    // Reads a book, sets the title and clears Modified. On failure tells why, changes nothing and returns
    // false.
    bool LoadBook(const std::wstring& path);
    // Writes the book, clears Modified and tells the user. On failure tells why, changes nothing and returns
    // false.
    bool SaveBook(const std::wstring& path);
    // Saves to the path that the user has just chosen, and shows its name in the title.
    void SaveUnderNewName();
    void WarnOfHeaderLookalikes() const;
    void SetTitle(const std::wstring& title) const;

    OpenBook& open_;
    BookView& view_;
    CommonDialog& CommonDialog1;
    HWND window_ = nullptr;
};

}  // namespace lindrel
