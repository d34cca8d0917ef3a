// Category tabs, the address list and its check marks, the two text fields.

#include "app/frmStart.h"
#include "book/StatusTexts.h"
#include "controls/Clipboard.h"
#include "controls/PendingFault.h"
#include "resources/resource.h"

namespace lindrel {

void frmStart::FillAddressList(int category) {
    CategoryRows rows = TheBook.RowsOf(category);
    txtURL.SetText(L"");
    txtSite.SetText(L"");
    StatusBar1.SetPanel(1, L"");
    ShowCheckedCount();
    const int count = static_cast<int>(rows.Entries.size());
    ListURLs.SetRows(count, [rows = std::move(rows)](int position, int column) {
        const AddressEntry& entry = rows.Entries[static_cast<std::size_t>(position - 1)];
        return FromBookText(column == 0 ? entry.SiteName : entry.URL);
    });
    StatusBar1.SetPanel(2, ShownText(count, TheBook.EntryCount()));
    EnableCommand(ID_mnuToDesktop, count != 0);
}

void frmStart::ShowCheckedCount() {
    StatusBar1.SetPanel(3, CheckedText(TheBook.CheckedCount));
}

void frmStart::TabStrip1_Click() {
    SaveCheckMarks(CurrentCategory);
    CurrentCategory = static_cast<std::uint8_t>(SelectedCategory());
    TheBook.CheckedCount = TheBook.SavedCheckCounts(CurrentCategory);
    FillAddressList(CurrentCategory);
    RestoreCheckMarks(CurrentCategory);
}

void frmStart::SelectTab(int category) {
    TabStrip1.Select(category);
    TabStrip1_Click();
}

void frmStart::SaveCheckMarks(int category) {
    TheBook.SavedCheckCounts(category) = TheBook.CheckedCount;
    // With nothing checked the old list stays; nobody reads it while the count is 0.
    if (TheBook.CheckedCount == 0) return;
    std::vector<std::int16_t> positions;
    for (int position = 1; position <= ListURLs.Count(); ++position)
        if (ListURLs.IsChecked(position)) positions.push_back(static_cast<std::int16_t>(position));
    TheBook.SavedCheckLists(category) = std::move(positions);
}

void frmStart::RestoreCheckMarks(int category) {
    const std::int16_t count = TheBook.SavedCheckCounts(category);
    const std::vector<std::int16_t>& positions = TheBook.SavedCheckLists(category);
    if (positions.size() < static_cast<std::size_t>(count)) throw RangeFault();
    ListURLs.CheckRows({positions.data(), static_cast<std::size_t>(count)});
}

void frmStart::SetAllChecks(bool value) {
    ListURLs.SetAllChecked(value);
    TheBook.CheckedCount = static_cast<std::int16_t>(value ? ListURLs.Count() : 0);
    ShowCheckedCount();
}

void frmStart::mnuSelectAll_Click() {
    // Category 12 is not looked at (intended): with entries only there the command does nothing.
    if (TheBook.CategoryStarts(kCategories) == 1) return;
    SetAllChecks(TheBook.CheckedCount == 0);
}

void frmStart::ShowEntry(int index) {
    txtSite.SetText(FromBookText(TheBook.SiteNames(index)));
    txtURL.SetText(FromBookText(TheBook.SiteURLs(index)));
    StatusBar1.SetPanel(1, txtURL.Text());
}

void frmStart::ListURLs_ItemClick() {
    const int position = ListURLs.Selected();
    if (position != 0) ShowEntry(TheBook.IndexOf(SelectedCategory(), position));
}

void frmStart::ListURLs_ItemCheck(int position) {
    TheBook.CheckedCount =
        static_cast<std::int16_t>(TheBook.CheckedCount + (ListURLs.IsChecked(position) ? 1 : -1));
    ShowCheckedCount();
    if (position != ListURLs.Selected()) return;
    // The space bar walks down the list, checking.
    if (position != ListURLs.Count()) {
        ListURLs.Select(position + 1);
        ListURLs.EnsureVisible(position + 1);
    }
    ListURLs_ItemClick();
}

void frmStart::ListURLs_ColumnClick() {
    if (txtSite.IsEmpty() && ListURLs.Count() != 0) ShowEntry(TheBook.CategoryStarts(SelectedCategory()));
}

void frmStart::txtURL_DblClick() {
    if (!txtURL.IsEmpty()) SetClipboardText(handle_, txtURL.Text());
}

void frmStart::txtURL_KeyPress(wchar_t key) {
    constexpr wchar_t kControlC = 3;
    if (key == kControlC) SetClipboardText(handle_, txtURL.SelectedText());
}

LRESULT CALLBACK frmStart::UrlSubclass(HWND window, UINT message, WPARAM first, LPARAM second, UINT_PTR id,
                                       DWORD_PTR data) {
    auto* const form = reinterpret_cast<frmStart*>(data);
    if (message == WM_NCDESTROY) static_cast<void>(RemoveWindowSubclass(window, &frmStart::UrlSubclass, id));
    const LRESULT result = DefSubclassProc(window, message, first, second);
    Guarded<int>(0, [&] {
        if (message == WM_LBUTTONDBLCLK) form->txtURL_DblClick();
        if (message == WM_CHAR) form->txtURL_KeyPress(static_cast<wchar_t>(first));
        return 0;
    });
    return result;
}

}  // namespace lindrel
