#include "controls/CheckListView.h"

#include <algorithm>
#include <new>
#include <utility>

#include "book/BookText.h"

namespace lindrel {

namespace {

constexpr int kUncheckedImage = 1;
constexpr int kCheckedImage = 2;
constexpr DWORD kExtendedStyles = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;

bool BeginsWith(const std::wstring& text, const std::wstring& letters) {
    return ContainsCaseless(std::wstring_view(text).substr(0, letters.size()), letters);
}

}  // namespace

void CheckListView::Attach(HWND list) {
    Wrap(list);
    subclass_.Attach(list, [this](UINT message, WPARAM wparam, LPARAM lparam) {
        return OnMessage(message, wparam, lparam);
    });
    ListView_SetExtendedListViewStyle(list, kExtendedStyles | LVS_EX_CHECKBOXES);
    // The check marks are ours: the control asks for each row's.
    ListView_SetCallbackMask(list, LVIS_STATEIMAGEMASK);
}

void CheckListView::AddColumn(const std::wstring& caption, int width_in_pixels) {
    std::wstring text = caption;
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    column.pszText = text.data();
    column.cx = width_in_pixels;
    column.iSubItem = Header_GetItemCount(ListView_GetHeader(Handle()));
    if (ListView_InsertColumn(Handle(), column.iSubItem, &column) == -1) throw std::bad_alloc();
}

void CheckListView::SetColumnWidth(int column, int width_in_pixels) {
    ListView_SetColumnWidth(Handle(), column, width_in_pixels);
}

void CheckListView::ScaleColumns(UINT from_dpi, UINT to_dpi) {
    const int columns = Header_GetItemCount(ListView_GetHeader(Handle()));
    for (int column = 0; column < columns; ++column)
        SetColumnWidth(column, MulDiv(ListView_GetColumnWidth(Handle(), column), static_cast<int>(to_dpi),
                                      static_cast<int>(from_dpi)));
}

void CheckListView::RemakeCheckBoxes() {
    ListView_SetExtendedListViewStyleEx(Handle(), LVS_EX_CHECKBOXES, 0);
    ListView_SetExtendedListViewStyleEx(Handle(), LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
}

void CheckListView::SetRows(int count, CellText text) {
    checked_.assign(static_cast<std::size_t>(count), false);
    text_ = std::move(text);
    selecting_ = true;
    // Emptied first, so that neither selection nor scroll position survives.
    ListView_SetItemCountEx(Handle(), 0, 0);
    ListView_SetItemState(Handle(), -1, 0, LVIS_SELECTED | LVIS_FOCUSED);
    ListView_SetItemCountEx(Handle(), count, 0);
    selecting_ = false;
}

void CheckListView::SetChecked(int position, bool checked) {
    checked_.at(static_cast<std::size_t>(position - 1)) = checked;
    ListView_RedrawItems(Handle(), position - 1, position - 1);
}

void CheckListView::SetAllChecked(bool checked) {
    checked_.assign(checked_.size(), checked);
    ListView_RedrawItems(Handle(), 0, Count() - 1);
    TellScreenReaders(CHILDID_SELF);
}

void CheckListView::CheckRows(std::span<const std::int16_t> positions) {
    for (const std::int16_t position : positions) checked_.at(static_cast<std::size_t>(position - 1)) = true;
    ListView_RedrawItems(Handle(), 0, Count() - 1);
}

// The control does not know the check marks, so it cannot announce their changes.
void CheckListView::TellScreenReaders(LONG row) const {
    NotifyWinEvent(EVENT_OBJECT_STATECHANGE, Handle(), OBJID_CLIENT, row);
}

int CheckListView::Selected() const {
    return ListView_GetNextItem(Handle(), -1, LVNI_SELECTED) + 1;
}

void CheckListView::Select(int position) {
    const bool outer = std::exchange(selecting_, true);
    constexpr UINT kState = LVIS_SELECTED | LVIS_FOCUSED;
    ListView_SetItemState(Handle(), position - 1, kState, kState);
    // Where arrow keys with Shift start, and on some systems plain ones.
    ListView_SetSelectionMark(Handle(), position - 1);
    selecting_ = outer;
}

void CheckListView::EnsureVisible(int position) {
    ListView_EnsureVisible(Handle(), position - 1, FALSE);
}

int CheckListView::Focused() const {
    return ListView_GetNextItem(Handle(), -1, LVNI_FOCUSED) + 1;
}

void CheckListView::Focus(int position) {
    const int place = std::min(position, Count());
    if (place < 1) return;
    ListView_SetItemState(Handle(), place - 1, LVIS_FOCUSED, LVIS_FOCUSED);
    EnsureVisible(place);
}

void CheckListView::ShowGridLines(bool shown) {
    ListView_SetExtendedListViewStyleEx(Handle(), LVS_EX_GRIDLINES, shown ? LVS_EX_GRIDLINES : 0);
}

LRESULT CheckListView::Notify(const NMHDR& header) {
    switch (header.code) {
        case LVN_GETDISPINFOW:
            FillCell(const_cast<NMLVDISPINFOW&>(reinterpret_cast<const NMLVDISPINFOW&>(header)));
            return 0;
        case LVN_ODFINDITEMW:
            return FindRow(reinterpret_cast<const NMLVFINDITEMW&>(header));
        case LVN_ITEMCHANGED: {
            const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
            const bool now_selected =
                (change.uNewState & LVIS_SELECTED) != 0 && (change.uOldState & LVIS_SELECTED) == 0;
            if (now_selected && !selecting_ && ItemClick) ItemClick();
            return 0;
        }
        case LVN_COLUMNCLICK:
            if (ColumnClick) ColumnClick();
            return 0;
        case NM_CLICK:
            // Clicking the row that is already selected changes no state, but counts as a click.
            if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0 && Selected() != 0 && ItemClick)
                ItemClick();
            return 0;
        case NM_DBLCLK:
            if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0 && DoubleClick) DoubleClick();
            return 0;
        default:
            return 0;
    }
}

void CheckListView::FillCell(NMLVDISPINFOW& cell) const {
    LVITEMW& item = cell.item;
    const int position = item.iItem + 1;
    if (position < 1 || position > Count()) return;
    if ((item.mask & LVIF_TEXT) != 0 && item.cchTextMax > 0) {
        const std::wstring text = text_(position, item.iSubItem);
        const std::size_t length = std::min(text.size(), static_cast<std::size_t>(item.cchTextMax) - 1);
        *std::copy_n(text.begin(), length, item.pszText) = L'\0';
    }
    if ((item.mask & LVIF_STATE) != 0)
        item.state = INDEXTOSTATEIMAGEMASK(IsChecked(position) ? kCheckedImage : kUncheckedImage);
}

// For typing in the list: the first row from iStart on, and around the end, that begins with the letters.
LRESULT CheckListView::FindRow(const NMLVFINDITEMW& search) const {
    if ((search.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0 || search.lvfi.psz == nullptr) return -1;
    const std::wstring letters = search.lvfi.psz;
    for (int step = 0; step < Count(); ++step) {
        const int row = (std::max(search.iStart, 0) + step) % Count();
        if (BeginsWith(text_(row + 1, 0), letters)) return row;
    }
    return -1;
}

void CheckListView::Toggle(int position) {
    SetChecked(position, !IsChecked(position));
    TellScreenReaders(position);
    if (ItemCheck) ItemCheck(position);
}

void CheckListView::ToggleFocused() {
    const int focused = Focused();
    if (focused >= 1 && focused <= Count()) Toggle(focused);
}

bool CheckListView::ToggledByMouse(LPARAM point) {
    LVHITTESTINFO hit{};
    hit.pt = {GET_X_LPARAM(point), GET_Y_LPARAM(point)};
    const int row = ListView_HitTest(Handle(), &hit);
    if (row < 0 || (hit.flags & LVHT_ONITEM) != LVHT_ONITEMSTATEICON) return false;
    if (!HasFocus()) SetFocus();
    Toggle(row + 1);
    return true;
}

std::optional<LRESULT> CheckListView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            // Taken before the control sees it: a click on the box does not select the row.
            if (ToggledByMouse(lparam)) return 0;
            return std::nullopt;
        case WM_KEYDOWN:
            if (wparam != VK_SPACE || GetKeyState(VK_CONTROL) < 0) return std::nullopt;
            ToggleFocused();
            return 0;
        case WM_CHAR:
            if (wparam == L' ') return 0;  // not a letter to search for
            return std::nullopt;
        case WM_SYSCOLORCHANGE:
        case WM_THEMECHANGED: {
            const LRESULT result = subclass_.Default(message, wparam, lparam);
            RemakeCheckBoxes();  // drawn in the colours of the time when they were made
            return result;
        }
        case WM_NCDESTROY:
            Wrap(nullptr);
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

}  // namespace lindrel
