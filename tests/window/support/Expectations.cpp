#include "tests/window/support/Expectations.h"

#include <gtest/gtest.h>

namespace lindrel::testing {

void ExpectCancelChangesNothing(const Program& program, const std::function<DialogOnScreen()>& open,
                                const std::function<void(const DialogOnScreen&)>& change, int cancel_button) {
    const MainState state = program.State();
    const std::string book = program.BookBytes();
    const auto expect_nothing_after = [&](const std::function<void(const DialogOnScreen&)>& leave) {
        const DialogOnScreen dialog = open();
        change(dialog);
        leave(dialog);
        program.Settle();
        EXPECT_EQ(program.State(), state);
        EXPECT_EQ(program.BookBytes(), book);
    };
    expect_nothing_after([&](const DialogOnScreen& dialog) { dialog.ClickAndWaitForClose(cancel_button); });
    expect_nothing_after([&](const DialogOnScreen& dialog) {
        PostMessageW(dialog.Control(cancel_button), WM_KEYDOWN, VK_ESCAPE, 1);
        dialog.WaitForClose();
    });
}

void ChangeResolution(const Program& program, const DialogOnScreen& dialog, int dpi) {
    program.OnUi([&](frmStart&) {
        RECT place{};
        EXPECT_TRUE(GetWindowRect(dialog.Handle(), &place));
        SendMessageW(dialog.Handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
        const auto font = static_cast<WPARAM>(SendMessageW(dialog.Handle(), WM_GETFONT, 0, 0));
        for (HWND control = GetWindow(dialog.Handle(), GW_CHILD); control != nullptr;
             control = GetWindow(control, GW_HWNDNEXT))
            SendMessageW(control, WM_SETFONT, font, FALSE);
    });
    program.Settle();
}

UnsavedBook::UnsavedBook(Program& program)
    : program_(program), file_(folder_.File(L"könyv.lnd")), before_(program.BookBytes()) {
    program_.OnUi([this](frmStart& form) {
        form.OpenedBook().OpenedFile = file_;
        form.OpenedBook().Modified = true;
    });
}

void UnsavedBook::ExpectReportAndSave(const std::wstring& report) const {
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

}  // namespace lindrel::testing
