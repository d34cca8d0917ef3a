// A book that is changed, opened and saved, and the boxes that appear.
#pragma once

#include <future>
#include <string>

#include "resources/resource.h"
#include "tests/window/app/ExpectBox.h"

namespace lindrel::testing {

class FileSession : public ::testing::Test {
  protected:
    // Eleven headers and two entries. The twelfth category keeps its name, and the eleventh the count that it
    // had in the book before.
    static constexpr char kElevenHeaders[] =
        "#1\r\nA\r\nhttp://a.hu\r\nB\r\nhttp://"
        "b.hu\r\n#2\r\n#3\r\n#4\r\n#5\r\n#6\r\n#7\r\n#8\r\n#9\r\n#10\r\n#11\r\n";
    static constexpr wchar_t kAtCommand[] = L"A file módosult";
    static constexpr wchar_t kAtClosing[] = L"A fájl módosult";

    static void AddOne(frmStart& form, int category) {
        form.OpenedBook().TheBook.AddEntry(category, {{"N\xE9v", "http://nev.hu"}});
        form.OpenedBook().Modified = true;
        form.View().FillAddressList(1);
    }
    void Change(int category = 1) const {
        program.OnUi([category](frmStart& form) { AddOne(form, category); });
    }
    // What the window shows after Change(), and the file of that book.
    static MainState ChangedState() {
        MainState state = EmptyState();
        state.Rows = {{L"Név", L"http://nev.hu"}};
        state.Status[1] = L"megjelenítve (1 / 1)";
        state.Modified = true;
        return state;
    }
    static std::string ChangedBook() { return OneEntryBook("N\xE9v\r\nhttp://nev.hu\r\n"); }
    static std::string OneEntryBook(const std::string& entry) {
        std::string bytes = "#Project1\r\n" + entry;
        for (int k = 2; k <= 12; ++k) bytes += "#Project" + std::to_string(k) + "\r\n";
        return bytes;
    }
    void SetModified(bool modified) const {
        program.OnUi([=](frmStart& form) { form.OpenedBook().Modified = modified; });
    }
    void SetOpenedFile(const std::wstring& path) const {
        program.OnUi([&](frmStart& form) { form.OpenedBook().OpenedFile = path; });
    }
    // Answers the question whether to save: before a command does its work, and before the window is closed.
    void ChooseAndAnswer(int command, int answer) const {
        program.Choose(command);
        ExpectSaveQuestion(kAtCommand, answer);
    }
    void CloseAndAnswer(int answer) const {
        program.Close();
        ExpectSaveQuestion(kAtClosing, answer);
    }
    // Chooses a command that asks for a file, and gives it the path.
    void ChooseWithFile(int command, const std::wstring& path) const {
        program.Choose(command);
        program.FileDialog().Accept(path);
    }
    // A book that counts five entries in category 11 which it does not have; returns its path.
    std::wstring OpenBookWithoutItsEntries() const {
        for (int i = 0; i < 5; ++i) Change(11);
        SetModified(false);
        const std::wstring path = folder.Write(L"kevés.lnd", kElevenHeaders);
        ChooseWithFile(ID_mnuOpen, path);
        program.Box().Press(IDOK);
        program.Settle();
        SetModified(true);
        return path;
    }
    void ExpectState(const MainState& expected) const { testing::ExpectState(program, expected); }
    void ExpectSaveQuestion(const std::wstring& title, int answer) const {
        ExpectBox(program,
                  {title, L"Kívánja menteni a módosításokat ?", BoxIcon::Question, {IDYES, IDNO, IDCANCEL}},
                  answer);
    }
    // Save As asks it.
    void ExpectOverwriteQuestion(const std::wstring& path, int answer) const {
        ExpectBox(program,
                  {.Text = L"A " + path + L" már létezik.\r\nFelülírjam a már létező fájlt?",
                   .Icon = BoxIcon::Question,
                   .Buttons = {IDYES, IDNO, IDCANCEL}},
                  answer);
    }
    void ExpectSaved(const std::wstring& path) const { ExpectBox(program, {.Text = L"Elmentve : " + path}); }
    // The system gives the reason in words that differ from version to version, so any will do.
    void ExpectFailure(const std::wstring& path) const {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Hiba");
        EXPECT_EQ(box.Text().substr(0, path.size() + 2), path + L"\r\n");
        EXPECT_GT(box.Text().size(), path.size() + 2);
        EXPECT_EQ(box.Icon(), BoxIcon::Error);
        box.Press(IDOK);
    }

    // What the system asks each window before the session ends. The answer comes after the user's.
    std::future<LRESULT> QueryEndSession() const {
        return std::async(std::launch::async,
                          [window = program.Main()] { return AnswerToEndSession(window); });
    }
    static LRESULT AnswerToEndSession(HWND window) {
        DWORD_PTR answer = 0;
        const auto deadline =
            static_cast<UINT>(std::chrono::duration_cast<std::chrono::milliseconds>(kDeadline).count());
        if (SendMessageTimeoutW(window, WM_QUERYENDSESSION, 0, 0, SMTO_NORMAL, deadline, &answer) == 0)
            throw DeadlinePassed("the answer to the end of the session");
        return static_cast<LRESULT>(answer);
    }

    TemporaryFolder folder;
    Program program;
};

}  // namespace lindrel::testing
