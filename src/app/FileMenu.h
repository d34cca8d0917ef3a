// The commands of the file menu that open, save and close the book, and the question whether to save it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "app/BookView.h"
#include "book/OpenBook.h"

namespace lindrel {

class FileMenu {
  public:
    FileMenu(OpenBook& open, BookView& view) : open_(open), view_(view) {}

    // Sets the window that shows the book's title and owns the boxes.
    void Attach(HWND window) { window_ = window; }
    // WM_COMMAND of the window. True if the id is that of one of these commands.
    bool OnCommand(int id);

    // Replaces the open book with an empty one.
    void ResetBook();
    // Does what mnuOpen does, with this file instead of a chosen one.
    void OpenDropped(const std::wstring& path);
    // Offers to save unsaved changes before the window is closed. False if it must stay open: the user
    // cancelled, or the book could not be written.
    bool MayClose();

  private:
    void mnuNew_Click() { ResetAfterOffer(); }
    void mnuOpen_Click();
    void mnuClose_Click() { ResetAfterOffer(); }
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void mnuExit_Click();

    // What came of the offer to save.
    enum class Offer {
        NotSaved,   // there was nothing to save, or the user answered No
        Saved,      // the user answered Yes, even if the save dialog was then cancelled
        CalledOff,  // the user cancelled, or the book could not be written
    };
    Offer OfferToSave(const wchar_t* title);
    void ResetAfterOffer();
    // Reads and shows a book and makes it the open one. If it cannot be read, tells the user why and changes
    // nothing.
    void OpenBookFile(const std::wstring& path);
    // The chosen path, or nullopt if the user cancels or the dialog fails.
    std::optional<std::wstring> ChooseFileToSave(bool ask_to_overwrite) const;
    // Asks first if another program has changed the book's file, then writes it.
    bool SaveBook(const std::wstring& path) { return MayReplace(path) && WriteBook(path); }
    // Writes the book, which belongs to this file from then on, and tells the user. If it cannot be written,
    // tells why, changes nothing and returns false.
    bool WriteBook(const std::wstring& path);
    // False if another program has changed the book's file and the user wants to keep that, or if it cannot
    // be read, which the user is told.
    bool MayReplace(const std::wstring& path) const;
    // Whether the book's file is there with another content than it was last read or written with. Throws
    // FileFault if it cannot be read.
    bool HasChanged(const std::wstring& path) const;
    // In a catch clause: tells why a file could not be saved. Returns false.
    bool TellWhyNotSaved() const;
    void ShowFileNameInTitle() const;

    OpenBook& open_;
    BookView& view_;
    HWND window_ = nullptr;
    // The file that was last read or written, and the sum of its content at that time.
    std::wstring known_file_;
    std::size_t known_content_ = 0;
};

}  // namespace lindrel
