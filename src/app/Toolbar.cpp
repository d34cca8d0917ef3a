#include "app/Toolbar.h"

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
    const wchar_t* Name;  // the tool tip, and what screen readers read
};

// In their order. The first button has a name but no tool tip.
constexpr ToolbarButton kButtons[] = {
    {ID_mnuNew, L"Új fájl"},          {ID_mnuOpen, L"Megnyit"},  {ID_mnuSave, L"Mentés"},
    {ID_mnuAdd, L"Hozzáad"},          {ID_mnuExport, L"Export"}, {ID_mnuEdit, L"Módosít"},
    {ID_mnuFind, L"Keresés"},         {ID_mnuMove, L"Áthelyez"}, {ID_mnuDel, L"Töröl"},
    {ID_mnuSelectAll, L"ki/bejelöl"},
};
constexpr int kButtonCount = static_cast<int>(std::size(kButtons));
constexpr int kButtonWithMenu = 5;
// What Windows adds to the size of a picture, in pixels.
constexpr int kPaddingX = 7;
constexpr int kPaddingY = 6;

constexpr int IdOfButton(int position) {
    return ID_frmStart_Toolbar_1 + position - 1;
}

constexpr int PositionOf(int id) {
    return id - ID_frmStart_Toolbar_1 + 1;
}

constexpr PictureStrip kStrips[] = {
    {IDB_ImageList1_24, 24}, {IDB_ImageList1_30, 30}, {IDB_ImageList1_36, 36}, {IDB_ImageList1_48, 48}};

}  // namespace

void Toolbar::Create(HWND window) {
    window_ = window;
    constexpr DWORD kStyle =
        TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_NODIVIDER | CCS_NORESIZE | CCS_NOPARENTALIGN;
    toolbar_ = Control(CreateControl(window, TOOLBARCLASSNAMEW, L"Eszköztár", kStyle, ID_frmStart_Toolbar));
    const HWND toolbar = toolbar_.Handle();
    SendMessageW(toolbar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SendMessageW(toolbar, TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_DRAWDDARROWS);
    // The names are not drawn.
    SendMessageW(toolbar, TB_SETMAXTEXTROWS, 0, 0);
}

// In the states that they are in.
Toolbar::Buttons Toolbar::CurrentButtons() const {
    Buttons buttons{};
    for (int position = 1; position <= kButtonCount; ++position) {
        TBBUTTON& button = buttons.at(static_cast<std::size_t>(position - 1));
        button.iBitmap = position - 1;
        button.idCommand = IdOfButton(position);
        const LRESULT state =
            SendMessageW(toolbar_.Handle(), TB_GETSTATE, static_cast<WPARAM>(button.idCommand), 0);
        button.fsState = state == -1 ? TBSTATE_ENABLED : static_cast<BYTE>(state);
        button.fsStyle = position == kButtonWithMenu ? BTNS_DROPDOWN : BTNS_BUTTON;
        button.iString = reinterpret_cast<INT_PTR>(kButtons[position - 1].Name);
    }
    return buttons;
}

// The toolbar takes the size of its pictures and buttons only while it has no buttons, and gives tips only to
// buttons that come after them.
void Toolbar::ApplyResolution(UINT dpi) {
    const int size = LargePictureSize(dpi);
    PictureList pictures(GetModuleHandleW(nullptr), kStrips, size);
    const HWND toolbar = toolbar_.Handle();
    const Buttons buttons = CurrentButtons();
    while (SendMessageW(toolbar, TB_DELETEBUTTON, 0, 0)) {
    }
    RenewToolTips();
    SendMessageW(toolbar, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(pictures.Handle()));
    SendMessageW(toolbar, TB_SETBUTTONSIZE, 0, MAKELPARAM(size + kPaddingX, size + kPaddingY));
    ImageList1 = std::move(pictures);  // the toolbar has used the old ones until now
    if (!SendMessageW(toolbar, TB_ADDBUTTONSW, buttons.size(), reinterpret_cast<LPARAM>(buttons.data())))
        throw SystemFault(L"az eszköztár gombjainak létrehozása", 0);
}

// Those that there are have letters of the old resolution.
void Toolbar::RenewToolTips() {
    if (tips_ == nullptr) return;
    const HWND renewed =
        CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP, CW_USEDEFAULT, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, toolbar_.Handle(), nullptr, nullptr, nullptr);
    if (renewed == nullptr) return;  // the old ones are better than none
    SendMessageW(toolbar_.Handle(), TB_SETTOOLTIPS, reinterpret_cast<WPARAM>(renewed), 0);
    DestroyWindow(std::exchange(tips_, renewed));
}

// Called when the mouse is on a button: TB_GETTOOLTIPS creates a window, which the start need not wait for.
void Toolbar::RemoveTipOfFirstButton() {
    tips_ = reinterpret_cast<HWND>(SendMessageW(toolbar_.Handle(), TB_GETTOOLTIPS, 0, 0));
    TTTOOLINFOW first{};
    first.cbSize = sizeof first;
    first.hwnd = toolbar_.Handle();
    first.uId = static_cast<UINT_PTR>(IdOfButton(1));
    SendMessageW(tips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&first));
}

bool Toolbar::OnCommand(int id) const {
    const int position = PositionOf(id);
    const bool is_button = position >= 1 && position <= kButtonCount;
    if (is_button) ButtonClick(position);
    return is_button;
}

void Toolbar::ButtonClick(int Button) const {
    SendMessageW(window_, WM_COMMAND, static_cast<WPARAM>(kButtons[Button - 1].Command), 0);
}

void Toolbar::Notify(const NMHDR& header) {
    if (header.hwndFrom != toolbar_.Handle()) return;
    if (header.code == TBN_HOTITEMCHANGE) RemoveTipOfFirstButton();
    if (header.code == TBN_DROPDOWN)
        ButtonDropDown(PositionOf(reinterpret_cast<const NMTOOLBARW&>(header).iItem));
    if (header.code != TBN_GETINFOTIPW) return;
    const auto& tip = reinterpret_cast<const NMTBGETINFOTIPW&>(header);
    const int position = PositionOf(tip.iItem);
    // pszText points to the toolbar's own buffer.
    if (position != 1) lstrcpynW(tip.pszText, kButtons[position - 1].Name, tip.cchTextMax);
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
