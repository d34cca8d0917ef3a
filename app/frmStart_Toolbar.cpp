// The toolbar, whose buttons run commands of the menus, and the pictures of the main window.

#include <array>
#include <iterator>
#include <new>
#include <utility>

#include "app/frmStart.h"
#include "resources/resource.h"

namespace lindrel {

namespace {

struct ToolbarButton {
    int Command;
    // Its tool tip, and what screen readers call it.
    const wchar_t* Name;
};

// By position. The first button has a name but no tool tip.
constexpr ToolbarButton kButtons[] = {
    {ID_mnuNew, L"Új fájl"},          {ID_mnuOpen, L"Megnyit"},  {ID_mnuSave, L"Mentés"},
    {ID_mnuAdd, L"Hozzáad"},          {ID_mnuExport, L"Export"}, {ID_mnuEdit, L"Módosít"},
    {ID_mnuFind, L"Keresés"},         {ID_mnuMove, L"Áthelyez"}, {ID_mnuDel, L"Töröl"},
    {ID_mnuSelectAll, L"ki/bejelöl"},
};
constexpr int kButtonCount = static_cast<int>(std::size(kButtons));
constexpr int kButtonWithMenu = 5;
constexpr int kTwipsOfToolbarPicture = 360;
// Pixels around a picture, those of the system.
constexpr int kPaddingX = 7;
constexpr int kPaddingY = 6;

constexpr int IdOfButton(int position) {
    return ID_frmStart_Toolbar_1 + position - 1;
}

constexpr int PositionOf(int id) {
    return id - ID_frmStart_Toolbar_1 + 1;
}

std::array<int, kButtonCount> PicturesFrom(int first_id) {
    std::array<int, kButtonCount> ids{};
    for (int i = 0; i < kButtonCount; ++i) ids.at(static_cast<std::size_t>(i)) = first_id + i;
    return ids;
}

// The popup menu of a menu resource, gone with its owner.
class PopupMenu {
  public:
    PopupMenu(HINSTANCE instance, int id) : menu_(LoadMenuW(instance, MAKEINTRESOURCEW(id))) {
        if (menu_ == nullptr) throw std::bad_alloc();
    }
    ~PopupMenu() {
        static_cast<void>(DestroyMenu(menu_));  // fails only for a menu that is none
    }
    PopupMenu(const PopupMenu&) = delete;
    PopupMenu& operator=(const PopupMenu&) = delete;
    HMENU Handle() const { return GetSubMenu(menu_, 0); }

  private:
    HMENU menu_;
};

}  // namespace

void frmStart::CreateToolbar() {
    constexpr DWORD kStyle =
        TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_NODIVIDER | CCS_NORESIZE | CCS_NOPARENTALIGN;
    Toolbar = Control(CreateControl(TOOLBARCLASSNAMEW, L"Eszköztár", kStyle, ID_frmStart_Toolbar));
    const HWND toolbar = Toolbar.Handle();
    SendMessageW(toolbar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SendMessageW(toolbar, TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_DRAWDDARROWS);
    // The names are not drawn; screen readers and tool tips have them.
    SendMessageW(toolbar, TB_SETMAXTEXTROWS, 0, 0);

    std::array<TBBUTTON, kButtonCount> buttons{};
    for (int position = 1; position <= kButtonCount; ++position) {
        TBBUTTON& button = buttons.at(static_cast<std::size_t>(position - 1));
        button.iBitmap = position - 1;
        button.idCommand = IdOfButton(position);
        button.fsState = TBSTATE_ENABLED;
        button.fsStyle = position == kButtonWithMenu ? BTNS_DROPDOWN : BTNS_BUTTON;
        button.iString = reinterpret_cast<INT_PTR>(kButtons[position - 1].Name);
    }
    if (!SendMessageW(toolbar, TB_ADDBUTTONSW, buttons.size(), reinterpret_cast<LPARAM>(buttons.data())))
        throw std::bad_alloc();

    TTTOOLINFOW first{};
    first.cbSize = sizeof first;
    first.hwnd = toolbar;
    first.uId = static_cast<UINT_PTR>(IdOfButton(1));
    SendMessageW(reinterpret_cast<HWND>(SendMessageW(toolbar, TB_GETTOOLTIPS, 0, 0)), TTM_DELTOOLW, 0,
                 reinterpret_cast<LPARAM>(&first));
}

// All pictures in the size for the screen; those shown until now are given back only afterwards.
void frmStart::ShowPictures() {
    const auto of_system = [this](int metric) { return GetSystemMetricsForDpi(metric, dpi_); };
    const int size = PixelsOf(kTwipsOfToolbarPicture, dpi_);
    Picture large_icon(instance_, IDI_frmStart, of_system(SM_CXICON));
    Picture small_icon(instance_, IDI_frmStart, of_system(SM_CXSMICON));
    Picture tray_icon(instance_, IDI_TrayArea, of_system(SM_CXSMICON));
    PictureList pictures(instance_, PicturesFrom(IDI_ImageList1_1), size);
    PictureList disabled_pictures(instance_, PicturesFrom(IDI_ImageList1_Disabled_1), size);

    const auto show = [](HWND window, UINT message, WPARAM kind, auto handle) {
        SendMessageW(window, message, kind, reinterpret_cast<LPARAM>(handle));
    };
    show(handle_, WM_SETICON, ICON_BIG, large_icon.Handle());
    show(handle_, WM_SETICON, ICON_SMALL, small_icon.Handle());
    picGo.SetPicture(IDI_picGo, PictureSize(dpi_));
    Image1.SetPicture(IDI_Image1, PictureSize(dpi_));
    TrayArea.SetIcon(tray_icon.Handle());
    const HWND toolbar = Toolbar.Handle();
    show(toolbar, TB_SETIMAGELIST, 0, pictures.Handle());
    show(toolbar, TB_SETDISABLEDIMAGELIST, 0, disabled_pictures.Handle());
    // Buttons grow with their pictures by themselves, but do not shrink.
    SendMessageW(toolbar, TB_SETBUTTONSIZE, 0, MAKELPARAM(size + kPaddingX, size + kPaddingY));

    large_icon_ = std::move(large_icon);
    small_icon_ = std::move(small_icon);
    tray_icon_ = std::move(tray_icon);
    ImageList1 = std::move(pictures);
    disabled_pictures_ = std::move(disabled_pictures);
}

// A button can be pressed when its command can be chosen.
void frmStart::UpdateToolbar() {
    const HMENU menu = GetMenu(handle_);
    for (int position = 1; position <= kButtonCount; ++position) {
        const UINT state =
            GetMenuState(menu, static_cast<UINT>(kButtons[position - 1].Command), MF_BYCOMMAND);
        SendMessageW(Toolbar.Handle(), TB_ENABLEBUTTON, static_cast<WPARAM>(IdOfButton(position)),
                     MAKELPARAM((state & MF_GRAYED) == 0, 0));
    }
}

void frmStart::Toolbar_ButtonClick(int Button) {
    if (Button >= 1 && Button <= kButtonCount) OnCommand(kButtons[Button - 1].Command, 0);
}

void frmStart::Toolbar_Notify(const NMHDR& header) {
    if (header.code == TBN_DROPDOWN)
        Toolbar_ButtonDropDown(PositionOf(reinterpret_cast<const NMTOOLBARW&>(header).iItem));
    if (header.code == TBN_GETINFOTIPW) {
        const auto& tip = reinterpret_cast<const NMTBGETINFOTIPW&>(header);
        const int position = PositionOf(tip.iItem);
        // pszText is the toolbar's buffer, ours to write to.
        if (position > 1 && position <= kButtonCount)
            static_cast<void>(lstrcpynW(tip.pszText, kButtons[position - 1].Name, tip.cchTextMax));
    }
}

void frmStart::Toolbar_ButtonDropDown(int Button) {
    if (Button != kButtonWithMenu) return;
    TPMPARAMS beside{};
    beside.cbSize = sizeof beside;
    if (!SendMessageW(Toolbar.Handle(), TB_GETRECT, static_cast<WPARAM>(IdOfButton(Button)),
                      reinterpret_cast<LPARAM>(&beside.rcExclude)))
        return;
    static_cast<void>(  // 0 also for a window in the screen's corner
        MapWindowPoints(Toolbar.Handle(), nullptr, reinterpret_cast<POINT*>(&beside.rcExclude), 2));
    const PopupMenu menu(instance_, IDR_frmStart_Toolbar_5);
    // Leaving the menu without a choice is no failure.
    static_cast<void>(TrackPopupMenuEx(menu.Handle(), TPM_LEFTALIGN | TPM_TOPALIGN | TPM_VERTICAL,
                                       beside.rcExclude.left, beside.rcExclude.bottom, handle_, &beside));
}

}  // namespace lindrel
