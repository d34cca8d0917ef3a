#include "controls/Display.h"

#include <algorithm>

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

Font::Font(const LOGFONTW& description) : handle_(CreateFontIndirectW(&description)) {}

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
