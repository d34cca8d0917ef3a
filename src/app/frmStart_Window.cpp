// The main window's parts: made once, placed by the layout, in the user's font at the screen's resolution.

#include <utility>

#include "app/PlaceControls.h"
#include "app/frmStart.h"
#include "resources/resource.h"

namespace lindrel {

// In tab order.
void frmStart::CreateControls() {
    toolbar_.Create(Handle());
    view_.Create(Handle());
    view_.Filled = [this](bool has_rows) { EnableCommand(ID_mnuToDesktop, has_rows); };
    fields_.Create(Handle());
    search_box_.Create(Handle());
    search_box_.Found = [this](int position) { view_.SelectRow(position); };
    file_menu_.Attach(Handle());
    book_drop_.Attach(Handle());
    TrayArea.Place(Handle());
    // Either button brings the window back.
    TrayArea.MouseDown = [this](std::int16_t&) { LeaveTray(); };
    TrayArea.IconLost = [this] { LeaveTray(); };
}

// All that depends on the resolution: when the window is made, and when screen or settings change.
void frmStart::ApplyResolution() {
    dpi_ = DpiOf(Handle());
    Font font(MessageFont(dpi_));
    for (HWND child = GetWindow(Handle(), GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font.Handle()), TRUE);
    font_ = std::move(font);
    ShowIcons();
    toolbar_.ApplyResolution(dpi_);
    view_.ApplyResolution(dpi_);
    fields_.ApplyResolution(dpi_);
    search_box_.ApplyResolution(dpi_);
    metrics_ = WindowMetrics(dpi_);
    laid_out_.reset();
}

// Comes often, and seldom with anything that is to be seen here.
void frmStart::OnSettingsChange() {
    if (WindowMetrics(dpi_) == metrics_) return;
    ApplyResolution();
    Form_Resize();
}

// The old icons are in use until the new ones are set.
void frmStart::ShowIcons() {
    const int small_size = GetSystemMetricsForDpi(SM_CXSMICON, dpi_);
    Picture large_icon(instance_, IDI_frmStart, GetSystemMetricsForDpi(SM_CXICON, dpi_));
    Picture small_icon(instance_, IDI_frmStart, small_size);
    Picture tray_icon(instance_, IDI_TrayArea, small_size);
    SendMessageW(Handle(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(large_icon.Handle()));
    SendMessageW(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(small_icon.Handle()));
    TrayArea.SetIcon(tray_icon.Handle());
    large_icon_ = std::move(large_icon);
    small_icon_ = std::move(small_icon);
    tray_icon_ = std::move(tray_icon);
}

void frmStart::Form_Resize() {
    RECT outer{};
    if (!loaded_ || IsIconic(Handle()) || !GetWindowRect(Handle(), &outer)) return;
    const int width = outer.right - outer.left;
    const int height = outer.bottom - outer.top;
    // Another size raises another WM_SIZE, which has laid out the window when this call returns. A window
    // that cannot take it, as on a small screen, is laid out as it is.
    const auto resize = [this, &outer](int new_width, int new_height) {
        RECT now{};
        return SetWindowPos(Handle(), nullptr, 0, 0, new_width, new_height,
                            SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE) &&
               GetWindowRect(Handle(), &now) && !EqualRect(&now, &outer);
    };
    const MainFrame frame = Frame();
    // Shown for the first time or again, a window is told the size that it has.
    if (laid_out_ == frame) return;
    const ResizeStep step = JudgeSize(frame);
    if (step.Minimised) return;
    if (step.TooLow && resize(width, PixelsAtLeast(LeastHeight(frame), dpi_))) return;
    if (step.TooNarrow && resize(PixelsAtLeast(kLeastWidth, dpi_), height)) return;

    view_.DockStatusBar();
    PlaceControls(Handle(), LayOut(frame), dpi_);
    fields_.ShowWholeTexts();
    laid_out_ = frame;
}

// Zeros for what is not there yet.
MainFrame frmStart::Frame() const {
    RECT outer{};
    RECT client{};
    GetWindowRect(Handle(), &outer);
    GetClientRect(Handle(), &client);
    return {.Width = TwipsOf(outer.right - outer.left, dpi_),
            .Height = TwipsOf(outer.bottom - outer.top, dpi_),
            .ClientWidth = TwipsOf(client.right, dpi_),
            .ClientHeight = TwipsOf(client.bottom, dpi_),
            .StatusBarHeight = TwipsOf(view_.StatusBarHeight(), dpi_),
            .LineHeight = TwipsOf(font_.LineHeight(), dpi_)};
}

// Remembers which control has the focus while a dialog or another program is in front.
void frmStart::OnActivate(WPARAM state) {
    returned_focus_.OnActivate(state);
    if (LOWORD(state) != WA_INACTIVE) {
        RestoreFocus();
        return;
    }
    const HWND focus = GetFocus();
    if (focus != nullptr && IsChild(Handle(), focus)) remembered_focus_ = focus;
}

void frmStart::RestoreFocus() const {
    if (GetActiveWindow() != Handle() && GetActiveWindow() != nullptr) return;
    if (remembered_focus_ != nullptr && IsChild(Handle(), remembered_focus_))
        SetFocus(remembered_focus_);
    else
        view_.SetFocus();
}

bool frmStart::PreTranslate(MSG& message) {
    if (Handle() == nullptr || (message.hwnd != Handle() && !IsChild(Handle(), message.hwnd))) return false;
    // In the search box Del edits the text; everywhere else the menus' shortcuts win.
    const bool editing_search = message.message == WM_KEYDOWN && message.wParam == VK_DELETE &&
                                message.hwnd == GetDlgItem(Handle(), ID_frmStart_txtFind);
    if (!editing_search && TranslateAcceleratorW(Handle(), shortcuts_, &message) != 0) return true;
    return IsDialogMessageW(Handle(), &message) != FALSE;
}

}  // namespace lindrel
