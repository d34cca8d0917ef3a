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
constexpr DWORD kExtendedStyles = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
constexpr WPARAM kControlC = 3;  // as a character

// Gives a list view pictures of a kind and destroys those that it had. The control destroys the last ones.
void SetPictures(HWND list, int kind, Owned<HIMAGELIST> pictures) {
    const Owned<HIMAGELIST> replaced(ListView_SetImageList(list, pictures.release(), kind));
}

// If the list handles Enter itself, the keyboard navigation must not press the default button.
bool IsEnter(const MSG* key) {
    return key != nullptr && key->message == WM_KEYDOWN && key->wParam == VK_RETURN;
}

}  // namespace

// While it lives, the list is scrolled to the top and not redrawn. If the height of the rows changed in a
// list that is scrolled, Windows would take its place for another one and draw rubbish.
class CheckListView::Unscrolled {
  public:
    explicit Unscrolled(CheckListView& list) : list_(list) {
        if (std::exchange(list_.unscrolled_, true)) return;
        outermost_ = true;
        top_ = ListView_GetTopIndex(list_.Handle()) + 1;
        SetWindowRedraw(list_.Handle(), FALSE);
        list_.EnsureVisible(1);
    }
    ~Unscrolled() {
        if (!outermost_) return;
        // From the end, so that the row comes to the top.
        list_.EnsureVisible(list_.Count());
        list_.EnsureVisible(top_);
        SetWindowRedraw(list_.Handle(), TRUE);
        list_.Repaint();
        list_.unscrolled_ = false;
    }
    Unscrolled(const Unscrolled&) = delete;
    Unscrolled& operator=(const Unscrolled&) = delete;

  private:
    CheckListView& list_;
    bool outermost_ = false;
    int top_ = 0;
};

void CheckListView::Attach(HWND list) {
    Wrap(list);
    subclass_.Attach(list, [this](UINT message, WPARAM wparam, LPARAM lparam) {
        return OnMessage(message, wparam, lparam);
    });
    ListView_SetExtendedListViewStyle(list, kExtendedStyles);
    // The control does not store check marks, but asks for them row by row.
    ListView_SetCallbackMask(list, LVIS_STATEIMAGEMASK);
    columns_.Attach(list);
}

std::optional<LRESULT> CheckListView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_NOTIFY:
            columns_.OnNotify(*reinterpret_cast<const NMHDR*>(lparam));
            return std::nullopt;
        case WM_SETFONT: {
            const Unscrolled unscrolled(*this);
            return subclass_.Default(message, wparam, lparam);
        }
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
            if (ShowsEmptyText()) Repaint();  // centred anew
            break;
        case WM_PAINT:
            if (const HDC dc = ShowsEmptyText() ? GetDC(Handle()) : nullptr) {
                DrawEmptyText(dc);
                ReleaseDC(Handle(), dc);
            }
            break;
        case WM_PRINTCLIENT:
            if (ShowsEmptyText()) DrawEmptyText(reinterpret_cast<HDC>(wparam));
            break;
        default:
            MakeCheckBoxes(DpiOf(Handle()));  // in the new colours
            break;
    }
}

void CheckListView::SetEmptyText(const std::wstring& text) {
    empty_text_ = text;
    Repaint();
}

// In the client area below the header.
void CheckListView::DrawEmptyText(HDC dc) const {
    RECT bounds{};
    RECT header{};
    GetClientRect(Handle(), &bounds);
    GetClientRect(ListView_GetHeader(Handle()), &header);
    bounds.top = header.bottom;
    // Drawn twice on the same pixels, smooth letters would look bold.
    FillRect(dc, &bounds, GetSysColorBrush(COLOR_WINDOW));
    const int saved = SaveDC(dc);
    SelectObject(dc, reinterpret_cast<HFONT>(Send(WM_GETFONT)));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    InflateRect(&bounds, -(bounds.right - bounds.left) / 16, -(bounds.bottom - bounds.top) / 8);
    DrawTextW(dc, empty_text_.c_str(), -1, &bounds, DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
    RestoreDC(dc, saved);
}

void CheckListView::Toggle(int position) {
    SetChecked(position, !IsChecked(position));
    TellScreenReaders(position);
    if (ItemCheck) ItemCheck(position);
}

// Programs that serve the disabled check rows by their state, which the control itself does not keep. They
// may do what the user could do now, and nothing while a dialog is open.
void CheckListView::SetByMessage(int index, const LVITEMW& item) {
    const UINT state = item.state & LVIS_STATEIMAGEMASK;
    const bool checked = state == INDEXTOSTATEIMAGEMASK(kCheckedImage);
    if ((item.stateMask & LVIS_STATEIMAGEMASK) != LVIS_STATEIMAGEMASK || unscrolled_ ||
        (!checked && state != INDEXTOSTATEIMAGEMASK(kUncheckedImage)) ||
        !IsWindowEnabled(GetAncestor(Handle(), GA_ROOT)))
        return;
    const bool all = index == -1;
    if (!all && (index < 0 || index >= Count())) return;
    // Upwards, since ItemCheck may select the row below.
    for (int position = all ? Count() : index + 1; position > (all ? 0 : index); --position)
        if (IsChecked(position) != checked) Toggle(position);
}

LVHITTESTINFO CheckListView::HitAt(POINT point) const {
    LVHITTESTINFO hit{};
    hit.pt = point;
    ListView_HitTest(Handle(), &hit);
    return hit;
}

bool CheckListView::ToggledByMouse(POINT point) {
    const LVHITTESTINFO hit = HitAt(point);
    if (hit.iItem < 0 || (hit.flags & LVHT_ONITEM) != LVHT_ONITEMSTATEICON) return false;
    if (!HasFocus()) SetFocus();
    Toggle(hit.iItem + 1);
    return true;
}

bool CheckListView::AskForMenu(LPARAM point) {
    POINT at{GET_X_LPARAM(point), GET_Y_LPARAM(point)};
    // By keys. Not the whole of `point` counts: from a program of 32 bits only its lower half comes.
    if (at.x == -1 && at.y == -1) {
        at = BelowSelectedRow();
    } else {
        POINT inside = at;
        RECT client{};
        GetClientRect(Handle(), &client);
        // Scroll bars have a menu of their own.
        if (!ScreenToClient(Handle(), &inside) || !PtInRect(&client, inside)) return false;
        if (const int index = HitAt(inside).iItem; index >= 0) Select(index + 1);
    }
    if (MenuAsked) MenuAsked(at);
    return true;
}

// In screen coordinates; below the header when no row is selected. Stays in the list, which may be scrolled
// sideways.
POINT CheckListView::BelowSelectedRow() const {
    RECT bounds{};
    RECT client{};
    GetClientRect(Handle(), &client);
    if (const int row = Selected(); row != 0) {
        ListView_EnsureVisible(Handle(), row - 1, FALSE);
        ListView_GetItemRect(Handle(), row - 1, &bounds, LVIR_LABEL);
    } else {
        GetClientRect(ListView_GetHeader(Handle()), &bounds);
    }
    POINT below{std::clamp(bounds.left, client.left, client.right),
                std::clamp(bounds.bottom, client.top, client.bottom)};
    ClientToScreen(Handle(), &below);
    return below;
}

std::optional<LRESULT> CheckListView::OnInput(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            // Before the control sees it: a click on the check box does not select the row.
            if (ToggledByMouse({GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)})) return 0;
            return std::nullopt;
        case WM_KEYDOWN:
            if (wparam != VK_SPACE || GetKeyState(VK_CONTROL) < 0) return std::nullopt;
            if (const int row = Focused(); row >= 1 && row <= Count()) Toggle(row);
            return 0;
        case WM_CHAR:
            if (wparam == kControlC && Copy) Copy();
            // The control would search for them.
            if (wparam == L' ' || wparam == L'\r' || wparam == kControlC) return 0;
            return std::nullopt;
        case WM_GETDLGCODE:
            if (!Enter || !IsEnter(reinterpret_cast<const MSG*>(lparam))) return std::nullopt;
            return subclass_.Default(message, wparam, lparam) | DLGC_WANTMESSAGE;
        case LVM_SETITEMSTATE:
            SetByMessage(static_cast<int>(wparam), *reinterpret_cast<const LVITEMW*>(lparam));
            return std::nullopt;
        case WM_CONTEXTMENU:
            // Not in the header, which is a window of its own.
            if (reinterpret_cast<HWND>(wparam) != Handle() || !AskForMenu(lparam)) return std::nullopt;
            return 0;
        default:
            return std::nullopt;
    }
}

void CheckListView::ApplyResolution(UINT dpi) {
    MakeCheckBoxes(dpi);
    columns_.ApplyResolution(dpi);
}

// A row is as high as its check box, with space between those of neighbouring rows. The order matters:
// Windows misplaces check boxes that are higher than the small pictures, computes the height of the rows when
// the list gets a font, and may keep the old height when pictures are taken away. A list that is told to have
// no check boxes destroys their pictures.
void CheckListView::MakeCheckBoxes(UINT dpi) {
    const Unscrolled unscrolled(*this);
    for (const int kind : {LVSIL_STATE, LVSIL_SMALL}) SetPictures(Handle(), kind, NoPictures(1));
    ListView_SetExtendedListViewStyleEx(Handle(), LVS_EX_CHECKBOXES, 0);
    ListView_SetExtendedListViewStyleEx(Handle(), LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    const HIMAGELIST boxes = ListView_GetImageList(Handle(), LVSIL_STATE);
    int width = 0;
    int box_height = 0;
    if (!ImageList_GetIconSize(boxes, &width, &box_height)) return;
    const int height = RowHeight(box_height, dpi);
    SetPictures(Handle(), LVSIL_STATE, InMiddleOf(boxes, height));
    SetPictures(Handle(), LVSIL_SMALL, NoPictures(height));
    Send(WM_SETFONT, static_cast<WPARAM>(Send(WM_GETFONT)), FALSE);
}

void CheckListView::SetRows(int count, CellText text) {
    checked_.assign(static_cast<std::size_t>(count), false);
    text_ = std::move(text);
    selecting_ = true;
    // Not redrawn while it is empty, or its scroll bar would disappear and come back.
    SetWindowRedraw(Handle(), FALSE);
    // Emptied first, to clear the selection.
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

// The control does not know the check marks, so it does not announce their changes.
void CheckListView::TellScreenReaders(LONG row) const {
    NotifyWinEvent(EVENT_OBJECT_STATECHANGE, Handle(), OBJID_CLIENT, row);
}

void CheckListView::Select(int position) {
    const bool outer = std::exchange(selecting_, true);
    constexpr UINT kState = LVIS_SELECTED | LVIS_FOCUSED;
    // Otherwise the control would visit every row between the two.
    if (const int before = Selected(); before != 0 && before != position)
        ListView_SetItemState(Handle(), before - 1, 0, LVIS_SELECTED);
    ListView_SetItemState(Handle(), position - 1, kState, kState);
    // Where the arrow keys start with Shift held, on some versions of Windows also without it.
    ListView_SetSelectionMark(Handle(), position - 1);
    selecting_ = outer;
}

void CheckListView::Focus(int position) {
    const int row = std::min(position, Count());
    if (row < 1) return;
    ListView_SetItemState(Handle(), row - 1, LVIS_FOCUSED, LVIS_FOCUSED);
    EnsureVisible(row);
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
            // A click on the row that is selected already does not raise LVN_ITEMCHANGED.
            if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0 && Selected() != 0 && ItemClick)
                ItemClick();
            return 0;
        case NM_DBLCLK:
            if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0 && DblClick) DblClick();
            return 0;
        case NM_RETURN:
            if (Selected() != 0 && Enter) Enter();
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
    if ((item.mask & LVIF_IMAGE) != 0) item.iImage = I_IMAGENONE;
    if ((item.mask & LVIF_STATE) != 0)
        item.state = INDEXTOSTATEIMAGEMASK(IsChecked(position) ? kCheckedImage : kUncheckedImage);
}

// For typing in the list: the first row from iStart on, continuing at the top, that begins with the letters.
LRESULT CheckListView::FindRow(const NMLVFINDITEMW& search) const {
    if ((search.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0 || search.lvfi.psz == nullptr) return -1;
    const std::wstring_view letters = search.lvfi.psz;
    for (int step = 0; step < Count(); ++step) {
        const int row = (std::max(search.iStart, 0) + step) % Count();
        if (ContainsCaseless(text_(row + 1, 0).substr(0, letters.size()), letters)) return row;
    }
    return -1;
}

}  // namespace lindrel
