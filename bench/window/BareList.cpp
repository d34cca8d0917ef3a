#include "bench/window/BareList.h"

#include <utility>

#include "bench/window/UiThread.h"

namespace lindrel::bench {

namespace {

void CopyLook(HWND list, HWND model) {
    SendMessageW(list, WM_SETFONT, static_cast<WPARAM>(SendMessageW(model, WM_GETFONT, 0, 0)), FALSE);
    ListView_SetExtendedListViewStyle(list, ListView_GetExtendedListViewStyle(model));
    ListView_SetCallbackMask(list, ListView_GetCallbackMask(model));
    ListView_SetImageList(list, ListView_GetImageList(model, LVSIL_STATE), LVSIL_STATE);
    for (int column = 0; column < Header_GetItemCount(ListView_GetHeader(model)); ++column) {
        wchar_t caption[] = L"caption";
        LVCOLUMNW description{};
        description.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
        description.pszText = caption;
        description.cx = ListView_GetColumnWidth(model, column);
        description.iSubItem = column;
        Demand(ListView_InsertColumn(list, column, &description) == column, "a column");
    }
}

}  // namespace

BareList::BareList(HWND model, std::array<std::wstring, 2> cells) : cells_(std::move(cells)) {
    RECT place{};
    Demand(GetWindowRect(model, &place) != FALSE, "the size of the list");
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    frame_ = CreateWindowExW(WS_EX_TOPMOST | WS_EX_NOACTIVATE, L"Static", L"",
                             WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, place.left, place.top, width, height,
                             nullptr, nullptr, nullptr, nullptr);
    Demand(frame_ != nullptr &&
               SetWindowSubclass(frame_, &BareList::Procedure, 0, reinterpret_cast<DWORD_PTR>(this)) != FALSE,
           "the bare list's window");
    list_ = CreateWindowExW(static_cast<DWORD>(GetWindowLongW(model, GWL_EXSTYLE)), WC_LISTVIEWW, L"",
                            static_cast<DWORD>(GetWindowLongW(model, GWL_STYLE)) | LVS_SHAREIMAGELISTS, 0, 0,
                            width, height, frame_, nullptr, nullptr, nullptr);
    Demand(list_ != nullptr, "the bare list");
    CopyLook(list_, model);
    Finish(frame_);
}

BareList::~BareList() {
    DestroyWindow(frame_);
}

double BareList::Fill(int rows) const {
    const double time = TimeUntilPainted(frame_, [&] {
        ListView_SetItemCountEx(list_, 0, 0);
        ListView_SetItemCountEx(list_, rows, 0);
    });
    Demand(ListView_GetItemCount(list_) == rows, "the rows of the bare list");
    return time;
}

double BareList::Show(int row) const {
    const double time = TimeUntilPainted(frame_, [&] {
        ListView_EnsureVisible(list_, row - 1, FALSE);
        ListView_SetItemState(list_, row - 1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    });
    Demand(ListView_GetTopIndex(list_) + ListView_GetCountPerPage(list_) >= row, "the bare list's place");
    return time;
}

LRESULT CALLBACK BareList::Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                     DWORD_PTR data) {
    auto* const self = reinterpret_cast<BareList*>(data);
    auto* const cell = reinterpret_cast<NMLVDISPINFOW*>(lparam);
    if (message != WM_NOTIFY || cell->hdr.code != LVN_GETDISPINFOW)
        return DefSubclassProc(window, message, wparam, lparam);
    if ((cell->item.mask & LVIF_TEXT) != 0)
        cell->item.pszText = self->cells_.at(static_cast<std::size_t>(cell->item.iSubItem)).data();
    if ((cell->item.mask & LVIF_STATE) != 0) cell->item.state = INDEXTOSTATEIMAGEMASK(1);
    return 0;
}

}  // namespace lindrel::bench
