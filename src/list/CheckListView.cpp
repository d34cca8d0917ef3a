#include "list/CheckListView.h"

#include <algorithm>
#include <utility>

#include "list/CheckBoxImages.h"
#include "text/BookText.h"
#include "window/Display.h"

namespace lindrel {

namespace {

constexpr int kUncheckedImage = 1;
constexpr int kCheckedImage = 2;
constexpr int kRowHeight = 300;  // twips
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
    ListView_SetExtendedListViewStyle(list, kExtendedStyles);
    // The check marks are ours: the control asks for each row's.
    ListView_SetCallbackMask(list, LVIS_STATEIMAGEMASK);
    columns_.Attach(list);
    empty_text_.Attach(list);
}

std::optional<LRESULT> CheckListView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_NOTIFY:
            columns_.OnNotify(*reinterpret_cast<const NMHDR*>(lparam));
            return std::nullopt;
        case WM_SIZE:
        case WM_PAINT:
        case WM_PRINTCLIENT:
        case WM_SYSCOLORCHANGE:
        case WM_THEMECHANGED: {
            const LRESULT result = subclass_.Default(message, wparam, lparam);
            AfterMessage(message, wparam);
            return result;
        }
        case WM_NCDESTROY:
            Wrap(nullptr);
            return std::nullopt;
        default:
            return OnInput(message, wparam, lparam);
    }
}

void CheckListView::AfterMessage(UINT message, WPARAM wparam) {
    switch (message) {
        case WM_SIZE:
            columns_.OnSize();
            empty_text_.OnSize();
            break;
        case WM_PAINT:
            empty_text_.OnPaint();
            break;
        case WM_PRINTCLIENT:
            empty_text_.OnPrintClient(reinterpret_cast<HDC>(wparam));
            break;
        default:
            MakeCheckBoxes(DpiOf(Handle()));  // drawn in the colours of the time when they were made
            break;
    }
}

void CheckListView::ApplyResolution(UINT dpi) {
    MakeCheckBoxes(dpi);
    columns_.ApplyResolution(dpi);
}

void CheckListView::MakeCheckBoxes(UINT dpi) {
    ListView_SetExtendedListViewStyleEx(Handle(), LVS_EX_CHECKBOXES, 0);
    ListView_SetExtendedListViewStyleEx(Handle(), LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    SpaceCheckBoxes(dpi);
}

// The boxes of neighbouring rows would touch. A row is as high as its check box.
void CheckListView::SpaceCheckBoxes(UINT dpi) const {
    const HIMAGELIST boxes = ListView_GetImageList(Handle(), LVSIL_STATE);
    int width = 0;
    int height = 0;
    if (!ImageList_GetIconSize(boxes, &width, &height)) return;
    Owned<HIMAGELIST> spaced = InMiddleOf(boxes, std::max(height, PixelsOf(kRowHeight, dpi)));
    const Owned<HIMAGELIST> replaced(ListView_SetImageList(Handle(), spaced.release(), LVSIL_STATE));
}

void CheckListView::SetRows(int count, CellText text) {
    checked_.assign(static_cast<std::size_t>(count), false);
    text_ = std::move(text);
    selecting_ = true;
    // Not redrawn while it is empty, or its scroll bar would go and come back.
    SetWindowRedraw(Handle(), FALSE);
    // Emptied first, so that no selection survives.
    ListView_SetItemCountEx(Handle(), 0, 0);
    ListView_SetItemState(Handle(), -1, 0, LVIS_SELECTED | LVIS_FOCUSED);
    ListView_SetItemCountEx(Handle(), count, 0);
    if (count > ListView_GetCountPerPage(Handle())) columns_.MakeRoomForScrollBar();
    SetWindowRedraw(Handle(), TRUE);
    if (count != 0) EnsureVisible(1);
    selecting_ = false;
}

void CheckListView::SetChecked(int position, bool checked) {
    checked_.at(static_cast<std::size_t>(position - 1)) = checked;
    ListView_RedrawItems(Handle(), position - 1, position - 1);
}

void CheckListView::SetAllChecked(bool checked) {
    checked_.assign(checked_.size(), checked);
    Repaint();
    TellScreenReaders(CHILDID_SELF);
}

void CheckListView::CheckRows(std::span<const std::int16_t> positions) {
    for (const std::int16_t position : positions) checked_.at(static_cast<std::size_t>(position - 1)) = true;
    if (!positions.empty()) Repaint();
}

// Asked to redraw its rows, the control would look at each of them, also where it is not on the screen.
void CheckListView::Repaint() const {
    InvalidateRect(Handle(), nullptr, TRUE);
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
    // The control would look at every row between the two.
    if (const int before = Selected(); before != 0 && before != position)
        ListView_SetItemState(Handle(), before - 1, 0, LVIS_SELECTED);
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
            if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0 && Activate) Activate();
            return 0;
        case NM_RETURN:
            if (Selected() != 0 && Activate) Activate();
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

}  // namespace lindrel
