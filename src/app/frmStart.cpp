#include "app/frmStart.h"

#include "faults/LastError.h"
#include "help/HTMLHelp.h"
#include "resources/resource.h"

namespace lindrel {

void frmStart::Show(int show) {
    shortcuts_ = LoadAcceleratorsW(instance_, MAKEINTRESOURCEW(IDR_frmStart));
    if (shortcuts_ == nullptr) ThrowLastError(L"a billentyűparancsok betöltése");
    WNDCLASSEXW description{};
    description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    description.lpszMenuName = MAKEINTRESOURCEW(IDR_frmStart);
    description.lpszClassName = L"frmStart";
    Create(description, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT);
    ShowWindow(Handle(), show);
    UpdateWindow(Handle());
}

LRESULT frmStart::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_CREATE:
            Form_Load();
            return 0;
        case WM_SIZE:
            Form_Resize();
            return 0;
        case WM_GETMINMAXINFO:
            OnGetMinMaxInfo(*reinterpret_cast<MINMAXINFO*>(lparam));
            return 0;
        case WM_DPICHANGED:
            OnDpiChanged(*reinterpret_cast<const RECT*>(lparam));
            return 0;
        case WM_SYSCOLORCHANGE:
            PassOnColours(Handle());
            return 0;
        case WM_SETTINGCHANGE:
        case WM_THEMECHANGED:
            OnSettingsChange();
            return DefWindowProcW(Handle(), message, wparam, lparam);
        case WM_QUERYENDSESSION:
            return OnQueryEndSession() ? TRUE : FALSE;
        case WM_ENDSESSION:
            OnEndSession(wparam != FALSE);
            return 0;
        case WM_CLOSE:
            OnClose();
            return 0;
        case WM_DESTROY:
            Form_Unload();
            return 0;
        default:
            return OnControlMessage(message, wparam, lparam);
    }
}

LRESULT frmStart::OnControlMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_ACTIVATE:
            OnActivate(wparam);
            return 0;
        case WM_SETFOCUS:
            RestoreFocus();
            return 0;
        case WM_SYSCOMMAND:
            // Windows takes the focus away before it tells the window that it is inactive.
            if ((wparam & 0xFFF0) == SC_MINIMIZE) RememberFocus();
            return DefWindowProcW(Handle(), message, wparam, lparam);
        case WM_SETCURSOR:
            tool_tips_.OnSetCursor(Handle());
            return DefWindowProcW(Handle(), message, wparam, lparam);
        case WM_COMMAND:
            // Getting the focus back must leave caret and selection alone.
            if (HIWORD(wparam) == EN_SETFOCUS && restoring_focus_) return 0;
            OnCommand(LOWORD(wparam), HIWORD(wparam));
            return 0;
        case FileDrop::kMessage:
            OnBookDropped();
            return 0;
        case WM_DRAWITEM:
            // The picture buttons draw themselves.
            return SendMessageW(reinterpret_cast<const DRAWITEMSTRUCT*>(lparam)->hwndItem, message, wparam,
                                lparam);
        case WM_NOTIFY:
            return OnNotify(*reinterpret_cast<const NMHDR*>(lparam));
        default:
            return DefWindowProcW(Handle(), message, wparam, lparam);
    }
}

void frmStart::OnCommand(int id, int event) {
    static constexpr struct {
        int Id;
        void (frmStart::*Handler)();
    } kCommands[] = {
        {ID_mnuKat, &frmStart::mnuKat_Click},
        {ID_mnuAdd, &frmStart::mnuAdd_Click},
        {ID_mnuEdit, &frmStart::mnuEdit_Click},
        {ID_mnuFind, &frmStart::mnuFind_Click},
        {ID_mnuMove, &frmStart::mnuMove_Click},
        {ID_mnuDel, &frmStart::mnuDel_Click},
        {ID_mnuSelectAll, &frmStart::mnuSelectAll_Click},
        {ID_mnuToDesktop, &frmStart::mnuToDesktop_Click},
        {ID_mnuGridLines, &frmStart::mnuGridLines_Click},
        {ID_mnuTray, &frmStart::mnuTray_Click},
        {ID_mnuImport, &frmStart::mnuImport_Click},
        {ID_mnuExport, &frmStart::mnuExport_Click},
        {ID_mnuGoto, &frmStart::mnuGoto_Click},
        {ID_mnuHelp, &frmStart::mnuHelp_Click},
        {ID_mnuGoHome, &frmStart::mnuGoHome_Click},
        {ID_mnuAbout, &frmStart::mnuAbout_Click},
    };
    if (toolbar_.OnCommand(id) || file_menu_.OnCommand(id) || view_.OnCommand(id) || fields_.OnCommand(id) ||
        search_box_.OnCommand(id, event))
        return;
    for (const auto& [command, handler] : kCommands)
        if (command == id) return (this->*handler)();
}

LRESULT frmStart::OnNotify(const NMHDR& header) {
    toolbar_.Notify(header);
    return view_.Notify(header);
}

// From the user, or from another program: an installer or the task manager asks at any time.
void frmStart::OnClose() {
    // If a box or dialog is open, a command is running, and the window has to stay until it is done.
    if (!IsWindowEnabled(Handle())) {
        // Refused while the user works in another program; the taskbar button flashes then.
        static_cast<void>(SetForegroundWindow(GetLastActivePopup(Handle())));
        return;
    }
    if (open_.Modified && TrayArea.Visible()) LeaveTray();
    if (MayClose()) DestroyWindow(Handle());
}

// Whether the session may end, as far as the book is concerned. Open dialogs are asked too.
bool frmStart::OnQueryEndSession() {
    session_.Release();  // an earlier question may have been refused
    if (!open_.Modified) return true;
    // A program without a visible window is ended when it does not answer at once.
    if (TrayArea.Visible()) LeaveTray();
    session_.Hold(Handle(), L"A könyv módosításai még nincsenek mentve.");
    // If a box or dialog is open, a command is running, and saving now could write half of its work.
    if (!IsWindowEnabled(Handle())) return false;
    // After a refusal the reason stays until the system has shown it.
    if (!MayClose()) return false;
    session_.Release();
    return true;
}

void frmStart::OnEndSession(bool ending) {
    session_.Release();
    if (!ending) return;
    // The process may be ended as soon as this returns; until then what other programs show for it must be
    // removed.
    TrayArea.SetVisible(false);
    CloseHelp();
    // If it was an installer that asked, it waits for the program to end. An open box or dialog would report
    // the end of its owner as a fault; in that case the system ends the process.
    if (IsWindowEnabled(Handle())) DestroyWindow(Handle());
}

void frmStart::OnBookDropped() {
    // A command may have opened a dialog since the drop, and the dialog works on the open book.
    if (!IsWindowEnabled(Handle())) return;
    file_menu_.OpenDropped(book_drop_.TakePath());
}

void frmStart::Form_Load() {
    const UINT dpi = DpiOf(Handle());
    RECT bounds{};
    GetWindowRect(Handle(), &bounds);
    PlaceInWorkArea(Handle(), {bounds.left, bounds.top, bounds.left + PixelsOf(11400, dpi),
                               bounds.top + PixelsOf(7500, dpi)});
    CreateControls();
    ApplyResolution();
    file_menu_.ResetBook();
    open_.CurrentCategory = 1;
    loaded_ = true;
    Form_Resize();
}

void frmStart::EnableCommand(int id, bool enabled) {
    const UINT state = enabled ? MF_ENABLED : MF_GRAYED;
    EnableMenuItem(GetMenu(Handle()), static_cast<UINT>(id), MF_BYCOMMAND | state);
}

void frmStart::Form_Unload() {
    CloseHelp();
    book_drop_.Detach();
    // If creation failed there is no message loop to end, and WM_QUIT would close the box that reports it.
    if (loaded_) PostQuitMessage(0);
}

}  // namespace lindrel
