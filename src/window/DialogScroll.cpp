#include "window/DialogScroll.h"

#include <algorithm>

#include "window/Display.h"
#include "window/PlacedTogether.h"

namespace lindrel {

namespace {

SIZE SizeOf(const RECT& bounds) {
    return {bounds.right - bounds.left, bounds.bottom - bounds.top};
}

// How far to scroll to see what lies between two points of a view. If it is longer than the view, its start
// is seen.
LONG Outside(LONG low, LONG high, LONG view) {
    return std::min(low, std::max(high - view, 0L));
}

}  // namespace

void DialogScroll::Remember(HWND dialog) {
    dialog_ = dialog;
    GetClientRect(dialog, &client_);
    controls_ = BoundsOfControls();
}

void DialogScroll::Fit() {
    RECT window{};
    if (IsZoomed(dialog_) || IsIconic(dialog_) || !GetWindowRect(dialog_, &window)) return;
    if ((GetWindowLongPtrW(dialog_, GWL_STYLE) & WS_THICKFRAME) != 0) return PlaceInWorkArea(dialog_, window);
    const RECT controls = BoundsOfControls();
    const SIZE now = SizeOf(controls);
    const SIZE before = SizeOf(controls_);
    if (HasBar(SB_HORZ) || HasBar(SB_VERT)) {
        MoveControls(MulDiv(controls_.left, now.cx, before.cx) - controls.left,
                     MulDiv(controls_.top, now.cy, before.cy) - controls.top);
        ShowScrollBar(dialog_, SB_BOTH, FALSE);
    }
    followed_ = nullptr;
    ResizeAndScroll(window,
                    {MulDiv(client_.right, now.cx, before.cx), MulDiv(client_.bottom, now.cy, before.cy)});
}

// For a client area that would have to be so large.
void DialogScroll::ResizeAndScroll(const RECT& window, SIZE whole) const {
    RECT outer{};
    RECT client{};
    GetWindowRect(dialog_, &outer);
    GetClientRect(dialog_, &client);
    const UINT dpi = DpiOf(dialog_);
    const SIZE room = SizeOf(WorkAreaOf(window));
    SIZE size{whole.cx + SizeOf(outer).cx - client.right, whole.cy + SizeOf(outer).cy - client.bottom};
    const int bar_width = GetSystemMetricsForDpi(SM_CXVSCROLL, dpi);
    const int bar_height = GetSystemMetricsForDpi(SM_CYHSCROLL, dpi);
    const bool across = size.cx + (size.cy > room.cy ? bar_width : 0) > room.cx;
    const bool down = size.cy + (across ? bar_height : 0) > room.cy;
    if (across) ShowScrollBar(dialog_, SB_HORZ, TRUE);
    if (down) ShowScrollBar(dialog_, SB_VERT, TRUE);
    PlaceInWorkArea(dialog_, {window.left, window.top, window.left + size.cx + (down ? bar_width : 0),
                              window.top + size.cy + (across ? bar_height : 0)});

    GetClientRect(dialog_, &client);
    const auto set = [this](int bar, LONG length, LONG page) {
        const SCROLLINFO info{sizeof info,
                              SIF_RANGE | SIF_PAGE | SIF_POS,
                              0,
                              static_cast<int>(length) - 1,
                              static_cast<UINT>(page),
                              0,
                              0};
        SetScrollInfo(dialog_, bar, &info, TRUE);
    };
    if (across) set(SB_HORZ, whole.cx, client.right);
    if (down) set(SB_VERT, whole.cy, client.bottom);
}

void DialogScroll::Follow(HWND focus) {
    // A button that moves while the mouse holds it would not be pressed.
    if (focus == followed_ || !IsChild(dialog_, focus) || GetCapture() != nullptr) return;
    followed_ = focus;
    RECT bounds{};
    RECT client{};
    GetWindowRect(focus, &bounds);
    MapWindowPoints(HWND_DESKTOP, dialog_, reinterpret_cast<POINT*>(&bounds), 2);
    GetClientRect(dialog_, &client);
    // With its label above it.
    const int margin = LineHeight();
    InflateRect(&bounds, margin, margin);
    ScrollBy(SB_HORZ, Outside(bounds.left, bounds.right, client.right));
    ScrollBy(SB_VERT, Outside(bounds.top, bounds.bottom, client.bottom));
}

bool DialogScroll::OnMessage(UINT message, WPARAM wparam) const {
    constexpr int kLinesAtOnce = 3;
    switch (message) {
        case WM_HSCROLL:
            Scroll(SB_HORZ, LOWORD(wparam));
            return true;
        case WM_VSCROLL:
            Scroll(SB_VERT, LOWORD(wparam));
            return true;
        case WM_MOUSEWHEEL:
            ScrollBy(SB_VERT,
                     -MulDiv(GET_WHEEL_DELTA_WPARAM(wparam), kLinesAtOnce * LineHeight(), WHEEL_DELTA));
            return true;
        default:
            return false;
    }
}

void DialogScroll::Scroll(int bar, int request) const {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    if (!GetScrollInfo(dialog_, bar, &info)) return;
    const int page = static_cast<int>(info.nPage);
    switch (request) {
        case SB_LINEUP:
            return ScrollBy(bar, -LineHeight());
        case SB_LINEDOWN:
            return ScrollBy(bar, LineHeight());
        case SB_PAGEUP:
            return ScrollBy(bar, -page);
        case SB_PAGEDOWN:
            return ScrollBy(bar, page);
        case SB_TOP:
            return ScrollBy(bar, -info.nPos);
        case SB_BOTTOM:
            return ScrollBy(bar, info.nMax);
        case SB_THUMBTRACK:
            return ScrollBy(bar, info.nTrackPos - info.nPos);
        default:
            return;
    }
}

void DialogScroll::ScrollBy(int bar, int pixels) const {
    if (!HasBar(bar)) return;
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_POS;
    const int before = GetScrollPos(dialog_, bar);
    info.nPos = before + pixels;
    // The answer is within the range.
    const int moved = before - SetScrollInfo(dialog_, bar, &info, TRUE);
    MoveControls(bar == SB_HORZ ? moved : 0, bar == SB_VERT ? moved : 0);
}

void DialogScroll::MoveControls(int across, int down) const {
    constexpr int kAtMost = 30;
    PlacedTogether together(dialog_, kAtMost);
    for (HWND control = GetWindow(dialog_, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        RECT bounds{};
        GetWindowRect(control, &bounds);
        MapWindowPoints(HWND_DESKTOP, dialog_, reinterpret_cast<POINT*>(&bounds), 2);
        OffsetRect(&bounds, across, down);
        together.Move(control, bounds);
    }
}

RECT DialogScroll::BoundsOfControls() const {
    RECT all{};
    for (HWND control = GetWindow(dialog_, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        RECT bounds{};
        GetWindowRect(control, &bounds);
        UnionRect(&all, &all, &bounds);
    }
    MapWindowPoints(HWND_DESKTOP, dialog_, reinterpret_cast<POINT*>(&all), 2);
    return all;
}

bool DialogScroll::HasBar(int bar) const {
    return (GetWindowLongPtrW(dialog_, GWL_STYLE) & (bar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL)) != 0;
}

// In pixels, from dialog units.
int DialogScroll::LineHeight() const {
    RECT line{0, 0, 0, 8};
    MapDialogRect(dialog_, &line);
    return static_cast<int>(line.bottom);
}

}  // namespace lindrel
