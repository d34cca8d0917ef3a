#include "window/OwnWindow.h"

#include "faults/LastError.h"
#include "faults/PendingFault.h"

namespace lindrel {

void OwnWindow::Create(WNDCLASSEXW description, DWORD style, DWORD extended_style, HWND parent) {
    description.cbSize = sizeof description;
    description.lpfnWndProc = &OwnWindow::Procedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    // Fails if the class is registered already, from the same description.
    static_cast<void>(RegisterClassExW(&description));
    SetLastError(ERROR_SUCCESS);  // not to report the failure of the registration below
    const HWND window = CreateWindowExW(extended_style, description.lpszClassName, nullptr, style,
                                        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, parent,
                                        nullptr, description.hInstance, this);
    ThrowPendingFault();
    if (window == nullptr) ThrowLastError(L"ablak létrehozása", description.lpszClassName);
}

OwnWindow* OwnWindow::FromWindow(HWND window) {
    return reinterpret_cast<OwnWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

LRESULT CALLBACK OwnWindow::Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_NCCREATE) {
        auto* const created =
            static_cast<OwnWindow*>(reinterpret_cast<const CREATESTRUCTW*>(lparam)->lpCreateParams);
        created->handle_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    OwnWindow* const self = FromWindow(window);
    if (self == nullptr) return DefWindowProcW(window, message, wparam, lparam);
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        self->handle_ = nullptr;
        return DefWindowProcW(window, message, wparam, lparam);
    }
    const LRESULT otherwise = message == WM_CREATE ? -1 : 0;
    return Guarded<LRESULT>(otherwise, [&] { return self->OnMessage(message, wparam, lparam); });
}

}  // namespace lindrel
