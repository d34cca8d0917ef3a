// The main window's controls: made once, placed by the layout, in the user's font at the screen's resolution.

#include <new>
#include <utility>

#include "app/frmStart.h"
#include "resources/resource.h"

namespace lindrel {

HWND frmStart::CreateControl(const wchar_t* window_class, const wchar_t* text, DWORD style, int id,
                             DWORD extended_style) {
    const HWND control =
        CreateWindowExW(extended_style, window_class, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0,
                        handle_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance_, nullptr);
    if (control == nullptr) throw std::bad_alloc();
    return control;
}

// In tab order; a label stands just before its control, so that screen readers name the control by it.
void frmStart::CreateControls() {
    CreateToolbar();
    TabStrip1 = TabStrip(
        CreateControl(WC_TABCONTROLW, L"Kategóriák", WS_TABSTOP | WS_CLIPSIBLINGS, ID_frmStart_TabStrip1));
    for (int k = 1; k <= kCategories; ++k) TabStrip1.Add(L"");

    ListURLs.Attach(CreateControl(WC_LISTVIEWW, L"Címek", WS_TABSTOP | CheckListView::kStyles,
                                  ID_frmStart_ListURLs, WS_EX_CLIENTEDGE));
    ListURLs.AddColumn(L"webhely neve", PixelsOf(3000, dpi_));
    ListURLs.AddColumn(L"URL cime", PixelsOf(4250, dpi_));
    ListURLs.ItemClick = [this] { ListURLs_ItemClick(); };
    ListURLs.ItemCheck = [this](int position) { ListURLs_ItemCheck(position); };
    ListURLs.ColumnClick = [this] { ListURLs_ColumnClick(); };

    constexpr DWORD kField = WS_TABSTOP | ES_AUTOHSCROLL;
    lblSiteName = Control(CreateControl(WC_STATICW, L"Webhely neve", SS_LEFT, ID_frmStart_lblSiteName));
    txtSite =
        TextBox(CreateControl(WC_EDITW, L"", kField | ES_READONLY, ID_frmStart_txtSite, WS_EX_CLIENTEDGE));
    lblURL = Control(CreateControl(WC_STATICW, L"URL", SS_LEFT, ID_frmStart_lblURL));
    txtURL =
        TextBox(CreateControl(WC_EDITW, L"", kField | ES_READONLY, ID_frmStart_txtURL, WS_EX_CLIENTEDGE));
    picGo.Attach(CreateControl(WC_BUTTONW, L"Ugorj a web oldalra", WS_TABSTOP | PictureButton::kStyle,
                               ID_frmStart_picGo));
    FrameSearch = Control(
        CreateControl(WC_BUTTONW, L"&keresés", BS_GROUPBOX, ID_frmStart_FrameSearch, WS_EX_TRANSPARENT));
    cmbFinders = ComboBox(
        CreateControl(WC_COMBOBOXW, L"", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, ID_frmStart_cmbFinders));
    // Names the next field to screen readers only: who sees the frame and the picture needs no more words.
    Control(CreateControl(WC_STATICW, L"keresett szöveg", SS_LEFT, ID_frmStart_lblFind)).Show(false);
    txtFind = TextBox(CreateControl(WC_EDITW, L"", kField, ID_frmStart_txtFind, WS_EX_CLIENTEDGE));
    Image1.Attach(
        CreateControl(WC_BUTTONW, L"Keresés", WS_TABSTOP | PictureButton::kStyle, ID_frmStart_Image1));
    StatusBar1 = StatusBar(CreateControl(STATUSCLASSNAMEW, L"", SBARS_SIZEGRIP, ID_frmStart_StatusBar1));

    LoadSearchFrame();
    TrayArea.Place(handle_);
    TrayArea.MouseDown = [this](std::int16_t& Button) { TrayArea_MouseDown(Button); };

    if (!SetWindowSubclass(txtURL.Handle(), &frmStart::UrlSubclass, 0, reinterpret_cast<DWORD_PTR>(this)))
        throw std::bad_alloc();
}

// Fonts and what is measured in pixels, when the window is made and whenever screen or settings change.
void frmStart::ApplyResolution() {
    const UINT before = std::exchange(dpi_, DpiOf(handle_));
    Font font(MessageFont(dpi_));
    for (HWND child = GetWindow(handle_, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font.Handle()), TRUE);
        SendMessageW(child, WM_SYSCOLORCHANGE, 0, 0);  // common controls hear of new colours only from here
    }
    font_ = std::move(font);
    ShowPictures();
    ListURLs.RemakeCheckBoxes();
    ListURLs.ScaleColumns(before, dpi_);
}

void frmStart::OnMinMaxInfo(MINMAXINFO& info) const {
    const UINT dpi = DpiOf(handle_);
    info.ptMinTrackSize = {PixelsAtLeast(kLeastWidth, dpi), PixelsAtLeast(kLeastHeight, dpi)};
}

void frmStart::Form_Resize() {
    RECT outer{};
    if (StatusBar1.Handle() == nullptr || IsIconic(handle_) || !GetWindowRect(handle_, &outer)) return;
    const int width = outer.right - outer.left;
    const int height = outer.bottom - outer.top;
    const auto resize = [this](int new_width, int new_height) {
        return SetWindowPos(handle_, nullptr, 0, 0, new_width, new_height,
                            SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    };
    const ResizeStep step = JudgeSize(TwipsOf(width, dpi_), TwipsOf(height, dpi_));
    if (step.Minimised) return;
    if (step.TooLow) {
        static_cast<void>(resize(width, PixelsAtLeast(kLeastHeight, dpi_)));
        return;
    }
    // The wider window raises a resize of its own, which lays out before this call returns.
    if (step.TooNarrow && resize(PixelsAtLeast(kLeastWidth, dpi_), height)) return;

    SendMessageW(StatusBar1.Handle(), WM_SIZE, 0, 0);  // it docks itself
    SizeStatusPanels();
    RECT status{};
    RECT client{};
    if (!GetWindowRect(StatusBar1.Handle(), &status) || !GetClientRect(handle_, &client)) return;
    PlaceControls(LayOut({.Width = TwipsOf(width, dpi_),
                          .Height = TwipsOf(height, dpi_),
                          .ClientWidth = TwipsOf(client.right, dpi_),
                          .ClientHeight = TwipsOf(client.bottom, dpi_),
                          .StatusBarHeight = TwipsOf(status.bottom - status.top, dpi_)}));
}

void frmStart::PlaceControls(const MainLayout& places) {
    const Place& frame = places.FrameSearch;
    const auto inside = [&frame](Place place) {
        place.Left += frame.Left;
        place.Top += frame.Top;
        return place;
    };
    const std::pair<const Control*, Place> placed[] = {
        {&Toolbar, places.Toolbar},
        {&TabStrip1, places.TabStrip1},
        {&ListURLs, places.ListURLs},
        {&lblSiteName, places.lblSiteName},
        {&txtSite, places.txtSite},
        {&lblURL, places.lblURL},
        {&txtURL, places.txtURL},
        {&picGo, places.picGo},
        {&FrameSearch, frame},
        {&cmbFinders, inside(places.cmbFinders)},
        {&txtFind, inside(places.txtFind)},
        {&Image1, inside(places.Image1)},
    };
    for (const auto& [control, place] : placed) {
        const int left = PixelsOf(place.Left, dpi_);
        const int top = PixelsOf(place.Top, dpi_);
        // A drop-down list's height counts the list as well; the system sets that of the closed box.
        const int height =
            control == &cmbFinders ? PixelsOf(3000, dpi_) : PixelsOf(place.Bottom(), dpi_) - top;
        static_cast<void>(SetWindowPos(control->Handle(), nullptr, left, top,
                                       PixelsOf(place.Right(), dpi_) - left, height,
                                       SWP_NOZORDER | SWP_NOACTIVATE));
    }
    static_cast<void>(InvalidateRect(FrameSearch.Handle(), nullptr, TRUE));
}

void frmStart::SizeStatusPanels() {
    RECT client{};
    if (!GetClientRect(handle_, &client)) return;
    const int checked = client.right - PixelsOf(1900, dpi_);
    const int shown = checked - PixelsOf(2700, dpi_);
    StatusBar1.SetPanels({shown, checked, -1});
}

// The control with the focus is remembered while a dialog or another program is in front.
void frmStart::RememberFocus() {
    const HWND focus = GetFocus();
    if (focus != nullptr && IsChild(handle_, focus)) remembered_focus_ = focus;
}

void frmStart::RestoreFocus() {
    if (GetActiveWindow() != handle_ && GetActiveWindow() != nullptr) return;
    const bool usable = remembered_focus_ != nullptr && IsChild(handle_, remembered_focus_);
    ::SetFocus(usable ? remembered_focus_ : ListURLs.Handle());
}

bool frmStart::PreTranslate(MSG& message) {
    if (handle_ == nullptr || (message.hwnd != handle_ && !IsChild(handle_, message.hwnd))) return false;
    // In the search box Del edits the text; everywhere else the menus' shortcuts win.
    const bool editing_search =
        message.message == WM_KEYDOWN && message.wParam == VK_DELETE && message.hwnd == txtFind.Handle();
    if (!editing_search && TranslateAcceleratorW(handle_, shortcuts_, &message) != 0) return true;
    return IsDialogMessageW(handle_, &message) != FALSE;
}

}  // namespace lindrel
