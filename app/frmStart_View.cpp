// How the program shows itself: stripes in the list, tray mode.

#include "app/frmStart.h"
#include "controls/MsgBox.h"
#include "resources/resource.h"

namespace lindrel {

void frmStart::mnuGridLines_Click() {
    const HMENU menu = GetMenu(Handle());
    const bool shown = (GetMenuState(menu, ID_mnuGridLines, MF_BYCOMMAND) & MF_CHECKED) == 0;
    CheckMenuItem(menu, ID_mnuGridLines, shown ? MF_CHECKED : MF_UNCHECKED);
    view_.ShowGridLines(shown);
}

void frmStart::mnuTray_Click() {
    ShowWindow(Handle(), SW_HIDE);
    TrayArea.SetToolTip(kApplicationTitle);
    TrayArea.SetVisible(true);
    // Without an icon there would be no way back.
    if (!TrayArea.IsTaken()) LeaveTray();
}

void frmStart::LeaveTray() {
    ShowWindow(Handle(), SW_SHOW);
    // Refused while another program keeps the front; the window is there all the same.
    static_cast<void>(SetForegroundWindow(Handle()));
    TrayArea.SetVisible(false);
}

}  // namespace lindrel
