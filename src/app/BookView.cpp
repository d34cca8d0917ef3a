#include "app/BookView.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "resources/resource.h"
#include "system/Clipboard.h"
#include "text/BookText.h"
#include "window/Display.h"
#include "window/PopupMenu.h"

namespace lindrel {

namespace {

// The longest texts of the status bar's counters.
constexpr std::wstring_view kMostShown = L"megjelenítve (32767 / 32767)";
constexpr std::wstring_view kMostChecked = L"bejelölve 32767";

// Width of a panel that shows a text, in pixels.
int PanelWidth(const StatusBar& bar, std::wstring_view text) {
    return bar.WidthOf(text) + 8 * GetSystemMetrics(SM_CXEDGE);
}

}  // namespace

void BookView::Create(HWND window) {
    window_ = window;
    TabStrip1 = TabStrip(CreateControl(window, WC_TABCONTROLW, L"Kategóriák", WS_TABSTOP | WS_CLIPSIBLINGS,
                                       ID_frmStart_TabStrip1));
    for (int k = 1; k <= kCategories; ++k) TabStrip1.Add(FromBookText(open_.TheBook.CategoryNames(k)));

    ListURLs.Attach(CreateControl(window, WC_LISTVIEWW, L"Címek", WS_TABSTOP | CheckListView::kStyles,
                                  ID_frmStart_ListURLs, WS_EX_CLIENTEDGE));
    ListURLs.AddColumn(L"webhely neve", 200);
    ListURLs.AddColumn(L"URL cime", 283);
    ListURLs.ItemClick = [this] { ListURLs_ItemClick(); };
    ListURLs.ItemCheck = [this](int position) { ListURLs_ItemCheck(position); };
    ListURLs.ColumnClick = [this] { ListURLs_ColumnClick(); };
    ListURLs.DblClick = [this] { ListURLs_DblClick(); };
    ListURLs.Enter = [this] { ListURLs_DblClick(); };
    ListURLs.Copy = [this] { ListURLs_Copy(); };
    ListURLs.MenuAsked = [this](POINT at) { ListURLs_ContextMenu(at); };
    ListURLs.SetEmptyText(
        L"Ebben a kategóriában nincs cím.\r\n\r\nCím hozzáadása: Ctrl+A\r\nKönyv megnyitása: Ctrl+O");
    StatusBar1 =
        StatusBar(CreateControl(window, STATUSCLASSNAMEW, L"", SBARS_SIZEGRIP, ID_frmStart_StatusBar1));
}

void BookView::ApplyResolution(UINT dpi) {
    dpi_ = dpi;
    ListURLs.ApplyResolution(dpi);
    DockStatusBar();  // adapts the height to the font
}

void BookView::DockStatusBar() const {
    SendMessageW(StatusBar1.Handle(), WM_SIZE, 0, 0);  // makes the bar dock itself
    RECT client{};
    GetClientRect(window_, &client);
    const int grip = GetSystemMetricsForDpi(SM_CXVSCROLL, dpi_);
    const int checked =
        client.right - std::max(PixelsOf(1900, dpi_), PanelWidth(StatusBar1, kMostChecked) + grip);
    const int shown = checked - std::max(PixelsOf(2700, dpi_), PanelWidth(StatusBar1, kMostShown));
    // A negative edge would mean the end of the bar.
    StatusBar1.SetPanels({std::max(shown, 0), std::max(checked, 0), -1});
}

int BookView::StatusBarHeight() const {
    RECT bounds{};
    GetWindowRect(StatusBar1.Handle(), &bounds);
    return bounds.bottom - bounds.top;
}

LRESULT BookView::Notify(const NMHDR& header) {
    if (header.hwndFrom == ListURLs.Handle()) return ListURLs.Notify(header);
    if (header.hwndFrom == TabStrip1.Handle() && header.code == TCN_SELCHANGE) TabStrip1_Click();
    return 0;
}

bool BookView::OnCommand(int id) {
    if (id != ID_NextTab && id != ID_PreviousTab) return false;
    const int step = id == ID_NextTab ? 1 : kCategories - 1;
    TabStrip1.Select((open_.CurrentCategory - 1 + step) % kCategories + 1);
    TabStrip1_Click();
    return true;
}

void BookView::UpdateTabCaptions() const {
    for (int k = 1; k <= kCategories; ++k)
        TabStrip1.SetCaption(k, FromBookText(open_.TheBook.CategoryNames(k)));
}

void BookView::TabStrip1_Click() {
    // The control may leave a piece of the tab that was selected.
    InvalidateRect(TabStrip1.Handle(), nullptr, TRUE);
    SaveCheckMarks(open_.CurrentCategory);
    open_.CurrentCategory = static_cast<std::uint8_t>(TabStrip1.Selected());
    CheckMarks& marks = open_.TheBook.Marks;
    marks.SetCheckedCount(marks.SavedCheckCounts(open_.CurrentCategory));
    FillAddressList(open_.CurrentCategory);
    RestoreCheckMarks(open_.CurrentCategory);
}

void BookView::FillAddressList(int category) {
    CategoryRows rows = open_.TheBook.RowsOf(category);
    fields_.Clear();
    StatusBar1.SetPanel(1, L"");
    ShowCheckedCount();
    const int count = static_cast<int>(rows.Entries.size());
    ListURLs.SetRows(count, [rows = std::move(rows)](int position, int column) {
        const AddressEntry& entry = rows.Entries[static_cast<std::size_t>(position - 1)];
        return FromBookText(column == 0 ? entry.SiteName : entry.URL);
    });
    ShowTotals(count, open_.TheBook.EntryCount());
    Filled(count != 0);
}

void BookView::ShowEmptyBook() {
    UpdateTabCaptions();
    fields_.Clear();
    ListURLs.SetRows(0, {});
    ShowTotals(0, 0);
    ShowCheckedCount();
    Filled(false);
}

void BookView::ShowTotals(int rows, int total) const {
    StatusBar1.SetPanel(2,
                        L"megjelenítve (" + std::to_wstring(rows) + L" / " + std::to_wstring(total) + L")");
}

void BookView::ShowCheckedCount() const {
    StatusBar1.SetPanel(3, L"bejelölve " + std::to_wstring(open_.TheBook.Marks.CheckedCount()));
}

void BookView::SaveCheckMarks(int category) {
    std::vector<std::int16_t> positions;
    // Usually none is checked, and no row needs to be asked.
    const bool any = open_.TheBook.Marks.CheckedCount() != 0;
    for (int position = 1; any && position <= ListURLs.Count(); ++position)
        if (ListURLs.IsChecked(position)) positions.push_back(static_cast<std::int16_t>(position));
    open_.TheBook.Marks.Save(category, std::move(positions));
}

void BookView::SetAllChecks(bool value) {
    ListURLs.SetAllChecked(value);
    open_.TheBook.Marks.SetCheckedCount(value ? ListURLs.Count() : 0);
    ShowCheckedCount();
}

std::vector<RowRun> BookView::CheckedRows() const {
    return CheckedRuns(ListURLs.Count(), [this](int position) { return ListURLs.IsChecked(position); });
}

void BookView::SelectRow(int position) {
    if (position < 1 || position > ListURLs.Count()) return;
    ListURLs.EnsureVisible(position);
    ListURLs.Select(position);
}

void BookView::ShowEntry(int position) const {
    const int index = open_.TheBook.IndexOf(open_.CurrentCategory, position);
    const std::wstring address = FromBookText(open_.TheBook.SiteURLs(index));
    fields_.Show(FromBookText(open_.TheBook.SiteNames(index)), address);
    StatusBar1.SetPanel(1, address);
}

void BookView::ListURLs_ItemClick() {
    if (ListURLs.Selected() != 0) ShowEntry(ListURLs.Selected());
}

void BookView::ListURLs_ItemCheck(int position) {
    CheckMarks& marks = open_.TheBook.Marks;
    marks.SetCheckedCount(marks.CheckedCount() + (ListURLs.IsChecked(position) ? 1 : -1));
    ShowCheckedCount();
    if (position != ListURLs.Selected()) return;
    // Pressing the space bar again and again checks row after row.
    if (position != ListURLs.Count()) {
        ListURLs.Select(position + 1);
        ListURLs.EnsureVisible(position + 1);
    }
    ListURLs_ItemClick();
}

void BookView::ListURLs_ColumnClick() {
    if (!fields_.HasName() && ListURLs.Count() != 0) ShowEntry(1);
}

// If the program selected the row, the fields do not show it yet.
void BookView::ListURLs_DblClick() {
    ListURLs_ItemClick();
    fields_.picGo_Click();
}

void BookView::ListURLs_Copy() const {
    const int position = ListURLs.Selected();
    if (position == 0) return;
    const int index = open_.TheBook.IndexOf(open_.CurrentCategory, position);
    SetClipboardText(window_, FromBookText(open_.TheBook.SiteURLs(index)));
}

void BookView::ListURLs_ContextMenu(POINT at) {
    // Otherwise the commands have nothing to act on.
    if (ListURLs.Selected() == 0 && open_.TheBook.Marks.CheckedCount() == 0) return;
    ListURLs_ItemClick();
    static constexpr int kCommands[] = {ID_mnuGoto, 0, ID_mnuEdit, ID_mnuMove, ID_mnuDel, 0, ID_mnuToDesktop};
    PopupMenu(GetMenu(window_), kCommands).OpenAt(at, window_);
}

}  // namespace lindrel
