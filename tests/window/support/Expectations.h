// What holds for every dialog and every command of the program, expected in the same words everywhere.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "tests/window/support/Program.h"

namespace lindrel::testing {

// Opens a dialog, changes something in it and leaves it, once by its Cancel button and once by Esc: the main
// window and the book must be as before.
inline void ExpectCancelChangesNothing(const Program& program, const std::function<DialogOnScreen()>& open,
                                       const std::function<void(const DialogOnScreen&)>& change,
                                       int cancel_button) {
    const MainState state = program.State();
    const std::string book = program.BookBytes();
    for (const bool by_key : {false, true}) {
        const DialogOnScreen dialog = open();
        change(dialog);
        if (by_key)
            PostMessageW(dialog.Control(cancel_button), WM_KEYDOWN, VK_ESCAPE, 1);
        else
            dialog.Click(cancel_button);
        dialog.WaitForClose();
        program.Settle();
        EXPECT_EQ(program.State(), state);
        EXPECT_EQ(program.BookBytes(), book);
    }
}

// Tells a dialog that it has come to a screen of another resolution and does what the dialog manager does
// then: every control gets the dialog's font.
inline void ChangeResolution(const Program& program, const DialogOnScreen& dialog, int dpi) {
    program.OnUi([&](frmStart&) {
        RECT bounds{};
        EXPECT_TRUE(GetWindowRect(dialog.Handle(), &bounds));
        SendMessageW(dialog.Handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&bounds));
        const auto font = static_cast<WPARAM>(SendMessageW(dialog.Handle(), WM_GETFONT, 0, 0));
        for (HWND control = GetWindow(dialog.Handle(), GW_CHILD); control != nullptr;
             control = GetWindow(control, GW_HWNDNEXT))
            SendMessageW(control, WM_SETFONT, font, FALSE);
    });
    program.Settle();
}

// A changed book with a file, which a fault must not lose.
class UnsavedBook {
  public:
    // Gives the program's book a file that does not exist yet, and says that it was changed.
    explicit UnsavedBook(Program& program)
        : program_(program), file_(folder_.File(L"könyv.lnd")), before_(program.BookBytes()) {
        program_.OnUi([this](frmStart& form) {
            form.OpenedBook().OpenedFile = file_;
            form.OpenedBook().Modified = true;
        });
    }
    // The report of a fault is on the screen. Takes the offer to save that follows it: the program must end
    // with exit code 1, and the book as it was before the fault must be in its file.
    void ExpectReportAndSave(const std::wstring& report) const {
        const BoxOnScreen box = program_.Box();
        EXPECT_EQ(box.Title(), L"Lindrel");
        EXPECT_EQ(box.Text(), report);
        EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
        EXPECT_EQ(box.Icon(), BoxIcon::Error);
        box.Press(IDOK);
        const BoxOnScreen question = program_.Box();
        EXPECT_EQ(question.Title(), L"A fájl módosult");
        EXPECT_EQ(question.Buttons(), (std::vector<int>{IDYES, IDNO, IDCANCEL}));
        question.Press(IDYES);
        const BoxOnScreen saved = program_.Box();
        EXPECT_EQ(saved.Text(), L"Elmentve : " + file_);
        saved.Press(IDOK);
        EXPECT_EQ(program_.WaitForEnd(), 1);
        EXPECT_EQ(TemporaryFolder::Read(file_), before_);
    }

  private:
    Program& program_;
    TemporaryFolder folder_;
    std::wstring file_;
    std::string before_;
};

}  // namespace lindrel::testing
