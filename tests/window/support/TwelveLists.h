// A plain model of the program, to compare the real one with: twelve lists of names and addresses, and what
// the main window shows of them after each command. It shares no code with the program's own book. Categories
// are 1..12; positions of rows are 1-based, 0 means none.
#pragma once

#include <array>
#include <set>
#include <string>
#include <vector>

#include "tests/window/support/Program.h"

namespace lindrel::testing {

class TwelveLists {
  public:
    struct Category {
        std::wstring Name;
        std::vector<Row> Rows;
        std::set<int> Checked;
    };
    // Where an entry stands.
    struct Place {
        int Category;
        int Position;
    };

    // What the main window must show, and the file of the book.
    MainState State() const;
    std::string File() const;

    const Category& Of(int category) const { return categories_[static_cast<std::size_t>(category - 1)]; }
    std::vector<std::wstring> Names() const;
    const Row& At(const Place& place) const;
    const Category& ShownCategory() const { return Of(Shown); }
    int RowCount() const { return static_cast<int>(ShownCategory().Rows.size()); }
    int CheckedCount() const { return static_cast<int>(ShownCategory().Checked.size()); }
    int Total() const;
    // Several commands take a book for empty that has entries in category 12 only.
    bool SeemsEmpty() const { return Total() == static_cast<int>(Of(12).Rows.size()); }
    bool HasAddress() const { return !url_.empty(); }
    // The entries whose names contain a text and whose addresses carry an ending, in the order of the book.
    std::vector<Place> Find(const std::wstring& what, const std::wstring& ending) const;

    int Shown = 1;
    int Selected = 0;
    bool Modified = false;
    std::wstring OpenedFile;

    // What the user does in the window.
    void ClickTab(int category);
    void ClickRow(int position);
    void ClickBox(int position);
    void ClickHeader();

    // What the commands do once the user has answered.
    void CheckAllOrNone();
    void Rename(const std::vector<std::wstring>& names);
    void Add(int category, const Row& row);
    void Edit(int category, const Row& row);
    void Move(int category);
    void DeleteRows();
    void DeleteFound(const std::vector<Place>& places);  // in the find dialog, ascending
    void CloseFind(const std::vector<Place>& checked, bool deleted);
    void New();
    void Save(const std::wstring& path);
    void SaveUnderNewName(const std::wstring& path);  // which the title shows
    // The book that was saved in a file is opened from there.
    void Open(const TwelveLists& saved, const std::wstring& path);

  private:
    Category& Of(int category) { return categories_[static_cast<std::size_t>(category - 1)]; }
    void Refill();
    void ShowRow(int position);
    void TakeOut(const Place& place);
    std::vector<int> Chosen() const;  // the rows that move and delete work on

    std::array<Category, 12> categories_ = Fresh();
    static std::array<Category, 12> Fresh();
    std::wstring title_ = L"Lindrel ";
    std::wstring panel_, site_, url_;
};

}  // namespace lindrel::testing
