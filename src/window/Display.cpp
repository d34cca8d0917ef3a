#include "window/Display.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

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

WindowMetrics::WindowMetrics(UINT dpi) : dpi_(dpi) {
    values_.cbSize = sizeof values_;
    // Without an answer there is nothing that could have changed.
    static_cast<void>(SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof values_, &values_, 0, dpi));
}

bool WindowMetrics::operator==(const WindowMetrics& other) const {
    static_assert(std::has_unique_object_representations_v<NONCLIENTMETRICSW>);
    return dpi_ == other.dpi_ && std::memcmp(&values_, &other.values_, sizeof values_) == 0;
}

void PassOnColours(HWND window) {
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        SendMessageW(child, WM_SYSCOLORCHANGE, 0, 0);
}

Font::Font(const LOGFONTW& description) : handle_(CreateFontIndirectW(&description)) {}

int Font::LineHeight() const {
    if (handle_ == nullptr) return 0;
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ before = SelectObject(screen, handle_.get());
    TEXTMETRICW metrics{};
    GetTextMetricsW(screen, &metrics);
    SelectObject(screen, before);
    ReleaseDC(nullptr, screen);
    return metrics.tmHeight;
}

void CentreOnOwner(HWND window, HWND owner) {
    RECT own{};
    RECT around{};
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    if (!GetWindowRect(window, &own) ||
        !GetWindowRect(owner != nullptr ? owner : GetDesktopWindow(), &around) ||
        !GetMonitorInfoW(MonitorFromRect(&around, MONITOR_DEFAULTTONEAREST), &monitor))
        return;  // It stays where the system put it.
    const int width = own.right - own.left;
    const int height = own.bottom - own.top;
    const auto placed = [](int middle, int size, int low, int high) {
        return std::max(low, std::min(middle - size / 2, high - size));
    };
    const RECT& work = monitor.rcWork;
    const int left = placed((around.left + around.right) / 2, width, work.left, work.right);
    const int top = placed((around.top + around.bottom) / 2, height, work.top, work.bottom);
    SetWindowPos(window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace lindrel
