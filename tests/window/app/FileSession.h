// A book that is changed, opened and saved, and the boxes that come up on the way.
#pragma once

#include <gtest/gtest.h>

#include <future>
#include <string>

#include "resources/resource.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {

class FileSession : public ::testing::Test {
  protected:
    // Eleven headers and two entries: the twelfth category keeps its name, the eleventh its count of the book
    // before.
    static constexpr char kElevenHeaders[] =
        "#1\r\nA\r\nhttp://a.hu\r\nB\r\nhttp://"
        "b.hu\r\n#2\r\n#3\r\n#4\r\n#5\r\n#6\r\n#7\r\n#8\r\n#9\r\n#10\r\n#11\r\n";

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
    void ExpectState(const MainState& expected) const {
        program.Settle();
        EXPECT_TRUE(program.NothingIsOpen());
        EXPECT_EQ(program.State(), expected);
    }
    void ExpectSaveQuestion(const std::wstring& title, int answer) const {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), title);
        EXPECT_EQ(box.Text(), L"Kívánja menteni a módosításokat ?");
        EXPECT_EQ(box.Buttons(), (std::vector<int>{IDYES, IDNO, IDCANCEL}));
        EXPECT_EQ(box.Icon(), BoxIcon::Question);
        box.Press(answer);
    }
    void ExpectSaved(const std::wstring& path) const {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Lindrel");
        EXPECT_EQ(box.Text(), L"Elmentve : " + path);
        EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
        EXPECT_EQ(box.Icon(), BoxIcon::None);
        box.Press(IDOK);
    }

    // What the system asks each window before the session ends. The answer comes with the user's.
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
