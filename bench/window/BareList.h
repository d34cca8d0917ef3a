// What the list control itself costs: a list view like another one, but with the same text in every row and
// without a program that handles its messages. It covers the other one as long as it lives.
#pragma once

#include <array>
#include <string>
#include <utility>

#include "bench/window/Timing.h"

namespace lindrel::bench {

// To be used on one thread.
class BareList {
  public:
    // Takes size, styles, font, columns and check boxes of `model`. Throws std::runtime_error.
    BareList(HWND model, std::array<std::wstring, 2> cells) : cells_(std::move(cells)) {
        RECT bounds{};
        Demand(GetWindowRect(model, &bounds) != FALSE, "the size of the list");
        const int width = bounds.right - bounds.left;
        const int height = bounds.bottom - bounds.top;
        frame_ = CreateWindowExW(WS_EX_TOPMOST | WS_EX_NOACTIVATE, L"Static", L"",
                                 WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, bounds.left, bounds.top, width,
                                 height, nullptr, nullptr, nullptr, nullptr);
        Demand(frame_ != nullptr && SetWindowSubclass(frame_, &BareList::Procedure, 0,
                                                      reinterpret_cast<DWORD_PTR>(this)) != FALSE,
               "the bare list's window");
        list_ = CreateWindowExW(static_cast<DWORD>(GetWindowLongW(model, GWL_EXSTYLE)), WC_LISTVIEWW, L"",
                                static_cast<DWORD>(GetWindowLongW(model, GWL_STYLE)) | LVS_SHAREIMAGELISTS, 0,
                                0, width, height, frame_, nullptr, nullptr, nullptr);
        Demand(list_ != nullptr, "the bare list");
        CopyLook(model);
        Finish(frame_);
    }
    ~BareList() { DestroyWindow(frame_); }
    BareList(const BareList&) = delete;
    BareList& operator=(const BareList&) = delete;

    // Milliseconds until it is painted: emptied and filled with so many rows; scrolled to a row (1-based),
    // which is selected.
    double Fill(int rows) const {
        const double time = TimeUntilPainted(frame_, [&] {
            ListView_SetItemCountEx(list_, 0, 0);
            ListView_SetItemCountEx(list_, rows, 0);
        });
        Demand(ListView_GetItemCount(list_) == rows, "the rows of the bare list");
        return time;
    }
    double Show(int row) const {
        const double time = TimeUntilPainted(frame_, [&] {
            ListView_EnsureVisible(list_, row - 1, FALSE);
            ListView_SetItemState(list_, row - 1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        });
        Demand(ListView_GetTopIndex(list_) + ListView_GetCountPerPage(list_) >= row, "the row that is shown");
        return time;
    }

  private:
    void CopyLook(HWND model) const {
        SendMessageW(list_, WM_SETFONT, static_cast<WPARAM>(SendMessageW(model, WM_GETFONT, 0, 0)), FALSE);
        ListView_SetExtendedListViewStyle(list_, ListView_GetExtendedListViewStyle(model));
        ListView_SetCallbackMask(list_, ListView_GetCallbackMask(model));
        ListView_SetImageList(list_, ListView_GetImageList(model, LVSIL_STATE), LVSIL_STATE);
        for (int column = 0; column < Header_GetItemCount(ListView_GetHeader(model)); ++column) {
            wchar_t caption[] = L"caption";
            LVCOLUMNW description{};
            description.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
            description.pszText = caption;
            description.cx = ListView_GetColumnWidth(model, column);
            description.iSubItem = column;
            Demand(ListView_InsertColumn(list_, column, &description) == column, "a column");
        }
    }
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
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

    std::array<std::wstring, 2> cells_;
    HWND frame_ = nullptr;
    HWND list_ = nullptr;
};

}  // namespace lindrel::bench
