// A plain model of the main window: the model of a book, and what the window shows of it after each command.
// Categories are 1..12; positions of rows are 1-based, 0 means none.
#pragma once

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "tests/support/PlainBook.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {

// Where an entry is.
struct EntryPlace {
    int Category;
    int Position;
};

class WindowModel {
  public:
    int Shown = 1;
    int Selected = 0;
    bool Modified = false;
    std::wstring OpenedFile;

    MainState State() const {
        MainState state;
        state.Title = title_;
        state.Tabs = Names();
        state.SelectedTab = Shown;
        for (int position = 1; position <= RowCount(); ++position)
            state.Rows.push_back(At({Shown, position}));
        state.Checked.assign(book_.Of(Shown).Checked.begin(), book_.Of(Shown).Checked.end());
        state.SelectedRow = Selected;
        state.Status[0] = panel_;
        state.Status[1] =
            L"megjelenítve (" + std::to_wstring(RowCount()) + L" / " + std::to_wstring(Total()) + L")";
        state.Status[2] = L"bejelölve " + std::to_wstring(CheckedCount());
        state.txtSite = site_;
        state.txtURL = url_;
        state.OpenedFile = OpenedFile;
        state.Modified = Modified;
        return state;
    }
    std::string File() const { return book_.File(); }

    std::wstring Name(int category) const { return Wide(book_.Of(category).Name); }
    std::vector<std::wstring> Names() const {
        std::vector<std::wstring> names;
        for (int k = 1; k <= 12; ++k) names.push_back(Name(k));
        return names;
    }
    Row At(const EntryPlace& place) const {
        const auto& [name, address] = book_.At(place.Category, place.Position);
        return {Wide(name), Wide(address)};
    }
    int RowCount() const { return book_.Of(Shown).Count; }
    int CheckedCount() const { return static_cast<int>(book_.Of(Shown).Checked.size()); }
    int Total() const { return book_.Total(); }
    // Several commands take a book for empty that has entries in category 12 only.
    bool SeemsEmpty() const { return Total() == book_.Of(12).Count; }
    bool HasAddress() const { return !url_.empty(); }
    // The entries whose names contain a text and whose addresses have an ending, in the order of the book.
    std::vector<EntryPlace> Find(const std::wstring& what, const std::wstring& ending) const {
        std::vector<EntryPlace> found;
        for (int k = 1; k <= 12; ++k)
            for (int position = 1; position <= book_.Of(k).Count; ++position) {
                const auto [name, address] = At({k, position});
                if (Lower(name).find(Lower(what)) != std::wstring::npos && HasEnding(address, ending))
                    found.push_back({k, position});
            }
        return found;
    }

    // What the user does in the window.
    void ClickTab(int category) {
        if (category == Shown) return;
        Shown = category;
        Refill();
    }
    void ClickRow(int position) {
        Selected = position;
        ShowRow(position);
    }
    void ClickBox(int position) {
        std::set<int>& checked = book_.Of(Shown).Checked;
        if (checked.erase(position) == 0) checked.insert(position);
        if (position == Selected) ClickRow(std::min(position + 1, RowCount()));
    }
    void ClickHeader() {
        if (site_.empty() && RowCount() != 0) ShowRow(1);
    }

    // What the commands do once the user has answered.
    void CheckAllOrNone() {
        if (SeemsEmpty()) return;
        std::set<int>& checked = book_.Of(Shown).Checked;
        const bool all = checked.empty();
        checked.clear();
        for (int position = 1; all && position <= RowCount(); ++position) checked.insert(position);
    }
    void Rename(const std::vector<std::wstring>& names) {
        for (int k = 1; k <= 12; ++k) book_.Of(k).Name = Bytes(names[static_cast<std::size_t>(k - 1)]);
        Modified = true;
    }
    void Add(int category, const Row& row) {
        book_.Add(category, {Bytes(row)});
        RefillKeepingSelection();
    }
    void Edit(int category, const Row& row) {
        book_.At(book_.StartOf(Shown) + Selected - 1) = Bytes(row);
        if (category != Shown) {
            book_.Move(Shown, Selected - 1, category);
            book_.Of(Shown).Checked.clear();
        }
        RefillKeepingSelection();
    }
    void Move(int category) {
        if (category == Shown || Chosen().empty()) return;
        book_.MoveAll(Shown, Chosen(), category);
        AfterTakingOut();
    }
    void DeleteRows() {
        book_.DeleteAll(Shown, Chosen());
        AfterTakingOut();
    }
    // In the find dialog; ascending.
    void DeleteFound(const std::vector<EntryPlace>& places) {
        for (auto place = places.rbegin(); place != places.rend(); ++place)
            book_.Delete(place->Category, place->Position);
        Modified = true;
    }
    void CloseFind(const std::vector<EntryPlace>& checked, bool deleted) {
        if (deleted || !checked.empty()) book_.ForgetCheckMarks();
        for (const EntryPlace& place : checked) book_.Of(place.Category).Checked.insert(place.Position);
        Refill();
    }
    void New() {
        const std::wstring panel = panel_;  // keeps its text until the next fill
        const int shown = Shown;
        *this = {};
        panel_ = panel;
        Shown = shown;
    }
    void Save(const std::wstring& path) {
        OpenedFile = path;
        Modified = false;
    }
    // The title shows the name.
    void SaveUnderNewName(const std::wstring& path) {
        Save(path);
        title_ = L"Lindrel -" + path.substr(path.rfind(L'\\') + 1);
    }
    // A file that needs no question.
    void Open(const std::wstring& path, const std::string& file) {
        if (PlainReader(file).Read(book_) != PlainReport{})
            throw std::runtime_error("the program asks about this file");
        SaveUnderNewName(path);
        Refill();
    }

  private:
    static constexpr UINT kBookCodePage = 1250;

    static std::string Bytes(const std::wstring& text) {
        std::string bytes(text.size(), '\0');
        BOOL lost = FALSE;
        const int length = static_cast<int>(text.size());
        if (length != 0 && WideCharToMultiByte(kBookCodePage, WC_NO_BEST_FIT_CHARS, text.data(), length,
                                               bytes.data(), length, nullptr, &lost) != length)
            throw std::runtime_error("a text of the model has no bytes");
        if (lost) throw std::runtime_error("the model holds a text that no file can hold");
        return bytes;
    }
    static PlainBook::Row Bytes(const Row& row) { return {Bytes(row.first), Bytes(row.second)}; }
    static std::wstring Wide(const std::string& bytes) {
        std::wstring text(bytes.size(), L'\0');
        const int length = static_cast<int>(bytes.size());
        if (length != 0 &&
            MultiByteToWideChar(kBookCodePage, 0, bytes.data(), length, text.data(), length) != length)
            throw std::runtime_error("bytes of the model are no text");
        return text;
    }
    static std::wstring Lower(std::wstring text) {
        CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
        return text;
    }
    static bool HasEnding(const std::wstring& address, const std::wstring& ending) {
        const std::wstring lower = Lower(address);
        const std::size_t from = lower.starts_with(L"http://www") ? 11 : 4;
        return ending.empty() || lower.find(L"." + Lower(ending), from) != std::wstring::npos;
    }

    // The rows that moving and deleting work on.
    std::set<int> Chosen() const {
        const std::set<int>& checked = book_.Of(Shown).Checked;
        if (!checked.empty() || Selected == 0) return checked;
        return {Selected};
    }
    void AfterTakingOut() {
        book_.Of(Shown).Checked.clear();
        Refill();
        Modified = true;
    }
    void Refill() {
        Selected = 0;
        site_ = url_ = panel_ = L"";
    }
    void RefillKeepingSelection() {
        const int selected = std::min(Selected, RowCount());
        Refill();
        Selected = selected;
        Modified = true;
    }
    void ShowRow(int position) {
        std::tie(site_, url_) = At({Shown, position});
        panel_ = url_;
    }

    PlainBook book_;
    std::wstring title_ = L"Lindrel ";
    std::wstring panel_, site_, url_;
};

}  // namespace lindrel::testing
