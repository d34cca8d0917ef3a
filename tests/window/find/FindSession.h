// Books to search, and the find dialog on them.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "resources/resource.h"
#include "tests/window/app/ExpectBox.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {

// The find dialog with its hits.
class FindDialog : public DialogOnScreen {
  public:
    FindDialog(const Program& program, const DialogOnScreen& dialog)
        : DialogOnScreen(dialog), program_(program) {}

    ListOnScreen List() const { return ListOnScreen(Control(ID_frmFind_ListView)); }
    void Search(const std::wstring& what, const std::wstring& ending = L"") const {
        SetText(ID_frmFind_txtWhat, what);
        SetText(ID_frmFind_txtTag, ending);
        Press(ID_frmFind_cmdFind);
    }
    // A button that opens nothing.
    void Press(int button) const {
        Click(button);
        program_.Settle();
    }
    void Check(const std::vector<int>& rows) const {
        for (const int row : rows) {
            List().ClickBox(row);
            program_.Settle();
        }
    }
    void ClickHit(int row) const {
        List().ClickRow(row);
        program_.Settle();
    }
    // A key in the list. Returns at once: it may open a box.
    void ListKey(WPARAM key) const { PostMessageW(List().Handle(), WM_KEYDOWN, key, 1); }
    // Deletes the selected or the checked hits, after their question.
    void DeleteSelected(int answer = IDOK) const {
        ListKey(VK_DELETE);
        ExpectDeleteQuestion(program_, answer);
    }
    void DeleteHit(int row) const {
        ClickHit(row);
        DeleteSelected();
    }
    void DeleteChecked(int count, int answer = IDYES) const {
        Click(ID_frmFind_cmdDel);
        ExpectDeleteQuestion(program_, count, answer);
    }
    // The address of each hit, as a click on it shows it.
    std::vector<std::wstring> Addresses() const {
        std::vector<std::wstring> addresses;
        for (int row = 1; row <= List().Count(); ++row) {
            ClickHit(row);
            addresses.push_back(Text(ID_frmFind_lblURL));
        }
        return addresses;
    }
    void Close() const {
        Cancel();
        program_.Settle();
    }

  private:
    const Program& program_;
};

class FindSession : public ::testing::Test {
  protected:
    FindDialog Open() const {
        program.Choose(ID_mnuFind);
        const FindDialog dialog{program, program.Dialog(L"Keresés")};
        opened_ = dialog.Handle();
        return dialog;
    }
    // Closes the dialog if the test has not done so.
    void TearDown() override {
        if (IsWindow(opened_)) FindDialog(program, DialogOnScreen(opened_)).Close();
    }
    // The dialog over a book of one category, all of it found.
    FindDialog FindAll(const std::vector<Row>& rows) const {
        program.Add(1, rows);
        const FindDialog dialog = Open();
        dialog.Search(L"");
        return dialog;
    }
    // Five entries in three categories, not searched yet.
    FindDialog OpenHungarian() const {
        program.Add(1, {{L"MŰSOR", L"http://www.musor.hu"}, {L"Időjárás", L"http://idojaras.com"}});
        program.Add(3, {{L"űrhajó", L"http://urhajo.hu/"}, {L"Bolt & társa", L"http://bolt.hu/?a=1&b=2"}});
        program.Add(12, {{L"tűrő", L"ftp://tur.gov/"}});
        return Open();
    }
    // Six entries in two categories; every name holds "x".
    void AddSixEntries() const {
        program.Add(2, {{L"x1", L"http://1.hu"}, {L"x2", L"http://2.hu"}, {L"x3", L"http://3.hu"}});
        program.Add(5, {{L"x4", L"http://4.hu"}, {L"x5", L"http://5.hu"}, {L"x6", L"http://6.hu"}});
    }
    FindDialog FindSix() const {
        AddSixEntries();
        return FindX();
    }
    FindDialog FindX() const {
        const FindDialog dialog = Open();
        dialog.Search(L"x");
        return dialog;
    }

    Program program;

  private:
    mutable HWND opened_ = nullptr;
};

}  // namespace lindrel::testing
