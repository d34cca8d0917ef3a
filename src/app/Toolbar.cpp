#include "app/Toolbar.h"

#include <array>
#include <iterator>
#include <utility>

#include "faults/Faults.h"
#include "resources/resource.h"
#include "window/Display.h"
#include "window/PopupMenu.h"

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
// Padding around a picture in pixels, as the system has it.
constexpr int kPaddingX = 7;
constexpr int kPaddingY = 6;

constexpr int IdOfButton(int position) {
    return ID_frmStart_Toolbar_1 + position - 1;
}

constexpr int PositionOf(int id) {
    return id - ID_frmStart_Toolbar_1 + 1;
}

constexpr bool IsButton(int position) {
    return position >= 1 && position <= kButtonCount;
}

PictureList Pictures(int size, PictureLook look) {
    static constexpr PictureStrip kStrips[] = {
        {IDB_ImageList1_24, 24}, {IDB_ImageList1_30, 30}, {IDB_ImageList1_36, 36}, {IDB_ImageList1_48, 48}};
    return {GetModuleHandleW(nullptr), kStrips, size, look};
}

}  // namespace

void Toolbar::Create(HWND window) {
    window_ = window;
    constexpr DWORD kStyle =
        TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_NODIVIDER | CCS_NORESIZE | CCS_NOPARENTALIGN;
    toolbar_ = Control(CreateControl(window, TOOLBARCLASSNAMEW, L"Eszköztár", kStyle, ID_frmStart_Toolbar));
    const HWND toolbar = toolbar_.Handle();
    SendMessageW(toolbar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SendMessageW(toolbar, TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_DRAWDDARROWS);
    // The names are for tool tips and screen readers; none are drawn.
    SendMessageW(toolbar, TB_SETMAXTEXTROWS, 0, 0);
    AddButtons();
}

void Toolbar::AddButtons() const {
    std::array<TBBUTTON, kButtonCount> buttons{};
    for (int position = 1; position <= kButtonCount; ++position) {
        TBBUTTON& button = buttons.at(static_cast<std::size_t>(position - 1));
        button.iBitmap = position - 1;
        button.idCommand = IdOfButton(position);
        button.fsState = TBSTATE_ENABLED;
        button.fsStyle = position == kButtonWithMenu ? BTNS_DROPDOWN : BTNS_BUTTON;
        button.iString = reinterpret_cast<INT_PTR>(kButtons[position - 1].Name);
    }
    if (!SendMessageW(toolbar_.Handle(), TB_ADDBUTTONSW, buttons.size(),
                      reinterpret_cast<LPARAM>(buttons.data())))
        throw SystemFault(L"az eszköztár gombjainak létrehozása", GetLastError());
}

// Asked for its tips, the toolbar makes a window for them: not before the mouse is there.
void Toolbar::RemoveTipOfFirstButton() const {
    TTTOOLINFOW first{};
    first.cbSize = sizeof first;
    first.hwnd = toolbar_.Handle();
    first.uId = static_cast<UINT_PTR>(IdOfButton(1));
    SendMessageW(reinterpret_cast<HWND>(SendMessageW(toolbar_.Handle(), TB_GETTOOLTIPS, 0, 0)), TTM_DELTOOLW,
                 0, reinterpret_cast<LPARAM>(&first));
}

void Toolbar::ApplyResolution(UINT dpi) {
    const int size = LargePictureSize(dpi);
    PictureList pictures = Pictures(size, PictureLook::Enabled);
    const HWND toolbar = toolbar_.Handle();
    SendMessageW(toolbar, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(pictures.Handle()));
    SendMessageW(toolbar, TB_SETDISABLEDIMAGELIST, 0, 0);
    // By themselves, buttons grow with their pictures but do not shrink.
    SendMessageW(toolbar, TB_SETBUTTONSIZE, 0, MAKELPARAM(size + kPaddingX, size + kPaddingY));
    // The old pictures were in use until now.
    ImageList1 = std::move(pictures);
    disabled_pictures_ = {};
    picture_size_ = size;
    Update();
}

void Toolbar::MakeDisabledPictures() {
    if (disabled_pictures_.Handle() != nullptr) return;
    disabled_pictures_ = Pictures(picture_size_, PictureLook::Disabled);
    SendMessageW(toolbar_.Handle(), TB_SETDISABLEDIMAGELIST, 0,
                 reinterpret_cast<LPARAM>(disabled_pictures_.Handle()));
}

void Toolbar::Update() {
    const HMENU menu = GetMenu(window_);
    for (int position = 1; position <= kButtonCount; ++position) {
        const UINT state =
            GetMenuState(menu, static_cast<UINT>(kButtons[position - 1].Command), MF_BYCOMMAND);
        if ((state & MF_GRAYED) != 0) MakeDisabledPictures();
        SendMessageW(toolbar_.Handle(), TB_ENABLEBUTTON, static_cast<WPARAM>(IdOfButton(position)),
                     MAKELPARAM((state & MF_GRAYED) == 0, 0));
    }
}

bool Toolbar::OnCommand(int id) const {
    if (!IsButton(PositionOf(id))) return false;
    ButtonClick(PositionOf(id));
    return true;
}

void Toolbar::ButtonClick(int Button) const {
    SendMessageW(window_, WM_COMMAND, static_cast<WPARAM>(kButtons[Button - 1].Command), 0);
}

void Toolbar::Notify(const NMHDR& header) const {
    if (header.hwndFrom != toolbar_.Handle()) return;
    if (header.code == TBN_HOTITEMCHANGE) RemoveTipOfFirstButton();
    if (header.code == TBN_DROPDOWN)
        ButtonDropDown(PositionOf(reinterpret_cast<const NMTOOLBARW&>(header).iItem));
    if (header.code == TBN_GETINFOTIPW) FillTip(reinterpret_cast<const NMTBGETINFOTIPW&>(header));
}

void Toolbar::FillTip(const NMTBGETINFOTIPW& tip) {
    const int position = PositionOf(tip.iItem);
    // pszText points to the toolbar's own buffer.
    if (position > 1 && IsButton(position))
        lstrcpynW(tip.pszText, kButtons[position - 1].Name, tip.cchTextMax);
}

void Toolbar::ButtonDropDown(int Button) const {
    RECT button{};
    if (Button != kButtonWithMenu ||
        !SendMessageW(toolbar_.Handle(), TB_GETRECT, static_cast<WPARAM>(IdOfButton(Button)),
                      reinterpret_cast<LPARAM>(&button)))
        return;
    MapWindowPoints(toolbar_.Handle(), nullptr, reinterpret_cast<POINT*>(&button), 2);
    PopupMenu(GetModuleHandleW(nullptr), IDR_frmStart_Toolbar_5).OpenBelow(button, window_);
}

}  // namespace lindrel
