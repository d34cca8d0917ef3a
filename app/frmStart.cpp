#include "app/frmStart.h"

#include <new>

#include "book/StatusTexts.h"
#include "controls/MsgBox.h"
#include "controls/PendingFault.h"
#include "resources/resource.h"

namespace lindrel {

namespace {

constexpr wchar_t kWindowClass[] = L"frmStart";
// The empty book's title ends in a blank (intended).
constexpr wchar_t kTitleOfEmptyBook[] = L"Lindrel ";
constexpr int kDesignedWidth = 11400;
constexpr int kDesignedHeight = 7500;

}  // namespace

frmStart::frmStart(HINSTANCE instance) : instance_(instance) {}

frmStart::~frmStart() {
    // Still open only when a fault ends the program.
    if (handle_ != nullptr) static_cast<void>(DestroyWindow(handle_));
}

void frmStart::Open(int show) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = &frmStart::Procedure;
    description.hInstance = instance_;
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    description.lpszMenuName = MAKEINTRESOURCEW(IDR_frmStart);
    description.lpszClassName = kWindowClass;
    // Fails when the class is there already; then it is this one.
    static_cast<void>(RegisterClassExW(&description));

    shortcuts_ = LoadAcceleratorsW(instance_, MAKEINTRESOURCEW(IDR_frmStart));
    const HWND window = CreateWindowExW(WS_EX_CONTROLPARENT, kWindowClass, kTitleOfEmptyBook,
                                        WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT, CW_USEDEFAULT,
                                        CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, instance_, this);
    ThrowPendingFault();
    if (window == nullptr || shortcuts_ == nullptr) throw std::bad_alloc();
    ShowWindow(window, show);
    static_cast<void>(UpdateWindow(window));
}

frmStart* frmStart::FromWindow(HWND window) {
    return reinterpret_cast<frmStart*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

LRESULT CALLBACK frmStart::Procedure(HWND window, UINT message, WPARAM first, LPARAM second) {
    if (message == WM_NCCREATE) {
        auto* const form =
            static_cast<frmStart*>(reinterpret_cast<const CREATESTRUCTW*>(second)->lpCreateParams);
        form->handle_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(form));
    }
    frmStart* const form = FromWindow(window);
    if (form == nullptr) return DefWindowProcW(window, message, first, second);
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        form->handle_ = nullptr;
        return DefWindowProcW(window, message, first, second);
    }
    // A window whose making failed must not come to be.
    const LRESULT otherwise = message == WM_CREATE ? -1 : 0;
    return Guarded<LRESULT>(otherwise, [&] { return form->Handle(message, first, second); });
}

LRESULT frmStart::Handle(UINT message, WPARAM first, LPARAM second) {
    switch (message) {
        case WM_CREATE:
            Form_Load();
            return 0;
        case WM_SIZE:
            Form_Resize();
            return 0;
        case WM_GETMINMAXINFO:
            OnMinMaxInfo(*reinterpret_cast<MINMAXINFO*>(second));
            return 0;
        case WM_DPICHANGED: {
            const RECT& proposed = *reinterpret_cast<const RECT*>(second);
            ApplyResolution();
            static_cast<void>(SetWindowPos(handle_, nullptr, proposed.left, proposed.top,
                                           proposed.right - proposed.left, proposed.bottom - proposed.top,
                                           SWP_NOZORDER | SWP_NOACTIVATE));
            Form_Resize();
            return 0;
        }
        case WM_SETTINGCHANGE:
        case WM_SYSCOLORCHANGE:
        case WM_THEMECHANGED:
            ApplyResolution();
            Form_Resize();
            return DefWindowProcW(handle_, message, first, second);
        case WM_ACTIVATE:
            returned_focus_.OnActivate(first);
            if (LOWORD(first) == WA_INACTIVE)
                RememberFocus();
            else
                RestoreFocus();
            return 0;
        case WM_SETFOCUS:
            RestoreFocus();
            return 0;
        case WM_COMMAND:
            if (HIWORD(first) == EN_SETFOCUS && returned_focus_.Is(reinterpret_cast<HWND>(second))) return 0;
            OnCommand(LOWORD(first), HIWORD(first));
            return 0;
        case WM_DRAWITEM:
            OnDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(second));
            return TRUE;
        case WM_NOTIFY:
            return OnNotify(*reinterpret_cast<const NMHDR*>(second));
        case WM_QUERYENDSESSION:
            return Form_QueryUnload() ? TRUE : FALSE;
        case WM_CLOSE:
            if (Form_QueryUnload()) static_cast<void>(DestroyWindow(handle_));
            return 0;
        case WM_DESTROY:
            Form_Unload();
            return 0;
        default:
            return DefWindowProcW(handle_, message, first, second);
    }
}

void frmStart::OnCommand(int id, int event) {
    if (id >= ID_frmStart_Toolbar_1 && id <= ID_frmStart_Toolbar_10)
        return Toolbar_ButtonClick(id - ID_frmStart_Toolbar_1 + 1);
    switch (id) {
        case ID_mnuNew:
            return mnuNew_Click();
        case ID_mnuOpen:
            return mnuOpen_Click();
        case ID_mnuClose:
            return mnuClose_Click();
        case ID_mnuSave:
            return mnuSave_Click();
        case ID_mnuSaveAs:
            return mnuSaveAs_Click();
        case ID_mnuExit:
            return mnuExit_Click();
        case ID_mnuSelectAll:
            return mnuSelectAll_Click();
        case ID_mnuKat:
            return mnuKat_Click();
        case ID_mnuAdd:
            return mnuAdd_Click();
        case ID_mnuEdit:
            return mnuEdit_Click();
        case ID_mnuMove:
            return mnuMove_Click();
        case ID_mnuDel:
            return mnuDel_Click();
        case ID_mnuImport:
            return mnuImport_Click();
        case ID_mnuExport:
            return mnuExport_Click();
        case ID_mnuToDesktop:
            return mnuToDesktop_Click();
        case ID_mnuHelp:
            return mnuHelp_Click();
        case ID_mnuGoHome:
            return mnuGoHome_Click();
        case ID_mnuAbout:
            return mnuAbout_Click();
        case ID_mnuFind:
            return mnuFind_Click();
        case ID_frmStart_picGo:
            return picGo_Click();
        case ID_frmStart_Image1:
            return Image1_Click();
        case ID_frmStart_txtFind:
            if (event == EN_CHANGE) txtFind_Change();
            if (event == EN_SETFOCUS) txtFind_GotFocus();
            return;
        case ID_mnuGridLines:
            return mnuGridLines_Click();
        case ID_mnuTray:
            return mnuTray_Click();
        case ID_mnuGoto:
            return mnuGoto_Click();
        case ID_NextTab:
            return SelectTab(SelectedCategory() % kCategories + 1);
        case ID_PreviousTab:
            return SelectTab((SelectedCategory() + kCategories - 2) % kCategories + 1);
        default:
            return;
    }
}

void frmStart::OnDrawItem(const DRAWITEMSTRUCT& item) const {
    for (const PictureButton* const button : {&picGo, &Image1})
        if (item.hwndItem == button->Handle()) button->Draw(item);
}

LRESULT frmStart::OnNotify(const NMHDR& header) {
    if (header.hwndFrom == ListURLs.Handle()) return ListURLs.Notify(header);
    if (header.hwndFrom == TabStrip1.Handle() && header.code == TCN_SELCHANGE) TabStrip1_Click();
    if (header.hwndFrom == Toolbar.Handle()) Toolbar_Notify(header);
    return 0;
}

void frmStart::Form_Load() {
    CreateControls();
    ApplyResolution();
    const int width = PixelsOf(kDesignedWidth, dpi_);
    const int height = PixelsOf(kDesignedHeight, dpi_);
    static_cast<void>(
        SetWindowPos(handle_, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE));
    ResetBook();
    CurrentCategory = 1;
    loaded_ = true;
}

void frmStart::ResetBook() {
    TheBook.Reset();
    UpdateTabCaptions();
    txtURL.SetText(L"");
    txtSite.SetText(L"");
    ListURLs.SetRows(0, {});
    Modified = false;
    StatusBar1.SetPanel(2, ShownText(0, 0));
    ShowCheckedCount();
    OpenedFile.clear();
    SetTitle(kTitleOfEmptyBook);
    EnableCommand(ID_mnuToDesktop, false);
}

void frmStart::UpdateTabCaptions() {
    for (int k = 1; k <= kCategories; ++k) TabStrip1.SetCaption(k, FromBookText(TheBook.CategoryNames(k)));
}

void frmStart::SetTitle(const std::wstring& title) {
    static_cast<void>(SetWindowTextW(handle_, title.c_str()));
}

void frmStart::EnableCommand(int id, bool enabled) {
    const UINT state = enabled ? MF_ENABLED : MF_GRAYED;
    // -1 for an item that is not there: every id of the resources is.
    static_cast<void>(EnableMenuItem(GetMenu(handle_), static_cast<UINT>(id), MF_BYCOMMAND | state));
    UpdateToolbar();
}

bool frmStart::Form_QueryUnload() {
    return OfferToSave(SaveQuestion::Closing) == SaveAnswer::Go;
}

void frmStart::Form_Unload() {
    // A window that could not be made has no loop to end: the quit would take the report of the failure with
    // it.
    if (loaded_) PostQuitMessage(0);
}

}  // namespace lindrel
