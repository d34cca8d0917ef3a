// A user who does at random what one can do in the program, in its real windows, and knows from a plain model
// what must come of it. Its steps depend on the seed and on the model only, so the same seed walks the same
// way again.
//     RandomUser.cpp       which step comes next; tabs, rows and check marks
//     RandomUser_Edit.cpp  the dialogs that add, edit, move, delete and rename
//     RandomUser_Find.cpp  the find dialog
//     RandomUser_File.cpp  new, open, save, save as
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "tests/window/find/FindSession.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/RandomTexts.h"
#include "tests/window/support/TwelveLists.h"

namespace lindrel::testing {

class RandomUser {
  public:
    explicit RandomUser(std::uint32_t seed) : texts_(seed) {}

    // One step, and a comparison of everything with the model. What is not as it should be fails the test.
    void Step();
    // Saves the book in a new file, opens it again, and compares everything.
    void SaveAndReopen();
    // The last steps, one a line, to be shown when something is wrong.
    std::string LastSteps() const;

  private:
    void Compare() const;
    // Tells what is done next.
    void Note(const std::string& step);
    bool OneIn(int times) { return texts_.OneIn(times); }
    int RollCategory();
    int RollRow() { return texts_.Roll(lists_.RowCount()) + 1; }

    void ClickTab();
    bool TabIsInView(int category) const;
    void ClickRow();
    void ClickBoxes();
    void PressSpaces();
    void PressArrow();
    void ClickHeader();
    void CheckAllOrNone();

    void Add();
    void Edit();
    void Move();
    void Delete();
    void Rename();
    // Typing and leaving, each in the ways that there are.
    void Type(const DialogOnScreen& dialog, int field, const std::wstring& text);
    void Accept(const DialogOnScreen& dialog, int ok_button, int field);
    void Leave(const DialogOnScreen& dialog, int cancel_button);
    // Tries texts that the fields for name and address refuse, and reads why.
    void TryWrongTexts(const DialogOnScreen& dialog, int name_field, int address_field, int ok_button);
    void ExpectForeignCharacterRefused(const DialogOnScreen& dialog, int field, const std::wstring& text);
    void ExpectCategories(const DialogOnScreen& dialog, int combo) const;
    // Keeps the shown category or picks another one; returns it.
    int PickCategory(const DialogOnScreen& dialog, int combo);
    // Answers the question whether to delete; whether the answer was yes.
    bool AnswerDeletion(int count_of_checked);

    void Find();
    void Search(const FindDialog& dialog);
    void CheckHit(const FindDialog& dialog);
    void CheckAllHits(const FindDialog& dialog);
    void ClickHit(const FindDialog& dialog);
    void DeleteHits(const FindDialog& dialog);
    void ShowHitsAnew();
    std::vector<TwelveLists::Place> CheckedHits() const;
    void ExpectHits(const FindDialog& dialog) const;

    void New();
    void Open();
    void Save();
    void SaveAs();
    enum class Offer { NotSaved, Saved, CalledOff };
    // Answers the question whether to save, if it has to come.
    Offer AnswerSaveQuestion();
    void ExpectSaved(const std::wstring& path);
    void ExpectFileOfBook(const std::wstring& path);
    std::wstring NewFile();

    RandomTexts texts_;
    TwelveLists lists_;
    TemporaryFolder folder_;
    Program program_;
    std::deque<std::string> steps_;
    int steps_made_ = 0;
    int files_made_ = 0;
    std::deque<std::pair<std::wstring, TwelveLists>> saved_;  // the last files and what is in them

    // The find dialog while it is open.
    std::wstring what_, ending_;
    std::vector<TwelveLists::Place> hits_;
    std::vector<bool> hit_checked_;
    bool hit_deleted_ = false;
};

}  // namespace lindrel::testing
