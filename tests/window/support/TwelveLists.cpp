#include "tests/window/support/TwelveLists.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>

namespace lindrel::testing {

namespace {

std::wstring Lower(std::wstring text) {
    CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

bool Carries(const std::wstring& address, const std::wstring& ending) {
    const std::wstring lower = Lower(address);
    const std::size_t from = lower.starts_with(L"http://www") ? 11 : 4;
    return ending.empty() || lower.find(L"." + Lower(ending), from) != std::wstring::npos;
}

// The bytes of a text in a file.
std::string Bytes(const std::wstring& text) {
    std::string bytes(text.size(), '\0');
    BOOL lost = FALSE;
    const int length = static_cast<int>(text.size());
    if (length != 0 && WideCharToMultiByte(1250, WC_NO_BEST_FIT_CHARS, text.data(), length, bytes.data(),
                                           length, nullptr, &lost) != length)
        throw std::runtime_error("a text of the model has no bytes");
    if (lost) throw std::runtime_error("the model holds a text that no file can hold");
    return bytes;
}

}  // namespace

std::array<TwelveLists::Category, 12> TwelveLists::Fresh() {
    std::array<Category, 12> fresh;
    for (std::size_t k = 0; k < fresh.size(); ++k) fresh[k].Name = L"Project" + std::to_wstring(k + 1);
    return fresh;
}

MainState TwelveLists::State() const {
    MainState state;
    state.Title = title_;
    state.Tabs = Names();
    state.SelectedTab = Shown;
    state.Rows = ShownCategory().Rows;
    state.Checked.assign(ShownCategory().Checked.begin(), ShownCategory().Checked.end());
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

std::string TwelveLists::File() const {
    std::string file;
    for (const Category& category : categories_) {
        file += "#" + Bytes(category.Name) + "\r\n";
        for (const Row& row : category.Rows) file += Bytes(row.first) + "\r\n" + Bytes(row.second) + "\r\n";
    }
    return file;
}

std::vector<std::wstring> TwelveLists::Names() const {
    std::vector<std::wstring> names;
    for (const Category& category : categories_) names.push_back(category.Name);
    return names;
}

const Row& TwelveLists::At(const Place& place) const {
    return Of(place.Category).Rows.at(static_cast<std::size_t>(place.Position - 1));
}

int TwelveLists::Total() const {
    std::size_t total = 0;
    for (const Category& category : categories_) total += category.Rows.size();
    return static_cast<int>(total);
}

std::vector<TwelveLists::Place> TwelveLists::Find(const std::wstring& what,
                                                  const std::wstring& ending) const {
    std::vector<Place> found;
    for (int k = 1; k <= 12; ++k) {
        int position = 0;
        for (const auto& [name, address] : Of(k).Rows) {
            ++position;
            if (Lower(name).find(Lower(what)) != std::wstring::npos && Carries(address, ending))
                found.push_back({k, position});
        }
    }
    return found;
}

void TwelveLists::Refill() {
    Selected = 0;
    site_ = url_ = panel_ = L"";
}

void TwelveLists::ShowRow(int position) {
    std::tie(site_, url_) = At({Shown, position});
    panel_ = url_;
}

void TwelveLists::ClickTab(int category) {
    if (category == Shown) return;
    Shown = category;
    Refill();
}

void TwelveLists::ClickRow(int position) {
    Selected = position;
    ShowRow(position);
}

void TwelveLists::ClickBox(int position) {
    std::set<int>& checked = Of(Shown).Checked;
    if (checked.erase(position) == 0) checked.insert(position);
    if (position == Selected) ClickRow(std::min(position + 1, RowCount()));
}

void TwelveLists::ClickHeader() {
    if (site_.empty() && RowCount() != 0) ShowRow(1);
}

void TwelveLists::CheckAllOrNone() {
    if (SeemsEmpty()) return;
    std::set<int>& checked = Of(Shown).Checked;
    const bool all = checked.empty();
    checked.clear();
    for (int position = 1; all && position <= RowCount(); ++position) checked.insert(position);
}

void TwelveLists::Rename(const std::vector<std::wstring>& names) {
    for (std::size_t k = 0; k < names.size(); ++k) categories_[k].Name = names[k];
    Modified = true;
}

void TwelveLists::Add(int category, const Row& row) {
    const int selected = Selected;
    Of(category).Rows.push_back(row);
    Refill();
    Selected = selected;
    Modified = true;
}

void TwelveLists::Edit(int category, const Row& row) {
    const int selected = Selected;
    Of(Shown).Rows[static_cast<std::size_t>(selected - 1)] = row;
    if (category != Shown) {
        TakeOut({Shown, selected});
        Of(category).Rows.push_back(row);
        Of(Shown).Checked.clear();
    }
    Refill();
    Selected = std::min(selected, RowCount());
    Modified = true;
}

std::vector<int> TwelveLists::Chosen() const {
    const std::set<int>& checked = ShownCategory().Checked;
    if (!checked.empty()) return {checked.begin(), checked.end()};
    return Selected == 0 ? std::vector<int>{} : std::vector<int>{Selected};
}

void TwelveLists::TakeOut(const Place& place) {
    std::vector<Row>& rows = Of(place.Category).Rows;
    rows.erase(rows.begin() + place.Position - 1);
}

void TwelveLists::Move(int category) {
    if (category == Shown || Chosen().empty()) return;
    for (const int position : Chosen()) Of(category).Rows.push_back(At({Shown, position}));
    DeleteRows();
}

void TwelveLists::DeleteRows() {
    const std::vector<int> gone = Chosen();
    for (std::size_t i = gone.size(); i-- > 0;) TakeOut({Shown, gone[i]});
    Of(Shown).Checked.clear();
    Refill();
    Modified = true;
}

void TwelveLists::DeleteFound(const std::vector<Place>& places) {
    for (std::size_t i = places.size(); i-- > 0;) TakeOut(places[i]);
    Modified = true;
}

void TwelveLists::CloseFind(const std::vector<Place>& checked, bool deleted) {
    if (deleted || !checked.empty())
        for (Category& category : categories_) category.Checked.clear();
    for (const Place& place : checked) Of(place.Category).Checked.insert(place.Position);
    Refill();
}

void TwelveLists::New() {
    const std::wstring panel = panel_;  // keeps its text until the next fill
    const int shown = Shown;
    *this = {};
    panel_ = panel;
    Shown = shown;
}

void TwelveLists::Save(const std::wstring& path) {
    OpenedFile = path;
    Modified = false;
}

void TwelveLists::SaveUnderNewName(const std::wstring& path) {
    Save(path);
    title_ = L"Lindrel -" + path.substr(path.rfind(L'\\') + 1);
}

void TwelveLists::Open(const TwelveLists& saved, const std::wstring& path) {
    categories_ = saved.categories_;
    for (Category& category : categories_) category.Checked.clear();
    SaveUnderNewName(path);
    Refill();
}

}  // namespace lindrel::testing
