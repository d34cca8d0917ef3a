// The main window's controls and their layout.

#include <iterator>
#include <utility>

#include "app/frmStart.h"
#include "resources/resource.h"
#include "window/PlacedTogether.h"

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

// Sets everything that depends on the screen's resolution and the user's settings.
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

// Most settings do not change this window.
void frmStart::OnSettingsChange() {
    if (WindowMetrics(dpi_) == metrics_) return;
    ApplyResolution();
    Form_Resize();
}

// The old icons are destroyed only when the new ones have replaced them.
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
    const MainFrame frame = Frame();
    // WM_SIZE also comes when the window is shown, with the size that it had before.
    if (laid_out_ == frame) return;
    const SizeVerdict verdict = JudgeSize(frame);
    if (verdict == SizeVerdict::Minimised) return;
    int width = outer.right - outer.left;
    int height = outer.bottom - outer.top;
    const POINT least = LeastSize(frame, dpi_);
    if (verdict == SizeVerdict::TooLow) height = least.y;
    if (verdict == SizeVerdict::TooNarrow) width = least.x;
    // A change of size raises WM_SIZE, so the window is laid out when the call returns. If the size cannot
    // change, because the screen is too small, the window is laid out as it is.
    RECT now{};
    if (verdict != SizeVerdict::Good &&
        SetWindowPos(Handle(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE) &&
        GetWindowRect(Handle(), &now) && !EqualRect(&now, &outer))
        return;

    view_.DockStatusBar();
    PlaceControls(LayOut(frame));
    fields_.ShowWholeTexts();
    laid_out_ = frame;
}

void frmStart::PlaceControls(const MainLayout& layout) const {
    // The height of a combo box includes its list; the system chooses that of the closed box.
    constexpr int kHeightOfFindersWithList = 3000;
    const auto in_pixels = [this](const Bounds& bounds) {
        return RECT{PixelsOf(bounds.Left, dpi_), PixelsOf(bounds.Top, dpi_), PixelsOf(bounds.Right(), dpi_),
                    PixelsOf(bounds.Bottom(), dpi_)};
    };
    const auto in_frame = [&frame = layout.FrameSearch](Bounds bounds) {
        bounds.Left += frame.Left;
        bounds.Top += frame.Top;
        return bounds;
    };
    Bounds finders = in_frame(layout.cmbFinders);
    finders.Height = kHeightOfFindersWithList;
    const std::pair<int, Bounds> moved[] = {
        {ID_frmStart_ListURLs, layout.ListURLs},
        {ID_frmStart_lblSiteName, layout.lblSiteName},
        {ID_frmStart_txtSite, layout.txtSite},
        {ID_frmStart_lblURL, layout.lblURL},
        {ID_frmStart_txtURL, layout.txtURL},
        {ID_frmStart_picGo, layout.picGo},
        {ID_frmStart_FrameSearch, layout.FrameSearch},
        {ID_frmStart_cmbFinders, finders},
        {ID_frmStart_txtFind, in_frame(layout.txtFind)},
        {ID_frmStart_Image1, in_frame(layout.Image1)},
    };
    PlacedTogether together(Handle(), static_cast<int>(std::size(moved)) + 2);
    together.Stretch(ID_frmStart_Toolbar, in_pixels(layout.Toolbar));
    together.Stretch(ID_frmStart_TabStrip1, in_pixels(layout.TabStrip1));
    for (const auto& [id, bounds] : moved) together.Move(id, in_pixels(bounds));
}

void frmStart::OnGetMinMaxInfo(MINMAXINFO& info) const {
    info.ptMinTrackSize = LeastSize(Frame(), DpiOf(Handle()));
}

// In pixels. It never makes the window larger than its screen has room for.
POINT frmStart::LeastSize(const MainFrame& frame, UINT dpi) const {
    return WithinWorkArea(Handle(),
                          {PixelsAtLeast(kLeastWidth, dpi), PixelsAtLeast(LeastHeight(frame), dpi)});
}

void frmStart::OnDpiChanged(const RECT& suggested) {
    // Form_Load, in giving the window its first size, may already put most of it on another screen.
    if (loaded_) ApplyResolution();
    SetWindowPos(Handle(), nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
                 suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
    Form_Resize();
}

// What does not exist yet has the size 0.
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

void frmStart::OnActivate(WPARAM state) {
    if (LOWORD(state) == WA_INACTIVE)
        RememberFocus();
    else
        RestoreFocus();
}

// Which control is to have the focus again when the window comes back.
void frmStart::RememberFocus() {
    const HWND focus = GetFocus();
    if (focus != nullptr && IsChild(Handle(), focus)) remembered_focus_ = focus;
}

void frmStart::RestoreFocus() {
    if (GetActiveWindow() != Handle() && GetActiveWindow() != nullptr) return;
    restoring_focus_ = true;
    if (remembered_focus_ != nullptr && IsChild(Handle(), remembered_focus_))
        SetFocus(remembered_focus_);
    else
        view_.SetFocus();
    restoring_focus_ = false;
}

bool frmStart::PreTranslate(MSG& message) {
    if (Handle() == nullptr || (message.hwnd != Handle() && !IsChild(Handle(), message.hwnd))) return false;
    // In the search box Del edits the text; everywhere else it is a shortcut.
    const bool editing_search = message.message == WM_KEYDOWN && message.wParam == VK_DELETE &&
                                message.hwnd == GetDlgItem(Handle(), ID_frmStart_txtFind);
    if (!editing_search && TranslateAcceleratorW(Handle(), shortcuts_, &message) != 0) return true;
    return IsDialogMessageW(Handle(), &message) != FALSE;
}

}  // namespace lindrel
