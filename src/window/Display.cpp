#include "window/Display.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "window/KeptWithin.h"

namespace lindrel {

UINT DpiOf(HWND window) {
    const UINT dpi = GetDpiForWindow(window);
    return dpi != 0 ? dpi : USER_DEFAULT_SCREEN_DPI;
}

LOGFONTW MessageFont(UINT dpi) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi))
        return metrics.lfMessageFont;
    LOGFONTW fallback{};
    fallback.lfHeight = -MulDiv(9, static_cast<int>(dpi), 72);
    lstrcpynW(fallback.lfFaceName, L"MS Shell Dlg 2", LF_FACESIZE);
    return fallback;
}

WindowMetrics::WindowMetrics(UINT dpi) {
    values_.cbSize = sizeof values_;
    // If this fails the metrics count as unchanged, and the program keeps its fonts.
    static_cast<void>(SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof values_, &values_, 0, dpi));
}

bool WindowMetrics::operator==(const WindowMetrics& other) const {
    static_assert(std::has_unique_object_representations_v<NONCLIENTMETRICSW>);
    return std::memcmp(&values_, &other.values_, sizeof values_) == 0;
}

void PassOnColours(HWND window) {
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        SendMessageW(child, WM_SYSCOLORCHANGE, 0, 0);
}

SIZE TextSize(HFONT font, std::wstring_view text) {
    SIZE size{};
    const HDC dc = GetDC(nullptr);
    if (dc == nullptr) return size;
    const HGDIOBJ before = SelectObject(dc, font);
    // If this fails the size stays 0.
    static_cast<void>(GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size));
    SelectObject(dc, before);
    ReleaseDC(nullptr, dc);
    return size;
}

int Font::LineHeight() const {
    return handle_ == nullptr ? 0 : static_cast<int>(TextSize(Handle(), L" ").cy);
}

RECT WorkAreaOf(const RECT& place) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    const bool known = GetMonitorInfoW(MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST), &monitor) != FALSE;
    return known ? monitor.rcWork : place;
}

void PlaceInWorkArea(HWND window, const RECT& bounds) {
    const RECT kept = KeptWithin(bounds, WorkAreaOf(bounds));
    SetWindowPos(window, nullptr, kept.left, kept.top, kept.right - kept.left, kept.bottom - kept.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

POINT WithinWorkArea(HWND window, POINT size) {
    RECT bounds{};
    if (!GetWindowRect(window, &bounds)) return size;
    const RECT work = WorkAreaOf(bounds);
    return {std::min(size.x, work.right - work.left), std::min(size.y, work.bottom - work.top)};
}

void CentreOnOwner(HWND window, HWND owner) {
    RECT bounds{};
    RECT around{};
    if (!GetWindowRect(window, &bounds) || !GetWindowRect(owner, &around))
        return;  // It stays where Windows put it.
    const RECT kept = KeptWithin(CentredOver(bounds, around), WorkAreaOf(around));
    SetWindowPos(window, nullptr, kept.right - (bounds.right - bounds.left),
                 kept.bottom - (bounds.bottom - bounds.top), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace lindrel
