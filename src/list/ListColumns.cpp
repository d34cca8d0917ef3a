#include "list/ListColumns.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "faults/Faults.h"

namespace lindrel {

void ListColumns::Add(const std::wstring& caption, int share) {
    std::wstring text = caption;
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_SUBITEM;
    column.pszText = text.data();
    column.iSubItem = static_cast<int>(shares_.size());
    if (ListView_InsertColumn(list_, column.iSubItem, &column) == -1)
        throw SystemFault(L"oszlop hozzáadása a listához", 0);
    shares_.push_back(share);
    Fit();
}

void ListColumns::ApplyResolution(UINT dpi) {
    const UINT before = std::exchange(dpi_, dpi);
    if (!set_by_user_) return Fit();
    for (int column = 0; column < static_cast<int>(shares_.size()); ++column)
        ListView_SetColumnWidth(
            list_, column,
            MulDiv(ListView_GetColumnWidth(list_, column), static_cast<int>(dpi), static_cast<int>(before)));
}

void ListColumns::OnNotify(const NMHDR& header) {
    if (fitting_ || (header.code != HDN_ITEMCHANGEDW && header.code != HDN_ITEMCHANGEDA)) return;
    // The user has dragged a divider, double-clicked it, or used the list's own keys.
    const HDITEMW* const item = reinterpret_cast<const NMHEADERW&>(header).pitem;
    if (item != nullptr && (item->mask & HDI_WIDTH) != 0) set_by_user_ = true;
}

// Also called when the vertical scroll bar appears or disappears.
void ListColumns::OnSize() {
    if (!set_by_user_) Fit();
}

void ListColumns::Fit() {
    // Until it gets its bounds, the list has no width to share.
    if (Room() == 0 || std::exchange(fitting_, true)) return;
    // With new widths a scroll bar can appear or disappear, which changes the room that they share.
    constexpr int kTries = 4;
    int shared = -1;
    for (int i = 0; i < kTries && shared != Room(); ++i) ShareOut(shared = Room());
    fitting_ = false;
}

void ListColumns::MakeRoomForScrollBar() {
    const bool shown = (GetWindowLongW(list_, GWL_STYLE) & WS_VSCROLL) != 0;
    if (shown || set_by_user_ || std::exchange(fitting_, true)) return;
    ShareOut(std::max(Room() - GetSystemMetricsForDpi(SM_CXVSCROLL, dpi_), 0));
    fitting_ = false;
}

void ListColumns::ShareOut(int width) const {
    int shares_left = std::accumulate(shares_.begin(), shares_.end(), 0);
    for (int column = 0; column < static_cast<int>(shares_.size()); ++column) {
        const int share = shares_[static_cast<std::size_t>(column)];
        const int own = MulDiv(width, share, shares_left);
        // Setting a width redraws all columns to the right, even if it is the same width.
        if (ListView_GetColumnWidth(list_, column) != own) ListView_SetColumnWidth(list_, column, own);
        width -= own;
        shares_left -= share;
    }
}

int ListColumns::Room() const {
    RECT client{};
    GetClientRect(list_, &client);
    return client.right;
}

}  // namespace lindrel
