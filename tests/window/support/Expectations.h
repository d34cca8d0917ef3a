// What holds for every dialog and every command of the program, expected in the same words everywhere.
#pragma once

#include <functional>
#include <string>

#include "tests/window/support/Program.h"

namespace lindrel::testing {

// Opens a dialog, changes something in it and leaves it, once by its Cancel button and once by Esc: the main
// window and the book must be as before.
void ExpectCancelChangesNothing(const Program& program, const std::function<DialogOnScreen()>& open,
                                const std::function<void(const DialogOnScreen&)>& change, int cancel_button);

// Tells a dialog that it has come to a screen of another resolution and does what the dialog manager does
// then: every control gets the dialog's font.
void ChangeResolution(const Program& program, const DialogOnScreen& dialog, int dpi);

// A changed book, with a file to be saved in, that a fault must not lose.
class UnsavedBook {
  public:
    // Marks the program's book as changed; it is not saved yet.
    explicit UnsavedBook(Program& program);
    // The report of a fault with the text is on the screen. Takes the offer to save that follows it: the
    // program must end with exit code 1, and the book as it was before the fault must be in its file.
    void ExpectReportAndSave(const std::wstring& report) const;

  private:
    Program& program_;
    TemporaryFolder folder_;
    std::wstring file_;
    std::string before_;
};

}  // namespace lindrel::testing
